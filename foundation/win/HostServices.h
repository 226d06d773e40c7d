#pragma once
// What the host application provides to the library: its profile, its
// audit trail, context help, its main window and a safe owner for dialogs,
// and the wait cursor. Every service has a working default here; a host
// derives from VU_CHostServices, overrides what it provides itself and
// installs the object with VuSetHostServices.
//
// Defaults:
//   profile      the registry under
//                HKEY_CURRENT_USER\Software\VuLib\<host executable name>
//                (the executable's file name without ".exe"), one key per
//                section; integers as REG_DWORD, strings as REG_SZ.
//   audit trail  OutputDebugStringW, one line per entry.
//   context help none (ShowContextHelp returns FALSE).
//   main window  the window set with SetMainWindow, else the first visible
//                top-level window of the calling thread.
//   wait cursor  the system's wait cursor while the nesting count is above 0.
#include <windows.h>

#include "framework/CString.h"
#include "framework/Types.h"
#include "framework/win/AppServices.h"

// It is also the framework's application services (main window, safe owner,
// wait cursor): the library installs the current host services there.
class VU_CHostServices : public CAppServices {
public:
    VU_CHostServices() = default;
    virtual ~VU_CHostServices() = default;
    VU_CHostServices(const VU_CHostServices&) = delete;
    VU_CHostServices& operator=(const VU_CHostServices&) = delete;

    // Profile. A missing section or entry gives the default; a value of the
    // wrong type counts as missing.
    virtual UINT GetProfileInt(const wchar_t* lpszSection, const wchar_t* lpszEntry, int nDefault);
    virtual BOOL WriteProfileInt(const wchar_t* lpszSection, const wchar_t* lpszEntry, int nValue);
    virtual CString GetProfileString(const wchar_t* lpszSection, const wchar_t* lpszEntry,
                                     const wchar_t* lpszDefault = nullptr);
    // A null entry removes the whole section, a null value removes the entry.
    virtual BOOL WriteProfileString(const wchar_t* lpszSection, const wchar_t* lpszEntry,
                                    const wchar_t* lpszValue);

    // Audit trail: one entry with its type, the function that wrote it and
    // its text.
    virtual void LogAuditTrail(DWORD dwAuditType, const wchar_t* lpszFunction,
                               const wchar_t* lpszText);

    // Context help for a help context id; FALSE if the host shows none.
    virtual BOOL ShowContextHelp(DWORD dwHelpContext, HWND hWndCaller);

    // Windows
    HWND GetMainWindow() override;
    // The window a dialog should be owned by: the top-level window of
    // hWndParent (or of the main window when null), then its last active
    // popup if that is enabled.
    HWND GetSafeOwner(HWND hWndParent) override;
    void SetMainWindow(HWND hWnd) { m_hWndMain = hWnd; }

    // Wait cursor; calls nest.
    void BeginWaitCursor() override;
    void EndWaitCursor() override;
    int GetWaitCursorCount() const { return m_nWaitCursorCount; }

    // The default profile's key under HKEY_CURRENT_USER.
    static CString GetDefaultProfileKey();

private:
    HWND m_hWndMain = nullptr;
    int m_nWaitCursorCount = 0;
    HCURSOR m_hcurRestore = nullptr;
};

// The services in use: the host's if it installed some, else the defaults.
VU_CHostServices* VuGetHostServices();
// Installs a host's services (not owned; null goes back to the defaults)
// and returns the ones that were in use.
VU_CHostServices* VuSetHostServices(VU_CHostServices* pServices);

// Writes an audit-trail entry through the services in use.
void MDLogAuditTrailMsg(DWORD dwAuditType, const wchar_t* lpszFunction, const wchar_t* lpszText);

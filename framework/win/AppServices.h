#pragma once
// The answers the framework needs from the application around it: its main
// window, the owner of a modal dialog and the wait cursor. The framework sits
// below the library's host services and does not call them; the layer above
// installs its object here (the library does so when it loads). Until then
// the plain answers of this class are used: no main window, the top-level
// window of the parent as owner, the system's wait cursor.
#include <windows.h>

class CAppServices {
public:
    CAppServices() = default;
    virtual ~CAppServices() = default;
    CAppServices(const CAppServices&) = delete;
    CAppServices& operator=(const CAppServices&) = delete;

    virtual HWND GetMainWindow() { return nullptr; }
    virtual HWND GetSafeOwner(HWND hWndParent);
    virtual void BeginWaitCursor();
    virtual void EndWaitCursor();
};

// The installed services, or the plain ones when none is installed.
CAppServices* AfxGetAppServices();
// Installs pServices (null restores the plain ones); returns the previous.
CAppServices* AfxSetAppServices(CAppServices* pServices);

#include "foundation/win/HostServices.h"

namespace {

VU_CHostServices g_defaultServices;
VU_CHostServices* g_pServices = nullptr;

// Opens (or creates) the section's key of the default profile.
HKEY OpenSectionKey(const wchar_t* lpszSection, bool create, REGSAM access = KEY_READ) {
    if (lpszSection == nullptr)
        return nullptr;
    CString path = VU_CHostServices::GetDefaultProfileKey() + L"\\" + lpszSection;
    HKEY hKey = nullptr;
    LONG status = create ? RegCreateKeyExW(HKEY_CURRENT_USER, path.GetString(), 0, nullptr,
                                           REG_OPTION_NON_VOLATILE, KEY_READ | KEY_WRITE, nullptr,
                                           &hKey, nullptr)
                         : RegOpenKeyExW(HKEY_CURRENT_USER, path.GetString(), 0, access, &hKey);
    return status == ERROR_SUCCESS ? hKey : nullptr;
}

BOOL CALLBACK FindVisibleTopLevel(HWND hWnd, LPARAM lParam) {
    if (IsWindowVisible(hWnd) && GetWindow(hWnd, GW_OWNER) == nullptr) {
        *reinterpret_cast<HWND*>(lParam) = hWnd;
        return FALSE;
    }
    return TRUE;
}

} // namespace

CString VU_CHostServices::GetDefaultProfileKey() {
    wchar_t path[MAX_PATH] = {};
    DWORD length = GetModuleFileNameW(nullptr, path, MAX_PATH);
    const wchar_t* name = path;
    for (DWORD i = 0; i < length; ++i) {
        if (path[i] == L'\\' || path[i] == L'/')
            name = path + i + 1;
    }
    CString exeName(name);
    int dot = exeName.ReverseFind(L'.');
    if (dot > 0)
        exeName = exeName.Left(dot);
    return CString(L"Software\\VuLib\\") + exeName;
}

UINT VU_CHostServices::GetProfileInt(const wchar_t* lpszSection, const wchar_t* lpszEntry,
                                     int nDefault) {
    HKEY hKey = OpenSectionKey(lpszSection, false);
    if (hKey == nullptr || lpszEntry == nullptr) {
        if (hKey != nullptr)
            RegCloseKey(hKey);
        return static_cast<UINT>(nDefault);
    }
    DWORD type = 0, value = 0, size = sizeof(value);
    LONG status =
        RegQueryValueExW(hKey, lpszEntry, nullptr, &type, reinterpret_cast<BYTE*>(&value), &size);
    RegCloseKey(hKey);
    if (status != ERROR_SUCCESS || type != REG_DWORD || size != sizeof(value))
        return static_cast<UINT>(nDefault);
    return value;
}

BOOL VU_CHostServices::WriteProfileInt(const wchar_t* lpszSection, const wchar_t* lpszEntry,
                                       int nValue) {
    if (lpszEntry == nullptr)
        return FALSE;
    HKEY hKey = OpenSectionKey(lpszSection, true);
    if (hKey == nullptr)
        return FALSE;
    DWORD value = static_cast<DWORD>(nValue);
    LONG status = RegSetValueExW(hKey, lpszEntry, 0, REG_DWORD,
                                 reinterpret_cast<const BYTE*>(&value), sizeof(value));
    RegCloseKey(hKey);
    return status == ERROR_SUCCESS;
}

CString VU_CHostServices::GetProfileString(const wchar_t* lpszSection, const wchar_t* lpszEntry,
                                           const wchar_t* lpszDefault) {
    CString fallback(lpszDefault);
    HKEY hKey = OpenSectionKey(lpszSection, false);
    if (hKey == nullptr)
        return fallback;
    DWORD type = 0, size = 0;
    LONG status = lpszEntry == nullptr
                      ? ERROR_INVALID_PARAMETER
                      : RegQueryValueExW(hKey, lpszEntry, nullptr, &type, nullptr, &size);
    if (status != ERROR_SUCCESS || (type != REG_SZ && type != REG_EXPAND_SZ)) {
        RegCloseKey(hKey);
        return fallback;
    }
    CString value;
    int units = static_cast<int>(size / sizeof(wchar_t));
    wchar_t* buffer = value.GetBuffer(units + 1);
    status =
        RegQueryValueExW(hKey, lpszEntry, nullptr, &type, reinterpret_cast<BYTE*>(buffer), &size);
    RegCloseKey(hKey);
    if (status != ERROR_SUCCESS) {
        value.ReleaseBuffer(0);
        return fallback;
    }
    buffer[size / sizeof(wchar_t)] = 0; // the stored value need not be terminated
    value.ReleaseBuffer(-1);
    return value;
}

BOOL VU_CHostServices::WriteProfileString(const wchar_t* lpszSection, const wchar_t* lpszEntry,
                                          const wchar_t* lpszValue) {
    if (lpszSection == nullptr)
        return FALSE;
    if (lpszEntry == nullptr) {
        CString path = GetDefaultProfileKey() + L"\\" + lpszSection;
        LONG status = RegDeleteTreeW(HKEY_CURRENT_USER, path.GetString());
        return status == ERROR_SUCCESS || status == ERROR_FILE_NOT_FOUND;
    }
    HKEY hKey = OpenSectionKey(lpszSection, lpszValue != nullptr, KEY_READ | KEY_WRITE);
    if (hKey == nullptr)
        return lpszValue == nullptr; // nothing to remove
    LONG status;
    if (lpszValue == nullptr) {
        status = RegDeleteValueW(hKey, lpszEntry);
        if (status == ERROR_FILE_NOT_FOUND)
            status = ERROR_SUCCESS;
    } else {
        DWORD bytes = static_cast<DWORD>((CString(lpszValue).GetLength() + 1) * sizeof(wchar_t));
        status = RegSetValueExW(hKey, lpszEntry, 0, REG_SZ,
                                reinterpret_cast<const BYTE*>(lpszValue), bytes);
    }
    RegCloseKey(hKey);
    return status == ERROR_SUCCESS;
}

void VU_CHostServices::LogAuditTrail(DWORD dwAuditType, const wchar_t* lpszFunction,
                                     const wchar_t* lpszText) {
    CString line;
    line.Format(L"VuLib audit %u: %s: %s\n", static_cast<unsigned>(dwAuditType),
                lpszFunction != nullptr ? lpszFunction : L"", lpszText != nullptr ? lpszText : L"");
    OutputDebugStringW(line.GetString());
}

BOOL VU_CHostServices::ShowContextHelp(DWORD, HWND) {
    return FALSE;
}

HWND VU_CHostServices::GetMainWindow() {
    if (m_hWndMain != nullptr && IsWindow(m_hWndMain))
        return m_hWndMain;
    HWND found = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), FindVisibleTopLevel, reinterpret_cast<LPARAM>(&found));
    return found;
}

HWND VU_CHostServices::GetSafeOwner(HWND hWndParent) {
    HWND hWnd = hWndParent != nullptr ? hWndParent : GetMainWindow();
    if (hWnd == nullptr || !IsWindow(hWnd))
        return nullptr;
    HWND hWndTop = GetAncestor(hWnd, GA_ROOT);
    if (hWndTop == nullptr)
        return nullptr;
    HWND hWndPopup = GetLastActivePopup(hWndTop);
    if (hWndPopup != nullptr && IsWindowEnabled(hWndPopup))
        return hWndPopup;
    return hWndTop;
}

void VU_CHostServices::BeginWaitCursor() {
    HCURSOR hcurPrev = SetCursor(LoadCursorW(nullptr, IDC_WAIT));
    if (m_nWaitCursorCount++ == 0)
        m_hcurRestore = hcurPrev;
}

void VU_CHostServices::EndWaitCursor() {
    if (m_nWaitCursorCount == 0)
        return;
    if (--m_nWaitCursorCount == 0) {
        SetCursor(m_hcurRestore != nullptr ? m_hcurRestore : LoadCursorW(nullptr, IDC_ARROW));
        m_hcurRestore = nullptr;
    }
}

VU_CHostServices* VuGetHostServices() {
    return g_pServices != nullptr ? g_pServices : &g_defaultServices;
}

VU_CHostServices* VuSetHostServices(VU_CHostServices* pServices) {
    VU_CHostServices* previous = VuGetHostServices();
    g_pServices = pServices;
    AfxSetAppServices(VuGetHostServices());
    return previous;
}

void MDLogAuditTrailMsg(DWORD dwAuditType, const wchar_t* lpszFunction, const wchar_t* lpszText) {
    VuGetHostServices()->LogAuditTrail(dwAuditType, lpszFunction, lpszText);
}

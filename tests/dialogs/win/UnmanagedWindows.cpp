// Before any window exists: asks Wine's X11 driver to leave this program's
// windows unmanaged. Without a window manager on the virtual display, Wine
// otherwise waits two seconds for every managed window that hides (each
// closed modal dialog). The driver reads the setting when it loads, on the
// first window; on Windows the key means nothing.
#include <windows.h>

#include <string>

namespace {

bool LeaveWindowsUnmanaged() {
    wchar_t path[MAX_PATH];
    const DWORD length = GetModuleFileNameW(nullptr, path, MAX_PATH);
    const std::wstring exe(path, length);
    const std::wstring key = L"Software\\Wine\\AppDefaults\\" +
                             exe.substr(exe.find_last_of(L"\\/") + 1) + L"\\X11 Driver";
    return RegSetKeyValueW(HKEY_CURRENT_USER, key.c_str(), L"Managed", REG_SZ, L"N",
                           2 * sizeof(wchar_t)) == ERROR_SUCCESS;
}

const bool unmanaged = LeaveWindowsUnmanaged();

} // namespace

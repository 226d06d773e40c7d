// Asks Wine's X11 driver to leave this program's windows unmanaged: with no
// window manager on the virtual display it otherwise waits 2 s whenever a
// managed window hides (every closed modal dialog). The driver reads the
// setting as it loads, so it holds from the second run in a prefix on; on
// Windows the key means nothing.
#include <windows.h>

#include <string>

static const bool unmanaged = [] {
    wchar_t path[MAX_PATH];
    const std::wstring exe(path, GetModuleFileNameW(nullptr, path, MAX_PATH));
    const std::wstring key = L"Software\\Wine\\AppDefaults\\" +
                             exe.substr(exe.find_last_of(L"\\/") + 1) + L"\\X11 Driver";
    return RegSetKeyValueW(HKEY_CURRENT_USER, key.c_str(), L"Managed", REG_SZ, L"N", 4) == 0;
}();

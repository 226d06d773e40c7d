#include "foundation/win/MouseScrollLines.h"

#include <cwchar>

namespace {

const UINT kDefaultLines = 3;

VU_SMouseScrollLinesSystem g_system;
UINT g_lines = kDefaultLines;
bool g_cached = false;

VU_SMouseScrollLinesSystem RealSystem() {
    VU_SMouseScrollLinesSystem real;
    real.getVersionEx = &GetVersionExW;
    real.regOpenKeyEx = &RegOpenKeyExW;
    real.regQueryValueEx = &RegQueryValueExW;
    real.regCloseKey = &RegCloseKey;
    real.systemParametersInfo = &SystemParametersInfoW;
    return real;
}

template <class F> F Pick(F replacement, F real) {
    return replacement != nullptr ? replacement : real;
}

} // namespace

VU_SMouseScrollLinesSystem VuSetMouseScrollLinesSystem(const VU_SMouseScrollLinesSystem* pSystem) {
    VU_SMouseScrollLinesSystem previous = g_system;
    g_system = pSystem != nullptr ? *pSystem : VU_SMouseScrollLinesSystem{};
    return previous;
}

UINT VuGetMouseScrollLines(BOOL bForceRefresh) {
    if (!bForceRefresh && g_cached)
        return g_lines;
    g_cached = true;
    g_lines = kDefaultLines;

    const VU_SMouseScrollLinesSystem real = RealSystem();
    OSVERSIONINFOW version{};
    version.dwOSVersionInfoSize = sizeof(version);
    if (!Pick(g_system.getVersionEx, real.getVersionEx)(&version))
        return g_lines;
    if (version.dwPlatformId != VER_PLATFORM_WIN32_WINDOWS &&
        version.dwPlatformId != VER_PLATFORM_WIN32_NT)
        return g_lines;

    if (version.dwMajorVersion < 4) {
        HKEY hKey = nullptr;
        if (Pick(g_system.regOpenKeyEx, real.regOpenKeyEx)(HKEY_CURRENT_USER,
                                                           L"Control Panel\\Desktop", 0,
                                                           KEY_QUERY_VALUE, &hKey) != ERROR_SUCCESS)
            return g_lines;
        wchar_t text[128] = {};
        DWORD size = sizeof(text) - sizeof(wchar_t); // at most 127 characters
        if (Pick(g_system.regQueryValueEx,
                 real.regQueryValueEx)(hKey, L"WheelScrollLines", nullptr, nullptr,
                                       reinterpret_cast<LPBYTE>(text), &size) == ERROR_SUCCESS)
            g_lines = static_cast<UINT>(wcstoul(text, nullptr, 10));
        Pick(g_system.regCloseKey, real.regCloseKey)(hKey);
    } else if (version.dwPlatformId == VER_PLATFORM_WIN32_NT) {
        UINT lines = kDefaultLines;
        if (Pick(g_system.systemParametersInfo, real.systemParametersInfo)(SPI_GETWHEELSCROLLLINES,
                                                                           0, &lines, 0))
            g_lines = lines;
    }
    return g_lines;
}

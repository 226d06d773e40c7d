#pragma once
// The number of lines one mouse-wheel notch scrolls, read from the system
// once and cached.
#include <windows.h>

// Cached unless bForceRefresh. 3 when the system says nothing. Windows
// before version 4 keep the value in the registry (HKEY_CURRENT_USER
// "Control Panel\Desktop" "WheelScrollLines", a decimal string); NT asks
// SystemParametersInfo(SPI_GETWHEELSCROLLLINES); Windows 9x keeps 3.
UINT VuGetMouseScrollLines(BOOL bForceRefresh);

// The system calls VuGetMouseScrollLines makes, replaceable so that tests
// can count and steer them. Null members mean the real calls.
struct VU_SMouseScrollLinesSystem {
    BOOL(WINAPI* getVersionEx)(LPOSVERSIONINFOW) = nullptr;
    LONG(WINAPI* regOpenKeyEx)(HKEY, LPCWSTR, DWORD, REGSAM, PHKEY) = nullptr;
    LONG(WINAPI* regQueryValueEx)(HKEY, LPCWSTR, LPDWORD, LPDWORD, LPBYTE, LPDWORD) = nullptr;
    LONG(WINAPI* regCloseKey)(HKEY) = nullptr;
    BOOL(WINAPI* systemParametersInfo)(UINT, UINT, PVOID, UINT) = nullptr;
};

// Installs replacements (null: the real calls) and returns the previous set.
VU_SMouseScrollLinesSystem VuSetMouseScrollLinesSystem(const VU_SMouseScrollLinesSystem* pSystem);

// A plain Win32 host that loads vulib.dll at run time with LoadLibraryW,
// uses it through GetProcAddress and its resources, and unloads it.
// Prints one line per check; the exit code is the number of failures.
#include <windows.h>

#include <cstdio>
#include <cwchar>

namespace {

int g_failures = 0;

void Check(bool ok, const char* what) {
    std::printf("%s: %s\n", ok ? "PASS" : "FAIL", what);
    if (!ok)
        ++g_failures;
}

} // namespace

int main() {
    Check(GetModuleHandleW(L"vulib.dll") == nullptr, "not loaded before LoadLibraryW");
    HMODULE dll = LoadLibraryW(L"vulib.dll");
    Check(dll != nullptr, "LoadLibraryW(vulib.dll)");
    if (dll == nullptr)
        return g_failures;

    // The exported C++ functions by their (GCC) names.
    using GetInstance = HINSTANCE (*)();
    using GetLines = UINT (*)(BOOL);
    auto getInstance = reinterpret_cast<GetInstance>(
        reinterpret_cast<void*>(GetProcAddress(dll, "_Z19VuGetInstanceHandlev")));
    auto getLines = reinterpret_cast<GetLines>(
        reinterpret_cast<void*>(GetProcAddress(dll, "_Z21VuGetMouseScrollLinesi")));
    Check(getInstance != nullptr && getInstance() == dll, "VuGetInstanceHandle is the module");
    UINT systemLines = 0;
    SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &systemLines, 0);
    Check(getLines != nullptr && getLines(TRUE) == systemLines, "VuGetMouseScrollLines");

    wchar_t text[64] = {};
    const int length = LoadStringW(dll, 2003, text, 64);
    Check(length > 0 && std::wcscmp(text, L"\nApplication will terminate.") == 0,
          "string 2003 keeps its line break");

    Check(FreeLibrary(dll) != FALSE, "FreeLibrary");
    Check(GetModuleHandleW(L"vulib.dll") == nullptr, "unloaded");
    return g_failures;
}

// Host programs in their own processes: two link vulib.dll (one of them uses
// the wide interface as Win32 hosts write it), one loads it
// with LoadLibraryW. Each prints its checks and exits with the number of
// failures.
#include <gtest/gtest.h>

#include <windows.h>

#include <string>

namespace {

std::wstring BesideThisProgram(const wchar_t* name) {
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    std::wstring dir(path);
    dir.resize(dir.find_last_of(L"\\/") + 1);
    return dir + name;
}

// The exit code, or -1 if it could not start or did not finish in time.
long RunHost(const wchar_t* name) {
    std::wstring command = L"\"" + BesideThisProgram(name) + L"\"";
    STARTUPINFOW si{};
    si.cb = sizeof(si);
    PROCESS_INFORMATION pi{};
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &si,
                        &pi))
        return -1;
    DWORD waited = WaitForSingleObject(pi.hProcess, 60000);
    DWORD code = static_cast<DWORD>(-1);
    if (waited == WAIT_OBJECT_0)
        GetExitCodeProcess(pi.hProcess, &code);
    else
        TerminateProcess(pi.hProcess, 1);
    CloseHandle(pi.hThread);
    CloseHandle(pi.hProcess);
    return static_cast<long>(code);
}

TEST(HostProcessTest, HostsThatLinkOrLoadTheLibrary) {
    EXPECT_EQ(RunHost(L"vulib_host_linked.exe"), 0);
    EXPECT_EQ(RunHost(L"vulib_host_loadlibrary.exe"), 0);
    EXPECT_EQ(RunHost(L"vulib_host_wide.exe"), 0);
}

} // namespace

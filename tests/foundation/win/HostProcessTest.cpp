// Host programs in their own processes: two link vulib.dll (one of them uses
// the wide interface as Win32 hosts write it), one loads it with
// LoadLibraryW. Each prints its checks and exits with the number of failures.
#include <gtest/gtest.h>

#include <windows.h>

#include <string>

namespace {

// The exit code of a program beside this one, or -1 if it could not start
// or did not finish in time.
long RunHost(const wchar_t* name) {
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    std::wstring command(path);
    command = L"\"" + command.substr(0, command.find_last_of(L"\\/") + 1) + name + L"\"";
    STARTUPINFOW si{};
    si.cb = sizeof(si);
    PROCESS_INFORMATION pi{};
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &si,
                        &pi))
        return -1;
    DWORD code = static_cast<DWORD>(-1);
    if (WaitForSingleObject(pi.hProcess, 60000) == WAIT_OBJECT_0)
        GetExitCodeProcess(pi.hProcess, &code);
    else
        TerminateProcess(pi.hProcess, 1);
    CloseHandle(pi.hThread);
    CloseHandle(pi.hProcess);
    return static_cast<long>(code);
}

TEST(HostProcessTest, HostsThatLinkOrLoadTheLibrary) {
    for (const wchar_t* host :
         {L"vulib_host_linked.exe", L"vulib_host_loadlibrary.exe", L"vulib_host_wide.exe"})
        EXPECT_EQ(RunHost(host), 0) << std::string(host, host + wcslen(host));
}

} // namespace

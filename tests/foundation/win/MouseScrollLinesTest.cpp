// The mouse-wheel line count: cache, forced refresh, and which system
// source each platform and version reads. The system calls go through a
// replaceable set that counts them (plain lambdas: one calling convention on x64).
#include <gtest/gtest.h>

#include <cwchar>
#include <string>

#include "foundation/win/MouseScrollLines.h"

namespace {

// The fake system the calls see.
struct FakeSystem {
    BOOL versionOk = TRUE;
    DWORD platform = VER_PLATFORM_WIN32_NT;
    DWORD major = 10;
    LONG openStatus = ERROR_SUCCESS;
    LONG queryStatus = ERROR_SUCCESS;
    const wchar_t* registryText = L"12";
    BOOL spiOk = TRUE;
    UINT spiLines = 7;

    int versionCalls = 0, openCalls = 0, queryCalls = 0, closeCalls = 0, spiCalls = 0;
    DWORD queryBufferBytes = 0;
} g_fake;

VU_SMouseScrollLinesSystem FakeCalls() {
    VU_SMouseScrollLinesSystem system;
    system.getVersionEx = [](LPOSVERSIONINFOW info) {
        ++g_fake.versionCalls;
        info->dwPlatformId = g_fake.platform;
        info->dwMajorVersion = g_fake.major;
        return g_fake.versionOk;
    };
    system.regOpenKeyEx = [](HKEY root, LPCWSTR subKey, DWORD, REGSAM, PHKEY result) {
        ++g_fake.openCalls;
        const bool desktop =
            root == HKEY_CURRENT_USER && !wcscmp(subKey, L"Control Panel\\Desktop");
        *result = reinterpret_cast<HKEY>(static_cast<UINT_PTR>(0x4242));
        return desktop ? g_fake.openStatus : ERROR_ACCESS_DENIED;
    };
    system.regQueryValueEx = [](HKEY, LPCWSTR name, LPDWORD, LPDWORD, LPBYTE data, LPDWORD size) {
        ++g_fake.queryCalls;
        g_fake.queryBufferBytes = *size;
        if (g_fake.queryStatus == ERROR_SUCCESS && !wcscmp(name, L"WheelScrollLines"))
            wcscpy(reinterpret_cast<wchar_t*>(data), g_fake.registryText);
        return g_fake.queryStatus;
    };
    system.regCloseKey = [](HKEY) { return ++g_fake.closeCalls, LONG(ERROR_SUCCESS); };
    system.systemParametersInfo = [](UINT action, UINT, PVOID value, UINT) {
        ++g_fake.spiCalls;
        if (g_fake.spiOk && action == SPI_GETWHEELSCROLLLINES)
            *static_cast<UINT*>(value) = g_fake.spiLines;
        return g_fake.spiOk;
    };
    return system;
}

class MouseScrollLinesTest : public ::testing::Test {
protected:
    void SetUp() override {
        g_fake = {};
        const VU_SMouseScrollLinesSystem system = FakeCalls();
        VuSetMouseScrollLinesSystem(&system);
    }
    void TearDown() override {
        VuSetMouseScrollLinesSystem(nullptr);
        VuGetMouseScrollLines(TRUE); // leave the real value cached
    }
};

TEST_F(MouseScrollLinesTest, CachedValueIsReadOnceUntilForced) {
    EXPECT_EQ(VuGetMouseScrollLines(TRUE), 7u);
    g_fake.spiLines = 9;
    EXPECT_EQ(VuGetMouseScrollLines(FALSE), 7u);
    EXPECT_EQ(g_fake.spiCalls, 1);
    EXPECT_EQ(VuGetMouseScrollLines(TRUE), 9u);
    EXPECT_EQ(g_fake.versionCalls, 2);
}

TEST_F(MouseScrollLinesTest, SourcesByPlatformAndVersion) {
    constexpr DWORD k9x = VER_PLATFORM_WIN32_WINDOWS;
    struct Row {
        const char* name;
        FakeSystem system;
        UINT expected;
        const char* calls; // registry opens, queries, closes; system calls
    };
    const Row rows[] = {
        {"NT 4 and later ask the system", {.major = 4}, 7, "0001"},
        {"NT with a failing system call keeps 3", {.major = 6, .spiOk = FALSE}, 3, "0001"},
        {"NT 3 reads the registry", {.major = 3}, 12, "1110"},
        {"registry text is decimal", {.major = 3, .registryText = L"0x10"}, 0, "1110"},
        {"registry query fails", {.major = 3, .queryStatus = ERROR_FILE_NOT_FOUND}, 3, "1110"},
        {"registry key missing", {.major = 3, .openStatus = ERROR_FILE_NOT_FOUND}, 3, "1000"},
        {"9x 3 reads the registry", {.platform = k9x, .major = 3, .registryText = L"5"}, 5, "1110"},
        {"Windows 9x keeps 3", {.platform = k9x, .major = 4}, 3, "0000"},
        {"GetVersionEx fails", {.versionOk = FALSE}, 3, "0000"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        g_fake = row.system;
        EXPECT_EQ(VuGetMouseScrollLines(TRUE), row.expected);
        EXPECT_EQ(std::to_string(g_fake.openCalls) + std::to_string(g_fake.queryCalls) +
                      std::to_string(g_fake.closeCalls) + std::to_string(g_fake.spiCalls),
                  row.calls);
        if (g_fake.queryCalls > 0) { // room for 127 characters and a terminator
            EXPECT_EQ(g_fake.queryBufferBytes, 127u * sizeof(wchar_t));
        }
    }
}

} // namespace

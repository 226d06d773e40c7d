// The mouse-wheel line count: cache, forced refresh, and which system
// source each platform and version reads. The system calls go through a
// replaceable set that counts them.
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
    UINT spiAction = 0;
    DWORD queryBufferBytes = 0;
};

FakeSystem* g_fake = nullptr;

BOOL WINAPI FakeGetVersionEx(LPOSVERSIONINFOW info) {
    ++g_fake->versionCalls;
    info->dwPlatformId = g_fake->platform;
    info->dwMajorVersion = g_fake->major;
    return g_fake->versionOk;
}

LONG WINAPI FakeRegOpenKeyEx(HKEY root, LPCWSTR subKey, DWORD, REGSAM, PHKEY result) {
    ++g_fake->openCalls;
    EXPECT_EQ(root, HKEY_CURRENT_USER);
    EXPECT_STREQ(subKey, L"Control Panel\\Desktop");
    *result = reinterpret_cast<HKEY>(static_cast<UINT_PTR>(0x4242));
    return g_fake->openStatus;
}

LONG WINAPI FakeRegQueryValueEx(HKEY, LPCWSTR name, LPDWORD, LPDWORD, LPBYTE data, LPDWORD size) {
    ++g_fake->queryCalls;
    EXPECT_STREQ(name, L"WheelScrollLines");
    g_fake->queryBufferBytes = *size;
    if (g_fake->queryStatus == ERROR_SUCCESS)
        wcscpy(reinterpret_cast<wchar_t*>(data), g_fake->registryText);
    return g_fake->queryStatus;
}

LONG WINAPI FakeRegCloseKey(HKEY) {
    ++g_fake->closeCalls;
    return ERROR_SUCCESS;
}

BOOL WINAPI FakeSystemParametersInfo(UINT action, UINT, PVOID value, UINT) {
    ++g_fake->spiCalls;
    g_fake->spiAction = action;
    if (g_fake->spiOk)
        *static_cast<UINT*>(value) = g_fake->spiLines;
    return g_fake->spiOk;
}

class MouseScrollLinesTest : public ::testing::Test {
protected:
    void SetUp() override {
        g_fake = &fake;
        VU_SMouseScrollLinesSystem system;
        system.getVersionEx = FakeGetVersionEx;
        system.regOpenKeyEx = FakeRegOpenKeyEx;
        system.regQueryValueEx = FakeRegQueryValueEx;
        system.regCloseKey = FakeRegCloseKey;
        system.systemParametersInfo = FakeSystemParametersInfo;
        VuSetMouseScrollLinesSystem(&system);
    }
    void TearDown() override {
        VuSetMouseScrollLinesSystem(nullptr);
        VuGetMouseScrollLines(TRUE); // leave the real value cached
        g_fake = nullptr;
    }
    FakeSystem fake;
};

TEST_F(MouseScrollLinesTest, CachedValueIsReadOnceUntilForced) {
    EXPECT_EQ(VuGetMouseScrollLines(TRUE), 7u);
    EXPECT_EQ(fake.spiCalls, 1);
    EXPECT_EQ(fake.spiAction, static_cast<UINT>(SPI_GETWHEELSCROLLLINES));

    fake.spiLines = 9;
    EXPECT_EQ(VuGetMouseScrollLines(FALSE), 7u);
    EXPECT_EQ(VuGetMouseScrollLines(FALSE), 7u);
    EXPECT_EQ(fake.versionCalls, 1);
    EXPECT_EQ(fake.spiCalls, 1);

    EXPECT_EQ(VuGetMouseScrollLines(TRUE), 9u);
    EXPECT_EQ(fake.versionCalls, 2);
    EXPECT_EQ(fake.spiCalls, 2);
}

TEST_F(MouseScrollLinesTest, SourcesByPlatformAndVersion) {
    constexpr DWORD k9x = VER_PLATFORM_WIN32_WINDOWS, kWin32s = VER_PLATFORM_WIN32s;
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
        {"registry text with trailing junk", {.major = 3, .registryText = L"25 lines"}, 25, "1110"},
        {"registry query fails", {.major = 3, .queryStatus = ERROR_FILE_NOT_FOUND}, 3, "1110"},
        {"registry key missing", {.major = 3, .openStatus = ERROR_FILE_NOT_FOUND}, 3, "1000"},
        {"9x 3 reads the registry", {.platform = k9x, .major = 3, .registryText = L"5"}, 5, "1110"},
        {"Windows 9x keeps 3", {.platform = k9x, .major = 4}, 3, "0000"},
        {"Win32s keeps 3", {.platform = kWin32s, .major = 4}, 3, "0000"},
        {"GetVersionEx fails", {.versionOk = FALSE}, 3, "0000"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        fake = row.system;
        EXPECT_EQ(VuGetMouseScrollLines(TRUE), row.expected);
        EXPECT_EQ(std::to_string(fake.openCalls) + std::to_string(fake.queryCalls) +
                      std::to_string(fake.closeCalls) + std::to_string(fake.spiCalls),
                  row.calls);
        if (fake.queryCalls > 0) { // room for 127 characters and a terminator
            EXPECT_EQ(fake.queryBufferBytes, 127u * sizeof(wchar_t));
        }
    }
}

TEST(MouseScrollLinesRealTest, MatchesTheSystemSetting) {
    UINT expected = 0;
    ASSERT_TRUE(SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &expected, 0));
    EXPECT_EQ(VuGetMouseScrollLines(TRUE), expected);
    EXPECT_EQ(VuGetMouseScrollLines(FALSE), expected);
}

} // namespace

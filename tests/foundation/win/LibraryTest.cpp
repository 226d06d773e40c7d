// The library module seen from a host that links it: its instance handle,
// its strings through the resource chain, the dump context, and the host
// services' defaults (registry profile, owners, wait cursor); installed
// services are exercised by the pump's tests.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>

#include "foundation/win/DumpFile.h"
#include "foundation/win/HostServices.h"
#include "foundation/win/Library.h"
#include "framework/win/DumpContext.h"
#include "framework/win/DynLinkLibrary.h"
#include "resources/resource.h"
#include "support/TestWindow.h"

namespace {

std::wstring Str(const CString& s) {
    return std::wstring(s.GetString());
}

TEST(LibraryTest, InstanceHandleIsTheDllsModuleSearchedAfterTheHost) {
    HMODULE dll = GetModuleHandleW(L"vulib.dll");
    ASSERT_NE(dll, nullptr);
    EXPECT_EQ(AfxGetInstanceHandle(), dll);
    HINSTANCE modules[8] = {};
    ASSERT_GE(AfxGetResourceChain(modules, 8), 2);
    EXPECT_EQ(modules[0], GetModuleHandleW(nullptr));
    EXPECT_EQ(modules[1], dll);
}

TEST(LibraryTest, TraceDumpIsMadeOnceAndWritesToTheTempFile) {
    CDumpContext* dump = VuGetTraceDump();
    ASSERT_NE(dump, nullptr);
    auto* file = static_cast<Vu_CDumpFile*>(dump->GetFile());
    ASSERT_NE(file, nullptr);
    CString expectedPath = Vu_CDumpFile::DefaultDumpPath();
    EXPECT_EQ(Str(file->GetDumpPath()), Str(expectedPath));
    EXPECT_NE(Str(expectedPath).find(L"\\VuLib-" + std::to_wstring(GetCurrentProcessId())),
              std::wstring::npos);

    *dump << L"trace Ä " << 42 << L" " << -7 << L"\n";
    dump->Flush();
    HANDLE h = CreateFileW(expectedPath.GetString(), GENERIC_READ,
                           FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(h, INVALID_HANDLE_VALUE);
    char bytes[256] = {};
    DWORD read = 0;
    ReadFile(h, bytes, sizeof(bytes) - 1, &read, nullptr);
    CloseHandle(h);
    EXPECT_NE(std::string(bytes, read).find("trace \xC3\x84 42 -7\n"), std::string::npos);
}

// ---- host services: defaults ------------------------------------------------------

TEST(HostServicesTest, ProfileValuesRoundTripThroughTheRegistry) {
    const wchar_t* kSection = L"Profile Test Section";
    VU_CHostServices services;
    services.WriteProfileString(kSection, nullptr, nullptr); // left from an earlier run
    EXPECT_EQ(services.GetProfileInt(kSection, L"Splitter", 120), 120u);
    EXPECT_TRUE(services.WriteProfileInt(kSection, L"Splitter", 345));
    EXPECT_EQ(services.GetProfileInt(kSection, L"Splitter", 120), 345u);
    EXPECT_EQ(Str(services.GetProfileString(kSection, L"Name", L"fallback")), L"fallback");
    EXPECT_TRUE(services.WriteProfileString(kSection, L"Name", L"Rung Ä 7"));
    EXPECT_EQ(Str(services.GetProfileString(kSection, L"Name", L"fallback")), L"Rung Ä 7");
    EXPECT_TRUE(services.WriteProfileString(kSection, L"Empty", L""));
    EXPECT_EQ(Str(services.GetProfileString(kSection, L"Empty", L"fallback")), L"");

    // The value really is in the registry, under a key named after the host.
    EXPECT_EQ(Str(VU_CHostServices::GetDefaultProfileKey()),
              L"Software\\VuLib\\vulib_foundation_win_tests");
    CString path = VU_CHostServices::GetDefaultProfileKey() + L"\\" + kSection;
    DWORD value = 0, size = sizeof(value);
    EXPECT_EQ(RegGetValueW(HKEY_CURRENT_USER, path.GetString(), L"Splitter", RRF_RT_REG_DWORD,
                           nullptr, &value, &size),
              ERROR_SUCCESS);
    EXPECT_EQ(value, 345u);

    // Wrong types and removed values give the default.
    services.WriteProfileString(kSection, L"Text", L"17");
    EXPECT_EQ(services.GetProfileInt(kSection, L"Text", 4), 4u);
    EXPECT_EQ(Str(services.GetProfileString(kSection, L"Splitter", L"none")), L"none");

    EXPECT_TRUE(services.WriteProfileString(kSection, L"Splitter", nullptr));
    EXPECT_EQ(services.GetProfileInt(kSection, L"Splitter", 4), 4u);
    EXPECT_TRUE(services.WriteProfileString(kSection, nullptr, nullptr));
    EXPECT_EQ(Str(services.GetProfileString(kSection, L"Text", L"gone")), L"gone");
}

TEST(HostServicesTest, SafeOwnerIsTheTopLevelWindow) {
    VU_CHostServices services;
    vutest::PlainWindow top;
    vutest::PlainWindow child(top.hwnd);
    vutest::PlainWindow grandChild(child.hwnd);
    EXPECT_EQ(services.GetSafeOwner(grandChild.hwnd), top.hwnd);
    EXPECT_EQ(services.GetSafeOwner(top.hwnd), top.hwnd);

    services.SetMainWindow(top.hwnd);
    EXPECT_EQ(services.GetSafeOwner(nullptr), top.hwnd);
}

TEST(HostServicesTest, WaitCursorNestsAndRestores) {
    VU_CHostServices services;
    HCURSOR arrow = LoadCursorW(nullptr, IDC_ARROW);
    SetCursor(arrow);
    services.BeginWaitCursor();
    services.BeginWaitCursor();
    services.EndWaitCursor();
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_WAIT));
    services.EndWaitCursor();
    EXPECT_EQ(GetCursor(), arrow);
    services.EndWaitCursor(); // unbalanced end is ignored
    EXPECT_EQ(services.GetWaitCursorCount(), 0);
}

} // namespace

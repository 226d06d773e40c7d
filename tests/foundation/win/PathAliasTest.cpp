// AF_CPath with real short (8.3) aliases, which only Windows file systems
// have: the aliases come from GetShortPathNameW and must turn back into the
// stored long names.
#include "foundation/Path.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <string>

namespace {

std::string Narrow(std::wstring_view s) {
    std::string out;
    for (wchar_t c : s)
        out += c < 0x80 ? static_cast<char>(c) : '?';
    return out;
}

class PathAlias : public ::testing::Test {
protected:
    void SetUp() override {
        wchar_t temp[MAX_PATH];
        ASSERT_NE(GetTempPathW(MAX_PATH, temp), 0u);
        m_dir = temp + std::wstring(L"VuLib Long Directory ") +
                std::to_wstring(GetCurrentProcessId()).c_str();
        m_file = m_dir + L"\\A Long File Name.text";
        ASSERT_TRUE(CreateDirectoryW(m_dir.c_str(), nullptr));
        HANDLE h =
            CreateFileW(m_file.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
        ASSERT_NE(h, INVALID_HANDLE_VALUE);
        CloseHandle(h);
    }
    void TearDown() override {
        DeleteFileW(m_file.c_str());
        RemoveDirectoryW(m_dir.c_str());
    }

    static std::wstring ShortForm(const std::wstring& path) {
        wchar_t buffer[MAX_PATH];
        const DWORD n = GetShortPathNameW(path.c_str(), buffer, MAX_PATH);
        return n == 0 || n >= MAX_PATH ? std::wstring() : std::wstring(buffer);
    }

    std::wstring m_dir, m_file;
};

TEST_F(PathAlias, RemoveAliasesRestoresLongNames) {
    const std::wstring alias = ShortForm(m_file);
    ASSERT_FALSE(alias.empty());
    ASSERT_NE(alias, m_file) << "the file system gave no alias";

    AF_CPath p(alias.c_str());
    EXPECT_TRUE(p.RemoveAliases());
    EXPECT_EQ(Narrow(p.GetFullPath().View()), Narrow(m_file));
    EXPECT_EQ(Narrow(p.GetRoot().View()), "A Long File Name");
    EXPECT_EQ(Narrow(p.GetExt().View()), "text");

    // A lower-case drive letter comes back upper-cased.
    std::wstring lower = alias;
    lower[0] = static_cast<wchar_t>(lower[0] | 0x20);
    AF_CPath q(lower.c_str());
    EXPECT_TRUE(q.RemoveAliases());
    EXPECT_EQ(Narrow(q.GetFullPath().View()), Narrow(m_file));
}

} // namespace

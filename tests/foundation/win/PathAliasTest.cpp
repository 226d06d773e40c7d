// AF_CPath with real short (8.3) aliases, which only Windows file systems
// have: the aliases come from GetShortPathNameW and must turn back into the
// stored long names.
#include "foundation/Path.h"
#include "framework/win/Wide.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <string>

namespace {

std::string Narrow(std::u16string_view s) {
    std::string out;
    for (char16_t c : s)
        out += c < 0x80 ? static_cast<char>(c) : '?';
    return out;
}

class PathAlias : public ::testing::Test {
protected:
    void SetUp() override {
        wchar_t temp[MAX_PATH];
        ASSERT_NE(GetTempPathW(MAX_PATH, temp), 0u);
        m_dir = vu::U(temp) + std::u16string(u"VuLib Long Directory ") +
                vu::U(std::to_wstring(GetCurrentProcessId()).c_str());
        m_file = m_dir + u"\\A Long File Name.text";
        ASSERT_TRUE(CreateDirectoryW(vu::W(m_dir.c_str()), nullptr));
        HANDLE h = CreateFileW(vu::W(m_file.c_str()), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0,
                               nullptr);
        ASSERT_NE(h, INVALID_HANDLE_VALUE);
        CloseHandle(h);
    }
    void TearDown() override {
        DeleteFileW(vu::W(m_file.c_str()));
        RemoveDirectoryW(vu::W(m_dir.c_str()));
    }

    static std::u16string ShortForm(const std::u16string& path) {
        wchar_t buffer[MAX_PATH];
        const DWORD n = GetShortPathNameW(vu::W(path.c_str()), buffer, MAX_PATH);
        return n == 0 || n >= MAX_PATH ? std::u16string() : std::u16string(vu::U(buffer));
    }

    std::u16string m_dir, m_file;
};

TEST_F(PathAlias, RemoveAliasesRestoresLongNames) {
    const std::u16string alias = ShortForm(m_file);
    ASSERT_FALSE(alias.empty());
    ASSERT_NE(alias, m_file) << "the file system gave no alias";

    AF_CPath p(alias.c_str());
    EXPECT_TRUE(p.RemoveAliases());
    EXPECT_EQ(Narrow(p.GetFullPath().View()), Narrow(m_file));
    EXPECT_EQ(Narrow(p.GetRoot().View()), "A Long File Name");
    EXPECT_EQ(Narrow(p.GetExt().View()), "text");

    // A lower-case drive letter comes back upper-cased.
    std::u16string lower = alias;
    lower[0] = static_cast<char16_t>(lower[0] | 0x20);
    AF_CPath q(lower.c_str());
    EXPECT_TRUE(q.RemoveAliases());
    EXPECT_EQ(Narrow(q.GetFullPath().View()), Narrow(m_file));
}

TEST_F(PathAlias, DirectoryOnlyPathAndGetLongName) {
    AF_CPath p((ShortForm(m_dir) + u"\\").c_str());
    EXPECT_FALSE(p.RemoveAliases()); // converted, but no file part to look up
    EXPECT_EQ(Narrow(p.GetFullPath().View()), Narrow(m_dir + u"\\"));

    // GetLongName gives the last component.
    CString name;
    EXPECT_TRUE(AF_CPath::GetLongName(ShortForm(m_file).c_str(), &name));
    EXPECT_EQ(Narrow(name.View()), "A Long File Name.text");
    EXPECT_TRUE(AF_CPath::GetLongName(ShortForm(m_dir).c_str(), &name));
    EXPECT_EQ(Narrow(name.View()), Narrow(m_dir.substr(m_dir.rfind(u'\\') + 1)));
}

} // namespace

// AF_CPath against the real file system, in a fresh temporary directory,
// written by Windows rules in both builds: natively '\tmp\...' (the root
// stands for the drive), under Wine 'C:\...'.
#include "foundation/Path.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <filesystem>
#include <fstream>
#include <string>

#ifdef _WIN32
#include <windows.h>
#endif

namespace fs = std::filesystem;

namespace {

constexpr WCHAR kSep = VU_T('\\');

// The name std::filesystem takes for a path written by Windows rules.
fs::path Fs(vu::String path) {
#ifndef _WIN32
    std::replace(path.begin(), path.end(), VU_T('\\'), VU_T('/'));
#endif
    return fs::path(path);
}

std::string Ascii(vu::StringView s) {
    std::string out;
    for (WCHAR c : s)
        out += c < 0x80 ? static_cast<char>(c) : '?';
    return out;
}

class PathFileSystem : public ::testing::Test {
protected:
    void SetUp() override {
        static std::atomic<int> counter{0};
        m_dir = fs::temp_directory_path() /
                ("vulib-path-" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) +
                 "-" + std::to_string(counter++));
        fs::remove_all(m_dir);
        fs::create_directory(m_dir);
#ifdef _WIN32
        m_root = m_dir.wstring();
#else
        m_root = m_dir.u16string();
        std::replace(m_root.begin(), m_root.end(), VU_T('/'), VU_T('\\'));
#endif
    }
    void TearDown() override {
        fs::remove_all(m_dir);
    }

    // The temporary directory joined with parts, by the platform's separator.
    vu::String In(std::initializer_list<vu::StringView> parts) const {
        vu::String p = m_root;
        for (auto part : parts) {
            p += kSep;
            p += part;
        }
        return p;
    }
    void MakeFile(const vu::String& path) const {
        std::ofstream(Fs(path)) << "x";
    }
    static bool IsDir(const vu::String& path) {
        return fs::is_directory(Fs(path));
    }

    fs::path m_dir;
    vu::String m_root;
};

TEST_F(PathFileSystem, CreateDirMakesEveryMissingDirectoryOrFails) {
    const AF_CPath p(In({VU_T("a"), VU_T("b c"), VU_T("d"), VU_T("file.txt")}).c_str());
    EXPECT_FALSE(p.DirExists());
    EXPECT_TRUE(p.CreateDir());
    EXPECT_FALSE(p.FileExists()); // only the directories are made
    EXPECT_TRUE(p.DirExists());
    // A trailing separator makes the last component a directory too.
    EXPECT_TRUE(AF_CPath((In({VU_T("e"), VU_T("f")}) + kSep).c_str()).CreateDir());
    EXPECT_TRUE(IsDir(In({VU_T("e"), VU_T("f")})));

    MakeFile(In({VU_T("plain")}));
    EXPECT_FALSE(AF_CPath(In({VU_T("plain"), VU_T("sub"), VU_T("x.txt")}).c_str()).CreateDir());
    EXPECT_FALSE(fs::exists(Fs(In({VU_T("plain"), VU_T("sub")}))));
    for (const vu::String& bad :
         {vu::String(VU_T("relative\\dir\\x.txt")),
          vu::String(VU_T("\\\\machine\\share\\dir\\x.txt")), vu::String(VU_T("x.txt")),
          In({vu::String(261, VU_T('l')), VU_T("x.txt")})}) {
        SCOPED_TRACE(Ascii(bad));
        EXPECT_FALSE(AF_CPath(bad.c_str()).CreateDir());
    }
#ifndef _WIN32
    EXPECT_FALSE(AF_CPath(VU_T("C:\\dir\\x.txt")).CreateDir()); // no drive letters here
#endif
}

TEST_F(PathFileSystem, DeleteDirRemovesOnlyAnEmptyExistingDirectory) {
    const vu::String file = In({VU_T("full"), VU_T("x.txt")});
    ASSERT_TRUE(AF_CPath(file.c_str()).CreateDir());
    MakeFile(file);
    const AF_CPath p(file.c_str());
    EXPECT_FALSE(p.DeleteDir());
    fs::remove(Fs(file));
    EXPECT_TRUE(p.DeleteDir());
    EXPECT_FALSE(fs::exists(Fs(In({VU_T("full")}))));
    EXPECT_FALSE(p.DeleteDir()) << "gone already";

    // Existence tests do not check the kind.
    MakeFile(In({VU_T("f.txt")}));
    EXPECT_TRUE(AF_CPath::FileExists(In({VU_T("f.txt")}).c_str()));
    EXPECT_TRUE(AF_CPath::DirExists(In({VU_T("f.txt")}).c_str()));
    EXPECT_FALSE(AF_CPath::FileExists(In({VU_T("missing")}).c_str()));
    EXPECT_FALSE(AF_CPath::FileExists(nullptr));
}

TEST_F(PathFileSystem, MakeAbsoluteResolvesDotsTextually) {
    AF_CPath p(In({VU_T("a"), VU_T(".."), VU_T("b"), VU_T("."), VU_T("f.txt")}).c_str());
    EXPECT_TRUE(p.MakeAbsolute()); // nothing needs to exist
    EXPECT_EQ(Ascii(p.GetFullPath().View()), Ascii(In({VU_T("b"), VU_T("f.txt")})));
    EXPECT_EQ(Ascii(p.GetRoot().View()), "f");

    AF_CPath dir(
        (In({VU_T("a"), VU_T(".."), VU_T("b")}) + kSep).c_str()); // a trailing separator stays
    EXPECT_TRUE(dir.MakeAbsolute());
    EXPECT_EQ(Ascii(dir.GetFullPath().View()), Ascii(In({VU_T("b")}) + kSep));

    AF_CPath relative((vu::String(VU_T("x")) + kSep + VU_T("y.txt")).c_str());
    EXPECT_TRUE(relative.MakeAbsolute());
    const vu::String expected = AF_CPath::GetCwd().Str() + kSep + VU_T("x") + kSep + VU_T("y.txt");
    EXPECT_EQ(Ascii(relative.GetFullPath().View()), Ascii(expected));

    // The result must fit a 260-unit buffer; a failure leaves the path alone.
    const vu::String tooLong = In({vu::String(270, VU_T('l'))});
    AF_CPath big(tooLong.c_str());
    EXPECT_FALSE(big.MakeAbsolute());
    EXPECT_EQ(big.GetFullPath().Str(), tooLong);
}

TEST_F(PathFileSystem, LongNamesComeFromTheFileSystem) {
    MakeFile(In({VU_T("Long File Name.txt")}));
    CString name;
    EXPECT_TRUE(AF_CPath::GetLongName(In({VU_T("Long File Name.txt")}).c_str(), &name));
    EXPECT_EQ(Ascii(name.View()), "Long File Name.txt");
    EXPECT_FALSE(AF_CPath::GetLongName(In({VU_T("missing.txt")}).c_str(), &name));
    EXPECT_FALSE(AF_CPath::GetLongName(VU_T("x"), nullptr));
    EXPECT_TRUE(AF_CPath::GetLongName(VU_T("d:\\"), &name));
    EXPECT_EQ(Ascii(name.View()), "D:\\");
    EXPECT_FALSE(AF_CPath::GetLongName(VU_T("\\"), &name)); // a root has no name
    MakeFile(In({VU_T("a.log")}));
    EXPECT_TRUE(AF_CPath::GetLongName(In({VU_T("*.log")}).c_str(), &name));
    EXPECT_EQ(Ascii(name.View()), "a.log");
}

// Windows file systems give short (8.3) aliases, read here with a lower-case
// drive letter; elsewhere the long name is its own alias.
TEST_F(PathFileSystem, RemoveAliasesGivesTheLongNames) {
    const vu::String file = In({VU_T("Some Dir"), VU_T("A Long File Name.text")});
    ASSERT_TRUE(AF_CPath(file.c_str()).CreateDir());
    MakeFile(file);
    vu::String from = file;
#ifdef _WIN32
    wchar_t alias[MAX_PATH];
    ASSERT_GT(GetShortPathNameW(file.c_str(), alias, MAX_PATH), 0u);
    from = alias;
    ASSERT_NE(from, file) << "the file system gave no alias";
    from[0] = static_cast<wchar_t>(from[0] | 0x20);
#endif
    AF_CPath p(from.c_str());
    EXPECT_TRUE(p.RemoveAliases());
    EXPECT_EQ(Ascii(p.GetFullPath().View()), Ascii(file));
    EXPECT_EQ(Ascii(p.GetRoot().View()), "A Long File Name");

    // No file part: the directory is converted, the name look-up fails.
    AF_CPath dirOnly((In({VU_T("Some Dir")}) + kSep).c_str());
    EXPECT_FALSE(dirOnly.RemoveAliases());
    EXPECT_TRUE(dirOnly == (In({VU_T("Some Dir")}) + kSep).c_str())
        << Ascii(dirOnly.GetFullPath().View());
}

#ifndef _WIN32
// Names travel as UTF-8 to the file system and back.
TEST_F(PathFileSystem, NonAsciiNamesRoundTrip) {
    const vu::String dir = In({VU_T("\u00dcber \u00df \u4e2d"), VU_T("x.txt")});
    EXPECT_TRUE(AF_CPath(dir.c_str()).CreateDir());
    EXPECT_TRUE(fs::is_directory(m_dir / fs::path(u8"\u00dcber \u00df \u4e2d")));
    CString name;
    EXPECT_TRUE(AF_CPath::GetLongName(In({VU_T("\u00dcber \u00df \u4e2d")}).c_str(), &name));
    EXPECT_EQ(name.Str(), VU_T("\u00dcber \u00df \u4e2d"));
}
#endif

} // namespace

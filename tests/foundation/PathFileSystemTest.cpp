// AF_CPath against the real file system, in a fresh temporary directory:
// natively a '/tmp/...' path (the root stands for the drive), under Wine a
// 'C:\...' path.
#include "foundation/Path.h"

#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <string>

namespace fs = std::filesystem;

namespace {

#ifdef _WIN32
constexpr char16_t kSep = u'\\';
#else
constexpr char16_t kSep = u'/';
#endif

std::string Ascii(std::u16string_view s) {
    std::string out;
    for (char16_t c : s)
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
        m_root = m_dir.u16string();
    }
    void TearDown() override { fs::remove_all(m_dir); }

    // The temporary directory joined with parts, by the platform's separator.
    std::u16string In(std::initializer_list<std::u16string_view> parts) const {
        std::u16string p = m_root;
        for (auto part : parts) {
            p += kSep;
            p += part;
        }
        return p;
    }
    void MakeFile(const std::u16string& path) const { std::ofstream(fs::path(path)) << "x"; }
    static bool IsDir(const std::u16string& path) { return fs::is_directory(fs::path(path)); }

    fs::path m_dir;
    std::u16string m_root;
};

TEST_F(PathFileSystem, CreateDirMakesEveryMissingDirectoryOrFails) {
    const AF_CPath p(In({u"a", u"b c", u"d", u"file.txt"}).c_str());
    EXPECT_FALSE(p.DirExists());
    EXPECT_TRUE(p.CreateDir());
    EXPECT_TRUE(IsDir(In({u"a", u"b c", u"d"})));
    EXPECT_FALSE(p.FileExists()); // only the directories are made
    EXPECT_TRUE(p.DirExists());
    EXPECT_TRUE(p.CreateDir()); // again: nothing left to make
    // A trailing separator makes the last component a directory too.
    EXPECT_TRUE(AF_CPath((In({u"e", u"f"}) + kSep).c_str()).CreateDir());
    EXPECT_TRUE(IsDir(In({u"e", u"f"})));

    MakeFile(In({u"plain"}));
    EXPECT_FALSE(AF_CPath(In({u"plain", u"sub", u"x.txt"}).c_str()).CreateDir());
    EXPECT_FALSE(fs::exists(fs::path(In({u"plain", u"sub"}))));
    for (const std::u16string& bad :
         {std::u16string(u"relative\\dir\\x.txt"),
          std::u16string(u"\\\\machine\\share\\dir\\x.txt"), std::u16string(u"x.txt"),
          In({std::u16string(261, u'l'), u"x.txt"})}) {
        SCOPED_TRACE(Ascii(bad));
        EXPECT_FALSE(AF_CPath(bad.c_str()).CreateDir());
    }
#ifndef _WIN32
    EXPECT_FALSE(AF_CPath(u"C:\\dir\\x.txt").CreateDir()); // no drive letters here
#endif
}

TEST_F(PathFileSystem, DeleteDirRemovesOnlyAnEmptyExistingDirectory) {
    const AF_CPath p(In({u"gone", u"x.txt"}).c_str());
    EXPECT_FALSE(p.DeleteDir());
    ASSERT_TRUE(p.CreateDir());
    EXPECT_TRUE(p.DeleteDir());
    EXPECT_FALSE(fs::exists(fs::path(In({u"gone"}))));

    const std::u16string file = In({u"full", u"x.txt"});
    ASSERT_TRUE(AF_CPath(file.c_str()).CreateDir());
    MakeFile(file);
    EXPECT_FALSE(AF_CPath::DeleteDir(In({u"full"}).c_str()));
    fs::remove(fs::path(file));
    EXPECT_TRUE(AF_CPath::DeleteDir(In({u"full"}).c_str()));
    EXPECT_FALSE(AF_CPath::DeleteDir(nullptr));

    // Existence tests do not check the kind.
    MakeFile(In({u"f.txt"}));
    EXPECT_TRUE(AF_CPath::FileExists(In({u"f.txt"}).c_str()));
    EXPECT_TRUE(AF_CPath::DirExists(In({u"f.txt"}).c_str()));
    EXPECT_TRUE(AF_CPath::FileExists(m_root.c_str()));
    EXPECT_FALSE(AF_CPath::FileExists(In({u"missing"}).c_str()));
    EXPECT_FALSE(AF_CPath::DirExists(u""));
    EXPECT_FALSE(AF_CPath::FileExists(nullptr));
    EXPECT_TRUE(AF_CPath::DirExists(AF_CPath::GetCwd()));
}

TEST_F(PathFileSystem, MakeAbsoluteResolvesDotsTextually) {
    AF_CPath p(In({u"a", u"..", u"b", u".", u"f.txt"}).c_str());
    EXPECT_TRUE(p.MakeAbsolute()); // nothing needs to exist
    EXPECT_EQ(Ascii(p.GetFullPath().View()), Ascii(In({u"b", u"f.txt"})));
    EXPECT_EQ(Ascii(p.GetRoot().View()), "f");

    AF_CPath dir((In({u"a", u"..", u"b"}) + kSep).c_str()); // a trailing separator stays
    EXPECT_TRUE(dir.MakeAbsolute());
    EXPECT_EQ(Ascii(dir.GetFullPath().View()), Ascii(In({u"b"}) + kSep));

    AF_CPath relative((std::u16string(u"x") + kSep + u"y.txt").c_str());
    EXPECT_TRUE(relative.MakeAbsolute());
    const std::u16string expected = AF_CPath::GetCwd().Str() + kSep + u"x" + kSep + u"y.txt";
    EXPECT_EQ(Ascii(relative.GetFullPath().View()), Ascii(expected));

    AF_CPath empty;
    EXPECT_TRUE(empty.MakeAbsolute());
    EXPECT_TRUE(empty.GetFullPath().IsEmpty());

    // The result must fit a 260-unit buffer; a failure leaves the path alone.
    const std::u16string tooLong = In({std::u16string(270, u'l')});
    AF_CPath big(tooLong.c_str());
    EXPECT_FALSE(big.MakeAbsolute());
    EXPECT_EQ(big.GetFullPath().Str(), tooLong);
}

TEST_F(PathFileSystem, LongNamesComeFromTheFileSystem) {
    MakeFile(In({u"Long File Name.txt"}));
    CString name;
    EXPECT_TRUE(AF_CPath::GetLongName(In({u"Long File Name.txt"}).c_str(), &name));
    EXPECT_EQ(Ascii(name.View()), "Long File Name.txt");
    EXPECT_FALSE(AF_CPath::GetLongName(In({u"missing.txt"}).c_str(), &name));
    EXPECT_FALSE(AF_CPath::GetLongName((m_root + kSep).c_str(), &name));
    EXPECT_FALSE(AF_CPath::GetLongName(u"", &name));
    EXPECT_FALSE(AF_CPath::GetLongName(u"x", nullptr));
    EXPECT_TRUE(AF_CPath::GetLongName(u"c:", &name));
    EXPECT_EQ(Ascii(name.View()), "C:");
    EXPECT_TRUE(AF_CPath::GetLongName(u"d:\\", &name));
    EXPECT_EQ(Ascii(name.View()), "D:\\");
#ifdef _WIN32
    EXPECT_FALSE(AF_CPath::GetLongName(u"\\", &name));
#else
    EXPECT_TRUE(AF_CPath::GetLongName(u"/", &name)); // the root stands for the drive
#endif
    MakeFile(In({u"b.log"}));
    MakeFile(In({u"a.log"}));
    EXPECT_TRUE(AF_CPath::GetLongName(In({u"*.log"}).c_str(), &name));
    EXPECT_TRUE(name == u"a.log" || name == u"b.log") << Ascii(name.View());
}

TEST_F(PathFileSystem, RemoveAliasesKeepsLongNames) {
    ASSERT_TRUE(AF_CPath(In({u"Some Dir", u"x"}).c_str()).CreateDir());
    MakeFile(In({u"Some Dir", u"file name.txt"}));
    AF_CPath p(In({u"Some Dir", u"file name.txt"}).c_str());
    const CString before = p.GetFullPath();
    EXPECT_TRUE(p.RemoveAliases());
    EXPECT_TRUE(p == before) << Ascii(p.GetFullPath().View());

    // No file part: the directory is converted, the name look-up fails.
    AF_CPath dirOnly((In({u"Some Dir"}) + kSep).c_str());
    EXPECT_FALSE(dirOnly.RemoveAliases());
    EXPECT_TRUE(dirOnly == (In({u"Some Dir"}) + kSep).c_str())
        << Ascii(dirOnly.GetFullPath().View());

    AF_CPath missing(In({u"No Dir", u"f.txt"}).c_str());
    EXPECT_FALSE(missing.RemoveAliases());
    EXPECT_EQ(missing.GetFullPath().Str(), In({u"No Dir", u"f.txt"}));
}

#ifndef _WIN32
// Names travel as UTF-8 to the file system and back.
TEST_F(PathFileSystem, NonAsciiNamesRoundTrip) {
    const std::u16string dir = In({u"\u00dcber \u00df \u4e2d", u"x.txt"});
    EXPECT_TRUE(AF_CPath(dir.c_str()).CreateDir());
    EXPECT_TRUE(fs::is_directory(m_dir / fs::path(u8"\u00dcber \u00df \u4e2d")));
    CString name;
    EXPECT_TRUE(AF_CPath::GetLongName(In({u"\u00dcber \u00df \u4e2d"}).c_str(), &name));
    EXPECT_EQ(name.Str(), u"\u00dcber \u00df \u4e2d");
}
#endif

} // namespace

#include "foundation/Path.h"
#include "foundation/SplitPath.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::string Ascii(std::u16string_view s) {
    std::string out;
    for (char16_t c : s)
        out += c < 0x80 ? static_cast<char>(c) : '?';
    return out;
}
std::string Ascii(const CString& s) {
    return Ascii(s.View());
}
std::string Ascii(const std::u16string& s) {
    return Ascii(std::u16string_view(s));
}

#ifdef _WIN32
constexpr bool kWindows = true;
#else
constexpr bool kWindows = false;
#endif

// Drive|Dir|Root|Ext|FullPath|Machine|Share
std::string Fields(const AF_CPath& p) {
    return Ascii(p.GetDrive()) + "|" + Ascii(p.GetDir()) + "|" + Ascii(p.GetRoot()) + "|" +
           Ascii(p.GetExt()) + "|" + Ascii(p.GetFullPath()) + "|" + Ascii(p.GetMachine()) + "|" +
           Ascii(p.GetShare());
}

TEST(Path, SplitsIntoItsFields) {
    const std::u16string longDir = u"C:\\" + std::u16string(300, u'd') + u"\\f.txt";
    struct Row {
        std::u16string path;
        std::string fields;
    } rows[] = {
        {u"  C:\\Work\\Project.ACD  ", "C|\\Work|Project|ACD|C:\\Work\\Project.ACD||"},
        {u"C:\\", "C|\\|||C:\\||"},
        {u"C:", "C||||C:||"},
        {u"c:file.txt", "c||file|txt|c:file.txt||"},
        {u"\\\\srv\\share\\dir\\f.txt",
         "|\\\\srv\\share\\dir|f|txt|\\\\srv\\share\\dir\\f.txt|srv|share"},
        {u"\\\\srv\\share", "|\\\\srv|share||\\\\srv\\share|srv|share"},
        {u"\\\\srv", "|\\|srv||\\\\srv|srv|"},
        {u"C:\\a\\\\b\\\\", "C|\\a\\\\b\\|||C:\\a\\\\b\\\\||"},
        {u"dir\\..\\f.tar.gz", "|dir\\..|f.tar|gz|dir\\..\\f.tar.gz||"},
        {u"..", "||.||..||"},
        {u".profile", "|||profile|.profile||"},
        {u"name.", "||name||name.||"},
        {u"1:x", "||x||1:x||"}, // not a drive letter
        {u"\t \t", "||||||"},
        // The runtime refuses a 256-unit directory: every part is empty.
        {longDir, "||||" + Ascii(longDir) + "||"},
        // A trailing '/' ends the directory natively, but not in Windows rules.
        {u"C:/a/b/f.txt",
         kWindows ? "C|/a/b/|f|txt|C:/a/b/f.txt||" : "C|/a/b|f|txt|C:/a/b/f.txt||"},
        {u"/tmp/x.d/f", kWindows ? "|/tmp/x.d/|f||/tmp/x.d/f||" : "|/tmp/x.d|f||/tmp/x.d/f||"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(Ascii(row.path));
        EXPECT_EQ(Fields(AF_CPath(row.path.c_str())), row.fields);
    }
}

TEST(Path, DerivedNamesAndResetting) {
    EXPECT_EQ(Ascii(AF_CPath(u"C:\\").GetDriveDir()), "C:\\");
    EXPECT_EQ(Ascii(AF_CPath(u"C:\\a\\b\\f").GetDriveDir()), "C:\\a\\b");
    EXPECT_EQ(Ascii(AF_CPath(u"a\\f").GetDriveDir()), "a");
    EXPECT_EQ(Ascii(AF_CPath(u"C:\\a\\name").GetName()), "name.");
    EXPECT_EQ(Ascii(AF_CPath().GetName()), ".");

    AF_CPath p(u"\\\\m\\s\\f.txt");
    p.SetPath(nullptr);
    p.SetPath(u"");
    EXPECT_EQ(Fields(p), "|\\\\m\\s|f|txt|\\\\m\\s\\f.txt|m|s");
    p = u"C:\\x";
    EXPECT_EQ(Fields(p), "C|\\|x||C:\\x||");
    p = u"";
    EXPECT_EQ(Fields(p), "||||||");
    AF_CPath copy(u"D:\\q\\r.s");
    p = copy;
    EXPECT_EQ(Fields(p), Fields(copy));
}

TEST(Path, SettersRebuildTheFullPath) {
    using Setter = void (AF_CPath::*)(const char16_t*);
    struct Row {
        const char* name;
        Setter set;
        const char16_t* arg;
        std::string fields;
        const char16_t* start = u"C:\\a\\f.txt";
    } rows[] = {
        {"ext with dot", &AF_CPath::SetExt, u".log", "C|\\a|f|log|C:\\a\\f.log||"},
        {"ext without dot", &AF_CPath::SetExt, u" log ", "C|\\a|f|log|C:\\a\\f.log||"},
        {"empty ext", &AF_CPath::SetExt, u"", "C|\\a|f||C:\\a\\f||"},
        {"root less one dot", &AF_CPath::SetRoot, u"g..", "C|\\a|g.|txt|C:\\a\\g..txt||"},
        {"drive letter", &AF_CPath::SetDrive, u" de ", "d|\\a|f|txt|d:\\a\\f.txt||"},
        {"no drive", &AF_CPath::SetDrive, u"", "|\\a|f|txt|\\a\\f.txt||"},
        {"drive clears machine", &AF_CPath::SetDrive, u"E", "E|\\\\m\\s|f||E:\\\\m\\s\\f||",
         u"\\\\m\\s\\f"},
        {"dir less one separator", &AF_CPath::SetDir, u"\\x\\y\\\\",
         "C|\\x\\y\\|f|txt|C:\\x\\y\\f.txt||"},
        {"root dir", &AF_CPath::SetDir, u"\\", "C|\\|f|txt|C:\\f.txt||"},
        {"UNC dir", &AF_CPath::SetDir, u"\\\\m\\s\\d", "|\\\\m\\s\\d|f|txt|\\\\m\\s\\d\\f.txt|m|s",
         u"f.txt"},
        {"drive and dir", &AF_CPath::SetDriveDir, u" D:\\p\\q ",
         "D|\\p\\q|f|txt|D:\\p\\q\\f.txt||"},
        {"empty drive and dir", &AF_CPath::SetDriveDir, u"", "||f|txt|f.txt||"},
        {"UNC drive and dir", &AF_CPath::SetDriveDir, u"\\\\m\\s",
         "|\\\\m\\s|f|txt|\\\\m\\s\\f.txt|m|s"},
        {"name", &AF_CPath::SetName, u"g.h.i", "C|\\a|g.h|i|C:\\a\\g.h.i||"},
        {"name without ext", &AF_CPath::SetName, u"g", "C|\\a|g||C:\\a\\g||"},
        {"null is ignored", &AF_CPath::SetDir, nullptr, "C|\\a|f|txt|C:\\a\\f.txt||"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        AF_CPath p(row.start);
        (p.*row.set)(row.arg);
        EXPECT_EQ(Fields(p), row.fields);
    }

    AF_CPath p(u"C:\\a\\f.txt");
    p.SetDriveDir((u"D:\\" + std::u16string(258, u'x')).c_str()); // 261 units: ignored
    EXPECT_EQ(Ascii(p.GetFullPath()), "C:\\a\\f.txt");
    p.SetDir(u"rel");
    EXPECT_EQ(Ascii(p.GetFullPath()), kWindows ? "C:rel\\f.txt" : "C:rel/f.txt");
}

TEST(Path, ComparesFullPathsCaseBlind) {
    const AF_CPath p(u"C:\\Work\\Project.ACD");
    EXPECT_TRUE(p == AF_CPath(u"c:\\work\\project.acd"));
    EXPECT_TRUE(p == u"  c:\\WORK\\project.acd\t");
    EXPECT_TRUE(CString(u" C:\\Work\\Project.ACD") == p);
    EXPECT_TRUE(p != u"C:\\Work\\Project.ACE");
    EXPECT_TRUE(p != CString(u"C:\\Work"));
    EXPECT_FALSE(p != AF_CPath(p));
}

TEST(Path, RecognisesMachineAndShareNames) {
    struct Row {
        const char16_t* path;
        BOOL unc, machine, share;
    } rows[] = {
        {u"\\\\srv\\", TRUE, TRUE, FALSE},
        {u"\\\\srv", TRUE, TRUE, FALSE},
        {u"\\\\", TRUE, TRUE, FALSE},
        {u"\\\\srv\\x", TRUE, FALSE, TRUE},
        {u"\\\\srv\\share\\", TRUE, FALSE, TRUE},
        {u"\\\\srv\\share\\x", TRUE, FALSE, FALSE},
        {u"\\\\srv\\share\\\\", TRUE, FALSE, FALSE},
        {u"\\\\\\share", TRUE, FALSE, FALSE},
        {u"\\\\srv\\\\", TRUE, FALSE, FALSE},
        {u" \\\\srv ", FALSE, TRUE, FALSE}, // the name tests trim, the UNC test does not
        {u"C:\\srv", FALSE, FALSE, FALSE},
        {u"//srv/share", FALSE, FALSE, FALSE},
        {nullptr, FALSE, FALSE, FALSE},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.path ? Ascii(std::u16string_view(row.path)) : "null");
        EXPECT_EQ(AF_CPath::IsPathUNC(row.path), row.unc);
        EXPECT_EQ(AF_CPath::IsMachineName(row.path), row.machine);
        EXPECT_EQ(AF_CPath::IsShareName(row.path), row.share);
    }
}

// The splitter on its own, natively too (the Windows suite compares it with
// the C runtime).
TEST(SplitPath, RefusesPartsTooLongForTheRuntime) {
    std::u16string drive, dir, fname, ext;
    const std::u16string dir255 = u"\\" + std::u16string(253, u'd') + u"\\";
    EXPECT_TRUE(vu::SplitPath((u"C:" + dir255 + u"f.e").c_str(), &drive, &dir, &fname, &ext));
    EXPECT_EQ(dir.size(), 255u);
    EXPECT_FALSE(vu::SplitPath((u"C:" + dir255 + u"d\\f.e").c_str(), &drive, &dir, &fname, &ext));
    EXPECT_EQ(drive + dir + fname + ext, u"");
    // A part not asked for is not checked.
    EXPECT_TRUE(
        vu::SplitPath((u"C:" + dir255 + u"d\\f.e").c_str(), nullptr, nullptr, &fname, &ext));
    EXPECT_EQ(fname + ext, u"f.e");
    EXPECT_TRUE(
        vu::SplitPath(std::u16string(255, u'n').c_str(), nullptr, nullptr, &fname, nullptr));
    EXPECT_FALSE(
        vu::SplitPath(std::u16string(256, u'n').c_str(), nullptr, nullptr, &fname, nullptr));
    EXPECT_FALSE(vu::SplitPath((u"f." + std::u16string(255, u'e')).c_str(), nullptr, nullptr,
                               nullptr, &ext));
    EXPECT_FALSE(vu::SplitPath(nullptr, &drive, &dir, &fname, &ext));
}

} // namespace

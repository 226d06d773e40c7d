#include "foundation/Path.h"
#include "foundation/SplitPath.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::string Ascii(vu::StringView s) {
    std::string out;
    for (WCHAR c : s)
        out += c < 0x80 ? static_cast<char>(c) : '?';
    return out;
}
std::string Ascii(const CString& s) {
    return Ascii(s.View());
}
std::string Ascii(const vu::String& s) {
    return Ascii(vu::StringView(s));
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
    const vu::String longDir = VU_T("C:\\") + vu::String(300, VU_T('d')) + VU_T("\\f.txt");
    struct Row {
        vu::String path;
        std::string fields;
    } rows[] = {
        {VU_T("  C:\\Work\\Project.ACD  "), "C|\\Work|Project|ACD|C:\\Work\\Project.ACD||"},
        {VU_T("C:\\"), "C|\\|||C:\\||"},
        {VU_T("C:"), "C||||C:||"},
        {VU_T("c:file.txt"), "c||file|txt|c:file.txt||"},
        {VU_T("\\\\srv\\share\\dir\\f.txt"),
         "|\\\\srv\\share\\dir|f|txt|\\\\srv\\share\\dir\\f.txt|srv|share"},
        {VU_T("\\\\srv\\share"), "|\\\\srv|share||\\\\srv\\share|srv|share"},
        {VU_T("\\\\srv"), "|\\|srv||\\\\srv|srv|"},
        {VU_T("C:\\a\\\\b\\\\"), "C|\\a\\\\b\\|||C:\\a\\\\b\\\\||"},
        {VU_T("dir\\..\\f.tar.gz"), "|dir\\..|f.tar|gz|dir\\..\\f.tar.gz||"},
        {VU_T(".."), "||.||..||"},
        {VU_T(".profile"), "|||profile|.profile||"},
        {VU_T("name."), "||name||name.||"},
        {VU_T("1:x"), "||x||1:x||"}, // not a drive letter
        {VU_T("\t \t"), "||||||"},
        // The runtime refuses a 256-unit directory: every part is empty.
        {longDir, "||||" + Ascii(longDir) + "||"},
        // A trailing '/' ends the directory natively, but not in Windows rules.
        {VU_T("C:/a/b/f.txt"),
         kWindows ? "C|/a/b/|f|txt|C:/a/b/f.txt||" : "C|/a/b|f|txt|C:/a/b/f.txt||"},
        {VU_T("/tmp/x.d/f"), kWindows ? "|/tmp/x.d/|f||/tmp/x.d/f||" : "|/tmp/x.d|f||/tmp/x.d/f||"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(Ascii(row.path));
        EXPECT_EQ(Fields(AF_CPath(row.path.c_str())), row.fields);
    }
}

TEST(Path, DerivedNamesAndResetting) {
    EXPECT_EQ(Ascii(AF_CPath(VU_T("C:\\")).GetDriveDir()), "C:\\");
    EXPECT_EQ(Ascii(AF_CPath(VU_T("C:\\a\\b\\f")).GetDriveDir()), "C:\\a\\b");
    EXPECT_EQ(Ascii(AF_CPath(VU_T("a\\f")).GetDriveDir()), "a");
    EXPECT_EQ(Ascii(AF_CPath(VU_T("C:\\a\\name")).GetName()), "name.");
    EXPECT_EQ(Ascii(AF_CPath().GetName()), ".");

    AF_CPath p(VU_T("\\\\m\\s\\f.txt"));
    p.SetPath(nullptr);
    p.SetPath(VU_T(""));
    EXPECT_EQ(Fields(p), "|\\\\m\\s|f|txt|\\\\m\\s\\f.txt|m|s");
    p = VU_T("C:\\x");
    EXPECT_EQ(Fields(p), "C|\\|x||C:\\x||");
    p = VU_T("");
    EXPECT_EQ(Fields(p), "||||||");
    AF_CPath copy(VU_T("D:\\q\\r.s"));
    p = copy;
    EXPECT_EQ(Fields(p), Fields(copy));
}

TEST(Path, SettersRebuildTheFullPath) {
    using Setter = void (AF_CPath::*)(const WCHAR*);
    struct Row {
        const char* name;
        Setter set;
        const WCHAR* arg;
        std::string fields;
        const WCHAR* start = VU_T("C:\\a\\f.txt");
    } rows[] = {
        {"ext with dot", &AF_CPath::SetExt, VU_T(".log"), "C|\\a|f|log|C:\\a\\f.log||"},
        {"ext without dot", &AF_CPath::SetExt, VU_T(" log "), "C|\\a|f|log|C:\\a\\f.log||"},
        {"empty ext", &AF_CPath::SetExt, VU_T(""), "C|\\a|f||C:\\a\\f||"},
        {"root less one dot", &AF_CPath::SetRoot, VU_T("g.."), "C|\\a|g.|txt|C:\\a\\g..txt||"},
        {"drive letter", &AF_CPath::SetDrive, VU_T(" de "), "d|\\a|f|txt|d:\\a\\f.txt||"},
        {"no drive", &AF_CPath::SetDrive, VU_T(""), "|\\a|f|txt|\\a\\f.txt||"},
        {"drive clears machine", &AF_CPath::SetDrive, VU_T("E"), "E|\\\\m\\s|f||E:\\\\m\\s\\f||",
         VU_T("\\\\m\\s\\f")},
        {"dir less one separator", &AF_CPath::SetDir, VU_T("\\x\\y\\\\"),
         "C|\\x\\y\\|f|txt|C:\\x\\y\\f.txt||"},
        {"root dir", &AF_CPath::SetDir, VU_T("\\"), "C|\\|f|txt|C:\\f.txt||"},
        {"UNC dir", &AF_CPath::SetDir, VU_T("\\\\m\\s\\d"),
         "|\\\\m\\s\\d|f|txt|\\\\m\\s\\d\\f.txt|m|s", VU_T("f.txt")},
        {"drive and dir", &AF_CPath::SetDriveDir, VU_T(" D:\\p\\q "),
         "D|\\p\\q|f|txt|D:\\p\\q\\f.txt||"},
        {"empty drive and dir", &AF_CPath::SetDriveDir, VU_T(""), "||f|txt|f.txt||"},
        {"UNC drive and dir", &AF_CPath::SetDriveDir, VU_T("\\\\m\\s"),
         "|\\\\m\\s|f|txt|\\\\m\\s\\f.txt|m|s"},
        {"name", &AF_CPath::SetName, VU_T("g.h.i"), "C|\\a|g.h|i|C:\\a\\g.h.i||"},
        {"name without ext", &AF_CPath::SetName, VU_T("g"), "C|\\a|g||C:\\a\\g||"},
        {"null is ignored", &AF_CPath::SetDir, nullptr, "C|\\a|f|txt|C:\\a\\f.txt||"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        AF_CPath p(row.start);
        (p.*row.set)(row.arg);
        EXPECT_EQ(Fields(p), row.fields);
    }

    AF_CPath p(VU_T("C:\\a\\f.txt"));
    p.SetDriveDir((VU_T("D:\\") + vu::String(258, VU_T('x'))).c_str()); // 261 units: ignored
    EXPECT_EQ(Ascii(p.GetFullPath()), "C:\\a\\f.txt");
    p.SetDir(VU_T("rel"));
    EXPECT_EQ(Ascii(p.GetFullPath()), kWindows ? "C:rel\\f.txt" : "C:rel/f.txt");
}

TEST(Path, ComparesFullPathsCaseBlind) {
    const AF_CPath p(VU_T("C:\\Work\\Project.ACD"));
    EXPECT_TRUE(p == AF_CPath(VU_T("c:\\work\\project.acd")));
    EXPECT_TRUE(p == VU_T("  c:\\WORK\\project.acd\t"));
    EXPECT_TRUE(CString(VU_T(" C:\\Work\\Project.ACD")) == p);
    EXPECT_TRUE(p != VU_T("C:\\Work\\Project.ACE"));
    EXPECT_TRUE(p != CString(VU_T("C:\\Work")));
    EXPECT_FALSE(p != AF_CPath(p));
}

TEST(Path, RecognisesMachineAndShareNames) {
    struct Row {
        const WCHAR* path;
        BOOL unc, machine, share;
    } rows[] = {
        {VU_T("\\\\srv\\"), TRUE, TRUE, FALSE},
        {VU_T("\\\\srv"), TRUE, TRUE, FALSE},
        {VU_T("\\\\"), TRUE, TRUE, FALSE},
        {VU_T("\\\\srv\\x"), TRUE, FALSE, TRUE},
        {VU_T("\\\\srv\\share\\"), TRUE, FALSE, TRUE},
        {VU_T("\\\\srv\\share\\x"), TRUE, FALSE, FALSE},
        {VU_T("\\\\srv\\share\\\\"), TRUE, FALSE, FALSE},
        {VU_T("\\\\\\share"), TRUE, FALSE, FALSE},
        {VU_T("\\\\srv\\\\"), TRUE, FALSE, FALSE},
        {VU_T(" \\\\srv "), FALSE, TRUE, FALSE}, // the name tests trim, the UNC test does not
        {VU_T("C:\\srv"), FALSE, FALSE, FALSE},
        {VU_T("//srv/share"), FALSE, FALSE, FALSE},
        {nullptr, FALSE, FALSE, FALSE},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.path ? Ascii(vu::StringView(row.path)) : "null");
        EXPECT_EQ(AF_CPath::IsPathUNC(row.path), row.unc);
        EXPECT_EQ(AF_CPath::IsMachineName(row.path), row.machine);
        EXPECT_EQ(AF_CPath::IsShareName(row.path), row.share);
    }
}

// The splitter on its own, natively too (the Windows suite compares it with
// the C runtime).
TEST(SplitPath, RefusesPartsTooLongForTheRuntime) {
    vu::String drive, dir, fname, ext;
    const vu::String dir255 = VU_T("\\") + vu::String(253, VU_T('d')) + VU_T("\\");
    EXPECT_TRUE(
        vu::SplitPath((VU_T("C:") + dir255 + VU_T("f.e")).c_str(), &drive, &dir, &fname, &ext));
    EXPECT_EQ(dir.size(), 255u);
    EXPECT_FALSE(
        vu::SplitPath((VU_T("C:") + dir255 + VU_T("d\\f.e")).c_str(), &drive, &dir, &fname, &ext));
    EXPECT_EQ(drive + dir + fname + ext, VU_T(""));
    // A part not asked for is not checked.
    EXPECT_TRUE(vu::SplitPath((VU_T("C:") + dir255 + VU_T("d\\f.e")).c_str(), nullptr, nullptr,
                              &fname, &ext));
    EXPECT_EQ(fname + ext, VU_T("f.e"));
    EXPECT_TRUE(
        vu::SplitPath(vu::String(255, VU_T('n')).c_str(), nullptr, nullptr, &fname, nullptr));
    EXPECT_FALSE(
        vu::SplitPath(vu::String(256, VU_T('n')).c_str(), nullptr, nullptr, &fname, nullptr));
    EXPECT_FALSE(vu::SplitPath((VU_T("f.") + vu::String(255, VU_T('e'))).c_str(), nullptr, nullptr,
                               nullptr, &ext));
    EXPECT_FALSE(vu::SplitPath(nullptr, &drive, &dir, &fname, &ext));
}

} // namespace

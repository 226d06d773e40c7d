#include "foundation/Path.h"
#include "PathGenerator.h"
#include "foundation/PathIterator.h"
#include "foundation/SplitPath.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
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
std::string Ascii(const WCHAR* s) {
    return Ascii(vu::StringView(s));
}

// Drive|Dir|Root|Ext|FullPath|Machine|Share
std::string Fields(const AF_CPath& p) {
    return Ascii(p.GetDrive()) + "|" + Ascii(p.GetDir()) + "|" + Ascii(p.GetRoot()) + "|" +
           Ascii(p.GetExt()) + "|" + Ascii(p.GetFullPath()) + "|" + Ascii(p.GetMachine()) + "|" +
           Ascii(p.GetShare());
}

// The splitter's own rules (dots, extensions) are compared with the C
// runtime under Wine; these rows are the path class's rules on top.
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
        {VU_T("name."), "||name||name.||"},
        {VU_T("1:x"), "||x||1:x||"}, // not a drive letter
        {VU_T("\t \t"), "||||||"},
        // Parts of any length are kept whole.
        {longDir, "C|" + Ascii(longDir.substr(2, 301)) + "|f|txt|" + Ascii(longDir) + "||"},
        // Only '\\' ends a directory in the path rules, on every platform.
        {VU_T("C:/a/b/f.txt"), "C|/a/b/|f|txt|C:/a/b/f.txt||"},
        {VU_T("/tmp/x.d/f"), "|/tmp/x.d/|f||/tmp/x.d/f||"},
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
    vu::String part = VU_T("stale");
    EXPECT_FALSE(vu::SplitPath(nullptr, &part, &part, &part, &part));
    EXPECT_EQ(part, VU_T(""));

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
    EXPECT_EQ(Ascii(p.GetFullPath()), "C:rel\\f.txt");

    // An overlong directory survives every setter.
    const vu::String longDir = vu::String(VU_T("\\")).append(300, VU_T('d'));
    AF_CPath q((VU_T("C:") + longDir + VU_T("\\f.txt")).c_str());
    q.SetExt(VU_T("doc"));
    q.SetRoot(VU_T("g"));
    EXPECT_EQ(q.GetFullPath().Str(), VU_T("C:") + longDir + VU_T("\\g.doc"));
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

// ---- The prefix walk ---------------------------------------------------------

// Every step of a walk as "item" or "item!" when Done after it, up to the
// step that ends it: the first item, then each ++.
std::string Walk(AF_CPathIterator& it) {
    std::string out = Ascii(vu::StringView(it.First()));
    for (int guard = 0; !it.Done() && guard < 300; ++guard) {
        out += ' ';
        out += Ascii(it++);
    }
    return out + (it.Done() ? "!" : "");
}

TEST(PathIterator, WalksGrowingPrefixes) {
    struct Row {
        vu::String path;
        std::string walk;
    } rows[] = {
        // clang-format off
        {VU_T("c:\\a\\b"), "c:\\ c:\\a c:\\a\\b !"}, {VU_T("c:\\a\\b\\"), "c:\\ c:\\a c:\\a\\b !"},
        {VU_T("c:\\"), "c:\\!"}, {VU_T("c:"), "c:\\!"},
        {VU_T("c:\\a\\\\b"), "c:\\ c:\\a c:\\a\\ c:\\a\\\\b !"},
        {VU_T("\\\\srv\\share\\dir"), "\\\\srv\\ \\\\srv\\share \\\\srv\\share\\dir !"},
        {VU_T("\\\\srv"), "\\\\srv\\!"}, {VU_T("ab\\cd"), "ab\\ ab\\cd !"}, {VU_T("a"), "!"},
        {VU_T(""), "!"},
        {VU_T("/usr/lib"), "/us /usr/lib !"}, // only '\\' separates, on every platform
        {VU_T("c:/a"), "c:/ c:/a !"},
        // clang-format on
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.path.begin(), row.path.end()));
        AF_CPathIterator it(row.path.c_str());
        EXPECT_EQ(Walk(it), row.walk);
        EXPECT_EQ(Ascii(it++), ""); // stays empty once done
        EXPECT_TRUE(it.Done());
    }
}

// Every path shorter than 261 units is walked, with or without its
// trailing separator.
TEST(PathIterator, WalksEveryPathShorterThan261Units) {
    const vu::String dir = VU_T("c:\\") + vu::String(256, VU_T('x')); // 259 units
    for (const vu::String& path : {dir + VU_T("\\"), dir + VU_T("y")}) {
        AF_CPathIterator it(path.c_str());
        EXPECT_FALSE(it.Done());
        EXPECT_EQ(vu::String(it++), path.back() == VU_T('y') ? path : dir);
    }
    AF_CPathIterator tooLong((dir + VU_T("yz")).c_str());
    EXPECT_TRUE(tooLong.Done());
    EXPECT_EQ(Ascii(tooLong.Current()), "");
    AF_CPathIterator none(nullptr);
    EXPECT_TRUE(none.Done());
}

// ---- Generated paths against the Windows build -------------------------------

// FNV-1a over the units of s.
void Digest(std::uint64_t& h, vu::StringView s) {
    for (WCHAR c : s) {
        h ^= static_cast<std::uint16_t>(c);
        h *= 1099511628211ull;
    }
    h ^= 0xFFFF; // ends the field
    h *= 1099511628211ull;
}

// What the path classes make of one path: the split, the fields, rebuilds
// by setters, the name tests and the iterator's walk.
void DigestPath(std::uint64_t& h, const vu::String& path) {
    vu::String parts[4];
    vu::SplitPath(path.c_str(), &parts[0], &parts[1], &parts[2], &parts[3]);
    for (const auto& part : parts)
        Digest(h, part);
    AF_CPath p(path.c_str());
    for (const CString* field : {&p.GetDrive(), &p.GetDir(), &p.GetRoot(), &p.GetExt(),
                                 &p.GetFullPath(), &p.GetMachine(), &p.GetShare()})
        Digest(h, field->View());
    Digest(h, p.GetDriveDir().View());
    Digest(h, p.GetName().View());
    Digest(h, AF_CPath::IsMachineName(path.c_str()) ? VU_T("M") : VU_T("m"));
    Digest(h, AF_CPath::IsShareName(path.c_str()) ? VU_T("S") : VU_T("s"));
    p.SetExt(VU_T("doc"));
    Digest(h, p.GetFullPath().View());
    p.SetDir(VU_T("abc"));
    Digest(h, p.GetFullPath().View());
    p.SetDriveDir(path.c_str());
    Digest(h, p.GetFullPath().View());
    AF_CPathIterator walk(path.c_str());
    for (vu::StringView item = walk.First(); !walk.Done(); item = walk++)
        Digest(h, item);
}

// The same generated paths as the Windows suite's comparison with the C
// runtime's _wsplitpath, in blocks of 500, against digests recorded from
// the Windows build under Wine: both builds must read every path alike.
// After a deliberate change of the rules, run the Windows build and paste
// the rows it prints here.
TEST(PathRules, GeneratedPathsGiveTheWindowsResults) {
    static const std::uint64_t kWindowsDigests[] = {
#include "PathRulesDigests.inc"
    };
    vu::test::PathGenerator gen(20240611u);
    std::string rows;
    for (std::size_t block = 0; block < std::size(kWindowsDigests); ++block) {
        std::uint64_t h = 14695981039346656037ull;
        for (int i = 0; i < 500; ++i) {
            DigestPath(h, gen.Next());
            gen.NextMask(); // keeps the sequence of the Windows suite
        }
        char row[40];
        std::snprintf(row, sizeof row, "0x%016llxull,\n", static_cast<unsigned long long>(h));
        rows += row;
        EXPECT_EQ(h, kWindowsDigests[block]) << "paths " << block * 500 << "-" << block * 500 + 499;
    }
    if (::testing::Test::HasFailure())
        std::printf("digests of this build:\n%s", rows.c_str());
}

} // namespace

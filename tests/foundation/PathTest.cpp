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

// The generated paths below decide the split in both builds; parts longer
// than the generator makes are kept whole.
TEST(Path, SplitKeepsLongPartsWhole) {
    const vu::String longDir = VU_T("C:\\") + vu::String(300, VU_T('d')) + VU_T("\\f.txt");
    EXPECT_EQ(Fields(AF_CPath(longDir.c_str())),
              "C|" + Ascii(longDir.substr(2, 301)) + "|f|txt|" + Ascii(longDir) + "||");
}

TEST(Path, DerivedNamesAndResetting) {
    EXPECT_EQ(Ascii(AF_CPath().GetName()), ".");
    vu::String part = VU_T("stale");
    EXPECT_FALSE(vu::SplitPath(nullptr, &part, &part, &part, &part));
    EXPECT_EQ(part, VU_T(""));
    AF_CPath p(VU_T("\\\\m\\s\\f.txt"));
    p.SetPath(nullptr);
    EXPECT_EQ(Fields(p), "|\\\\m\\s|f|txt|\\\\m\\s\\f.txt|m|s");
    p = VU_T("");
    EXPECT_EQ(Fields(p), "||||||");
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
        {"root less one dot", &AF_CPath::SetRoot, VU_T("g.."), "C|\\a|g.|txt|C:\\a\\g..txt||"},
        {"drive letter", &AF_CPath::SetDrive, VU_T(" de "), "d|\\a|f|txt|d:\\a\\f.txt||"},
        {"drive clears machine", &AF_CPath::SetDrive, VU_T("E"), "E|\\\\m\\s|f||E:\\\\m\\s\\f||",
         VU_T("\\\\m\\s\\f")},
        {"dir less one separator", &AF_CPath::SetDir, VU_T("\\x\\y\\\\"),
         "C|\\x\\y\\|f|txt|C:\\x\\y\\f.txt||"},
        {"UNC dir", &AF_CPath::SetDir, VU_T("\\\\m\\s\\d"),
         "|\\\\m\\s\\d|f|txt|\\\\m\\s\\d\\f.txt|m|s", VU_T("f.txt")},
        {"name", &AF_CPath::SetName, VU_T("g.h.i"), "C|\\a|g.h|i|C:\\a\\g.h.i||"},
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

    // An overlong directory survives every setter.
    const vu::String longDir = vu::String(VU_T("\\")).append(300, VU_T('d'));
    AF_CPath q((VU_T("C:") + longDir + VU_T("\\f.txt")).c_str());
    q.SetExt(VU_T("doc"));
    q.SetRoot(VU_T("g"));
    EXPECT_EQ(q.GetFullPath().Str(), VU_T("C:") + longDir + VU_T("\\g.doc"));
}

TEST(Path, ComparesFullPathsCaseBlind) {
    const AF_CPath p(VU_T("C:\\Work\\Project.ACD"));
    EXPECT_TRUE(p == VU_T("  c:\\WORK\\project.acd\t"));
    EXPECT_TRUE(CString(VU_T(" C:\\Work\\Project.ACD")) == p);
    EXPECT_TRUE(p != CString(VU_T("C:\\Work")));
}

TEST(Path, RecognisesMachineAndShareNames) {
    struct Row {
        const WCHAR* path;
        BOOL unc, machine, share;
    } rows[] = {
        {VU_T("\\\\srv\\share\\"), TRUE, FALSE, TRUE},
        {VU_T(" \\\\srv "), FALSE, TRUE, FALSE}, // the name tests trim, the UNC test does not
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

// The walk itself is decided by the generated paths below; one step past the
// last prefix ends it, and it stays empty once done.
TEST(PathIterator, StaysDoneOnceDone) {
    AF_CPathIterator it(VU_T("c:\\a"));
    EXPECT_EQ(vu::String(it.First()), VU_T("c:\\"));
    EXPECT_EQ(vu::String(it++), VU_T("c:\\a"));
    EXPECT_EQ(Ascii(it++), "");
    EXPECT_TRUE(it.Done());
    EXPECT_EQ(Ascii(it++), "");
    EXPECT_TRUE(it.Done());
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

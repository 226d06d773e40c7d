#include "foundation/PathIterator.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::string Ascii(const WCHAR* s) {
    std::string out;
    for (; *s != 0; ++s)
        out += *s < 0x80 ? static_cast<char>(*s) : '?';
    return out;
}

// Every step of a walk as "item" or "item!" when Done after it, up to the
// step that ends it: the first item, then each ++.
std::string Walk(AF_CPathIterator& it) {
    std::string out = Ascii(it.First());
    for (int guard = 0; !it.Done() && guard < 300; ++guard) {
        out += ' ';
        out += Ascii(it++);
    }
    return out + (it.Done() ? "!" : "");
}

#ifdef _WIN32
constexpr char kSep = '\\';
#else
constexpr char kSep = '/';
#endif

TEST(PathIterator, WalksGrowingPrefixes) {
    const std::string sep(1, kSep);
    struct Row {
        vu::String path;
        std::string walk;
    } rows[] = {
        {VU_T("c:\\a\\b"), "c:\\ c:\\a c:\\a\\b !"},
        {VU_T("c:\\a\\b\\"), "c:\\ c:\\a c:\\a\\b !"},
        {VU_T("c:\\"), "c:\\!"},
        {VU_T("c:"), "c:" + sep + "!"},
        {VU_T("c:\\a\\\\b"), "c:\\ c:\\a c:\\a\\ c:\\a\\\\b !"},
        {VU_T("\\\\srv\\share\\dir"), "\\\\srv\\ \\\\srv\\share \\\\srv\\share\\dir !"},
        {VU_T("\\\\srv"), "\\\\srv\\!"},
        {VU_T("ab\\cd"), "ab\\ ab\\cd !"},
        {VU_T("a"), "!"},
        {VU_T(""), "!"},
#ifndef _WIN32
        {VU_T("/usr/lib"), "/ /usr /usr/lib !"},
        {VU_T("/"), "/!"},
        {VU_T("c:/a"), "c:/ c:/a !"},
#endif
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.path.begin(), row.path.end()));
        AF_CPathIterator it(row.path.c_str());
        EXPECT_EQ(Walk(it), row.walk);
        EXPECT_EQ(Ascii(it++), ""); // stays empty once done
        EXPECT_TRUE(it.Done());
    }
}

TEST(PathIterator, FitsTheFixedBuffer) {
    const vu::String dir = VU_T("c:\\") + vu::String(256, VU_T('x')); // 259 units
    AF_CPathIterator fits((dir + VU_T("\\")).c_str());                // 260 with the separator
    EXPECT_FALSE(fits.Done());
    EXPECT_EQ(vu::String(fits++), dir);

    AF_CPathIterator needsSeparator((dir + VU_T("y")).c_str()); // 260, no room for the separator
    EXPECT_TRUE(needsSeparator.Done());
    AF_CPathIterator tooLong((dir + VU_T("yz")).c_str());
    EXPECT_TRUE(tooLong.Done());
    EXPECT_EQ(Ascii(tooLong.Current()), "");
    AF_CPathIterator none(nullptr);
    EXPECT_TRUE(none.Done());
}

TEST(PathIterator, CopiesWalkOnTheirOwn) {
    AF_CPathIterator it(VU_T("c:\\a\\b\\c"));
    it++;
    AF_CPathIterator copy(it);
    it.SetPath(VU_T("d:\\x")); // overwrites the original's buffers
    EXPECT_EQ(Ascii(copy.Current()), "c:\\a");
    EXPECT_EQ(Ascii(copy++), "c:\\a\\b");
    AF_CPathIterator assigned;
    assigned = copy;
    EXPECT_EQ(Ascii(assigned++), "c:\\a\\b\\c");
    EXPECT_EQ(Ascii(copy.Current()), "c:\\a\\b");

    EXPECT_EQ(Ascii(it.Current()), "d:\\");
    EXPECT_EQ(Ascii(it++), "d:\\x");
    EXPECT_EQ(Ascii(it.First()), "d:\\"); // restarts
    EXPECT_EQ(Ascii(it++), "d:\\x");
}

} // namespace

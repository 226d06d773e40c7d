#include "foundation/PathIterator.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::string Ascii(const char16_t* s) {
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
        std::u16string path;
        std::string walk;
    } rows[] = {
        {u"c:\\a\\b", "c:\\ c:\\a c:\\a\\b !"},
        {u"c:\\a\\b\\", "c:\\ c:\\a c:\\a\\b !"},
        {u"c:\\", "c:\\!"},
        {u"c:", "c:" + sep + "!"},
        {u"c:\\a\\\\b", "c:\\ c:\\a c:\\a\\ c:\\a\\\\b !"},
        {u"\\\\srv\\share\\dir", "\\\\srv\\ \\\\srv\\share \\\\srv\\share\\dir !"},
        {u"\\\\srv", "\\\\srv\\!"},
        {u"ab\\cd", "ab\\ ab\\cd !"},
        {u"a", "!"},
        {u"", "!"},
#ifndef _WIN32
        {u"/usr/lib", "/ /usr /usr/lib !"},
        {u"/", "/!"},
        {u"c:/a", "c:/ c:/a !"},
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
    const std::u16string dir = u"c:\\" + std::u16string(256, u'x'); // 259 units
    AF_CPathIterator fits((dir + u"\\").c_str());                   // 260 with the separator
    EXPECT_FALSE(fits.Done());
    EXPECT_EQ(std::u16string(fits++), dir);

    AF_CPathIterator needsSeparator((dir + u"y").c_str()); // 260, no room for the separator
    EXPECT_TRUE(needsSeparator.Done());
    AF_CPathIterator tooLong((dir + u"yz").c_str());
    EXPECT_TRUE(tooLong.Done());
    EXPECT_EQ(Ascii(tooLong.Current()), "");
    AF_CPathIterator none(nullptr);
    EXPECT_TRUE(none.Done());
}

TEST(PathIterator, CopiesWalkOnTheirOwn) {
    AF_CPathIterator it(u"c:\\a\\b\\c");
    it++;
    AF_CPathIterator copy(it);
    it.SetPath(u"d:\\x"); // overwrites the original's buffers
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

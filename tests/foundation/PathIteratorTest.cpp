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

} // namespace

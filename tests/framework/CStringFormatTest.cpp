#include "framework/CString.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <vector>

namespace {

template <class... Args> std::u16string Fmt(const char16_t* format, Args... args) {
    CString s;
    s.Format(format, args...);
    return std::u16string(s.View());
}

struct Row {
    const char* name;
    std::u16string got;
    std::u16string want;
};

void Check(const std::vector<Row>& rows) {
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        EXPECT_EQ(r.got, r.want);
    }
}

TEST(CStringFormat, IntegersWithFlagsWidthAndPrecision) {
    Check({
        {"i", Fmt(u"%i", -7), u"-7"},
        {"width", Fmt(u"[%5d]", 42), u"[   42]"},
        {"left", Fmt(u"[%-5d]", 42), u"[42   ]"},
        {"zero pad after sign", Fmt(u"%05d", -42), u"-0042"},
        {"zero ignored when left", Fmt(u"[%-05d]", 7), u"[7    ]"},
        {"plus", Fmt(u"%+d", 5), u"+5"},
        {"space", Fmt(u"% d", 5), u" 5"},
        {"precision", Fmt(u"%.3d", 7), u"007"},
        {"zero ignored with precision", Fmt(u"[%08.3d]", 7), u"[     007]"},
        {"zero precision of zero", Fmt(u"[%.0d]", 0), u"[]"},
        {"int min", Fmt(u"%d", INT_MIN), u"-2147483648"},
        {"unsigned of -1", Fmt(u"%u", -1), u"4294967295"},
        {"hex", Fmt(u"%x|%X", 255, 255), u"ff|FF"},
        {"hex prefix", Fmt(u"%#x|%#X", 255, 255), u"0xff|0XFF"},
        {"hex prefix not on zero", Fmt(u"%#x", 0), u"0"},
        {"zero padded hex prefix", Fmt(u"%#06x", 10), u"0x000a"},
        {"octal", Fmt(u"%o|%#o", 8, 8), u"10|010"},
        {"width from argument", Fmt(u"[%*d]", 4, 1), u"[   1]"},
        {"negative width from argument", Fmt(u"[%*d]", -4, 1), u"[1   ]"},
        {"precision from argument", Fmt(u"%.*d", 3, 1), u"001"},
    });
}

TEST(CStringFormat, LengthModifiersReadTheNamedType) {
    Check({
        {"short wraps", Fmt(u"%hd", 65535), u"-1"},
        {"unsigned short wraps", Fmt(u"%hu", 70000), u"4464"},
        {"char", Fmt(u"%hhd", 255), u"-1"},
        {"long", Fmt(u"%ld", -123456L), u"-123456"},
        {"long long", Fmt(u"%lld", LLONG_MIN), u"-9223372036854775808"},
        {"I64", Fmt(u"%I64d", 1LL << 40), u"1099511627776"},
        {"I64 unsigned", Fmt(u"%I64u", ~0ULL), u"18446744073709551615"},
        {"I64 hex", Fmt(u"%I64X", 0xABCDEF0123ULL), u"ABCDEF0123"},
        {"I32", Fmt(u"%I32d", -5), u"-5"},
        {"I pointer sized", Fmt(u"%Id", static_cast<std::intptr_t>(-9)), u"-9"},
        {"size_t", Fmt(u"%zu", static_cast<std::size_t>(12)), u"12"},
        // A following argument proves that the 64-bit one was consumed whole.
        {"mixed", Fmt(u"%I64d %d", 1LL << 33, 3), u"8589934592 3"},
    });
}

TEST(CStringFormat, CharactersAndStrings) {
    const char16_t* nullText = nullptr;
    const char* nullNarrow = nullptr;
    Check({
        {"char", Fmt(u"%c", u'A'), u"A"},
        {"wide char", Fmt(u"%lc", 0x00E4), u"\u00E4"},
        {"char width", Fmt(u"[%3c]", u'x'), u"[  x]"},
        {"string", Fmt(u"%s", u"abc"), u"abc"},
        {"ls", Fmt(u"%ls", u"abc"), u"abc"},
        {"string width", Fmt(u"[%6s]", u"abc"), u"[   abc]"},
        {"precision cuts", Fmt(u"%.2s", u"abc"), u"ab"},
        {"null string", Fmt(u"%s", nullText), u"(null)"},
        {"null string width", Fmt(u"[%8s]", nullText), u"[  (null)]"},
        {"narrow hs", Fmt(u"%hs", "narrow"), u"narrow"},
        {"narrow S", Fmt(u"%S", "big"), u"big"},
        {"narrow null", Fmt(u"%hs", nullNarrow), u"(null)"},
        {"non-ASCII passes through", Fmt(u"\u00C4%s\u00DF", u"\u0416"), u"\u00C4\u0416\u00DF"},
    });
}

TEST(CStringFormat, PercentUnknownAndDanglingConversions) {
    Check({
        {"percent", Fmt(u"100%%"), u"100%"},
        {"unknown kept", Fmt(u"%q%d", 5), u"%q5"},
        {"dangling", Fmt(u"50%"), u"50%"},
        {"dangling with flags", Fmt(u"x%-08"), u"x%-08"},
        {"empty", Fmt(u""), u""},
    });
    CString s(u"old");
    s.Format(nullptr);
    EXPECT_TRUE(s.IsEmpty());
}

TEST(CStringFormat, FloatingPointFollowsTheCRuntime) {
    Check({
        {"fixed", Fmt(u"%.2f", 3.14159), u"3.14"},
        {"width", Fmt(u"[%8.3f]", -2.5), u"[  -2.500]"},
        {"zero pad", Fmt(u"%08.2f", 1.5), u"00001.50"},
        {"general", Fmt(u"%g", 0.0001), u"0.0001"},
        {"default precision", Fmt(u"%f", 1.0), u"1.000000"},
    });
}

struct DerivedString : std::u16string {
    using std::u16string::basic_string;
};

TEST(CStringFormat, AppendsTakeStringObjectsAndTheStringItself) {
    const CString name(u"Motor");
    const DerivedString unit(u"rpm");
    CString s;
    s.Format(u"%s=%d %s", name, 1500, unit); // string objects pass as their text
    s.AppendFormat(u",%s", u"x");
    EXPECT_EQ(std::u16string(s.View()), u"Motor=1500 rpm,x");
    s.AppendFormat(u" (%s)", s);
    EXPECT_EQ(std::u16string(s.View()), u"Motor=1500 rpm,x (Motor=1500 rpm,x)");
    // The argument points into the string being formatted.
    s = u"ab";
    s.Format(u"%s-%s", s.GetString(), s.GetString());
    EXPECT_EQ(std::u16string(s.View()), u"ab-ab");
    s.AppendFormat(u"+%s", s.GetString());
    EXPECT_EQ(std::u16string(s.View()), u"ab-ab+ab-ab");
}

TEST(CStringFormat, HugeWidthsAreCappedNotAllocated) {
    const std::u16string out = Fmt(u"%999999999999d", 1);
    EXPECT_LE(out.size(), 2u * 1024 * 1024);
    EXPECT_EQ(out.back(), u'1');
}

} // namespace

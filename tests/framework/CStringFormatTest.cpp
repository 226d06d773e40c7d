#include "framework/CString.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <vector>

namespace {

template <class... Args> vu::String Fmt(const WCHAR* format, Args... args) {
    CString s;
    s.Format(format, args...);
    return vu::String(s.View());
}

struct Row {
    const char* name;
    vu::String got;
    vu::String want;
};

void Check(const std::vector<Row>& rows) {
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        EXPECT_EQ(r.got, r.want);
    }
}

TEST(CStringFormat, IntegersWithFlagsWidthAndPrecision) {
    Check({
        {"i", Fmt(VU_T("%i"), -7), VU_T("-7")},
        {"width", Fmt(VU_T("[%5d]"), 42), VU_T("[   42]")},
        {"left", Fmt(VU_T("[%-5d]"), 42), VU_T("[42   ]")},
        {"zero pad after sign", Fmt(VU_T("%05d"), -42), VU_T("-0042")},
        {"zero ignored when left", Fmt(VU_T("[%-05d]"), 7), VU_T("[7    ]")},
        {"plus", Fmt(VU_T("%+d"), 5), VU_T("+5")},
        {"space", Fmt(VU_T("% d"), 5), VU_T(" 5")},
        {"precision", Fmt(VU_T("%.3d"), 7), VU_T("007")},
        {"zero ignored with precision", Fmt(VU_T("[%08.3d]"), 7), VU_T("[     007]")},
        {"zero precision of zero", Fmt(VU_T("[%.0d]"), 0), VU_T("[]")},
        {"int min", Fmt(VU_T("%d"), INT_MIN), VU_T("-2147483648")},
        {"unsigned of -1", Fmt(VU_T("%u"), -1), VU_T("4294967295")},
        {"hex", Fmt(VU_T("%x|%X"), 255, 255), VU_T("ff|FF")},
        {"hex prefix", Fmt(VU_T("%#x|%#X"), 255, 255), VU_T("0xff|0XFF")},
        {"hex prefix not on zero", Fmt(VU_T("%#x"), 0), VU_T("0")},
        {"zero padded hex prefix", Fmt(VU_T("%#06x"), 10), VU_T("0x000a")},
        {"octal", Fmt(VU_T("%o|%#o"), 8, 8), VU_T("10|010")},
        {"width from argument", Fmt(VU_T("[%*d]"), 4, 1), VU_T("[   1]")},
        {"negative width from argument", Fmt(VU_T("[%*d]"), -4, 1), VU_T("[1   ]")},
        {"precision from argument", Fmt(VU_T("%.*d"), 3, 1), VU_T("001")},
    });
}

TEST(CStringFormat, LengthModifiersReadTheNamedType) {
    Check({
        {"short wraps", Fmt(VU_T("%hd"), 65535), VU_T("-1")},
        {"unsigned short wraps", Fmt(VU_T("%hu"), 70000), VU_T("4464")},
        {"char", Fmt(VU_T("%hhd"), 255), VU_T("-1")},
        {"long", Fmt(VU_T("%ld"), -123456L), VU_T("-123456")},
        {"long long", Fmt(VU_T("%lld"), LLONG_MIN), VU_T("-9223372036854775808")},
        {"I64", Fmt(VU_T("%I64d"), 1LL << 40), VU_T("1099511627776")},
        {"I64 unsigned", Fmt(VU_T("%I64u"), ~0ULL), VU_T("18446744073709551615")},
        {"I64 hex", Fmt(VU_T("%I64X"), 0xABCDEF0123ULL), VU_T("ABCDEF0123")},
        {"I32", Fmt(VU_T("%I32d"), -5), VU_T("-5")},
        {"I pointer sized", Fmt(VU_T("%Id"), static_cast<std::intptr_t>(-9)), VU_T("-9")},
        {"size_t", Fmt(VU_T("%zu"), static_cast<std::size_t>(12)), VU_T("12")},
        // A following argument proves that the 64-bit one was consumed whole.
        {"mixed", Fmt(VU_T("%I64d %d"), 1LL << 33, 3), VU_T("8589934592 3")},
    });
}

TEST(CStringFormat, CharactersAndStrings) {
    const WCHAR* nullText = nullptr;
    const char* nullNarrow = nullptr;
    Check({
        {"char", Fmt(VU_T("%c"), VU_T('A')), VU_T("A")},
        {"wide char", Fmt(VU_T("%lc"), 0x00E4), VU_T("\u00E4")},
        {"char width", Fmt(VU_T("[%3c]"), VU_T('x')), VU_T("[  x]")},
        {"string", Fmt(VU_T("%s"), VU_T("abc")), VU_T("abc")},
        {"ls", Fmt(VU_T("%ls"), VU_T("abc")), VU_T("abc")},
        {"string width", Fmt(VU_T("[%6s]"), VU_T("abc")), VU_T("[   abc]")},
        {"precision cuts", Fmt(VU_T("%.2s"), VU_T("abc")), VU_T("ab")},
        {"null string", Fmt(VU_T("%s"), nullText), VU_T("(null)")},
        {"null string width", Fmt(VU_T("[%8s]"), nullText), VU_T("[  (null)]")},
        {"narrow hs", Fmt(VU_T("%hs"), "narrow"), VU_T("narrow")},
        {"narrow S", Fmt(VU_T("%S"), "big"), VU_T("big")},
        {"narrow null", Fmt(VU_T("%hs"), nullNarrow), VU_T("(null)")},
        {"non-ASCII passes through", Fmt(VU_T("\u00C4%s\u00DF"), VU_T("\u0416")),
         VU_T("\u00C4\u0416\u00DF")},
    });
}

TEST(CStringFormat, PercentUnknownAndDanglingConversions) {
    Check({
        {"percent", Fmt(VU_T("100%%")), VU_T("100%")},
        {"unknown kept", Fmt(VU_T("%q%d"), 5), VU_T("%q5")},
        {"dangling", Fmt(VU_T("50%")), VU_T("50%")},
        {"dangling with flags", Fmt(VU_T("x%-08")), VU_T("x%-08")},
        {"empty", Fmt(VU_T("")), VU_T("")},
    });
    CString s(VU_T("old"));
    s.Format(nullptr);
    EXPECT_TRUE(s.IsEmpty());
}

TEST(CStringFormat, FloatingPointFollowsTheCRuntime) {
    Check({
        {"fixed", Fmt(VU_T("%.2f"), 3.14159), VU_T("3.14")},
        {"width", Fmt(VU_T("[%8.3f]"), -2.5), VU_T("[  -2.500]")},
        {"zero pad", Fmt(VU_T("%08.2f"), 1.5), VU_T("00001.50")},
        {"general", Fmt(VU_T("%g"), 0.0001), VU_T("0.0001")},
        {"default precision", Fmt(VU_T("%f"), 1.0), VU_T("1.000000")},
    });
}

struct DerivedString : vu::String {
    using vu::String::basic_string;
};

TEST(CStringFormat, AppendsTakeStringObjectsAndTheStringItself) {
    const CString name(VU_T("Motor"));
    const DerivedString unit(VU_T("rpm"));
    CString s;
    s.Format(VU_T("%s=%d %s"), name, 1500, unit); // string objects pass as their text
    s.AppendFormat(VU_T(",%s"), VU_T("x"));
    EXPECT_EQ(vu::String(s.View()), VU_T("Motor=1500 rpm,x"));
    s.AppendFormat(VU_T(" (%s)"), s);
    EXPECT_EQ(vu::String(s.View()), VU_T("Motor=1500 rpm,x (Motor=1500 rpm,x)"));
    // The argument points into the string being formatted.
    s = VU_T("ab");
    s.Format(VU_T("%s-%s"), s.GetString(), s.GetString());
    EXPECT_EQ(vu::String(s.View()), VU_T("ab-ab"));
    s.AppendFormat(VU_T("+%s"), s.GetString());
    EXPECT_EQ(vu::String(s.View()), VU_T("ab-ab+ab-ab"));
}

TEST(CStringFormat, HugeWidthsAreCappedNotAllocated) {
    const vu::String out = Fmt(VU_T("%999999999999d"), 1);
    EXPECT_LE(out.size(), 2u * 1024 * 1024);
    EXPECT_EQ(out.back(), VU_T('1'));
}

} // namespace

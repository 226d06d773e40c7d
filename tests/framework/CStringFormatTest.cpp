#include "framework/CString.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <cwchar>
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

// Flags, widths and precisions of the standard conversions against the C
// runtime's own wide printf (the Windows runtime's under Wine).
TEST(CStringFormat, StandardConversionsAgreeWithTheCRuntime) {
    const char* formats[] = {"%d",    "%i",      "[%5d]",  "[%-5d]",   "%05d",   "[%-05d]",
                             "%+d",   "% d",     "%.3d",   "[%08.3d]", "[%.0d]", "%u",
                             "%x|%X", "%#x|%#X", "%#06x",  "%o|%#o",   "[%*d]",  "%.*d",
                             "%.2f",  "[%8.3f]", "%08.2f", "%g",       "%f",     "%+.1f"};
    for (const char* narrow : formats) {
        const std::wstring wide(narrow, narrow + std::strlen(narrow));
        const vu::String format(wide.begin(), wide.end());
        const bool real = wide.find_first_of(L"fge") != std::wstring::npos;
        for (int v : {0, 7, -42, 255, INT_MIN}) {
            if (real && v == INT_MIN)
                continue; // exponents are spelt differently by the two runtimes
            SCOPED_TRACE(std::string(narrow) + " of " + std::to_string(v));
            wchar_t expected[128];
            const int n = real ? std::swprintf(expected, 128, wide.c_str(), v * 1.37, v * 1.37)
                          : wide.find('*') != std::wstring::npos
                              ? std::swprintf(expected, 128, wide.c_str(), v % 9, v)
                              : std::swprintf(expected, 128, wide.c_str(), v, v);
            ASSERT_GE(n, 0);
            const vu::String got = real ? Fmt(format.c_str(), v * 1.37, v * 1.37)
                                   : wide.find('*') != std::wstring::npos
                                       ? Fmt(format.c_str(), v % 9, v)
                                       : Fmt(format.c_str(), v, v);
            EXPECT_EQ(std::wstring(got.begin(), got.end()), std::wstring(expected));
        }
    }
}

TEST(CStringFormat, LengthModifiersReadTheNamedType) {
    Check({
        {"short wraps", Fmt(VU_T("%hd"), 65535), VU_T("-1")},
        {"unsigned short wraps", Fmt(VU_T("%hu"), 70000), VU_T("4464")},
        {"long long", Fmt(VU_T("%lld"), LLONG_MIN), VU_T("-9223372036854775808")},
        {"I64 hex", Fmt(VU_T("%I64X"), 0xABCDEF0123ULL), VU_T("ABCDEF0123")},
        {"I pointer sized", Fmt(VU_T("%Id"), static_cast<std::intptr_t>(-9)), VU_T("-9")},
        // A following argument proves that the 64-bit one was consumed whole.
        {"mixed", Fmt(VU_T("%I64d %d"), 1LL << 33, 3), VU_T("8589934592 3")},
    });
}

TEST(CStringFormat, CharactersAndStrings) {
    const WCHAR* nullText = nullptr;
    Check({
        {"wide char", Fmt(VU_T("%lc"), 0x00E4), VU_T("\u00E4")},
        {"precision cuts", Fmt(VU_T("%.2s"), VU_T("abc")), VU_T("ab")},
        {"null string width", Fmt(VU_T("[%8s]"), nullText), VU_T("[  (null)]")},
        {"narrow hs", Fmt(VU_T("%hs"), "narrow"), VU_T("narrow")},
        {"non-ASCII passes through", Fmt(VU_T("\u00C4%s\u00DF"), VU_T("\u0416")),
         VU_T("\u00C4\u0416\u00DF")},
    });
}

TEST(CStringFormat, PercentUnknownAndDanglingConversions) {
    Check({
        {"percent", Fmt(VU_T("100%%")), VU_T("100%")},
        {"unknown kept", Fmt(VU_T("%q%d"), 5), VU_T("%q5")},
        {"dangling with flags", Fmt(VU_T("x%-08")), VU_T("x%-08")},
    });
    CString s(VU_T("old"));
    s.Format(nullptr);
    EXPECT_TRUE(s.IsEmpty());
}

struct DerivedString : vu::String {
    using vu::String::basic_string;
};

TEST(CStringFormat, AppendsTakeStringObjectsAndTheStringItself) {
    const CString name(VU_T("Motor"));
    const DerivedString unit(VU_T("rpm"));
    CString s;
    s.Format(VU_T("%s=%d %s"), name, 1500, unit); // string objects pass as their text
    s.AppendFormat(VU_T(" (%s)"), s);
    EXPECT_EQ(vu::String(s.View()), VU_T("Motor=1500 rpm (Motor=1500 rpm)"));
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

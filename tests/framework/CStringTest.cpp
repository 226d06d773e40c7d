#include "framework/CString.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

vu::String S(const CString& s) {
    return vu::String(s.View());
}

// A named expectation; every row is checked, failures name their row.
template <class T> struct Row {
    const char* name;
    T got, want;
};
template <class T> void Check(const std::vector<Row<T>>& rows) {
    for (const Row<T>& r : rows) {
        SCOPED_TRACE(r.name);
        EXPECT_EQ(r.got, r.want);
    }
}
using Text = vu::String;

// ---- construction and element access ---------------------------------------

TEST(CString, ConstructorsClampBadLengthsAndNulls) {
    Check<Text>({
        {"null", S(CString(static_cast<const WCHAR*>(nullptr))), VU_T("")},
        {"length", S(CString(VU_T("abcdef"), 3)), VU_T("abc")},
        {"negative length", S(CString(VU_T("abc"), -1)), VU_T("")},
        {"null with length", S(CString(nullptr, 4)), VU_T("")},
        {"repeat negative", S(CString(VU_T('x'), -2)), VU_T("")},
        {"view with a null", S(CString(vu::StringView(VU_T("a\0b"), 3))), Text(VU_T("a\0b"), 3)},
    });
}

TEST(CString, GetAtAndSetAtOutsideTheStringAreHarmless) {
    CString s(VU_T("abc"));
    EXPECT_EQ(s.GetAt(3) + s.GetAt(-1) + s[static_cast<std::size_t>(-1)], 0);
    s.SetAt(1, VU_T('X'));
    s.SetAt(3, VU_T('Y'));
    s.SetAt(-1, VU_T('Z'));
    EXPECT_EQ(S(s), VU_T("aXc"));
}

TEST(CString, AssignmentFromItsOwnBufferIsSafe) {
    CString s(VU_T("hello world"));
    s = s.GetString() + 6;
    EXPECT_EQ(S(s), VU_T("world"));
    s.Insert(2, s.GetString());
    EXPECT_EQ(S(s), VU_T("woworldrld"));
}

TEST(CString, BufferAccessTakesTheLengthFromTheTerminatorOrTheCaller) {
    CString s(VU_T("ab"));
    std::char_traits<WCHAR>::copy(s.GetBuffer(10), VU_T("xyz"), 4); // with the terminator
    s.ReleaseBuffer();
    EXPECT_EQ(S(s), VU_T("xyz"));
    s.GetBufferSetLength(4)[3] = VU_T('!');
    s.ReleaseBuffer(4);
    EXPECT_EQ(s.GetLength(), 4);
    EXPECT_EQ(s[3], VU_T('!'));
}

// ---- searching ---------------------------------------------------------------

TEST(CString, FindReturnsMinusOneWhenAbsentOrStartIsBeyondTheEnd) {
    const CString s(VU_T("abcabc"));
    Check<int>({
        {"char at end", s.Find(VU_T('c'), 6), -1},
        {"char negative start", s.Find(VU_T('a'), -5), 0},
        {"text overlapping end", s.Find(VU_T("bca"), 3), -1},
        {"empty text at end", s.Find(VU_T(""), 6), 6},
        {"empty text beyond end", s.Find(VU_T(""), 7), -1},
        {"null text", s.Find(static_cast<const WCHAR*>(nullptr)), -1},
        {"one of", s.FindOneOf(VU_T("xc")), 2},
        {"one of null set", s.FindOneOf(nullptr), -1},
    });
}

// ---- extraction --------------------------------------------------------------

TEST(CString, ExtractionClampsItsArguments) {
    const CString s(VU_T("hello"));
    Check<Text>({
        {"mid negative first", S(s.Mid(-2, 3)), VU_T("hel")},
        {"mid count past end", S(s.Mid(3, 100)), VU_T("lo")},
        {"mid first past end", S(s.Mid(10)), VU_T("")},
        {"mid negative count", S(s.Mid(2, -1)), VU_T("")},
        {"right too long", S(s.Right(99)), VU_T("hello")},
        {"span including", S(CString(VU_T("abcxyz")).SpanIncluding(VU_T("cba"))), VU_T("abc")},
        {"span excluding", S(CString(VU_T("key,value")).SpanExcluding(VU_T(",;"))), VU_T("key")},
    });
}

TEST(CString, TokenizeSkipsEmptyTokensAndEndsWithMinusOne) {
    const CString s(VU_T(",a,,bc;d;"));
    vu::String tokens;
    int pos = 0;
    for (CString t = s.Tokenize(VU_T(",;"), pos); pos != -1; t = s.Tokenize(VU_T(",;"), pos))
        tokens += S(t) + VU_T("|");
    EXPECT_EQ(tokens, VU_T("a|bc|d|"));
}

// ---- editing -----------------------------------------------------------------

TEST(CString, DeleteAndInsertClampAndReturnTheNewLength) {
    struct Row {
        const char* name;
        int index, count;
        int wantLength;
        const WCHAR* want;
    } deletes[] = {
        {"negative index", -3, 1, 4, VU_T("ello")},
        {"past end", 4, 10, 4, VU_T("hell")},
        {"negative count", 1, -2, 5, VU_T("hello")},
    };
    for (const Row& r : deletes) {
        SCOPED_TRACE(r.name);
        CString s(VU_T("hello"));
        EXPECT_EQ(s.Delete(r.index, r.count), r.wantLength);
        EXPECT_EQ(S(s), r.want);
    }

    CString s(VU_T("hello"));
    EXPECT_EQ(s.Insert(0, VU_T('x')), 6);
    EXPECT_EQ(s.Insert(99, VU_T("!!")), 8);
    EXPECT_EQ(s.Insert(-4, VU_T("<")), 9);
    EXPECT_EQ(s.Insert(3, static_cast<const WCHAR*>(nullptr)), 9);
    EXPECT_EQ(S(s), VU_T("<xhello!!"));
}

TEST(CString, ReplaceScansLeftToRightWithoutOverlapAndCounts) {
    struct Row {
        const char* name;
        const WCHAR* text;
        const WCHAR* from;
        const WCHAR* to;
        int wantCount;
        const WCHAR* want;
    } rows[] = {
        {"odd run", VU_T("aaa"), VU_T("aa"), VU_T("b"), 1, VU_T("ba")},
        {"empty pattern", VU_T("abc"), VU_T(""), VU_T("x"), 0, VU_T("abc")},
        {"null pattern", VU_T("abc"), nullptr, VU_T("x"), 0, VU_T("abc")},
        {"to null", VU_T("banana"), VU_T("an"), nullptr, 2, VU_T("ba")},
        {"growing replacement", VU_T("abab"), VU_T("ab"), VU_T("abab"), 2, VU_T("abababab")},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        CString s(r.text);
        EXPECT_EQ(s.Replace(r.from, r.to), r.wantCount);
        EXPECT_EQ(S(s), r.want);
    }

    CString s(VU_T("a-b-c"));
    EXPECT_EQ(s.Replace(VU_T('-'), VU_T('-')), 0);
    EXPECT_EQ(s.Remove(VU_T('-')), 2);
    // The pattern may be this string itself.
    EXPECT_EQ(s.Replace(s.GetString(), VU_T("z")), 1);
    EXPECT_EQ(S(s), VU_T("z"));
}

TEST(CString, TrimRemovesTheGivenSetFromTheEndsOnly) {
    Check<Text>({
        {"white space", S(CString(VU_T(" \t\r\n\v\fx y \f")).Trim()), VU_T("x y")},
        {"no-break space kept", S(CString(VU_T("\u00A0x ")).Trim()), VU_T("\u00A0x")},
        {"char", S(CString(VU_T("xxaxx")).Trim(VU_T('x'))), VU_T("a")},
        {"set", S(CString(VU_T("abcba")).Trim(VU_T("ab"))), VU_T("c")},
        {"right set", S(CString(VU_T("abcba")).TrimRight(VU_T("ab"))), VU_T("abc")},
        {"null set", S(CString(VU_T(" a ")).Trim(static_cast<const WCHAR*>(nullptr))), VU_T(" a ")},
    });
}

// ---- comparison --------------------------------------------------------------

const WCHAR kHighSurrogate[] = {0xD800, 0};

// The case-folding rules themselves are covered with the case map.
TEST(CString, CompareIsCodeUnitOrderAndNoCaseFoldsToLower) {
    struct Row {
        const char* name;
        const WCHAR* a;
        const WCHAR* b;
        int compare; // sign of Compare
        int noCase;  // sign of CompareNoCase
    } rows[] = {
        {"case", VU_T("ABC"), VU_T("abc"), -1, 0},
        {"non-ASCII after z", VU_T("\u00E4"), VU_T("z"), 1, 1},
        {"underscore before letters", VU_T("_"), VU_T("A"), 1, -1},
        {"fullwidth", VU_T("\uFF21\uFF22"), VU_T("\uFF41\uFF42"), -1, 0},
        {"empty vs null", VU_T(""), nullptr, 0, 0},
        {"surrogate below fullwidth letters", kHighSurrogate, VU_T("\uFF5A"), -1, -1},
    };
    auto sign = [](int v) { return (v > 0) - (v < 0); };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        const CString a(r.a);
        EXPECT_EQ(sign(a.Compare(r.b)), r.compare);
        EXPECT_EQ(sign(a.CompareNoCase(r.b)), r.noCase);
    }
}

} // namespace

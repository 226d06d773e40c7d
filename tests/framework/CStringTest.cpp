#include "framework/CString.h"

#include <gtest/gtest.h>

#include <string>
#include <unordered_set>
#include <vector>

namespace {

std::u16string S(const CString& s) {
    return std::u16string(s.View());
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
using Text = std::u16string;

// ---- construction and element access ---------------------------------------

TEST(CString, ConstructorsClampBadLengthsAndNulls) {
    Check<Text>({
        {"null", S(CString(static_cast<const char16_t*>(nullptr))), u""},
        {"length", S(CString(u"abcdef", 3)), u"abc"},
        {"negative length", S(CString(u"abc", -1)), u""},
        {"null with length", S(CString(nullptr, 4)), u""},
        {"repeat", S(CString(u'x', 3)), u"xxx"},
        {"repeat zero", S(CString(u'x', 0)), u""},
        {"repeat negative", S(CString(u'x', -2)), u""},
        {"view with a null", S(CString(std::u16string_view(u"a\0b", 3))), Text(u"a\0b", 3)},
    });
}

TEST(CString, GetAtAndSetAtOutsideTheStringAreHarmless) {
    CString s(u"abc");
    EXPECT_EQ(s.GetAt(0), u'a');
    EXPECT_EQ(s[2], u'c');
    EXPECT_EQ(s[2u], u'c');
    EXPECT_EQ(s.GetAt(3), 0);
    EXPECT_EQ(s.GetAt(-1), 0);
    EXPECT_EQ(s[static_cast<std::size_t>(-1)], 0);
    s.SetAt(1, u'X');
    s.SetAt(3, u'Y');
    s.SetAt(-1, u'Z');
    EXPECT_EQ(S(s), u"aXc");
}

TEST(CString, AssignmentFromItsOwnBufferIsSafe) {
    CString s(u"hello world");
    s = s.GetString() + 6;
    EXPECT_EQ(S(s), u"world");
    s.Insert(2, s.GetString());
    EXPECT_EQ(S(s), u"woworldrld");
}

TEST(CString, BufferAccessTakesTheLengthFromTheTerminatorOrTheCaller) {
    CString s(u"ab");
    std::char_traits<char16_t>::copy(s.GetBuffer(10), u"xyz", 4); // with the terminator
    s.ReleaseBuffer();
    EXPECT_EQ(S(s), u"xyz");
    s.GetBuffer(0);
    s.ReleaseBuffer(2);
    EXPECT_EQ(S(s), u"xy");
    s.GetBufferSetLength(4)[3] = u'!';
    s.ReleaseBuffer(4);
    EXPECT_EQ(s.GetLength(), 4);
    EXPECT_EQ(s[3], u'!');
}

// ---- searching ---------------------------------------------------------------

TEST(CString, FindReturnsMinusOneWhenAbsentOrStartIsBeyondTheEnd) {
    const CString s(u"abcabc");
    Check<int>({
        {"char from 0", s.Find(u'c'), 2},
        {"char at last", s.Find(u'c', 5), 5},
        {"char at end", s.Find(u'c', 6), -1},
        {"char negative start", s.Find(u'a', -5), 0},
        {"char absent", s.Find(u'z'), -1},
        {"text", s.Find(u"bc"), 1},
        {"text from 2", s.Find(u"bc", 2), 4},
        {"text overlapping end", s.Find(u"bca", 3), -1},
        {"empty text at end", s.Find(u"", 6), 6},
        {"empty text beyond end", s.Find(u"", 7), -1},
        {"null text", s.Find(static_cast<const char16_t*>(nullptr)), -1},
        {"text longer than string", s.Find(u"abcabcabc"), -1},
        {"reverse", s.ReverseFind(u'a'), 3},
        {"reverse absent", s.ReverseFind(u'q'), -1},
        {"one of", s.FindOneOf(u"xc"), 2},
        {"one of empty set", s.FindOneOf(u""), -1},
        {"one of null set", s.FindOneOf(nullptr), -1},
        {"empty string", CString().Find(u'a'), -1},
    });
}

// ---- extraction --------------------------------------------------------------

TEST(CString, ExtractionClampsItsArguments) {
    const CString s(u"hello");
    Check<Text>({
        {"mid inside", S(s.Mid(1, 3)), u"ell"},
        {"mid negative first", S(s.Mid(-2, 3)), u"hel"},
        {"mid count past end", S(s.Mid(3, 100)), u"lo"},
        {"mid first at end", S(s.Mid(5)), u""},
        {"mid first past end", S(s.Mid(10)), u""},
        {"mid negative count", S(s.Mid(2, -1)), u""},
        {"left negative", S(s.Left(-1)), u""},
        {"left too long", S(s.Left(99)), u"hello"},
        {"left", S(s.Left(2)), u"he"},
        {"right", S(s.Right(2)), u"lo"},
        {"right too long", S(s.Right(99)), u"hello"},
        {"right negative", S(s.Right(-3)), u""},
        {"span including", S(CString(u"abcxyz").SpanIncluding(u"cba")), u"abc"},
        {"span including none", S(CString(u"xyz").SpanIncluding(u"abc")), u""},
        {"span excluding", S(CString(u"key,value").SpanExcluding(u",;")), u"key"},
        {"span excluding all", S(CString(u"novalue").SpanExcluding(u",")), u"novalue"},
    });
}

TEST(CString, TokenizeSkipsEmptyTokensAndEndsWithMinusOne) {
    const CString s(u",a,,bc;d;");
    std::u16string tokens;
    int pos = 0;
    for (CString t = s.Tokenize(u",;", pos); pos != -1; t = s.Tokenize(u",;", pos))
        tokens += S(t) + u"|";
    EXPECT_EQ(tokens, u"a|bc|d|");
    int past = 42;
    EXPECT_EQ(S(s.Tokenize(u",", past)), u"");
    EXPECT_EQ(past, -1);
}

// ---- editing -----------------------------------------------------------------

TEST(CString, DeleteAndInsertClampAndReturnTheNewLength) {
    struct Row {
        const char* name;
        int index, count;
        int wantLength;
        const char16_t* want;
    } deletes[] = {
        {"inside", 1, 2, 3, u"hlo"},       {"negative index", -3, 1, 4, u"ello"},
        {"past end", 4, 10, 4, u"hell"},   {"at end", 5, 1, 5, u"hello"},
        {"zero count", 1, 0, 5, u"hello"}, {"negative count", 1, -2, 5, u"hello"},
    };
    for (const Row& r : deletes) {
        SCOPED_TRACE(r.name);
        CString s(u"hello");
        EXPECT_EQ(s.Delete(r.index, r.count), r.wantLength);
        EXPECT_EQ(S(s), r.want);
    }

    CString s(u"hello");
    EXPECT_EQ(s.Insert(0, u'x'), 6);
    EXPECT_EQ(s.Insert(99, u"!!"), 8);
    EXPECT_EQ(s.Insert(-4, u"<"), 9);
    EXPECT_EQ(s.Insert(3, static_cast<const char16_t*>(nullptr)), 9);
    EXPECT_EQ(s.Insert(9, u'.'), 10);
    EXPECT_EQ(S(s), u"<xhello!!.");
}

TEST(CString, ReplaceScansLeftToRightWithoutOverlapAndCounts) {
    struct Row {
        const char* name;
        const char16_t* text;
        const char16_t* from;
        const char16_t* to;
        int wantCount;
        const char16_t* want;
    } rows[] = {
        {"pairs", u"aaaa", u"aa", u"b", 2, u"bb"},
        {"odd run", u"aaa", u"aa", u"b", 1, u"ba"},
        {"empty pattern", u"abc", u"", u"x", 0, u"abc"},
        {"null pattern", u"abc", nullptr, u"x", 0, u"abc"},
        {"to empty", u"banana", u"a", u"", 3, u"bnn"},
        {"to null", u"banana", u"an", nullptr, 2, u"ba"},
        {"growing replacement", u"abab", u"ab", u"abab", 2, u"abababab"},
        {"absent", u"abc", u"x", u"y", 0, u"abc"},
        {"whole string", u"abc", u"abc", u"", 1, u""},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        CString s(r.text);
        EXPECT_EQ(s.Replace(r.from, r.to), r.wantCount);
        EXPECT_EQ(S(s), r.want);
    }

    CString s(u"a-b-c");
    EXPECT_EQ(s.Replace(u'-', u'-'), 0);
    EXPECT_EQ(s.Replace(u'-', u'+'), 2);
    EXPECT_EQ(S(s), u"a+b+c");
    EXPECT_EQ(s.Remove(u'+'), 2);
    EXPECT_EQ(S(s), u"abc");
    // The pattern may be this string itself.
    EXPECT_EQ(s.Replace(s.GetString(), u"z"), 1);
    EXPECT_EQ(S(s), u"z");
}

TEST(CString, TrimRemovesTheGivenSetFromTheEndsOnly) {
    Check<Text>({
        {"white space", S(CString(u" \t\r\n\v\fx y \f").Trim()), u"x y"},
        {"all white", S(CString(u" \t ").Trim()), u""},
        {"no-break space kept", S(CString(u"\u00A0x ").Trim()), u"\u00A0x"},
        {"char", S(CString(u"xxaxx").Trim(u'x')), u"a"},
        {"set", S(CString(u"abcba").Trim(u"ab")), u"c"},
        {"left set", S(CString(u"abcba").TrimLeft(u"ab")), u"cba"},
        {"right set", S(CString(u"abcba").TrimRight(u"ab")), u"abc"},
        {"left white", S(CString(u"  a  ").TrimLeft()), u"a  "},
        {"right white", S(CString(u"  a  ").TrimRight()), u"  a"},
        {"empty set", S(CString(u" a ").Trim(u"")), u" a "},
        {"null set", S(CString(u" a ").Trim(static_cast<const char16_t*>(nullptr))), u" a "},
    });
}

TEST(CString, CaseChangesUseTheSimpleMapping) {
    Check<Text>({
        {"upper", S(CString(u"Stra\u00DFe \u00C4\u00D6").MakeUpper()), u"STRA\u00DFE \u00C4\u00D6"},
        {"lower", S(CString(u"\u0130I\u00C4\u0416").MakeLower()), u"ii\u00E4\u0436"},
        {"dotless i", S(CString(u"\u0131i").MakeUpper()), u"II"},
        {"reverse", S(CString(u"abc").MakeReverse()), u"cba"},
    });
}

// ---- comparison --------------------------------------------------------------

const char16_t kHighSurrogate[] = {0xD800, 0};

// The case-folding rules themselves are covered with the case map.
TEST(CString, CompareIsCodeUnitOrderAndNoCaseFoldsToLower) {
    struct Row {
        const char* name;
        const char16_t* a;
        const char16_t* b;
        int compare; // sign of Compare
        int noCase;  // sign of CompareNoCase
    } rows[] = {
        {"prefix", u"abc", u"ab", 1, 1},
        {"case", u"ABC", u"abc", -1, 0},
        {"non-ASCII after z", u"\u00E4", u"z", 1, 1},
        {"underscore before letters", u"_", u"A", 1, -1},
        {"fullwidth", u"\uFF21\uFF22", u"\uFF41\uFF42", -1, 0},
        {"empty vs null", u"", nullptr, 0, 0},
        {"surrogate below fullwidth letters", kHighSurrogate, u"\uFF5A", -1, -1},
    };
    auto sign = [](int v) { return (v > 0) - (v < 0); };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        const CString a(r.a);
        EXPECT_EQ(sign(a.Compare(r.b)), r.compare);
        EXPECT_EQ(sign(a.CompareNoCase(r.b)), r.noCase);
    }
}

TEST(CString, OperatorsCombineStringsPointersAndCharacters) {
    const CString b(u"b");
    EXPECT_EQ(S(u"a" + b + u'c'), u"abc");
    EXPECT_EQ(S(u'x' + b), u"xb");
    EXPECT_EQ(S(b + b), u"bb");
    EXPECT_EQ(S(CString(u"p") + u"q"), u"pq");
    CString s;
    s += u"1";
    s += CString(u"2");
    s += u'3';
    s += static_cast<const char16_t*>(nullptr);
    EXPECT_EQ(S(s), u"123");

    EXPECT_TRUE(b == u"b");
    EXPECT_TRUE(u"b" == b);
    EXPECT_TRUE(b != u"B");
    EXPECT_TRUE(CString(u"a") < b);
    EXPECT_TRUE(u"a" < b);
    EXPECT_TRUE(b > u"a");
    EXPECT_TRUE(b >= u"b" && b <= u"b");
    EXPECT_FALSE(CString(u"\u00E4") < CString(u"z"));
}

TEST(CString, StandardStringsAndDerivedOnesConvertWithoutAmbiguity) {
    struct Derived : std::u16string {
        using std::u16string::basic_string;
    };
    const std::u16string plain(u"std");
    const Derived derived(u"derived");
    CString s = plain;
    s += derived;
    s += plain;
    EXPECT_EQ(S(s), u"stdderivedstd");
    s = derived;
    EXPECT_EQ(S(s), u"derived");
    EXPECT_TRUE(s == CString(derived));
}

TEST(CString, HashesEqualContentAlike) {
    std::unordered_set<CString> set;
    set.insert(CString(u"alpha"));
    set.insert(CString(u"al") + u"pha");
    set.insert(CString(u"Alpha"));
    EXPECT_EQ(set.size(), 2u);
    EXPECT_EQ(set.count(CString(u"alpha")), 1u);
}

} // namespace

// Regular expressions: compile failures, the search results the generated
// comparisons (RegExpressionMatcherTest, RegExpressionPcre2Test) cannot reach,
// replacement templates, object state, long links and the step budget.
#include "text/RegExpression.h"

#include "RegExpressionPatterns.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>

namespace {

using RegExpressionTestSupport::Show;

vu::String Replace(VU_CRegExpression& re, const WCHAR* templ) {
    std::unique_ptr<WCHAR[]> s(re.GetReplaceString(templ));
    return s ? vu::String(s.get()) : VU_T("<null>");
}

TEST(RegExpressionCompile, AcceptsAndRejectsPatterns) {
    // Patterns separated by spaces; the empty pattern is accepted too.
    const struct {
        bool compiles;
        const WCHAR* patterns;
    } rows[] = {
        {true, VU_T(" a| () ^? (a?)? []a] [a-] [^-z] \\* a] (a)(b)(c)(d)(e)(f)(g)(h)(i) (a+)*")},
        {false, VU_T("x** x+? (ab)*+ *x + |* (+ a|? ()* (a?)+ ^* $+ (a|)* (a?b?)*")},
        {false, VU_T("(a a) ) [z-a] [a-c [ [] [^ \\ ab\\ (a)(b)(c)(d)(e)(f)(g)(h)(i)(j)")},
    };
    for (const auto& row : rows) {
        const vu::StringView list = row.patterns;
        for (size_t from = 0, to; from <= list.size(); from = to + 1) {
            to = std::min(list.find(VU_T(' '), from), list.size());
            const vu::String pattern(list.substr(from, to - from));
            VU_CRegExpression re;
            EXPECT_EQ(re.RegComp(pattern.c_str()) != nullptr, row.compiles) << Show(pattern);
            EXPECT_TRUE(re.IsCompiled()); // set whatever the outcome
        }
    }
}

TEST(RegExpressionCompile, NullsAndFailedCompiles) {
    VU_CRegExpression re;
    EXPECT_EQ(re.RegFind(VU_T("abc")), -1) << "nothing compiled";
    EXPECT_EQ(re.RegComp(nullptr), nullptr);
    EXPECT_FALSE(re.IsCompiled()) << "a null pattern changes nothing";
    // A failed first compile matches nothing, not even the empty string.
    EXPECT_EQ(re.RegComp(VU_T("*")), nullptr);
    EXPECT_EQ(re.GetProgram(), nullptr);
    EXPECT_EQ(re.RegFind(VU_T("")), -1);
    // A failed compile after a good one keeps the previous program.
    ASSERT_NE(re.RegComp(VU_T("b+")), nullptr);
    EXPECT_EQ(re.RegComp(VU_T("(a")), nullptr);
    EXPECT_EQ(re.RegFind(VU_T("abbc")), 1);
    EXPECT_EQ(re.GetFindLen(), 2);
    EXPECT_EQ(re.RegFind(nullptr), -1);
}

// Matching over small ASCII alphabets is decided by the recursive reference
// and PCRE2 on generated patterns (groups included); these rows hold what the
// generators do not produce: case, units above 0xFF, large sets, escapes.
TEST(RegExpressionFind, NamedCases) {
    const struct {
        const WCHAR *pattern, *text;
        int index, length;
    } rows[] = {
        {VU_T("abc"), VU_T("ABC"), -1, 0},
        {VU_T("\\d"), VU_T("1d"), 1, 1}, // no escape classes
        {VU_T("\uffff"), VU_T("a\uffff"), 1, 1},
        {VU_T("b$"), VU_T("ab\n"), -1, 0}, // anchors: the string's ends, not line breaks
        {VU_T("[\u0100-\u2fff]+"), VU_T("ab\u0100\u2fffc"), 2, 2}, // a large set
        {VU_T("[^\u0001-\u2fff]+"), VU_T("ab\u3000\uffffc"), 2, 2},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE("pattern " + Show(row.pattern) + " on " + Show(row.text));
        VU_CRegExpression re;
        ASSERT_NE(re.RegComp(row.pattern), nullptr);
        EXPECT_EQ(re.RegFind(row.text), row.index);
        if (row.index >= 0)
            EXPECT_EQ(Show(re.GetFoundText()), Show(vu::String(row.text + row.index, row.length)));
        else
            EXPECT_EQ(re.GetFoundText(), nullptr);
    }
}

TEST(RegExpressionReplace, TemplateRules) {
    VU_CRegExpression re;
    ASSERT_NE(re.RegComp(VU_T("(a)(b)(c?)")), nullptr);
    {
        vu::String text = VU_T("xab");
        ASSERT_EQ(re.RegFind(text.c_str()), 1);
    } // the groups' text outlives the searched string
    // \0 is the whole match; a backslash before anything else, or at the
    // end, is kept; unset and empty groups give nothing.
    EXPECT_EQ(Show(Replace(re, VU_T("\\0|\\x|\\5\\3|\\"))), "ab|\\x||\\");
    EXPECT_EQ(re.GetReplaceString(nullptr), nullptr);
    ASSERT_EQ(re.RegFind(VU_T("b")), -1);
    EXPECT_EQ(re.GetReplaceString(VU_T("&")), nullptr) << "after a failed search";
}

TEST(RegExpressionState, FindLenAfterFailedSearches) {
    // A search that fails before trying any position leaves the previous
    // match's length; one that tried positions leaves 0.
    const struct {
        const WCHAR *pattern, *text;
        bool keeps;
    } rows[] = {{VU_T("x*abc"), nullptr, true},
                {VU_T("x*abc"), VU_T("zzz"), true}, // required literal absent
                {VU_T("x*abc[d]"), VU_T("abce"), false},
                {VU_T("abc"), VU_T("zzz"), false}};
    for (const auto& row : rows) {
        VU_CRegExpression re;
        ASSERT_NE(re.RegComp(row.pattern), nullptr);
        ASSERT_EQ(re.RegFind(VU_T("abcd")), 0);
        const int before = re.GetFindLen();
        EXPECT_EQ(re.RegFind(row.text), -1);
        EXPECT_EQ(re.GetFindLen(), row.keeps ? before : 0) << Show(row.pattern);
    }
}

TEST(RegExpressionState, CopiesAreIndependent) {
    VU_CRegExpression a;
    ASSERT_NE(a.RegComp(VU_T("x*a(b+)")), nullptr);
    ASSERT_EQ(a.RegFind(VU_T("zabbc")), 1);
    {
        const VU_CRegExpression b(a);
        VU_CRegExpression c;
        c = b;
        VU_CRegExpression& alias = c;
        c = alias; // self-assignment keeps the state
        EXPECT_EQ(Show(Replace(c, VU_T("\\1"))), "bb");
        EXPECT_EQ(c.RegFind(VU_T("xxabbb")), 0);
    }
    EXPECT_EQ(Show(Replace(a, VU_T("&"))), "abb") << "untouched by its copies going away";
    VU_CRegExpression moved(std::move(a));
    EXPECT_EQ(moved.RegFind(VU_T("xab")), 0);
}

TEST(RegExpressionProgram, LinksBeyondSixteenBitsAndManyAlternatives) {
    VU_CRegExpression re;
    ASSERT_NE(re.RegComp((vu::String(70000, VU_T('q')) + VU_T("|z")).c_str()), nullptr);
    // First alternative: 3 units, literal node 3 + 70000 + NUL, then the second.
    EXPECT_EQ(VU_CRegExpression::ReadLink(re.GetProgram()), 70007u);
    EXPECT_EQ(re.RegFind((VU_T("xx") + vu::String(70000, VU_T('q'))).c_str()), 2);
    EXPECT_EQ(re.RegFind(VU_T("qqqz")), 3);
    vu::String pattern;
    for (int i = 0; i < 200000; ++i)
        pattern += VU_T("ab|");
    ASSERT_NE(re.RegComp((pattern + VU_T("xyz")).c_str()), nullptr); // seconds if quadratic
    EXPECT_EQ(re.RegFind(VU_T("--xyz")), 2);
}

TEST(RegExpressionSteps, BudgetStopsARunawaySearch) {
    VU_CRegExpression re;
    ASSERT_NE(re.RegComp(VU_T("(a|aa)*[b]")), nullptr);
    re.SetStepLimit(500);
    EXPECT_EQ(re.RegFind(vu::String(60, VU_T('a')).c_str()), -1);
    EXPECT_TRUE(re.IsStepLimitExceeded());
    EXPECT_EQ(re.RegFind(VU_T("aab")), 0) << "the next search starts afresh";
    EXPECT_FALSE(re.IsStepLimitExceeded());
}

} // namespace

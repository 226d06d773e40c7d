// Regular expressions: compile failures, the search results the generated
// comparisons (RegExpressionMatcherTest, RegExpressionPcre2Test) cannot reach,
// replacement templates, object state, long links and the step budget.
#include "text/RegExpression.h"

#include "RegExpressionPatterns.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace {

using RegExpressionTestSupport::Show;

vu::String Replace(VU_CRegExpression& re, const WCHAR* templ) {
    std::unique_ptr<WCHAR[]> s(re.GetReplaceString(templ));
    return s ? vu::String(s.get()) : VU_T("<null>");
}

// ---- Compilation -----------------------------------------------------------

TEST(RegExpressionCompile, AcceptsAndRejectsPatterns) {
    // Patterns separated by spaces; the empty pattern is accepted too.
    const struct {
        const char* why;
        bool compiles;
        const WCHAR* patterns;
    } rows[] = {
        {"accepted", true, VU_T(" abc a| | () (a|) a? ^? (a?)? []a] [a-] [^-z] [a-a] \\* \\\\ a]")},
        {"accepted", true, VU_T("(a)(b)(c)(d)(e)(f)(g)(h)(i) ((((((((())))))))) (a+)* (ab)+c")},
        {"nested repetition", false, VU_T("x** x+? x?* (ab)*+")},
        {"nothing to repeat", false, VU_T("*x + ? |* (+ a|?")},
        {"repeated item could be empty", false, VU_T("()* (a?)+ ^* $+ (a|)* (a?b?)*")},
        {"unbalanced", false, VU_T("(a a) ) ((a)")},
        {"sets", false, VU_T("[z-a] [a-c [ [] [^")},
        {"trailing backslash", false, VU_T("\\ ab\\")},
        {"ten groups", false, VU_T("(a)(b)(c)(d)(e)(f)(g)(h)(i)(j) ((((((((((a))))))))))")},
    };
    for (const auto& row : rows) {
        const vu::StringView list = row.patterns;
        for (size_t from = 0, to; from <= list.size(); from = to + 1) {
            to = std::min(list.find(VU_T(' '), from), list.size());
            const vu::String pattern(list.substr(from, to - from));
            SCOPED_TRACE(std::string(row.why) + ": " + Show(pattern));
            VU_CRegExpression re;
            EXPECT_EQ(re.RegComp(pattern.c_str()) != nullptr, row.compiles);
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
    EXPECT_TRUE(re.IsCompiled());
    EXPECT_EQ(re.GetProgram(), nullptr);
    EXPECT_EQ(re.RegFind(VU_T("")), -1);
    EXPECT_EQ(re.GetFindLen(), 0);
    EXPECT_EQ(re.RegComp(VU_T("a")), &re);
    EXPECT_EQ(re.RegFind(nullptr), -1);
}

// ---- Searching -------------------------------------------------------------

struct FindRow {
    const WCHAR* pattern;
    const WCHAR* text;
    int index;
    int length;
};

void CheckFinds(const std::vector<FindRow>& rows) {
    for (const FindRow& row : rows) {
        SCOPED_TRACE("pattern " + Show(row.pattern) + " on " + Show(row.text));
        VU_CRegExpression re;
        ASSERT_NE(re.RegComp(row.pattern), nullptr);
        EXPECT_EQ(re.RegFind(row.text), row.index);
        if (row.index >= 0) {
            EXPECT_EQ(re.GetFindLen(), row.length);
            ASSERT_NE(re.GetFoundText(), nullptr);
            EXPECT_EQ(Show(re.GetFoundText()),
                      Show(vu::StringView(row.text + row.index, size_t(row.length))));
        } else {
            EXPECT_EQ(re.GetFoundText(), nullptr);
        }
    }
}

// Matching over small ASCII alphabets is decided by the recursive reference
// and PCRE2 on generated patterns (groups included); these rows hold what the
// generators do not produce: case, units above 0xFF, large sets, escapes.
TEST(RegExpressionFind, NamedCases) {
    CheckFinds({
        {VU_T("abc"), VU_T("ABC"), -1, 0},
        {VU_T("\u00e9t\u00e9"), VU_T("\u00c9t\u00e9 \u00e9t\u00e9"), 4, 3},
        {VU_T("\\d"), VU_T("1d"), 1, 1}, // no escape classes
        {VU_T("\uffff"), VU_T("a\uffff"), 1, 1},
        {VU_T(""), VU_T(""), 0, 0},
        {VU_T("b$"), VU_T("ab\n"), -1, 0},         // anchors: the string's ends, not line breaks
        {VU_T("[a-c-e]+"), VU_T("-abcde-"), 1, 5}, // "c-e" after a range: range c..e
        {VU_T("[--/]+"), VU_T("a-./b"), 1, 3},
        {VU_T("[^a]"), VU_T("a"), -1, 0}, // never the terminating NUL
        {VU_T("[^\u0100-\u0102]+"), VU_T("\u0100ab\u0101"), 1, 2},
        {VU_T("[\u0100-\u2fff]+"), VU_T("ab\u0100\u2fffc"), 2, 2}, // a large set
        {VU_T("[^\u0001-\u2fff]+"), VU_T("ab\u3000\uffffc"), 2, 2},
        {VU_T("(y|[\u00e0-\u00ff])z"), VU_T("\u00e0y\u00e9z"), 2, 2},
    });
}

// ---- Replacement templates -------------------------------------------------

TEST(RegExpressionReplace, TemplateRules) {
    VU_CRegExpression re;
    ASSERT_NE(re.RegComp(VU_T("(a)(b)(c?)")), nullptr);
    ASSERT_EQ(re.RegFind(VU_T("xab")), 1);
    struct Row {
        const WCHAR* templ;
        const WCHAR* expected;
    } rows[] = {
        {VU_T("\\0"), VU_T("ab")},
        {VU_T("\\x"), VU_T("\\x")}, // the backslash is kept
        {VU_T("\\"), VU_T("\\")},   // at the end too
        {VU_T("\\5"), VU_T("")},    // unset group
        {VU_T("\\3"), VU_T("")},    // empty group
        {VU_T("a\u00e9&&"), VU_T("a\u00e9abab")},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(Show(row.templ));
        EXPECT_EQ(Show(Replace(re, row.templ)), Show(row.expected));
    }
    EXPECT_EQ(re.GetReplaceString(nullptr), nullptr);
    ASSERT_EQ(re.RegFind(VU_T("b")), -1);
    EXPECT_EQ(re.GetReplaceString(VU_T("&")), nullptr) << "after a failed search";
}

TEST(RegExpressionReplace, GroupTextOutlivesTheSearchedString) {
    VU_CRegExpression re;
    ASSERT_NE(re.RegComp(VU_T("b(c+)")), nullptr);
    {
        vu::String text = VU_T("abccd");
        ASSERT_EQ(re.RegFind(text.c_str()), 1);
    }
    EXPECT_EQ(Show(Replace(re, VU_T("<\\1>"))), "<cc>");
}

// ---- State -----------------------------------------------------------------

TEST(RegExpressionState, FailedCompileKeepsThePreviousProgram) {
    VU_CRegExpression re;
    ASSERT_NE(re.RegComp(VU_T("b+")), nullptr);
    const vu::String program(re.GetProgram(), re.GetProgramSize());
    EXPECT_EQ(re.RegComp(VU_T("(a")), nullptr);
    EXPECT_TRUE(re.IsCompiled());
    EXPECT_EQ(vu::String(re.GetProgram(), re.GetProgramSize()), program);
    EXPECT_EQ(re.RegFind(VU_T("abbc")), 1);
    EXPECT_EQ(re.GetFindLen(), 2);
}

TEST(RegExpressionState, FindLenAfterFailedSearches) {
    // A search that fails before trying any position leaves the previous
    // match's length; one that tried positions leaves 0.
    struct Row {
        const char* name;
        const WCHAR* pattern;
        const WCHAR* text;
        int expectedLen;
    } rows[] = {
        {"null string", VU_T("x*abc"), nullptr, 3},
        {"required literal absent", VU_T("x*abc"), VU_T("zzz"), 3},
        {"positions tried", VU_T("x*abc[d]"), VU_T("abce"), 0},
        {"first character absent", VU_T("abc"), VU_T("zzz"), 0},
        {"anchored", VU_T("^abc"), VU_T("zabc"), 0},
        {"no hint", VU_T("abc|xyz"), VU_T("zzz"), 0},
        {"empty string", VU_T("abc"), VU_T(""), 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        VU_CRegExpression re;
        ASSERT_NE(re.RegComp(row.pattern), nullptr);
        ASSERT_EQ(re.RegFind(VU_T("abcd")), 0);
        ASSERT_GE(re.GetFindLen(), 3);
        const int before = re.GetFindLen();
        EXPECT_EQ(re.RegFind(row.text), -1);
        EXPECT_EQ(re.GetFindLen(), row.expectedLen ? before : 0);
        EXPECT_EQ(re.GetFoundText(), nullptr);
    }
}

TEST(RegExpressionState, CopiesAreIndependent) {
    VU_CRegExpression a;
    ASSERT_NE(a.RegComp(VU_T("x*a(b+)")), nullptr);
    const vu::String text = VU_T("zabbc");
    ASSERT_EQ(a.RegFind(text.c_str()), 1);
    {
        VU_CRegExpression b(a);
        EXPECT_EQ(b.GetFindLen(), 3);
        EXPECT_EQ(Show(Replace(b, VU_T("\\1"))), "bb");
        EXPECT_NE(b.GetProgram(), a.GetProgram());
        ASSERT_NE(b.GetRequiredLiteral(), nullptr);
        EXPECT_EQ(Show(vu::StringView(b.GetRequiredLiteral(), b.GetRequiredLength())), "a");
        EXPECT_EQ(b.RegFind(VU_T("abbb")), 0);
        VU_CRegExpression c;
        c = b;
        VU_CRegExpression& alias = c;
        c = alias; // self-assignment keeps the state
        EXPECT_EQ(c.RegFind(VU_T("xxabbb")), 0);
        EXPECT_EQ(c.GetFindLen(), 6);
    }
    // a is untouched by its copies going away
    EXPECT_EQ(Show(Replace(a, VU_T("&"))), "abb");
    EXPECT_EQ(a.RegFind(VU_T("zab")), 1);
    VU_CRegExpression moved(std::move(a));
    EXPECT_EQ(moved.RegFind(VU_T("xab")), 0);
    EXPECT_EQ(moved.GetFindLen(), 3);
}

// ---- Program links -----------------------------------------------------------

TEST(RegExpressionProgram, LinksBeyondSixteenBits) {
    vu::String pattern(70000, VU_T('q'));
    pattern += VU_T("|z");
    VU_CRegExpression re;
    ASSERT_NE(re.RegComp(pattern.c_str()), nullptr);
    // First alternative: 3 units, literal node 3 + 70000 + NUL, then the second.
    const WCHAR* p = re.GetProgram();
    EXPECT_EQ(VU_CRegExpression::ReadLink(p), 70007u);
    EXPECT_EQ(p[1], WCHAR(70007 & 0xFFFF));
    EXPECT_EQ(p[2], 1);
    vu::String text = VU_T("xx") + vu::String(70000, VU_T('q'));
    EXPECT_EQ(re.RegFind(text.c_str()), 2);
    EXPECT_EQ(re.RegFind(VU_T("qqqz")), 3);
}

TEST(RegExpressionProgram, ManyAlternativesCompileInLinearTime) {
    vu::String pattern;
    for (int i = 0; i < 200000; ++i)
        pattern += VU_T("ab|");
    pattern += VU_T("xyz");
    VU_CRegExpression re;
    ASSERT_NE(re.RegComp(pattern.c_str()), nullptr); // seconds if quadratic
    EXPECT_EQ(re.RegFind(VU_T("--xyz")), 2);
    EXPECT_EQ(re.RegFind(VU_T("-ab")), 1);
    // The last alternative links to the end node.
    const WCHAR* p = re.GetProgram();
    const unsigned last = re.GetProgramSize() - 3 - 7; // "xyz" node: 3 + 4 units
    EXPECT_EQ(p[last - 3], VU_CRegExpression::OpAlternative);
    EXPECT_EQ(VU_CRegExpression::ReadLink(p + last - 3), 10u);
}

// ---- Step budget -------------------------------------------------------------

TEST(RegExpressionSteps, BudgetStopsARunawaySearch) {
    VU_CRegExpression re;
    ASSERT_NE(re.RegComp(VU_T("(a|aa)*[b]")), nullptr);
    const vu::String text(60, VU_T('a'));
    re.SetStepLimit(500);
    EXPECT_EQ(re.RegFind(text.c_str()), -1);
    EXPECT_TRUE(re.IsStepLimitExceeded());
    EXPECT_EQ(re.GetFindLen(), 0);
    // The next search starts afresh.
    EXPECT_EQ(re.RegFind(VU_T("aab")), 0);
    EXPECT_FALSE(re.IsStepLimitExceeded());
    EXPECT_EQ(re.GetFindLen(), 3);
}

} // namespace

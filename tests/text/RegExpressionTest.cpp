// Regular expressions: compile failures, search results, groups, replacement
// templates, object state and the compiled program. Tables are grouped by
// topic; every row carries a name shown on failure.
#include "text/RegExpression.h"

#include "RegExpressionPatterns.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

using RegExpressionTestSupport::Show;

std::u16string Replace(VU_CRegExpression& re, const char16_t* templ) {
    std::unique_ptr<char16_t[]> s(re.GetReplaceString(templ));
    return s ? std::u16string(s.get()) : u"<null>";
}

// ---- Compilation -----------------------------------------------------------

TEST(RegExpressionCompile, AcceptsAndRejectsPatterns) {
    struct Row {
        const char16_t* pattern;
        bool compiles;
    } rows[] = {
        // accepted
        {u"", true},
        {u"abc", true},
        {u"a|", true},
        {u"|", true},
        {u"()", true},
        {u"(a|)", true},
        {u"a?", true},
        {u"^?", true},
        {u"(a?)?", true},
        {u"[]a]", true},
        {u"[a-]", true},
        {u"[^-z]", true},
        {u"[a-a]", true},
        {u"\\*", true},
        {u"\\\\", true},
        {u"a]", true},
        {u"(a)(b)(c)(d)(e)(f)(g)(h)(i)", true},
        {u"((((((((()))))))))", true},
        {u"(a+)*", true},
        {u"(ab)+c", true},
        // nested repetition
        {u"x**", false},
        {u"x+?", false},
        {u"x?*", false},
        {u"(ab)*+", false},
        // nothing to repeat
        {u"*x", false},
        {u"+", false},
        {u"?", false},
        {u"|*", false},
        {u"(+", false},
        {u"a|?", false},
        // repeated item could be empty
        {u"()*", false},
        {u"(a?)+", false},
        {u"^*", false},
        {u"$+", false},
        {u"(a|)*", false},
        {u"(a?b?)*", false},
        // unbalanced
        {u"(a", false},
        {u"a)", false},
        {u")", false},
        {u"((a)", false},
        // sets
        {u"[z-a]", false},
        {u"[a-c", false},
        {u"[", false},
        {u"[]", false},
        {u"[^", false},
        // trailing backslash
        {u"\\", false},
        {u"ab\\", false},
        // ten groups
        {u"(a)(b)(c)(d)(e)(f)(g)(h)(i)(j)", false},
        {u"((((((((((a))))))))))", false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(Show(row.pattern));
        VU_CRegExpression re;
        EXPECT_EQ(re.RegComp(row.pattern) != nullptr, row.compiles);
        EXPECT_TRUE(re.IsCompiled()); // set whatever the outcome
    }
}

TEST(RegExpressionCompile, NullPatternChangesNothing) {
    VU_CRegExpression re;
    EXPECT_EQ(re.RegComp(nullptr), nullptr);
    EXPECT_FALSE(re.IsCompiled());
    EXPECT_EQ(re.RegFind(u"abc"), -1);
}

TEST(RegExpressionCompile, ReturnsThisOnSuccess) {
    VU_CRegExpression re;
    EXPECT_EQ(re.RegComp(u"a"), &re);
}

// ---- Searching -------------------------------------------------------------

struct FindRow {
    const char16_t* pattern;
    const char16_t* text;
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
                      Show(std::u16string_view(row.text + row.index, size_t(row.length))));
        } else {
            EXPECT_EQ(re.GetFoundText(), nullptr);
        }
    }
}

TEST(RegExpressionFind, LiteralsAndCase) {
    CheckFinds({
        {u"abc", u"xxabcabc", 2, 3},
        {u"abc", u"ABC", -1, 0},
        {u"abc", u"ab", -1, 0},
        {u"abc", u"", -1, 0},
        {u"b", u"abc", 1, 1},
        {u"aab", u"aaab", 1, 3},
        {u"\u00e9t\u00e9", u"\u00c9t\u00e9 \u00e9t\u00e9", 4, 3},
        {u"\\.", u"a.b", 1, 1},
        {u"\\d", u"1d", 1, 1}, // no escape classes
        {u"a]b", u"a]b", 0, 3},
        {u"\uffff", u"a\uffff", 1, 1},
    });
}

TEST(RegExpressionFind, EmptyPatternsAndEmptyMatches) {
    CheckFinds({
        {u"", u"", 0, 0},
        {u"", u"abc", 0, 0},
        {u"x*", u"abc", 0, 0},
        {u"a?", u"b", 0, 0},
        {u"$", u"ab", 2, 0},
        {u"$", u"", 0, 0},
        {u"^", u"ab", 0, 0},
        {u"^$", u"", 0, 0},
        {u"^$", u"a", -1, 0},
    });
}

TEST(RegExpressionFind, Anchors) {
    CheckFinds({
        {u"^b", u"ab", -1, 0},
        {u"^a", u"ab", 0, 1},
        {u"b$", u"ab", 1, 1},
        {u"b$", u"ab\n", -1, 0}, // not before a line break
        {u"^b", u"a\nb", -1, 0}, // not after a line break
        {u"a$|b", u"ab", 1, 1},
        {u"a^", u"aa", -1, 0},
        {u"(^a)+", u"aa", 0, 1},
        {u"x|^a", u"ba", -1, 0},
    });
}

TEST(RegExpressionFind, RepetitionsAreGreedyAndApplyToTheLastCharacter) {
    CheckFinds({
        {u"abc*", u"abccc", 0, 5},       {u"abc*", u"ababc", 0, 2},
        {u"ab+c", u"abbbc", 0, 5},       {u"ab+c", u"ac abc", 3, 3},
        {u"(ab)*", u"ababa", 0, 4},      {u"(ab)*c", u"abababc", 0, 7},
        {u"(ab)+", u"aab", 1, 2},        {u"a*", u"aaa", 0, 3},
        {u"a*a", u"aaa", 0, 3},          {u"a*ab", u"aaab", 0, 4},
        {u"a+a+", u"aaaa", 0, 4},        {u".*", u"abc", 0, 3},
        {u".*c", u"abcabc", 0, 6},       {u"a.*b", u"xa\nb b", 1, 5}, // . matches a line break
        {u"[ab]*c", u"ababx abc", 6, 3}, {u"[ab]+c", u"ababx abc", 6, 3},
        {u"[^x]+", u"xxabx", 2, 2},      {u"a?b", u"ab b", 0, 2},
        {u"(ab)?ab", u"ab", 0, 2},       {u"(a|ab)(c|bcd)", u"abcd", 0, 4},
        {u"x*y*z", u"xxyyz", 0, 5},
    });
}

TEST(RegExpressionFind, AlternativesAreTriedInOrder) {
    CheckFinds({
        {u"a|b|c", u"xxc", 2, 1},
        {u"a|b|c", u"xyz", -1, 0},
        {u"a|ab", u"ab", 0, 1}, // first alternative wins, not the longest
        {u"ab|a", u"ab", 0, 2},
        {u"(a|ab)c", u"abc", 0, 3},
        {u"b|ab", u"ab", 0, 2}, // leftmost first
        {u"|a", u"a", 0, 0},
        {u"Tom|Sawyer|Huck", u"Tom Sawyer", 0, 3},
        {u"Sawyer|Tom", u"Tom Sawyer", 0, 3},
    });
}

TEST(RegExpressionFind, Sets) {
    CheckFinds({
        {u"[]a]", u"x]", 1, 1},
        {u"[]a]", u"xa", 1, 1},
        {u"[a-]", u"x-", 1, 1},
        {u"[^-z]", u"-zq", 2, 1},
        {u"[^-z]+", u"-zab-", 2, 2},
        {u"[a-c]+", u"xabcd", 1, 3},
        {u"[a-cx-z]+", u"-byx-", 1, 3},
        {u"[a-c-e]+", u"-abcde-", 1, 5}, // "c-e" after a range: range c..e
        {u"[--/]+", u"a-./b", 1, 3},
        {u"[^]a]", u"]ab", 2, 1},
        {u"[\\]", u"a\\", 1, 1}, // no escapes in a set
        {u"[.]", u"a.", 1, 1},
        {u"[^a]", u"a", -1, 0}, // never the terminating NUL
        {u"[\u0100-\u0102]", u"a\u0101", 1, 1},
        {u"[^\u0100-\u0102]+", u"\u0100ab\u0101", 1, 2},
        {u"[\u0100-\u2fff]+", u"ab\u0100\u2fffc", 2, 2}, // a large set
        {u"[^\u0001-\u2fff]+", u"ab\u3000\uffffc", 2, 2},
        {u"x|[\u0100-\u2fff]", u"ab\u2000", 2, 1},
        {u"(y|[\u00e0-\u00ff])z", u"\u00e0y\u00e9z", 2, 2},
    });
}

TEST(RegExpressionFind, NullStringAndUncompiledObject) {
    VU_CRegExpression fresh;
    EXPECT_EQ(fresh.RegFind(u"abc"), -1);
    VU_CRegExpression re;
    ASSERT_NE(re.RegComp(u"a"), nullptr);
    EXPECT_EQ(re.RegFind(nullptr), -1);
}

// ---- Groups ----------------------------------------------------------------

TEST(RegExpressionGroups, PositionsOfEachGroup) {
    struct Row {
        const char16_t* pattern;
        const char16_t* text;
        std::vector<std::pair<int, int>> groups; // 0..n: start, end
    } rows[] = {
        {u"(a)(b)", u"xab", {{1, 3}, {1, 2}, {2, 3}}},
        {u"(a)*", u"aaa", {{0, 3}, {2, 3}}}, // the last iteration is kept
        {u"(a|b)*c", u"abbac", {{0, 5}, {3, 4}}},
        {u"((a)|b)+", u"ab", {{0, 2}, {1, 2}, {0, 1}}}, // group 2 from an earlier iteration
        {u"(a)|(b)", u"b", {{0, 1}, {-1, -1}, {0, 1}}},
        {u"(a?)b", u"b", {{0, 1}, {0, 0}}},
        {u"(a*)(a)", u"aaa", {{0, 3}, {0, 2}, {2, 3}}},
        {u"(ab|a)(bc|c)", u"abc", {{0, 3}, {0, 2}, {2, 3}}},
        {u"x(y(z))", u"xyz", {{0, 3}, {1, 3}, {2, 3}}},
        {u"()", u"a", {{0, 0}, {0, 0}}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE("pattern " + Show(row.pattern) + " on " + Show(row.text));
        VU_CRegExpression re;
        ASSERT_NE(re.RegComp(row.pattern), nullptr);
        ASSERT_GE(re.RegFind(row.text), 0);
        for (size_t n = 0; n < row.groups.size(); ++n) {
            SCOPED_TRACE("group " + std::to_string(n));
            EXPECT_EQ(re.GetGroupStart(int(n)), row.groups[n].first);
            EXPECT_EQ(re.GetGroupEnd(int(n)), row.groups[n].second);
        }
        for (size_t n = row.groups.size(); n < 10; ++n)
            EXPECT_EQ(re.GetGroupStart(int(n)), -1) << "group " << n;
    }
}

// ---- Replacement templates -------------------------------------------------

TEST(RegExpressionReplace, TemplateRules) {
    VU_CRegExpression re;
    ASSERT_NE(re.RegComp(u"(a)(b)(c?)"), nullptr);
    ASSERT_EQ(re.RegFind(u"xab"), 1);
    struct Row {
        const char16_t* templ;
        const char16_t* expected;
    } rows[] = {
        {u"\\2\\1&", u"baab"}, {u"&", u"ab"},      {u"\\0", u"ab"}, {u"\\&", u"&"},
        {u"\\\\", u"\\"},      {u"\\x", u"\\x"}, // the backslash is kept
        {u"\\", u"\\"},                          // at the end too
        {u"\\5", u""},                           // unset group
        {u"\\3", u""},                           // empty group
        {u"[\\1]", u"[a]"},    {u"\\\\1", u"\\1"}, {u"", u""},      {u"a\u00e9&&", u"a\u00e9abab"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(Show(row.templ));
        EXPECT_EQ(Show(Replace(re, row.templ)), Show(row.expected));
    }
    EXPECT_EQ(re.GetReplaceString(nullptr), nullptr);
}

TEST(RegExpressionReplace, NullAfterAFailedSearch) {
    VU_CRegExpression re;
    ASSERT_NE(re.RegComp(u"a"), nullptr);
    ASSERT_EQ(re.RegFind(u"a"), 0);
    ASSERT_EQ(re.RegFind(u"b"), -1);
    EXPECT_EQ(re.GetReplaceString(u"&"), nullptr);
}

TEST(RegExpressionReplace, GroupTextOutlivesTheSearchedString) {
    VU_CRegExpression re;
    ASSERT_NE(re.RegComp(u"b(c+)"), nullptr);
    {
        std::u16string text = u"abccd";
        ASSERT_EQ(re.RegFind(text.c_str()), 1);
    }
    EXPECT_EQ(Show(Replace(re, u"<\\1>")), "<cc>");
}

// ---- State -----------------------------------------------------------------

TEST(RegExpressionState, FailedCompileKeepsThePreviousProgram) {
    VU_CRegExpression re;
    ASSERT_NE(re.RegComp(u"b+"), nullptr);
    const std::u16string program(re.GetProgram(), re.GetProgramSize());
    EXPECT_EQ(re.RegComp(u"(a"), nullptr);
    EXPECT_TRUE(re.IsCompiled());
    EXPECT_EQ(std::u16string(re.GetProgram(), re.GetProgramSize()), program);
    EXPECT_EQ(re.RegFind(u"abbc"), 1);
    EXPECT_EQ(re.GetFindLen(), 2);
}

TEST(RegExpressionState, FailedFirstCompileMatchesNothing) {
    VU_CRegExpression re;
    EXPECT_EQ(re.RegComp(u"*"), nullptr);
    EXPECT_TRUE(re.IsCompiled());
    EXPECT_EQ(re.GetProgram(), nullptr);
    EXPECT_EQ(re.RegFind(u""), -1);
    EXPECT_EQ(re.RegFind(u"abc"), -1);
    EXPECT_EQ(re.GetFindLen(), 0);
}

TEST(RegExpressionState, FindLenAfterFailedSearches) {
    // A search that fails before trying any position leaves the previous
    // match's length; one that tried positions leaves 0.
    struct Row {
        const char* name;
        const char16_t* pattern;
        const char16_t* text;
        int expectedLen;
    } rows[] = {
        {"null string", u"x*abc", nullptr, 3},
        {"required literal absent", u"x*abc", u"zzz", 3},
        {"positions tried", u"x*abc[d]", u"abce", 0},
        {"first character absent", u"abc", u"zzz", 0},
        {"anchored", u"^abc", u"zabc", 0},
        {"no hint", u"abc|xyz", u"zzz", 0},
        {"empty string", u"abc", u"", 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        VU_CRegExpression re;
        ASSERT_NE(re.RegComp(row.pattern), nullptr);
        ASSERT_EQ(re.RegFind(u"abcd"), 0);
        ASSERT_GE(re.GetFindLen(), 3);
        const int before = re.GetFindLen();
        EXPECT_EQ(re.RegFind(row.text), -1);
        EXPECT_EQ(re.GetFindLen(), row.expectedLen ? before : 0);
        EXPECT_EQ(re.GetFoundText(), nullptr);
    }
}

TEST(RegExpressionState, CopiesAreIndependent) {
    VU_CRegExpression a;
    ASSERT_NE(a.RegComp(u"x*a(b+)"), nullptr);
    const std::u16string text = u"zabbc";
    ASSERT_EQ(a.RegFind(text.c_str()), 1);
    {
        VU_CRegExpression b(a);
        EXPECT_EQ(b.GetFindLen(), 3);
        EXPECT_EQ(Show(Replace(b, u"\\1")), "bb");
        EXPECT_NE(b.GetProgram(), a.GetProgram());
        ASSERT_NE(b.GetRequiredLiteral(), nullptr);
        EXPECT_EQ(Show(std::u16string_view(b.GetRequiredLiteral(), b.GetRequiredLength())), "a");
        EXPECT_EQ(b.RegFind(u"abbb"), 0);
        VU_CRegExpression c;
        c = b;
        VU_CRegExpression& alias = c;
        c = alias; // self-assignment keeps the state
        EXPECT_EQ(c.RegFind(u"xxabbb"), 0);
        EXPECT_EQ(c.GetFindLen(), 6);
    }
    // a is untouched by its copies going away
    EXPECT_EQ(Show(Replace(a, u"&")), "abb");
    EXPECT_EQ(a.RegFind(u"zab"), 1);
    VU_CRegExpression moved(std::move(a));
    EXPECT_EQ(moved.RegFind(u"xab"), 0);
    EXPECT_EQ(moved.GetFindLen(), 3);
}

// ---- Program format and hints -------------------------------------------------

TEST(RegExpressionProgram, NodeLayout) {
    const char16_t a = u'a', b = u'b', c = u'c', x = u'x';
    struct Row {
        const char16_t* pattern;
        std::u16string program;
    } rows[] = {
        {u"abc", {6, 10, 0, 8, 7, 0, a, b, c, 0, 0, 0, 0}},
        {u"a*", {6, 11, 0, 10, 8, 0, 8, 0, 0, a, 0, 0, 0, 0}},
        {u"a|b", {6, 8, 0, 8, 13, 0, a, 0, 6, 8, 0, 8, 5, 0, b, 0, 0, 0, 0}},
        {u"(a)", {6, 17, 0, 21, 3, 0, 6, 8, 0, 8, 5, 0, a, 0, 31, 3, 0, 0, 0, 0}},
        {u"[a-c]", {6, 10, 0, 4, 7, 0, a, b, c, 0, 0, 0, 0}},
        {u"[^x]", {6, 8, 0, 5, 5, 0, x, 0, 0, 0, 0}},
        {u"x?", {6, 17, 0, 6, 8, 0, 8, 8, 0, x, 0, 6, 3, 0, 9, 3, 0, 0, 0, 0}},
        {u"^.$", {6, 12, 0, 1, 3, 0, 3, 3, 0, 2, 3, 0, 0, 0, 0}},
        {u"", {6, 6, 0, 9, 3, 0, 0, 0, 0}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(Show(row.pattern));
        VU_CRegExpression re;
        ASSERT_NE(re.RegComp(row.pattern), nullptr);
        const std::u16string program(re.GetProgram(), re.GetProgramSize());
        EXPECT_EQ(program, row.program);
    }
}

TEST(RegExpressionProgram, LoopBackLinksPointBackwards) {
    VU_CRegExpression re;
    ASSERT_NE(re.RegComp(u"(a)*"), nullptr);
    const char16_t* p = re.GetProgram();
    bool sawLoopBack = false;
    for (unsigned i = 0; i < re.GetProgramSize();) {
        const char16_t op = p[i];
        if (op == VU_CRegExpression::OpLoopBack) {
            sawLoopBack = true;
            // It loops to the inserted alternative at unit 3.
            EXPECT_EQ(VU_CRegExpression::ReadLink(p + i), i - 3);
        }
        i += VU_CRegExpression::kNodeUnits;
        if (op == VU_CRegExpression::OpLiteral)
            i += 2; // operand "a" and its NUL
    }
    EXPECT_TRUE(sawLoopBack);
}

TEST(RegExpressionProgram, LinksBeyondSixteenBits) {
    std::u16string pattern(70000, u'q');
    pattern += u"|z";
    VU_CRegExpression re;
    ASSERT_NE(re.RegComp(pattern.c_str()), nullptr);
    // First alternative: 3 units, literal node 3 + 70000 + NUL, then the second.
    const char16_t* p = re.GetProgram();
    EXPECT_EQ(VU_CRegExpression::ReadLink(p), 70007u);
    EXPECT_EQ(p[1], char16_t(70007 & 0xFFFF));
    EXPECT_EQ(p[2], 1);
    std::u16string text = u"xx" + std::u16string(70000, u'q');
    EXPECT_EQ(re.RegFind(text.c_str()), 2);
    EXPECT_EQ(re.RegFind(u"qqqz"), 3);
}

TEST(RegExpressionProgram, ManyAlternativesCompileInLinearTime) {
    std::u16string pattern;
    for (int i = 0; i < 200000; ++i)
        pattern += u"ab|";
    pattern += u"xyz";
    VU_CRegExpression re;
    ASSERT_NE(re.RegComp(pattern.c_str()), nullptr); // seconds if quadratic
    EXPECT_EQ(re.RegFind(u"--xyz"), 2);
    EXPECT_EQ(re.RegFind(u"-ab"), 1);
    // The last alternative links to the end node.
    const char16_t* p = re.GetProgram();
    const unsigned last = re.GetProgramSize() - 3 - 7; // "xyz" node: 3 + 4 units
    EXPECT_EQ(p[last - 3], VU_CRegExpression::OpAlternative);
    EXPECT_EQ(VU_CRegExpression::ReadLink(p + last - 3), 10u);
}

TEST(RegExpressionProgram, SearchHints) {
    struct Row {
        const char16_t* pattern;
        char16_t firstChar;
        bool anchored;
        const char16_t* required; // null: none
    } rows[] = {
        {u"abc", u'a', false, nullptr},
        {u"^ab", 0, true, nullptr},
        {u"a|b", 0, false, nullptr},
        {u"x*abc", 0, false, u"abc"},
        {u"a*bcd*ef", 0, false, u"ef"}, // equal lengths: the later wins
        {u"a*bcd*e", 0, false, u"bc"},
        {u"(ab)+c", 0, false, u"c"},
        {u"(ab)*", 0, false, nullptr},
        {u"ab*", u'a', false, nullptr}, // StartsWithRepeat only from the first piece
        {u"a?bc", 0, false, nullptr},   // ? gives no flags
        {u"x*(abc)d", 0, false, u"d"},  // literals inside groups are not walked
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(Show(row.pattern));
        VU_CRegExpression re;
        ASSERT_NE(re.RegComp(row.pattern), nullptr);
        EXPECT_EQ(re.GetFirstChar(), row.firstChar);
        EXPECT_EQ(re.IsAnchored(), row.anchored);
        if (row.required) {
            ASSERT_NE(re.GetRequiredLiteral(), nullptr);
            EXPECT_EQ(Show(std::u16string_view(re.GetRequiredLiteral(), re.GetRequiredLength())),
                      Show(row.required));
        } else {
            EXPECT_EQ(re.GetRequiredLiteral(), nullptr);
            EXPECT_EQ(re.GetRequiredLength(), 0u);
        }
    }
}

// ---- Step budget -------------------------------------------------------------

TEST(RegExpressionSteps, BudgetStopsARunawaySearch) {
    VU_CRegExpression re;
    ASSERT_NE(re.RegComp(u"(a|aa)*[b]"), nullptr);
    const std::u16string text(60, u'a'); // exponential without a budget
    re.SetStepLimit(200000);
    EXPECT_EQ(re.RegFind(text.c_str()), -1);
    EXPECT_TRUE(re.IsStepLimitExceeded());
    EXPECT_EQ(re.GetFindLen(), 0);
    // The next search starts afresh.
    EXPECT_EQ(re.RegFind(u"aab"), 0);
    EXPECT_FALSE(re.IsStepLimitExceeded());
    EXPECT_EQ(re.GetFindLen(), 3);
}

TEST(RegExpressionSteps, AmpleBudgetChangesNoResult) {
    const char16_t* patterns[] = {u"(a|b)*c", u"x*(ab)+", u"[ab]*b", u".*c", u"(a|ab)(c|bcd)"};
    const char16_t* texts[] = {u"ababc", u"xxababab", u"aab", u"abcabc", u"abcd", u"zzz"};
    for (const char16_t* pattern : patterns) {
        for (const char16_t* text : texts) {
            SCOPED_TRACE(Show(pattern) + " on " + Show(text));
            VU_CRegExpression unlimited, limited;
            ASSERT_NE(unlimited.RegComp(pattern), nullptr);
            ASSERT_NE(limited.RegComp(pattern), nullptr);
            limited.SetStepLimit(1000000);
            EXPECT_EQ(limited.RegFind(text), unlimited.RegFind(text));
            EXPECT_EQ(limited.GetFindLen(), unlimited.GetFindLen());
            EXPECT_FALSE(limited.IsStepLimitExceeded());
        }
    }
}

} // namespace

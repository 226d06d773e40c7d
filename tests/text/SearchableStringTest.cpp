// Searchable string: searches, whole-word rules, replace, fields and edits.
// Plain searches over many starts are checked against reference loops in
// SearchableStringScanTest, replace-all paths against each other in
// SearchableStringDerivedTest; the rows here hold the rules those miss.
#include "text/SearchableString.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using S = VU_CSearchableString;

TEST(SearchableStringConstruction, EveryFormBuildsTheTextAndDefaultDelimiters) {
    const unsigned char bytes[] = {'a', 0xE9, 0};
    const S forms[] = {S(VU_T('x'), 2), S(VU_T("xxyy"), 2), S(nullptr, 4), S(bytes), S("ok")};
    const vu::String texts[] = {VU_T("xx"), VU_T("xx"), VU_T(""), VU_T("a\u00E9"), VU_T("ok")};
    for (size_t i = 0; i < std::size(forms); ++i) {
        EXPECT_EQ(forms[i].Str(), texts[i]);
        EXPECT_EQ(forms[i].GetTokenDelimiters().Str(), VU_T(" ,.?!@#$%^&*()-/\"';:[]+\\\t\r\n~"));
    }
}

TEST(SearchableStringConstruction, CopyTakesDelimitersAndPattern) {
    S a(VU_T("x1y22"));
    a.SetTokenDelimiters(VU_T("1"));
    ASSERT_EQ(a.FindRegularExp(VU_T("2+")), 3);
    S copied(a), assigned;
    assigned = a;
    for (S* s : {&copied, &assigned}) {
        EXPECT_EQ(s->GetTokenDelimiters().Str(), VU_T("1"));
        // A pattern that fails to compile leaves the copied one in use.
        EXPECT_EQ(s->FindRegularExp(VU_T("("), 0), 3);
    }
}

// op: F Find; with the needle's first character: f Find, n FindNoCase,
//     q ReverseFindNoCase, N FindN up to 99, a digit FindN up to that digit.
int Search(S& s, char op, const WCHAR* find, int start, BOOL wholeWord) {
    return op == 'F'   ? s.Find(find, start, wholeWord)
           : op == 'f' ? s.Find(find[0], start, wholeWord)
           : op == 'n' ? s.FindNoCase(find[0], start, wholeWord)
           : op == 'q' ? s.ReverseFindNoCase(find[0], start, wholeWord)
                       : s.FindN(find[0], start, op == 'N' ? 99 : op - '0', wholeWord);
}

TEST(SearchableStringFind, Rules) {
    const struct {
        const char* name;
        char op;
        const WCHAR *text, *find;
        int start;
        BOOL wholeWord;
        int expected;
    } rows[] = {
        {"underscore is a word character", 'F', VU_T("cat_"), VU_T("cat"), 0, TRUE, -1},
        {"empty needle is never found", 'F', VU_T("abc"), VU_T(""), 0, FALSE, -1},
        {"null needle is never found", 'F', VU_T("abc"), nullptr, 0, FALSE, -1},
        {"character, whole word resumes at the next", 'f', VU_T("aa a"), VU_T("a"), 0, TRUE, 3},
        // The case-blind character search takes whichever case comes first.
        {"character no case, first of either case", 'n', VU_T("xaA"), VU_T("A"), 0, FALSE, 1},
        {"character no case, start", 'n', VU_T("aAa"), VU_T("a"), 1, FALSE, 1},
        {"character reverse no case, start", 'q', VU_T("aXbxc"), VU_T("B"), 1, FALSE, -1},
        {"FindN, to past the end is clamped", 'N', VU_T("abc"), VU_T("c"), 0, FALSE, 2},
        {"FindN, from after to", '1', VU_T("abc"), VU_T("a"), 2, FALSE, -1},
        {"FindN, whole word has no second try", '4', VU_T("xa a"), VU_T("a"), 0, TRUE, -1},
    };
    for (const auto& row : rows) {
        S s(row.text);
        EXPECT_EQ(Search(s, row.op, row.find, row.start, row.wholeWord), row.expected) << row.name;
    }
}

TEST(SearchableStringFind, DelimitersAreConfigurable) {
    S s(VU_T("a|cat|b cat"));
    EXPECT_EQ(s.Find(VU_T("cat"), 0, TRUE), 8);
    s.SetTokenDelimiters(VU_T("|"));
    EXPECT_EQ(s.Find(VU_T("cat"), 0, TRUE), 2);
    s.SetTokenDelimiters(static_cast<const WCHAR*>(nullptr));
    EXPECT_EQ(s.Find(VU_T("cat"), 0, TRUE), -1) << "only the text ends are boundaries";
    s.GetTokenDelimiters() = VU_T(" ");
    EXPECT_EQ(s.Find(VU_T("cat"), 0, TRUE), 8) << "the returned reference edits the set";
    // The case-blind forward search tests whole words on a lowered copy, where
    // an upper-case delimiter no longer separates; the reverse one still sees it.
    S x(VU_T("XaX"));
    x.SetTokenDelimiters(VU_T("X"));
    EXPECT_EQ(x.FindNoCase(VU_T("a"), 0, TRUE), -1);
    EXPECT_EQ(x.ReverseFindNoCase(VU_T("a"), -1, TRUE), 1);
}

TEST(SearchableStringFind, CheckForWholeWordTreatsTextEndsAsBoundaries) {
    struct Probe : S {
        using S::CheckForWholeWord;
        using S::S;
    } s(VU_T("ab cd "));
    const int rows[][3] = {{0, 2, 0},  {3, 2, 3},  {1, 1, -1}, {-7, 2, -7}, // negatives pass
                           {6, 1, -1}, {5, 2, -1}, {6, 0, 6},  {7, 0, -1},  // within the text
                           {2, -1, -1}};
    for (const auto& row : rows)
        EXPECT_EQ(s.CheckForWholeWord(row[0], row[1]), row[2]) << row[0] << "," << row[1];
}

TEST(SearchableStringFind, RegularExpCountsFromStartAndHasAStepBudget) {
    S s(VU_T("ab ab"));
    EXPECT_EQ(s.FindRegularExp(VU_T("ab"), 1), 3);
    EXPECT_EQ(s.FindRegularExp(VU_T("^ab"), 3), 3) << "'^' matches at start";
    EXPECT_EQ(s.FindRegularExp(VU_T("$"), 5), 5);
    EXPECT_EQ(s.FindRegularExp(VU_T("b"), 6), -1);
    EXPECT_EQ(s.FindRegularExp(VU_T("b"), -4), 1);
    EXPECT_EQ(s.FindRegularExp(VU_T("a["), 0), 1) << "a pattern that does not compile keeps 'b'";

    s = vu::String(40, VU_T('a')).c_str();
    EXPECT_EQ(s.FindRegularExp(VU_T("(a|aa)*[b]")), -1) << "unlimited by default";
    EXPECT_FALSE(s.IsRegularExpStepLimitExceeded());
    s.SetRegularExpStepLimit(100);
    EXPECT_EQ(s.FindReplaceRegularExp(VU_T("(a|aa)*[b]"), VU_T("x"), TRUE), 0);
    EXPECT_TRUE(s.IsRegularExpStepLimitExceeded());
    EXPECT_EQ(s.FindRegularExp(VU_T("a"), 39), 39);
    EXPECT_FALSE(s.IsRegularExpStepLimitExceeded()) << "each search starts afresh";
    EXPECT_EQ(S(s).GetRegularExpStepLimit(), 100u);
}

TEST(SearchableStringReplace, Rules) {
    // op: E FindReplace, N FindReplaceNoCase, X FindReplaceRegularExp;
    //     e and n ask for whole words, which replacing ignores.
    const struct {
        char op;
        const WCHAR *text, *find, *by;
        BOOL all;
        int count;
        const WCHAR* result;
    } rows[] = {
        {'E', VU_T("aaaa"), VU_T("aa"), VU_T("b"), TRUE, 2, VU_T("bb")},
        {'E', VU_T("xaby"), VU_T("ab"), nullptr, TRUE, 1, VU_T("xy")},
        {'E', VU_T("abc"), VU_T(""), VU_T("x"), TRUE, 0, VU_T("abc")},
        {'e', VU_T("concat cat"), VU_T("cat"), VU_T("dog"), FALSE, 1, VU_T("condog cat")},
        {'N', VU_T("One TWO two"), VU_T("two"), VU_T("2"), TRUE, 2, VU_T("One 2 2")},
        {'N', VU_T("aa"), VU_T("A"), VU_T("aA"), TRUE, 2, VU_T("aAaA")},
        {'n', VU_T("condog cat"), VU_T("CAT"), VU_T("x"), TRUE, 1, VU_T("condog x")},
        {'X', VU_T("xaby"), VU_T("(a)(b)"), VU_T("\\2\\1"), TRUE, 1, VU_T("x\\2\\1y")},
        {'X', VU_T("aaab"), VU_T("^a"), VU_T("b"), TRUE, 3, VU_T("bbbb")}, // '^' after each
        {'X', VU_T("abc"), VU_T("x*"), VU_T(""), TRUE, 4, VU_T("abc")},
        {'X', VU_T("abc"), VU_T("b*"), VU_T("-"), TRUE, 4, VU_T("-a--c-")},
        {'X', VU_T("ab"), VU_T("^"), VU_T("X"), TRUE, 3, VU_T("XaXbX")},
        {'X', VU_T(""), VU_T("x*"), VU_T("-"), TRUE, 1, VU_T("-")},
    };
    for (const auto& row : rows) {
        S s(row.text);
        const BOOL whole = row.op == 'e' || row.op == 'n';
        const int count = row.op == 'X' ? s.FindReplaceRegularExp(row.find, row.by, row.all)
                          : (row.op == 'N' || row.op == 'n')
                              ? s.FindReplaceNoCase(row.find, row.by, row.all, whole)
                              : s.FindReplace(row.find, row.by, row.all, whole);
        EXPECT_EQ(count, row.count) << row.op << " on " << testing::PrintToString(row.text);
        EXPECT_EQ(s.Str(), row.result);
    }
}

TEST(SearchableStringFields, CountEveryFieldAndDelimitedFields) {
    const struct {
        const WCHAR *text, *delimiter;
        std::vector<vu::String> fields;
    } rows[] = {
        {VU_T("a,,b"), VU_T(","), {VU_T("a"), VU_T(""), VU_T("b")}},
        {VU_T("x::y::"), VU_T("::"), {VU_T("x"), VU_T("y"), VU_T("")}},
        {VU_T("aaaa"), VU_T("aa"), {VU_T(""), VU_T(""), VU_T("")}}, // non-overlapping
        {VU_T("abc"), VU_T(""), {VU_T("abc")}},
        {VU_T(""), VU_T(","), {VU_T("")}},
    };
    for (const auto& row : rows) {
        S s(row.text);
        const int count = static_cast<int>(row.fields.size());
        EXPECT_EQ(s.GetFieldCount(row.delimiter), count);
        for (int n = -1; n <= count; ++n)
            EXPECT_EQ(s.GetField(row.delimiter, n).Str(),
                      n >= 0 && n < count ? row.fields[n] : VU_T(""))
                << testing::PrintToString(row.text) << " field " << n;
    }
    EXPECT_EQ(S(VU_T("k=v;w")).GetField(VU_T(';'), 1).Str(), VU_T("w"));
    const S s(VU_T("((a)b) [[yz]] <c"));
    EXPECT_EQ(s.GetDelimitedField(VU_T("("), VU_T(")"), 0).Str(), VU_T("(a")) << "no nesting";
    EXPECT_EQ(s.GetDelimitedField(VU_T("[["), VU_T("]]"), 0).Str(), VU_T("yz"));
    EXPECT_EQ(s.GetDelimitedField(VU_T("<"), VU_T(">"), 0).Str(), VU_T("")) << "no close";
    EXPECT_EQ(s.GetDelimitedField(VU_T("("), VU_T(")"), -1).Str(), VU_T(""));
}

TEST(SearchableStringEdit, InsertDeleteReplace) {
    // op: 'I' InsertAt(index, text), 'c' InsertAt(index, text[0]),
    //     'D' DeleteAt(index, count), 'R' ReplaceAt(index, count, text)
    const struct {
        char op;
        int index, count;
        const WCHAR *arg, *expected;
    } rows[] = {
        {'I', 1, 0, VU_T("XY"), VU_T("aXYbcd")}, {'I', 6, 0, VU_T("x"), VU_T("abcd  x")},
        {'I', 6, 0, VU_T(""), VU_T("abcd")},     {'I', -1, 0, VU_T("x"), VU_T("abcd")},
        {'c', 4, 0, VU_T("e"), VU_T("abcde")},   {'D', 1, 2, nullptr, VU_T("ad")},
        {'D', 1, -1, nullptr, VU_T("a")},        {'D', 2, 9, nullptr, VU_T("ab")},
        {'D', -1, 2, nullptr, VU_T("abcd")},     {'R', 1, 2, VU_T("XYZ"), VU_T("aXYZd")},
        {'R', 3, 9, VU_T("x"), VU_T("abcx")},    {'R', 7, 1, VU_T("x"), VU_T("abcdx")},
        {'R', -3, 1, VU_T("x"), VU_T("xbcd")},   {'R', 1, 1, nullptr, VU_T("acd")},
    };
    for (const auto& row : rows) {
        S s(VU_T("abcd"));
        row.op == 'I'   ? s.InsertAt(row.index, row.arg)
        : row.op == 'c' ? s.InsertAt(row.index, row.arg[0])
        : row.op == 'D' ? s.DeleteAt(row.index, row.count)
                        : s.ReplaceAt(row.index, row.count, row.arg);
        EXPECT_EQ(s.Str(), row.expected) << row.op << " " << row.index << "," << row.count;
    }
}

} // namespace

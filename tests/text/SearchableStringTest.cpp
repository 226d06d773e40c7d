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

// ASCII as is, other units as \uXXXX, so failures print readably.
std::string Show(vu::StringView s) {
    std::string out;
    for (WCHAR c : s) {
        char buf[8];
        std::snprintf(buf, sizeof buf, "\\u%04X", static_cast<unsigned>(c));
        out += (c >= 0x20 && c < 0x7F) ? std::string(1, static_cast<char>(c)) : buf;
    }
    return out;
}

// ---- Construction ---------------------------------------------------------

TEST(SearchableStringConstruction, EveryFormBuildsTheTextAndDefaultDelimiters) {
    const vu::String defaults = VU_T(" ,.?!@#$%^&*()-/\"';:[]+\\\t\r\n~");
    ASSERT_EQ(defaults.size(), 28u);
    const unsigned char bytes[] = {'a', 0xE9, 0};
    struct Row {
        const char* name;
        S s;
        vu::String text;
    } rows[] = {
        {"framework string", S(CString(VU_T("abc"))), VU_T("abc")},
        {"repeat", S(VU_T('x'), 3), VU_T("xxx")},
        {"text and length", S(VU_T("abcdef"), 4), VU_T("abcd")},
        {"null text and length", S(nullptr, 4), VU_T("")},
        {"unsigned 8-bit", S(bytes), VU_T("a\u00E9")},
        {"16-bit null", S(static_cast<const WCHAR*>(nullptr)), VU_T("")},
        {"8-bit", S("plain"), VU_T("plain")},
    };
    for (auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(Show(row.s.View()), Show(row.text));
        EXPECT_EQ(Show(row.s.GetTokenDelimiters().View()), Show(defaults));
    }
}

TEST(SearchableStringConstruction, CopyTakesDelimitersAndPattern) {
    S a(VU_T("x1y22"));
    a.SetTokenDelimiters(VU_T("1"));
    ASSERT_EQ(a.FindRegularExp(VU_T("2+")), 3);
    S copied(a);
    S assigned;
    assigned = a;
    for (S* s : {&copied, &assigned}) {
        EXPECT_EQ(Show(s->GetTokenDelimiters().View()), "1");
        // A pattern that fails to compile leaves the copied one in use.
        EXPECT_EQ(s->FindRegularExp(VU_T("("), 0), 3);
    }
}

// ---- Searches -------------------------------------------------------------

// op: F Find, N FindNoCase, R ReverseFind (text forms); f Find, n FindNoCase,
//     q ReverseFindNoCase with the needle's first character.
int Search(S& s, char op, const WCHAR* find, int start, BOOL wholeWord) {
    return op == 'F'   ? s.Find(find, start, wholeWord)
           : op == 'N' ? s.FindNoCase(find, start, wholeWord)
           : op == 'R' ? s.ReverseFind(find, start, wholeWord)
           : op == 'f' ? s.Find(find[0], start, wholeWord)
           : op == 'n' ? s.FindNoCase(find[0], start, wholeWord)
                       : s.ReverseFindNoCase(find[0], start, wholeWord);
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
        {"parentheses are delimiters", 'F', VU_T("(cat)"), VU_T("cat"), 0, TRUE, 1},
        {"overlap with a rejected one is never seen", 'F', VU_T("xa-a-a"), VU_T("a-a"), 0, TRUE,
         -1},
        {"empty needle is never found", 'F', VU_T("abc"), VU_T(""), 0, FALSE, -1},
        {"null needle is never found", 'F', VU_T("abc"), nullptr, 0, FALSE, -1},
        {"reverse, empty needle", 'R', VU_T("abc"), VU_T(""), -1, FALSE, -1},
        {"no case, Greek", 'N', VU_T("\u03A3\u039F\u03A6\u0399\u0391"), VU_T("\u03C3\u03BF\u03C6"),
         0, FALSE, 0},
        {"character, whole word resumes at the next one", 'f', VU_T("aa a"), VU_T("a"), 0, TRUE, 3},
        {"character, no whole word", 'f', VU_T("aaa"), VU_T("a"), 0, TRUE, -1},
        // The case-blind character search takes whichever case comes first.
        {"character no case, lower before upper", 'n', VU_T("xaA"), VU_T("A"), 0, FALSE, 1},
        {"character no case, upper before lower", 'n', VU_T("xAa"), VU_T("a"), 0, FALSE, 1},
        {"character no case, only upper", 'n', VU_T("xxA"), VU_T("a"), 0, FALSE, 2},
        {"character no case, only lower", 'n', VU_T("xxa"), VU_T("A"), 0, FALSE, 2},
        {"character no case, neither", 'n', VU_T("xyz"), VU_T("a"), 0, FALSE, -1},
        {"character no case, start", 'n', VU_T("aAa"), VU_T("a"), 1, FALSE, 1},
        {"character reverse no case", 'q', VU_T("aXbxc"), VU_T("X"), -1, FALSE, 3},
        {"character reverse no case, start", 'q', VU_T("aXbxc"), VU_T("B"), 1, FALSE, -1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        S s(row.text);
        EXPECT_EQ(Search(s, row.op, row.find, row.start, row.wholeWord), row.expected);
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
}

TEST(SearchableStringFind, CheckForWholeWordTreatsTextEndsAsBoundaries) {
    struct Probe : S {
        using S::CheckForWholeWord;
        using S::S;
    } s(VU_T("ab cd "));
    const struct {
        int index, length, expected;
    } rows[] = {{0, 2, 0},  {3, 2, 3},  {1, 1, -1}, {-1, 2, -1}, {-7, 2, -7}, // negatives pass
                {6, 1, -1}, {5, 2, -1}, {6, 0, 6},  {7, 0, -1},  {9, 2, -1},  // not within the text
                {2, -1, -1}};
    for (const auto& row : rows)
        EXPECT_EQ(s.CheckForWholeWord(row.index, row.length), row.expected)
            << "(" << row.index << "," << row.length << ")";
}

TEST(SearchableStringFind, FindNRangeEdges) {
    const struct {
        const char* name;
        const WCHAR* text;
        WCHAR ch;
        int from, to;
        BOOL wholeWord;
        int expected;
    } rows[] = {
        {"to past the end is clamped", VU_T("abc"), VU_T('c'), 0, 99, FALSE, 2},
        {"from after to", VU_T("abc"), VU_T('a'), 2, 1, FALSE, -1},
        {"from past the end", VU_T("abc"), VU_T('a'), 5, 5, FALSE, -1},
        {"whole word has no second try", VU_T("xa a"), VU_T('a'), 0, 4, TRUE, -1},
        {"whole word accepted", VU_T("x a"), VU_T('a'), 0, 3, TRUE, 2},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        S s(row.text);
        EXPECT_EQ(s.FindN(row.ch, row.from, row.to, row.wholeWord), row.expected);
    }
}

TEST(SearchableStringFind, NoCaseWholeWordTestSeesTheLoweredText) {
    // The case-blind forward search works on a lowered copy: an upper-case
    // delimiter no longer separates there. The reverse search compares
    // characters in place and still sees it.
    S s(VU_T("XaX"));
    s.SetTokenDelimiters(VU_T("X"));
    EXPECT_EQ(s.FindNoCase(VU_T("a"), 0, TRUE), -1);
    EXPECT_EQ(s.ReverseFindNoCase(VU_T("a"), -1, TRUE), 1);
}

TEST(SearchableStringFind, RegularExpCountsFromStart) {
    S s(VU_T("ab ab"));
    EXPECT_EQ(s.FindRegularExp(VU_T("ab"), 0), 0);
    EXPECT_EQ(s.FindRegularExp(VU_T("ab"), 1), 3);
    EXPECT_EQ(s.FindRegularExp(VU_T("^ab"), 3), 3) << "'^' matches at start";
    EXPECT_EQ(s.FindRegularExp(VU_T("^ab"), 2), -1);
    EXPECT_EQ(s.FindRegularExp(VU_T("$"), 5), 5);
    EXPECT_EQ(s.FindRegularExp(VU_T("b"), 6), -1);
    EXPECT_EQ(s.FindRegularExp(VU_T("b"), -4), 1);
    EXPECT_EQ(s.FindRegularExp(VU_T("a["), 0), 1) << "a pattern that does not compile keeps 'b'";
}

TEST(SearchableStringFind, RegularExpStepBudget) {
    S s(vu::String(40, VU_T('a')).c_str());
    EXPECT_EQ(s.GetRegularExpStepLimit(), 0u) << "unlimited by default";
    EXPECT_EQ(s.FindRegularExp(VU_T("(a|aa)*[b]")), -1) << "ends without a budget";
    EXPECT_FALSE(s.IsRegularExpStepLimitExceeded());
    s.SetRegularExpStepLimit(100);
    EXPECT_EQ(s.GetRegularExpStepLimit(), 100u);
    EXPECT_EQ(s.FindRegularExp(VU_T("(a|aa)*[b]")), -1);
    EXPECT_TRUE(s.IsRegularExpStepLimitExceeded());
    EXPECT_EQ(s.FindReplaceRegularExp(VU_T("(a|aa)*[b]"), VU_T("x"), TRUE), 0);
    EXPECT_TRUE(s.IsRegularExpStepLimitExceeded());
    EXPECT_EQ(s.GetLength(), 40);
    EXPECT_EQ(s.FindRegularExp(VU_T("a"), 39), 39);
    EXPECT_FALSE(s.IsRegularExpStepLimitExceeded()) << "each search starts afresh";
    const S copy(s);
    EXPECT_EQ(copy.GetRegularExpStepLimit(), 100u);
}

// ---- Replacing -------------------------------------------------------------

TEST(SearchableStringReplace, Rules) {
    // op: E FindReplace, N FindReplaceNoCase, X FindReplaceRegularExp;
    //     e and n ask for whole words, which replacing ignores.
    const struct {
        const char* name;
        char op;
        const WCHAR *text, *find, *by;
        BOOL all;
        int count;
        vu::String result;
    } rows[] = {
        {"non-overlapping", 'E', VU_T("aaaa"), VU_T("aa"), VU_T("b"), TRUE, 2, VU_T("bb")},
        {"null replacement deletes", 'E', VU_T("xaby"), VU_T("ab"), nullptr, TRUE, 1, VU_T("xy")},
        {"empty find replaces nothing", 'E', VU_T("abc"), VU_T(""), VU_T("x"), TRUE, 0,
         VU_T("abc")},
        {"whole text", 'E', VU_T("abc"), VU_T("abc"), VU_T(""), TRUE, 1, VU_T("")},
        {"whole word ignored", 'e', VU_T("concat cat"), VU_T("cat"), VU_T("dog"), FALSE, 1,
         VU_T("condog cat")},
        {"no case, first only", 'N', VU_T("xAa"), VU_T("a"), VU_T("-"), FALSE, 1, VU_T("x-a")},
        {"no case keeps the other text's case", 'N', VU_T("One TWO two"), VU_T("two"), VU_T("2"),
         TRUE, 2, VU_T("One 2 2")},
        {"no case, replacement is not searched", 'N', VU_T("aa"), VU_T("A"), VU_T("aA"), TRUE, 2,
         VU_T("aAaA")},
        {"no case, whole word ignored", 'n', VU_T("condog cat"), VU_T("CAT"), VU_T("x"), TRUE, 1,
         VU_T("condog x")},
        {"expression, no group references", 'X', VU_T("xaby"), VU_T("(a)(b)"), VU_T("\\2\\1"), TRUE,
         1, VU_T("x\\2\\1y")},
        {"expression, first only", 'X', VU_T("a1b22c"), VU_T("[0-9]+"), VU_T("#"), FALSE, 1,
         VU_T("a#b22c")},
        {"expression, no match", 'X', VU_T("abc"), VU_T("z"), VU_T("#"), TRUE, 0, VU_T("abc")},
        {"'^' matches after each replacement", 'X', VU_T("aaab"), VU_T("^a"), VU_T("b"), TRUE, 3,
         VU_T("bbbb")},
        {"empty match and empty replacement end", 'X', VU_T("abc"), VU_T("x*"), VU_T(""), TRUE, 4,
         VU_T("abc")},
        {"empty and non-empty matches", 'X', VU_T("abc"), VU_T("b*"), VU_T("-"), TRUE, 4,
         VU_T("-a--c-")},
        {"end of text", 'X', VU_T("ab"), VU_T("$"), VU_T("X"), TRUE, 1, VU_T("abX")},
        {"start of text alone", 'X', VU_T("ab"), VU_T("^"), VU_T("X"), TRUE, 3, VU_T("XaXbX")},
        {"empty text", 'X', VU_T(""), VU_T("x*"), VU_T("-"), TRUE, 1, VU_T("-")},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        S s(row.text);
        const BOOL whole = row.op == 'e' || row.op == 'n';
        const int count = row.op == 'X' ? s.FindReplaceRegularExp(row.find, row.by, row.all)
                          : (row.op == 'N' || row.op == 'n')
                              ? s.FindReplaceNoCase(row.find, row.by, row.all, whole)
                              : s.FindReplace(row.find, row.by, row.all, whole);
        EXPECT_EQ(count, row.count);
        EXPECT_EQ(Show(s.View()), Show(row.result));
    }
}

// ---- Fields -------------------------------------------------------------------

TEST(SearchableStringFields, CountAndEveryField) {
    const struct {
        const char* name;
        const WCHAR *text, *delimiter;
        std::vector<vu::String> fields;
    } rows[] = {
        {"adjacent delimiters give empty fields",
         VU_T("a,,b"),
         VU_T(","),
         {VU_T("a"), VU_T(""), VU_T("b")}},
        {"trailing delimiter", VU_T("a,"), VU_T(","), {VU_T("a"), VU_T("")}},
        {"text delimiter", VU_T("x::y::z"), VU_T("::"), {VU_T("x"), VU_T("y"), VU_T("z")}},
        {"non-overlapping delimiters", VU_T("aaaa"), VU_T("aa"), {VU_T(""), VU_T(""), VU_T("")}},
        {"no delimiter", VU_T("abc"), VU_T(","), {VU_T("abc")}},
        {"empty delimiter", VU_T("abc"), VU_T(""), {VU_T("abc")}},
        {"empty text", VU_T(""), VU_T(","), {VU_T("")}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        S s(row.text);
        const int count = static_cast<int>(row.fields.size());
        EXPECT_EQ(s.GetFieldCount(row.delimiter), count);
        for (int n = -1; n <= count + 1; ++n) {
            const bool inside = n >= 0 && n < count;
            EXPECT_EQ(Show(s.GetField(row.delimiter, n).View()),
                      Show(inside ? row.fields[n] : VU_T("")))
                << "field " << n;
        }
    }
    S s(VU_T("k=v;w"));
    EXPECT_EQ(Show(s.GetField(VU_T(';'), 1).View()), "w");
    EXPECT_EQ(s.GetFieldCount(VU_T(';')), 2);
}

TEST(SearchableStringFields, GetDelimitedField) {
    const struct {
        const char* name;
        const WCHAR *text, *open, *close;
        int n;
        vu::String expected;
    } rows[] = {
        {"beyond", VU_T("<a> <bc>"), VU_T("<"), VU_T(">"), 2, VU_T("")},
        {"no close", VU_T("<a> <bc"), VU_T("<"), VU_T(">"), 1, VU_T("")},
        {"nesting is not recognised", VU_T("((a)b)"), VU_T("("), VU_T(")"), 0, VU_T("(a")},
        {"long delimiters", VU_T("[[x]] [[yz]]"), VU_T("[["), VU_T("]]"), 1, VU_T("yz")},
        {"empty field", VU_T("<>"), VU_T("<"), VU_T(">"), 0, VU_T("")},
        {"negative", VU_T("<a>"), VU_T("<"), VU_T(">"), -1, VU_T("")},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const S s(row.text);
        EXPECT_EQ(Show(s.GetDelimitedField(row.open, row.close, row.n).View()), Show(row.expected));
    }
}

// ---- Positional edits -------------------------------------------------------------

TEST(SearchableStringEdit, InsertDeleteReplace) {
    // op: 'I' InsertAt(index, text), 'c' InsertAt(index, text[0]),
    //     'D' DeleteAt(index, count), 'R' ReplaceAt(index, count, text)
    const struct {
        const char* name;
        const WCHAR* text;
        char op;
        int index, count;
        const WCHAR* arg;
        vu::String expected;
    } rows[] = {
        {"insert inside", VU_T("ad"), 'I', 1, 0, VU_T("bc"), VU_T("abcd")},
        {"insert at the end", VU_T("ab"), 'I', 2, 0, VU_T("c"), VU_T("abc")},
        {"insert beyond pads with spaces", VU_T("ab"), 'I', 5, 0, VU_T("x"), VU_T("ab   x")},
        {"insert empty changes nothing", VU_T("ab"), 'I', 5, 0, VU_T(""), VU_T("ab")},
        {"insert at a negative index", VU_T("ab"), 'I', -1, 0, VU_T("x"), VU_T("ab")},
        {"insert a character", VU_T("ac"), 'c', 1, 0, VU_T("b"), VU_T("abc")},
        {"delete", VU_T("abcd"), 'D', 1, 2, nullptr, VU_T("ad")},
        {"delete a negative count", VU_T("abcd"), 'D', 1, -1, nullptr, VU_T("a")},
        {"delete past the end", VU_T("abcd"), 'D', 2, 9, nullptr, VU_T("ab")},
        {"delete at the end", VU_T("abcd"), 'D', 4, 1, nullptr, VU_T("abcd")},
        {"delete at a negative index", VU_T("abcd"), 'D', -1, 2, nullptr, VU_T("abcd")},
        {"replace", VU_T("abcd"), 'R', 1, 2, VU_T("XYZ"), VU_T("aXYZd")},
        {"replace past the end", VU_T("abcd"), 'R', 3, 9, VU_T("x"), VU_T("abcx")},
        {"replace beyond appends", VU_T("ab"), 'R', 7, 1, VU_T("x"), VU_T("abx")},
        {"replace at a negative index", VU_T("ab"), 'R', -3, 1, VU_T("x"), VU_T("xb")},
        {"replace with null deletes", VU_T("abc"), 'R', 1, 1, nullptr, VU_T("ac")},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        S s(row.text);
        if (row.op == 'I')
            s.InsertAt(row.index, row.arg);
        else if (row.op == 'c')
            s.InsertAt(row.index, row.arg[0]);
        else if (row.op == 'D')
            s.DeleteAt(row.index, row.count);
        else
            s.ReplaceAt(row.index, row.count, row.arg);
        EXPECT_EQ(Show(s.View()), Show(row.expected));
    }
}

} // namespace

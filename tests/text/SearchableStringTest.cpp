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
std::string Show(std::u16string_view s) {
    std::string out;
    for (char16_t c : s) {
        char buf[8];
        std::snprintf(buf, sizeof buf, "\\u%04X", static_cast<unsigned>(c));
        out += (c >= 0x20 && c < 0x7F) ? std::string(1, static_cast<char>(c)) : buf;
    }
    return out;
}

// ---- Construction ---------------------------------------------------------

TEST(SearchableStringConstruction, EveryFormBuildsTheTextAndDefaultDelimiters) {
    const std::u16string defaults = u" ,.?!@#$%^&*()-/\"';:[]+\\\t\r\n~";
    ASSERT_EQ(defaults.size(), 28u);
    const unsigned char bytes[] = {'a', 0xE9, 0};
    struct Row {
        const char* name;
        S s;
        std::u16string text;
    } rows[] = {
        {"empty", S(), u""},
        {"framework string", S(CString(u"abc")), u"abc"},
        {"repeat", S(u'x', 3), u"xxx"},
        {"text and length", S(u"abcdef", 4), u"abcd"},
        {"null text and length", S(nullptr, 4), u""},
        {"unsigned 8-bit", S(bytes), u"a\u00E9"},
        {"16-bit", S(u"h\u00E9llo"), u"h\u00E9llo"},
        {"16-bit null", S(static_cast<const char16_t*>(nullptr)), u""},
        {"8-bit", S("plain"), u"plain"},
    };
    for (auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(Show(row.s.View()), Show(row.text));
        EXPECT_EQ(Show(row.s.GetTokenDelimiters().View()), Show(defaults));
    }
}

TEST(SearchableStringConstruction, CopyTakesDelimitersAndPattern) {
    S a(u"x1y22");
    a.SetTokenDelimiters(u"1");
    ASSERT_EQ(a.FindRegularExp(u"2+"), 3);
    S copied(a);
    S assigned;
    assigned = a;
    for (S* s : {&copied, &assigned}) {
        EXPECT_EQ(Show(s->GetTokenDelimiters().View()), "1");
        // A pattern that fails to compile leaves the copied one in use.
        EXPECT_EQ(s->FindRegularExp(u"(", 0), 3);
    }
}

// ---- Searches -------------------------------------------------------------

// op: F Find, N FindNoCase, R ReverseFind (text forms); f Find, n FindNoCase,
//     q ReverseFindNoCase with the needle's first character.
int Search(S& s, char op, const char16_t* find, int start, BOOL wholeWord) {
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
        const char16_t *text, *find;
        int start;
        BOOL wholeWord;
        int expected;
    } rows[] = {
        {"underscore is a word character", 'F', u"cat_", u"cat", 0, TRUE, -1},
        {"parentheses are delimiters", 'F', u"(cat)", u"cat", 0, TRUE, 1},
        {"overlap with a rejected one is never seen", 'F', u"xa-a-a", u"a-a", 0, TRUE, -1},
        {"empty needle is never found", 'F', u"abc", u"", 0, FALSE, -1},
        {"null needle is never found", 'F', u"abc", nullptr, 0, FALSE, -1},
        {"reverse, empty needle", 'R', u"abc", u"", -1, FALSE, -1},
        {"no case, Greek", 'N', u"\u03A3\u039F\u03A6\u0399\u0391", u"\u03C3\u03BF\u03C6", 0, FALSE,
         0},
        {"character, whole word resumes at the next one", 'f', u"aa a", u"a", 0, TRUE, 3},
        {"character, no whole word", 'f', u"aaa", u"a", 0, TRUE, -1},
        // The case-blind character search takes whichever case comes first.
        {"character no case, lower before upper", 'n', u"xaA", u"A", 0, FALSE, 1},
        {"character no case, upper before lower", 'n', u"xAa", u"a", 0, FALSE, 1},
        {"character no case, only upper", 'n', u"xxA", u"a", 0, FALSE, 2},
        {"character no case, only lower", 'n', u"xxa", u"A", 0, FALSE, 2},
        {"character no case, neither", 'n', u"xyz", u"a", 0, FALSE, -1},
        {"character no case, start", 'n', u"aAa", u"a", 1, FALSE, 1},
        {"character reverse no case", 'q', u"aXbxc", u"X", -1, FALSE, 3},
        {"character reverse no case, start", 'q', u"aXbxc", u"B", 1, FALSE, -1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        S s(row.text);
        EXPECT_EQ(Search(s, row.op, row.find, row.start, row.wholeWord), row.expected);
    }
}

TEST(SearchableStringFind, DelimitersAreConfigurable) {
    S s(u"a|cat|b cat");
    EXPECT_EQ(s.Find(u"cat", 0, TRUE), 8);
    s.SetTokenDelimiters(u"|");
    EXPECT_EQ(s.Find(u"cat", 0, TRUE), 2);
    s.SetTokenDelimiters(static_cast<const char16_t*>(nullptr));
    EXPECT_EQ(s.Find(u"cat", 0, TRUE), -1) << "only the text ends are boundaries";
    s.GetTokenDelimiters() = u" ";
    EXPECT_EQ(s.Find(u"cat", 0, TRUE), 8) << "the returned reference edits the set";
}

TEST(SearchableStringFind, CheckForWholeWordTreatsTextEndsAsBoundaries) {
    struct Probe : S {
        using S::CheckForWholeWord;
        using S::S;
    };
    Probe s(u"ab cd");
    EXPECT_EQ(s.CheckForWholeWord(0, 2), 0);
    EXPECT_EQ(s.CheckForWholeWord(3, 2), 3);
    EXPECT_EQ(s.CheckForWholeWord(1, 1), -1);
    EXPECT_EQ(s.CheckForWholeWord(-1, 2), -1);
    EXPECT_EQ(s.CheckForWholeWord(-7, 2), -7) << "negative indexes pass through";
}

TEST(SearchableStringFind, FindNRangeEdges) {
    const struct {
        const char* name;
        const char16_t* text;
        char16_t ch;
        int from, to;
        BOOL wholeWord;
        int expected;
    } rows[] = {
        {"to past the end is clamped", u"abc", u'c', 0, 99, FALSE, 2},
        {"from after to", u"abc", u'a', 2, 1, FALSE, -1},
        {"from past the end", u"abc", u'a', 5, 5, FALSE, -1},
        {"whole word has no second try", u"xa a", u'a', 0, 4, TRUE, -1},
        {"whole word accepted", u"x a", u'a', 0, 3, TRUE, 2},
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
    S s(u"XaX");
    s.SetTokenDelimiters(u"X");
    EXPECT_EQ(s.FindNoCase(u"a", 0, TRUE), -1);
    EXPECT_EQ(s.ReverseFindNoCase(u"a", -1, TRUE), 1);
}

TEST(SearchableStringFind, RegularExpCountsFromStart) {
    S s(u"ab ab");
    EXPECT_EQ(s.FindRegularExp(u"ab", 0), 0);
    EXPECT_EQ(s.FindRegularExp(u"ab", 1), 3);
    EXPECT_EQ(s.FindRegularExp(u"^ab", 3), 3) << "'^' matches at start";
    EXPECT_EQ(s.FindRegularExp(u"^ab", 2), -1);
    EXPECT_EQ(s.FindRegularExp(u"$", 5), 5);
    EXPECT_EQ(s.FindRegularExp(u"b", 6), -1);
    EXPECT_EQ(s.FindRegularExp(u"b", -4), 1);
    EXPECT_EQ(s.FindRegularExp(u"a[", 0), 1) << "a pattern that does not compile keeps 'b'";
}

// ---- Replacing -------------------------------------------------------------

TEST(SearchableStringReplace, Rules) {
    // op: E FindReplace, N FindReplaceNoCase, X FindReplaceRegularExp;
    //     e and n ask for whole words, which replacing ignores.
    const struct {
        const char* name;
        char op;
        const char16_t *text, *find, *by;
        BOOL all;
        int count;
        std::u16string result;
    } rows[] = {
        {"non-overlapping", 'E', u"aaaa", u"aa", u"b", TRUE, 2, u"bb"},
        {"null replacement deletes", 'E', u"xaby", u"ab", nullptr, TRUE, 1, u"xy"},
        {"empty find replaces nothing", 'E', u"abc", u"", u"x", TRUE, 0, u"abc"},
        {"whole text", 'E', u"abc", u"abc", u"", TRUE, 1, u""},
        {"whole word ignored", 'e', u"concat cat", u"cat", u"dog", FALSE, 1, u"condog cat"},
        {"no case, first only", 'N', u"xAa", u"a", u"-", FALSE, 1, u"x-a"},
        {"no case keeps the other text's case", 'N', u"One TWO two", u"two", u"2", TRUE, 2,
         u"One 2 2"},
        {"no case, replacement is not searched", 'N', u"aa", u"A", u"aA", TRUE, 2, u"aAaA"},
        {"no case, whole word ignored", 'n', u"condog cat", u"CAT", u"x", TRUE, 1, u"condog x"},
        {"expression, no group references", 'X', u"xaby", u"(a)(b)", u"\\2\\1", TRUE, 1,
         u"x\\2\\1y"},
        {"expression, first only", 'X', u"a1b22c", u"[0-9]+", u"#", FALSE, 1, u"a#b22c"},
        {"expression, no match", 'X', u"abc", u"z", u"#", TRUE, 0, u"abc"},
        {"'^' matches after each replacement", 'X', u"aaab", u"^a", u"b", TRUE, 3, u"bbbb"},
        {"empty match and empty replacement end", 'X', u"abc", u"x*", u"", TRUE, 4, u"abc"},
        {"empty and non-empty matches", 'X', u"abc", u"b*", u"-", TRUE, 4, u"-a--c-"},
        {"end of text", 'X', u"ab", u"$", u"X", TRUE, 1, u"abX"},
        {"start of text alone", 'X', u"ab", u"^", u"X", TRUE, 3, u"XaXbX"},
        {"empty text", 'X', u"", u"x*", u"-", TRUE, 1, u"-"},
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
        const char16_t *text, *delimiter;
        std::vector<std::u16string> fields;
    } rows[] = {
        {"adjacent delimiters give empty fields", u"a,,b", u",", {u"a", u"", u"b"}},
        {"trailing delimiter", u"a,", u",", {u"a", u""}},
        {"text delimiter", u"x::y::z", u"::", {u"x", u"y", u"z"}},
        {"non-overlapping delimiters", u"aaaa", u"aa", {u"", u"", u""}},
        {"no delimiter", u"abc", u",", {u"abc"}},
        {"empty delimiter", u"abc", u"", {u"abc"}},
        {"empty text", u"", u",", {u""}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        S s(row.text);
        const int count = static_cast<int>(row.fields.size());
        EXPECT_EQ(s.GetFieldCount(row.delimiter), count);
        for (int n = -1; n <= count + 1; ++n) {
            const bool inside = n >= 0 && n < count;
            EXPECT_EQ(Show(s.GetField(row.delimiter, n).View()), Show(inside ? row.fields[n] : u""))
                << "field " << n;
        }
    }
    S s(u"k=v;w");
    EXPECT_EQ(Show(s.GetField(u';', 1).View()), "w");
    EXPECT_EQ(s.GetFieldCount(u';'), 2);
}

TEST(SearchableStringFields, GetDelimitedField) {
    const struct {
        const char* name;
        const char16_t *text, *open, *close;
        int n;
        std::u16string expected;
    } rows[] = {
        {"beyond", u"<a> <bc>", u"<", u">", 2, u""},
        {"no close", u"<a> <bc", u"<", u">", 1, u""},
        {"nesting is not recognised", u"((a)b)", u"(", u")", 0, u"(a"},
        {"long delimiters", u"[[x]] [[yz]]", u"[[", u"]]", 1, u"yz"},
        {"empty field", u"<>", u"<", u">", 0, u""},
        {"negative", u"<a>", u"<", u">", -1, u""},
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
        const char16_t* text;
        char op;
        int index, count;
        const char16_t* arg;
        std::u16string expected;
    } rows[] = {
        {"insert inside", u"ad", 'I', 1, 0, u"bc", u"abcd"},
        {"insert at the end", u"ab", 'I', 2, 0, u"c", u"abc"},
        {"insert beyond pads with spaces", u"ab", 'I', 5, 0, u"x", u"ab   x"},
        {"insert empty changes nothing", u"ab", 'I', 5, 0, u"", u"ab"},
        {"insert at a negative index", u"ab", 'I', -1, 0, u"x", u"ab"},
        {"insert a character", u"ac", 'c', 1, 0, u"b", u"abc"},
        {"delete", u"abcd", 'D', 1, 2, nullptr, u"ad"},
        {"delete a negative count", u"abcd", 'D', 1, -1, nullptr, u"a"},
        {"delete past the end", u"abcd", 'D', 2, 9, nullptr, u"ab"},
        {"delete at the end", u"abcd", 'D', 4, 1, nullptr, u"abcd"},
        {"delete at a negative index", u"abcd", 'D', -1, 2, nullptr, u"abcd"},
        {"replace", u"abcd", 'R', 1, 2, u"XYZ", u"aXYZd"},
        {"replace past the end", u"abcd", 'R', 3, 9, u"x", u"abcx"},
        {"replace beyond appends", u"ab", 'R', 7, 1, u"x", u"abx"},
        {"replace at a negative index", u"ab", 'R', -3, 1, u"x", u"xb"},
        {"replace with null deletes", u"abc", 'R', 1, 1, nullptr, u"ac"},
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

// Searchable string: searches, whole-word rules, replace, fields and edits.
// Tables are grouped by topic; every row carries a name shown on failure.
#include "text/SearchableString.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

// ASCII as is, other units as \uXXXX, so failures print readably.
std::string Show(std::u16string_view s) {
    std::string out;
    for (char16_t c : s) {
        if (c >= 0x20 && c < 0x7F) {
            out.push_back(static_cast<char>(c));
        } else {
            char buf[8];
            std::snprintf(buf, sizeof buf, "\\u%04X", static_cast<unsigned>(c));
            out += buf;
        }
    }
    return out;
}
std::string Show(const CString& s) {
    return Show(s.View());
}
std::string Show(const std::u16string& s) {
    return Show(std::u16string_view(s));
}

// ---- Construction ---------------------------------------------------------

TEST(SearchableStringConstruction, EveryFormBuildsTheTextAndDefaultDelimiters) {
    const std::u16string defaults = u" ,.?!@#$%^&*()-/\"';:[]+\\\t\r\n~";
    ASSERT_EQ(defaults.size(), 28u);
    const unsigned char bytes[] = {'a', 0xE9, 0};
    struct Row {
        const char* name;
        VU_CSearchableString s;
        std::u16string text;
    } rows[] = {
        {"empty", VU_CSearchableString(), u""},
        {"framework string", VU_CSearchableString(CString(u"abc")), u"abc"},
        {"repeat", VU_CSearchableString(u'x', 3), u"xxx"},
        {"text and length", VU_CSearchableString(u"abcdef", 4), u"abcd"},
        {"null text and length", VU_CSearchableString(nullptr, 4), u""},
        {"unsigned 8-bit", VU_CSearchableString(bytes), u"a\u00E9"},
        {"16-bit", VU_CSearchableString(u"h\u00E9llo"), u"h\u00E9llo"},
        {"16-bit null", VU_CSearchableString(static_cast<const char16_t*>(nullptr)), u""},
        {"8-bit", VU_CSearchableString("plain"), u"plain"},
    };
    for (auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(Show(row.s), Show(row.text));
        EXPECT_EQ(Show(row.s.GetTokenDelimiters()), Show(defaults));
    }
}

TEST(SearchableStringConstruction, CopyTakesDelimitersAndPattern) {
    VU_CSearchableString a(u"x1y22");
    a.SetTokenDelimiters(u"1");
    ASSERT_EQ(a.FindRegularExp(u"2+"), 3);

    VU_CSearchableString copied(a);
    VU_CSearchableString assigned;
    assigned = a;
    for (VU_CSearchableString* s : {&copied, &assigned}) {
        EXPECT_EQ(Show(s->GetTokenDelimiters()), "1");
        // A pattern that fails to compile leaves the copied one in use.
        EXPECT_EQ(s->FindRegularExp(u"(", 0), 3);
    }
}

// ---- Forward search and whole words ----------------------------------------

struct FindRow {
    const char* name;
    const char16_t* text;
    const char16_t* find;
    int start;
    BOOL wholeWord;
    int expected;
};

TEST(SearchableStringFind, TextForm) {
    const FindRow rows[] = {
        {"plain", u"concat cat", u"cat", 0, FALSE, 3},
        {"whole word skips the embedded one", u"concat cat", u"cat", 0, TRUE, 7},
        {"underscore is a word character", u"cat_", u"cat", 0, TRUE, -1},
        {"parentheses are delimiters", u"(cat)", u"cat", 0, TRUE, 1},
        {"characters above 0x7F are word characters", u"cat\u00E9 cat", u"cat", 0, TRUE, 5},
        {"resumes after the rejected occurrence", u"aaa aa", u"aa", 0, TRUE, 4},
        {"overlap with a rejected one is never seen", u"xa-a-a", u"a-a", 0, TRUE, -1},
        {"start skips earlier ones", u"abcabc", u"abc", 1, FALSE, 3},
        {"start beyond the end", u"abc", u"a", 9, FALSE, -1},
        {"negative start counts as 0", u"abc", u"a", -5, FALSE, 0},
        {"case matters", u"ABC", u"abc", 0, FALSE, -1},
        {"empty needle is never found", u"abc", u"", 0, FALSE, -1},
        {"null needle is never found", u"abc", nullptr, 0, FALSE, -1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        VU_CSearchableString s(row.text);
        EXPECT_EQ(s.Find(row.find, row.start, row.wholeWord), row.expected);
    }
}

TEST(SearchableStringFind, CharacterForm) {
    struct Row {
        const char* name;
        const char16_t* text;
        char16_t ch;
        int start;
        BOOL wholeWord;
        int expected;
    } rows[] = {
        {"first", u"banana", u'a', 0, FALSE, 1},
        {"whole word resumes at the next character", u"aa a", u'a', 0, TRUE, 3},
        {"whole word between delimiters", u"x,a,", u'a', 0, TRUE, 2},
        {"no whole word", u"aaa", u'a', 0, TRUE, -1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        VU_CSearchableString s(row.text);
        EXPECT_EQ(s.Find(row.ch, row.start, row.wholeWord), row.expected);
    }
}

TEST(SearchableStringFind, DelimitersAreConfigurable) {
    VU_CSearchableString s(u"a|cat|b cat");
    EXPECT_EQ(s.Find(u"cat", 0, TRUE), 8);
    s.SetTokenDelimiters(u"|");
    EXPECT_EQ(s.Find(u"cat", 0, TRUE), 2);
    s.SetTokenDelimiters(static_cast<const char16_t*>(nullptr));
    EXPECT_EQ(s.Find(u"cat", 0, TRUE), -1) << "only the text ends are boundaries";
    s.GetTokenDelimiters() = u" ";
    EXPECT_EQ(s.Find(u"cat", 0, TRUE), 8) << "the returned reference edits the set";
}

TEST(SearchableStringFind, CheckForWholeWordTreatsTextEndsAsBoundaries) {
    struct Probe : VU_CSearchableString {
        using VU_CSearchableString::CheckForWholeWord;
        using VU_CSearchableString::VU_CSearchableString;
    };
    Probe s(u"ab cd");
    EXPECT_EQ(s.CheckForWholeWord(0, 2), 0);
    EXPECT_EQ(s.CheckForWholeWord(3, 2), 3);
    EXPECT_EQ(s.CheckForWholeWord(1, 1), -1);
    EXPECT_EQ(s.CheckForWholeWord(-1, 2), -1);
    EXPECT_EQ(s.CheckForWholeWord(-7, 2), -7) << "negative indexes pass through";
}

TEST(SearchableStringFind, FindNLooksOnlyInsideTheRange) {
    struct Row {
        const char* name;
        const char16_t* text;
        char16_t ch;
        int from, to;
        BOOL wholeWord;
        int expected;
    } rows[] = {
        {"to is exclusive", u"abcabc", u'c', 3, 5, FALSE, -1},
        {"from equal to to tests one character", u"abcabc", u'b', 4, 4, FALSE, 4},
        {"from equal to to misses", u"abcabc", u'b', 3, 3, FALSE, -1},
        {"to past the end is clamped", u"abc", u'c', 0, 99, FALSE, 2},
        {"from after to", u"abc", u'a', 2, 1, FALSE, -1},
        {"from past the end", u"abc", u'a', 5, 5, FALSE, -1},
        {"whole word has no second try", u"xa a", u'a', 0, 4, TRUE, -1},
        {"whole word accepted", u"x a", u'a', 0, 3, TRUE, 2},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        VU_CSearchableString s(row.text);
        EXPECT_EQ(s.FindN(row.ch, row.from, row.to, row.wholeWord), row.expected);
    }
}

// ---- Case-blind search ------------------------------------------------------

TEST(SearchableStringFindNoCase, TextForm) {
    const FindRow rows[] = {
        {"upper needle", u"xabc", u"ABC", 0, FALSE, 1},
        {"beyond ASCII", u"gro\u00DF \u00C4RGER", u"\u00E4rger", 0, FALSE, 5},
        {"Greek", u"\u03A3\u039F\u03A6\u0399\u0391", u"\u03C3\u03BF\u03C6", 0, FALSE, 0},
        {"Kelvin sign lowers to k", u"xxxx\u212Aey and more text after it", u"key", 0, FALSE, 4},
        {"Kelvin sign near the end", u"xxxxxxxxxxxxxxxxxxxx\u212Aey", u"key", 0, FALSE, 20},
        {"whole word", u"Cats cat", u"CAT", 0, TRUE, 5},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        VU_CSearchableString s(row.text);
        EXPECT_EQ(s.FindNoCase(row.find, row.start, row.wholeWord), row.expected);
    }
}

TEST(SearchableStringFindNoCase, WholeWordTestSeesTheLoweredText) {
    // The case-blind forward search works on a lowered copy: an upper-case
    // delimiter no longer separates there. The reverse search compares
    // characters in place and still sees it.
    VU_CSearchableString s(u"XaX");
    s.SetTokenDelimiters(u"X");
    EXPECT_EQ(s.FindNoCase(u"a", 0, TRUE), -1);
    EXPECT_EQ(s.ReverseFindNoCase(u"a", -1, TRUE), 1);
}

TEST(SearchableStringFindNoCase, CharacterFormTakesTheEarlierCase) {
    struct Row {
        const char* name;
        const char16_t* text;
        char16_t ch;
        int start;
        int expected;
    } rows[] = {
        {"upper finds lower", u"q", u'Q', 0, 0},
        {"lower before upper", u"xaA", u'A', 0, 1},
        {"upper before lower", u"xAa", u'a', 0, 1},
        {"only upper present", u"xxA", u'a', 0, 2},
        {"only lower present", u"xxa", u'A', 0, 2},
        {"neither", u"xyz", u'a', 0, -1},
        {"start", u"aAa", u'a', 1, 1},
        {"non-letter", u"a1", u'1', 0, 1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        VU_CSearchableString s(row.text);
        EXPECT_EQ(s.FindNoCase(row.ch, row.start, FALSE), row.expected);
    }
}

// ---- Reverse search -----------------------------------------------------------

TEST(SearchableStringReverseFind, TextForm) {
    const FindRow rows[] = {
        {"from the end", u"abab", u"ab", -1, FALSE, 2},
        {"start before the last", u"abab", u"ab", 1, FALSE, 0},
        {"match may begin at start", u"abab", u"ab", 2, FALSE, 2},
        {"match may run past start", u"abab", u"ab", 3, FALSE, 2},
        {"start beyond the end", u"abab", u"ab", 40, FALSE, 2},
        {"start below -1", u"abab", u"ab", -2, FALSE, -1},
        {"no match runs past the end", u"aba", u"ab", -1, FALSE, 0},
        {"empty text", u"", u"a", -1, FALSE, -1},
        {"empty needle", u"abc", u"", -1, FALSE, -1},
        {"whole word skips the embedded one", u"cat concat", u"cat", -1, TRUE, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        VU_CSearchableString s(row.text);
        EXPECT_EQ(s.ReverseFind(row.find, row.start, row.wholeWord), row.expected);
    }
}

TEST(SearchableStringReverseFind, NoCaseAndCharacterForms) {
    VU_CSearchableString s(u"aXbxc");
    EXPECT_EQ(s.ReverseFind(u'x'), 3);
    EXPECT_EQ(s.ReverseFind(u'q'), -1);
    EXPECT_EQ(s.ReverseFindNoCase(u"X", -1, FALSE), 3);
    EXPECT_EQ(s.ReverseFindNoCase(u"x", 2, FALSE), 1);
    EXPECT_EQ(s.ReverseFindNoCase(u'X', -1, FALSE), 3);
    EXPECT_EQ(s.ReverseFindNoCase(u'B', 1, FALSE), -1);
    EXPECT_EQ(VU_CSearchableString().ReverseFind(u'a'), -1);
}

// ---- Replacing -------------------------------------------------------------

struct ReplaceRow {
    const char* name;
    const char16_t* text;
    const char16_t* find;
    const char16_t* replacement;
    BOOL all;
    int count;
    std::u16string result;
};

TEST(SearchableStringReplace, Exact) {
    const ReplaceRow rows[] = {
        {"inserted text is not searched again", u"aba", u"a", u"aa", TRUE, 2, u"aabaa"},
        {"first only", u"aba", u"a", u"x", FALSE, 1, u"xba"},
        {"non-overlapping", u"aaaa", u"aa", u"b", TRUE, 2, u"bb"},
        {"shrinking", u"xabyabz", u"ab", u"", TRUE, 2, u"xyz"},
        {"null replacement deletes", u"xaby", u"ab", nullptr, TRUE, 1, u"xy"},
        {"empty find replaces nothing", u"abc", u"", u"x", TRUE, 0, u"abc"},
        {"whole text", u"abc", u"abc", u"", TRUE, 1, u""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        VU_CSearchableString s(row.text);
        EXPECT_EQ(s.FindReplace(row.find, row.replacement, row.all, FALSE), row.count);
        EXPECT_EQ(Show(s), Show(row.result));
    }
}

TEST(SearchableStringReplace, WholeWordIsIgnored) {
    VU_CSearchableString s(u"concat cat");
    EXPECT_EQ(s.FindReplace(u"cat", u"dog", FALSE, TRUE), 1);
    EXPECT_EQ(Show(s), "condog cat");
    EXPECT_EQ(s.FindReplaceNoCase(u"CAT", u"x", TRUE, TRUE), 1);
    EXPECT_EQ(Show(s), "condog x");
}

TEST(SearchableStringReplace, NoCase) {
    const ReplaceRow rows[] = {
        {"every case", u"aAa", u"A", u"xy", TRUE, 3, u"xyxyxy"},
        {"first only", u"xAa", u"a", u"-", FALSE, 1, u"x-a"},
        {"keeps the other text's case", u"One TWO two", u"two", u"2", TRUE, 2, u"One 2 2"},
        {"growing and shrinking", u"ABcdAB", u"ab", u"", TRUE, 2, u"cd"},
        {"replacement is not searched", u"aa", u"A", u"aA", TRUE, 2, u"aAaA"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        VU_CSearchableString s(row.text);
        EXPECT_EQ(s.FindReplaceNoCase(row.find, row.replacement, row.all, FALSE), row.count);
        EXPECT_EQ(Show(s), Show(row.result));
    }
}

// ---- Regular expressions -------------------------------------------------------

TEST(SearchableStringRegularExp, FindCountsFromStart) {
    VU_CSearchableString s(u"ab ab");
    EXPECT_EQ(s.FindRegularExp(u"ab", 0), 0);
    EXPECT_EQ(s.FindRegularExp(u"ab", 1), 3);
    EXPECT_EQ(s.FindRegularExp(u"^ab", 3), 3) << "'^' matches at start";
    EXPECT_EQ(s.FindRegularExp(u"^ab", 2), -1);
    EXPECT_EQ(s.FindRegularExp(u"$", 5), 5);
    EXPECT_EQ(s.FindRegularExp(u"b", 6), -1);
    EXPECT_EQ(s.FindRegularExp(u"b", -4), 1);
    EXPECT_EQ(s.FindRegularExp(u"a[", 0), 1) << "a pattern that does not compile keeps 'b'";
}

TEST(SearchableStringRegularExp, ReplaceInsertsTheReplacementAsGiven) {
    const ReplaceRow rows[] = {
        {"no expansion of &", u"abbc", u"b+", u"&", TRUE, 1, u"a&c"},
        {"no group references", u"xaby", u"(a)(b)", u"\\2\\1", TRUE, 1, u"x\\2\\1y"},
        {"first only", u"a1b22c", u"[0-9]+", u"#", FALSE, 1, u"a#b22c"},
        {"all", u"a1b22c", u"[0-9]+", u"#", TRUE, 2, u"a#b#c"},
        {"no match", u"abc", u"z", u"#", TRUE, 0, u"abc"},
        {"'^' matches after each replacement", u"aaab", u"^a", u"b", TRUE, 3, u"bbbb"},
        {"empty match advances one character", u"abc", u"x*", u"-", TRUE, 4, u"-a-b-c-"},
        {"empty match and empty replacement end", u"abc", u"x*", u"", TRUE, 4, u"abc"},
        {"empty and non-empty matches", u"abc", u"b*", u"-", TRUE, 4, u"-a--c-"},
        {"end of text", u"ab", u"$", u"X", TRUE, 1, u"abX"},
        {"start of text alone", u"ab", u"^", u"X", TRUE, 3, u"XaXbX"},
        {"empty text", u"", u"x*", u"-", TRUE, 1, u"-"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        VU_CSearchableString s(row.text);
        EXPECT_EQ(s.FindReplaceRegularExp(row.find, row.replacement, row.all), row.count);
        EXPECT_EQ(Show(s), Show(row.result));
    }
}

// ---- Fields -------------------------------------------------------------------

TEST(SearchableStringFields, GetField) {
    struct Row {
        const char* name;
        const char16_t* text;
        const char16_t* delimiter;
        int n;
        std::u16string expected;
    } rows[] = {
        {"first", u"a,,b", u",", 0, u"a"},
        {"adjacent delimiters give empty fields", u"a,,b", u",", 1, u""},
        {"last", u"a,,b", u",", 2, u"b"},
        {"beyond the last", u"a,,b", u",", 5, u""},
        {"trailing delimiter", u"a,", u",", 1, u""},
        {"negative", u"a,b", u",", -1, u""},
        {"text delimiter", u"x::y::z", u"::", 2, u"z"},
        {"no delimiter", u"abc", u",", 0, u"abc"},
        {"empty delimiter", u"abc", u"", 0, u"abc"},
        {"empty text", u"", u",", 0, u""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const VU_CSearchableString s(row.text);
        EXPECT_EQ(Show(s.GetField(row.delimiter, row.n)), Show(row.expected));
    }
    const VU_CSearchableString s(u"k=v;w");
    EXPECT_EQ(Show(s.GetField(u';', 1)), "w");
}

TEST(SearchableStringFields, GetFieldCount) {
    struct Row {
        const char* name;
        const char16_t* text;
        const char16_t* delimiter;
        int expected;
    } rows[] = {
        {"adjacent", u"a,,b", u",", 3},         {"empty text", u"", u",", 1},
        {"non-overlapping", u"aaaa", u"aa", 3}, {"text delimiter", u"x::y", u"::", 2},
        {"empty delimiter", u"abc", u"", 1},    {"trailing", u"a,", u",", 2},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        VU_CSearchableString s(row.text);
        EXPECT_EQ(s.GetFieldCount(row.delimiter), row.expected);
    }
    VU_CSearchableString s(u"a;b;c");
    EXPECT_EQ(s.GetFieldCount(u';'), 3);
}

TEST(SearchableStringFields, GetDelimitedField) {
    struct Row {
        const char* name;
        const char16_t* text;
        const char16_t* open;
        const char16_t* close;
        int n;
        std::u16string expected;
    } rows[] = {
        {"first", u"<a> <bc>", u"<", u">", 0, u"a"},
        {"second", u"<a> <bc>", u"<", u">", 1, u"bc"},
        {"beyond", u"<a> <bc>", u"<", u">", 2, u""},
        {"no close", u"<a> <bc", u"<", u">", 1, u""},
        {"nesting is not recognised", u"((a)b)", u"(", u")", 0, u"(a"},
        {"long delimiters", u"[[x]] [[yz]]", u"[[", u"]]", 1, u"yz"},
        {"empty field", u"<>", u"<", u">", 0, u""},
        {"negative", u"<a>", u"<", u">", -1, u""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const VU_CSearchableString s(row.text);
        EXPECT_EQ(Show(s.GetDelimitedField(row.open, row.close, row.n)), Show(row.expected));
    }
}

// ---- Positional edits -------------------------------------------------------------

TEST(SearchableStringEdit, InsertDeleteReplace) {
    // op: 'I' InsertAt(index, text), 'c' InsertAt(index, text[0]),
    //     'D' DeleteAt(index, count), 'R' ReplaceAt(index, count, text)
    struct Row {
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
        {"insert into empty beyond", u"", 'I', 2, 0, u"x", u"  x"},
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
        VU_CSearchableString s(row.text);
        switch (row.op) {
        case 'I':
            s.InsertAt(row.index, row.arg);
            break;
        case 'c':
            s.InsertAt(row.index, row.arg[0]);
            break;
        case 'D':
            s.DeleteAt(row.index, row.count);
            break;
        case 'R':
            s.ReplaceAt(row.index, row.count, row.arg);
            break;
        }
        EXPECT_EQ(Show(s), Show(row.expected));
    }
}

} // namespace

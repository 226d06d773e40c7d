// Soft line breaks: taking them out and putting them back, wrapping, and the
// selection that searches and replacements leave behind.
#include "text/SearchableStringWithSoftLineBreaks.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <utility>

namespace {

using Soft = VU_CSearchableStringWithSoftLineBreaks;
using Selection = std::pair<int, int>;

Selection SelectionOf(const Soft& s) {
    Selection r;
    s.GetSelection(r.first, r.second);
    return r;
}

Soft Make(const std::u16string& text, Selection selection = {0, -1}) {
    return Soft(CString(text), selection.first, selection.second);
}

// ---- Construction and assignment ----------------------------------------------

TEST(SoftBreaksConstruction, DefaultHasNoSelectionAndOthersACaretAtZero) {
    EXPECT_EQ(SelectionOf(Soft()), Selection(-1, -1));
    EXPECT_EQ(Soft().ReplaceSelectionWith(u"x"), 0);
    const unsigned char bytes[] = {'a', 0xE9, 0};
    const struct {
        const char* name;
        Soft s;
        std::u16string text;
    } rows[] = {
        {"string", Soft(CString(u"ab")), u"ab"},   {"repeat", Soft(u'z', 3), u"zzz"},
        {"counted", Soft(u"abcdef", 2), u"ab"},    {"unsigned bytes", Soft(bytes), u"a\u00e9"},
        {"utf16", Soft(u"x\r\r\ny"), u"x\r\r\ny"}, {"bytes", Soft("q"), u"q"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(row.s.Str(), row.text);
        EXPECT_EQ(SelectionOf(row.s), Selection(0, -1));
        EXPECT_FALSE(row.s.WereSoftLineBreaksRemoved());
    }
}

TEST(SoftBreaksConstruction, CopyKeepsTheBreakStateAndAssigningTextResetsIt) {
    Soft s = Make(u"ab\r\r\ncd", {5, 6});
    s.SetTokenDelimiters(u"|");
    s.RemoveSoftLineBreaks();
    Soft copy(s);
    EXPECT_TRUE(copy.WereSoftLineBreaksRemoved());
    EXPECT_EQ(SelectionOf(copy), Selection(2, 3));
    EXPECT_EQ(copy.Find(u"b", 0, TRUE), -1) << "delimiters are copied";
    EXPECT_EQ(copy.ReInsertSoftLineBreaks(), 1);
    EXPECT_EQ(copy.Str(), u"ab\r\r\ncd");

    s = u"x\r\r\ny\r\r\nz";
    EXPECT_FALSE(s.WereSoftLineBreaksRemoved());
    EXPECT_EQ(SelectionOf(s), Selection(0, -1));
    EXPECT_EQ(s.GetNumberOfSoftLineBreaks(100), 2);
    s = "plain";
    EXPECT_EQ(s.GetNumberOfSoftLineBreaks(100), 0);
}

// ---- Taking the breaks out and putting them back ----------------------------------

TEST(SoftBreaksCycle, RemoveAndReInsertRestoreTheText) {
    // Breaks where wrapping never puts them; wrapped texts are in the property test.
    const struct {
        const char* name;
        std::u16string text, removed;
        int count;
    } rows[] = {{"at the start", u"\r\r\nab", u"ab", 1},
                {"at the end", u"ab\r\r\n", u"ab", 1},
                {"adjacent", u"a\r\r\n\r\r\nb", u"ab", 2},
                {"after a lone CR", u"a\r\r\r\nb", u"a\rb", 1}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        Soft s = Make(row.text);
        EXPECT_EQ(s.RemoveSoftLineBreaks(), row.count);
        EXPECT_EQ(s.RemoveSoftLineBreaks(), row.count) << "a second removal changes nothing";
        EXPECT_EQ(s.Str(), row.removed);
        EXPECT_EQ(s.ReInsertSoftLineBreaks(), row.count);
        EXPECT_EQ(s.Str(), row.text);
        EXPECT_FALSE(s.WereSoftLineBreaksRemoved());
    }
}

TEST(SoftBreaksCycle, ReplacementsStandInTurnAndCountPositions) {
    Soft s(u"ab\r\r\ncd\r\r\nef");
    EXPECT_EQ(s.GetNumberOfSoftLineBreaks(2), 0);
    EXPECT_EQ(s.GetNumberOfSoftLineBreaks(3), 1);
    EXPECT_EQ(s.ReplaceSoftLineBreaksWith(u"<br>"), 2);
    EXPECT_EQ(s.Str(), u"ab<br>cd<br>ef");
    EXPECT_EQ(s.ReplaceSoftLineBreaksWith(u"|"), 2) << "replaces the replacement, not a soft break";
    EXPECT_EQ(s.Str(), u"ab|cd|ef");
    EXPECT_EQ(s.RemoveSoftLineBreaks(), 2);
    EXPECT_EQ(s.Str(), u"abcdef");
    EXPECT_EQ(s.GetNumberOfSoftLineBreaks(5), 2);
    EXPECT_EQ(s.ReInsertSoftLineBreaks(), 2);
    EXPECT_EQ(s.Str(), u"ab\r\r\ncd\r\r\nef");
}

TEST(SoftBreaksCycle, SelectionFollowsTheBreaks) {
    // Each break is compared with the bounds as the breaks before it left
    // them, and a start at a break's position stays before the break.
    const struct {
        const char* name;
        std::u16string text;
        Selection before, removed, back;
    } rows[] = {{"inside a line", u"ab\r\r\ncd", {6, 6}, {3, 3}, {6, 6}},
                {"at a line start", u"ab\r\r\ncd", {5, 6}, {2, 3}, {2, 6}},
                {"none", u"ab\r\r\ncd", {-1, -1}, {-1, -1}, {-1, -1}},
                {"caret without end", u"ab\r\r\ncd", {5, -1}, {5, -1}, {5, -1}},
                {"two breaks", u"ab\r\r\ncd\r\r\nef", {10, 11}, {7, 5}, {13, 11}}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        Soft s = Make(row.text, row.before);
        s.RemoveSoftLineBreaks();
        EXPECT_EQ(SelectionOf(s), row.removed);
        s.ReInsertSoftLineBreaks();
        EXPECT_EQ(SelectionOf(s), row.back);
    }
}

// ---- Wrapping ------------------------------------------------------------------------

TEST(SoftBreaksWrap, RewrapsAndKeepsTheSelection) {
    // Plain wrapping is compared with the wrapped string in the property test.
    Soft s(u"hello world again");
    EXPECT_EQ(s.WordWrapText(12), 1);
    EXPECT_EQ(s.Str(), u"hello world \r\r\nagain");
    EXPECT_EQ(s.WordWrapText(5), 2);
    EXPECT_EQ(s.Str(), u"hello \r\r\nworld \r\r\nagain");
    EXPECT_EQ(s.WordWrapText(-1), 0);
    EXPECT_EQ(s.Str(), u"hello world again");

    // Three breaks out move the caret short of the end; it is put back there.
    s = Make(u"a\r\r\nb\r\r\nc\r\r\nd", {13, 13});
    EXPECT_EQ(s.WordWrapText(-1), 0);
    EXPECT_EQ(SelectionOf(s), Selection(4, 4));

    s = Make(u"hello world", {8, 9});
    s.WordWrapText(5);
    EXPECT_EQ(SelectionOf(s), Selection(11, 12));

    s = u"ab\r\r\ncd";
    s.ReplaceSoftLineBreaksWith(u"|");
    EXPECT_EQ(s.WordWrapText(-1), 0) << "the replacement is not text";
    EXPECT_EQ(s.Str(), u"abcd");
}

// ---- Searching across soft breaks ------------------------------------------------------

TEST(SoftBreaksSearch, PositionsCountTheTextWithoutBreaks) {
    // Found in "abcd"; the selection then moves past the break put back.
    const struct {
        const char* name;
        int (*search)(Soft&);
        int found;
        Selection selection;
    } rows[] = {
        {"Find text", [](Soft& s) { return s.Find(u"bc"); }, 1, {1, 6}},
        {"Find char", [](Soft& s) { return s.Find(u'd'); }, 3, {6, 7}},
        {"FindNoCase text", [](Soft& s) { return s.FindNoCase(u"BC"); }, 1, {1, 6}},
        {"FindNoCase char", [](Soft& s) { return s.FindNoCase(u'C'); }, 2, {2, 6}},
        {"ReverseFind text", [](Soft& s) { return s.ReverseFind(u"b"); }, 1, {1, 5}},
        {"ReverseFind char", [](Soft& s) { return s.ReverseFind(u'c'); }, 2, {2, 6}},
        {"ReverseFindNoCase text", [](Soft& s) { return s.ReverseFindNoCase(u"CD"); }, 2, {2, 7}},
        {"ReverseFindNoCase char", [](Soft& s) { return s.ReverseFindNoCase(u'A'); }, 0, {0, 1}},
        {"absent", [](Soft& s) { return s.Find(u"x"); }, -1, {-1, -1}},
        {"FindN on the text as it stands", [](Soft& s) { return s.FindN(u'c', 0, 10); }, 5, {5, 6}},
        {"FindN absent: the length", [](Soft& s) { return s.FindN(u'z', 0, 10); }, 7, {7, 7}},
        // The regular expression search returns the selection start.
        {"FindRegularExp", [](Soft& s) { return s.FindRegularExp(u"c."); }, 2, {2, 6}},
        {"FindRegularExp absent", [](Soft& s) { return s.FindRegularExp(u"z"); }, 7, {7, 7}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        Soft s(u"ab\r\r\ncd");
        EXPECT_EQ(row.search(s), row.found);
        EXPECT_EQ(SelectionOf(s), row.selection);
        EXPECT_EQ(s.Str(), u"ab\r\r\ncd") << "the soft break stays in place";
    }
    Soft plain(u"abbbc");
    EXPECT_EQ(plain.FindRegularExp(u"b+", 0), 1);
    EXPECT_EQ(SelectionOf(plain), Selection(1, 2)) << "the pattern's length, not the match's";
}

TEST(SoftBreaksSearch, WholeWordsAreJudgedWithoutTheBreaks) {
    Soft s(u"catdog");
    s.WordWrapText(3);
    ASSERT_EQ(s.Str(), u"cat\r\r\ndog");
    EXPECT_EQ(s.Find(u"dog", 0, TRUE), -1) << "a cut word is still one word";
    EXPECT_EQ(s.Find(u"catdog", 0, TRUE), 0);
}

// ---- Replacing ------------------------------------------------------------------------

TEST(SoftBreaksReplace, SingleReplacementTakesTheCharacterAfterTheMatch) {
    const struct {
        const char* name;
        std::u16string text;
        const char16_t *find, *by;
        BOOL wholeWord, noCase;
        int count;
        std::u16string result;
    } rows[] = {
        {"whole word honoured", u"concat cat", u"cat", u"dog", TRUE, FALSE, 1, u"concat dog"},
        {"first match otherwise", u"concat cat", u"cat", u"dog", FALSE, FALSE, 1, u"condogcat"},
        {"absent", u"abc", u"x", u"y", FALSE, FALSE, 0, u"abc"},
        {"break after the edit kept", u"ab cd \r\r\nef", u"ab", u"xyz", 0, 0, 1, u"xyzcd \r\r\nef"},
        {"break inside the edit kept", u"ab\r\r\ncd ef", u"bc", u"", 0, 0, 1, u"a\r\r\n ef"},
        {"no-case form matches exactly", u"Aa", u"a", u"x", FALSE, TRUE, 1, u"Ax"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        Soft s = Make(row.text);
        const int count = row.noCase ? s.FindReplaceNoCase(row.find, row.by, FALSE, row.wholeWord)
                                     : s.FindReplace(row.find, row.by, FALSE, row.wholeWord);
        EXPECT_EQ(count, row.count);
        EXPECT_EQ(s.Str(), row.result);
    }
    Soft s = Make(u"abc", {0, 1});
    EXPECT_EQ(s.ReplaceSelectionWith(u"x"), 1);
    EXPECT_EQ(s.Str(), u"xc");
    EXPECT_EQ(SelectionOf(s), Selection(0, 0));
    EXPECT_EQ(s.ReplaceSelectionWith(u"yz"), 1);
    EXPECT_EQ(s.Str(), u"yzc");
}

TEST(SoftBreaksReplace, ReplaceAllWorksWithoutBreaksAndLeavesThemOut) {
    Soft s(u"a cat\r\r\ncat");
    EXPECT_EQ(s.FindReplace(u"cat", u"dog", TRUE), 2);
    EXPECT_EQ(s.Str(), u"a dogdog");
    EXPECT_EQ(SelectionOf(s), Selection(8, 8));
    s = u"a\r\r\nAa";
    EXPECT_EQ(s.FindReplaceNoCase(u"A", u"xy", TRUE), 3);
    EXPECT_EQ(s.Str(), u"xyxyxy");
    s = u"ab\r\r\nbc";
    EXPECT_EQ(s.FindReplaceRegularExp(u"b+", u"&", TRUE), 1);
    EXPECT_EQ(s.Str(), u"a&c");
    EXPECT_EQ(SelectionOf(s), Selection(3, 3));
    s = u"ab\r\r\ncd";
    EXPECT_EQ(s.FindReplaceRegularExp(u"z", u"y", TRUE), 0);
    EXPECT_EQ(s.Str(), u"ab\r\r\ncd") << "nothing replaced: the break is put back";
}

// ---- Editing and fields ------------------------------------------------------------------

TEST(SoftBreaksEdit, EditsUseUnbrokenPositionsAndResetTheState) {
    const struct {
        const char* name;
        void (*edit)(Soft&);
        std::u16string result;
    } rows[] = {{"InsertAt text", [](Soft& s) { s.InsertAt(2, u"XY"); }, u"abXYcd"},
                {"InsertAt char", [](Soft& s) { s.InsertAt(3, u'X'); }, u"abcXd"},
                {"InsertAt past the end", [](Soft& s) { s.InsertAt(6, u'X'); }, u"abcd  X"},
                {"DeleteAt", [](Soft& s) { s.DeleteAt(1, 2); }, u"ad"},
                {"ReplaceAt", [](Soft& s) { s.ReplaceAt(1, 2, u"-"); }, u"a-d"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        Soft s = Make(u"ab\r\r\ncd", {5, 6});
        row.edit(s);
        EXPECT_EQ(s.Str(), row.result);
        EXPECT_EQ(SelectionOf(s), Selection(0, -1));
        EXPECT_FALSE(s.WereSoftLineBreaksRemoved());
    }
}

TEST(SoftBreaksFields, FieldsComeFromTheTextWithoutBreaks) {
    static_assert(std::is_same_v<decltype(Soft().GetField(u',', 0)), Soft>);
    Soft s = Make(u"a,b\r\r\nc,d", {1, 2});
    EXPECT_EQ(s.GetFieldCount(u','), 3);
    EXPECT_EQ(s.GetFieldCount(u"\r\n"), 1);
    EXPECT_EQ(s.GetField(u',', 1).Str(), u"bc");
    EXPECT_EQ(s.GetField(u",", 2).Str(), u"d");
    EXPECT_EQ(Soft(u"(a\r\r\nb)(c)").GetDelimitedField(u"(", u")", 0).Str(), u"ab");
    EXPECT_EQ(s.Str(), u"a,b\r\r\nc,d");
    EXPECT_EQ(SelectionOf(s), Selection(1, 2));
}

} // namespace

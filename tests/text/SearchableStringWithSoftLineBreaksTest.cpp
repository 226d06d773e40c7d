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

Soft Make(const vu::String& text, Selection selection = {0, -1}) {
    return Soft(CString(text), selection.first, selection.second);
}

// ---- Construction and assignment ----------------------------------------------

TEST(SoftBreaksConstruction, DefaultHasNoSelectionAndOthersACaretAtZero) {
    EXPECT_EQ(SelectionOf(Soft()), Selection(-1, -1));
    EXPECT_EQ(Soft().ReplaceSelectionWith(VU_T("x")), 0);
    const unsigned char bytes[] = {'a', 0xE9, 0};
    const struct {
        const char* name;
        Soft s;
        vu::String text;
    } rows[] = {{"string", Soft(CString(VU_T("ab"))), VU_T("ab")},
                {"repeat", Soft(VU_T('z'), 3), VU_T("zzz")},
                {"unsigned bytes", Soft(bytes), VU_T("a\u00e9")},
                {"bytes", Soft("q"), VU_T("q")}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(row.s.Str(), row.text);
        EXPECT_EQ(SelectionOf(row.s), Selection(0, -1));
        EXPECT_FALSE(row.s.WereSoftLineBreaksRemoved());
    }
}

TEST(SoftBreaksConstruction, CopyKeepsTheBreakStateAndAssigningTextResetsIt) {
    Soft s = Make(VU_T("ab\r\r\ncd"), {5, 6});
    s.SetTokenDelimiters(VU_T("|"));
    s.RemoveSoftLineBreaks();
    Soft copy(s);
    EXPECT_TRUE(copy.WereSoftLineBreaksRemoved());
    EXPECT_EQ(SelectionOf(copy), Selection(2, 3));
    EXPECT_EQ(copy.Find(VU_T("b"), 0, TRUE), -1) << "delimiters are copied";
    EXPECT_EQ(copy.ReInsertSoftLineBreaks(), 1);
    EXPECT_EQ(copy.Str(), VU_T("ab\r\r\ncd"));

    s = VU_T("x\r\r\ny\r\r\nz");
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
        vu::String text, removed;
        int count;
    } rows[] = {{"at the start", VU_T("\r\r\nab"), VU_T("ab"), 1},
                {"at the end", VU_T("ab\r\r\n"), VU_T("ab"), 1},
                {"adjacent", VU_T("a\r\r\n\r\r\nb"), VU_T("ab"), 2},
                {"after a lone CR", VU_T("a\r\r\r\nb"), VU_T("a\rb"), 1}};
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
    Soft s(VU_T("ab\r\r\ncd\r\r\nef"));
    EXPECT_EQ(s.GetNumberOfSoftLineBreaks(2), 0);
    EXPECT_EQ(s.GetNumberOfSoftLineBreaks(3), 1);
    EXPECT_EQ(s.ReplaceSoftLineBreaksWith(VU_T("<br>")), 2);
    EXPECT_EQ(s.Str(), VU_T("ab<br>cd<br>ef"));
    EXPECT_EQ(s.ReplaceSoftLineBreaksWith(VU_T("|")), 2)
        << "replaces the replacement, not a soft break";
    EXPECT_EQ(s.Str(), VU_T("ab|cd|ef"));
    EXPECT_EQ(s.RemoveSoftLineBreaks(), 2);
    EXPECT_EQ(s.Str(), VU_T("abcdef"));
    EXPECT_EQ(s.GetNumberOfSoftLineBreaks(5), 2);
    EXPECT_EQ(s.ReInsertSoftLineBreaks(), 2);
    EXPECT_EQ(s.Str(), VU_T("ab\r\r\ncd\r\r\nef"));
}

TEST(SoftBreaksCycle, SelectionFollowsTheBreaks) {
    // Each break is compared with the bounds as the breaks before it left
    // them, and a start at a break's position stays before the break.
    const struct {
        const char* name;
        vu::String text;
        Selection before, removed, back;
    } rows[] = {{"inside a line", VU_T("ab\r\r\ncd"), {6, 6}, {3, 3}, {6, 6}},
                {"at a line start", VU_T("ab\r\r\ncd"), {5, 6}, {2, 3}, {2, 6}},
                {"none", VU_T("ab\r\r\ncd"), {-1, -1}, {-1, -1}, {-1, -1}},
                {"caret without end", VU_T("ab\r\r\ncd"), {5, -1}, {5, -1}, {5, -1}},
                {"two breaks", VU_T("ab\r\r\ncd\r\r\nef"), {10, 11}, {7, 5}, {13, 11}}};
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
    Soft s(VU_T("hello world again"));
    EXPECT_EQ(s.WordWrapText(12), 1);
    EXPECT_EQ(s.Str(), VU_T("hello world \r\r\nagain"));
    EXPECT_EQ(s.WordWrapText(5), 2);
    EXPECT_EQ(s.Str(), VU_T("hello \r\r\nworld \r\r\nagain"));
    EXPECT_EQ(s.WordWrapText(-1), 0);
    EXPECT_EQ(s.Str(), VU_T("hello world again"));

    // Three breaks out move the caret short of the end; it is put back there.
    s = Make(VU_T("a\r\r\nb\r\r\nc\r\r\nd"), {13, 13});
    EXPECT_EQ(s.WordWrapText(-1), 0);
    EXPECT_EQ(SelectionOf(s), Selection(4, 4));

    s = Make(VU_T("hello world"), {8, 9});
    s.WordWrapText(5);
    EXPECT_EQ(SelectionOf(s), Selection(11, 12));

    s = VU_T("ab\r\r\ncd");
    s.ReplaceSoftLineBreaksWith(VU_T("|"));
    EXPECT_EQ(s.WordWrapText(-1), 0) << "the replacement is not text";
    EXPECT_EQ(s.Str(), VU_T("abcd"));
}

// ---- Searching across soft breaks ------------------------------------------------------

TEST(SoftBreaksSearch, PositionsCountTheTextWithoutBreaks) {
    // Found in "abcd"; the selection then moves past the break put back. The
    // property test compares the text forms with the unwrapped text.
    // op: F Find, f Find(ch), n FindNoCase(ch), r ReverseFind(ch),
    //     Q ReverseFindNoCase, q ReverseFindNoCase(ch), N FindN, X FindRegularExp
    const struct {
        char op;
        const WCHAR* what;
        int found;
        Selection selection;
    } rows[] = {{'F', VU_T("bc"), 1, {1, 6}},   {'f', VU_T("d"), 3, {6, 7}},
                {'n', VU_T("C"), 2, {2, 6}},    {'r', VU_T("c"), 2, {2, 6}},
                {'Q', VU_T("CD"), 2, {2, 7}},   {'q', VU_T("A"), 0, {0, 1}},
                {'F', VU_T("x"), -1, {-1, -1}}, // absent
                {'N', VU_T("c"), 5, {5, 6}},    // on the text as it stands
                {'N', VU_T("z"), 7, {7, 7}},    // absent: the length
                {'X', VU_T("c."), 2, {2, 6}},   // returns the selection start
                {'X', VU_T("z"), 7, {7, 7}}};
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.op << " " << char(row.what[0]));
        Soft s(VU_T("ab\r\r\ncd"));
        const WCHAR c = row.what[0];
        const int found = row.op == 'F'   ? s.Find(row.what)
                          : row.op == 'f' ? s.Find(c)
                          : row.op == 'n' ? s.FindNoCase(c)
                          : row.op == 'r' ? s.ReverseFind(c)
                          : row.op == 'Q' ? s.ReverseFindNoCase(row.what)
                          : row.op == 'q' ? s.ReverseFindNoCase(c)
                          : row.op == 'N' ? s.FindN(c, 0, 10)
                                          : s.FindRegularExp(row.what);
        EXPECT_EQ(found, row.found);
        EXPECT_EQ(SelectionOf(s), row.selection);
        EXPECT_EQ(s.Str(), VU_T("ab\r\r\ncd")) << "the soft break stays in place";
    }
    Soft plain(VU_T("abbbc"));
    EXPECT_EQ(plain.FindRegularExp(VU_T("b+"), 0), 1);
    EXPECT_EQ(SelectionOf(plain), Selection(1, 2)) << "the pattern's length, not the match's";
}

TEST(SoftBreaksSearch, WholeWordsAreJudgedWithoutTheBreaks) {
    Soft s(VU_T("catdog"));
    s.WordWrapText(3);
    ASSERT_EQ(s.Str(), VU_T("cat\r\r\ndog"));
    EXPECT_EQ(s.Find(VU_T("dog"), 0, TRUE), -1) << "a cut word is still one word";
    EXPECT_EQ(s.Find(VU_T("catdog"), 0, TRUE), 0);
}

// ---- Replacing ------------------------------------------------------------------------

TEST(SoftBreaksReplace, SingleReplacementTakesTheCharacterAfterTheMatch) {
    const struct {
        const char* name;
        vu::String text;
        const WCHAR *find, *by;
        BOOL wholeWord, noCase;
        int count;
        vu::String result;
    } rows[] = {
        {"whole word honoured", VU_T("concat cat"), VU_T("cat"), VU_T("dog"), TRUE, FALSE, 1,
         VU_T("concat dog")},
        {"first match otherwise", VU_T("concat cat"), VU_T("cat"), VU_T("dog"), FALSE, FALSE, 1,
         VU_T("condogcat")},
        {"absent", VU_T("abc"), VU_T("x"), VU_T("y"), FALSE, FALSE, 0, VU_T("abc")},
        {"no-case form matches exactly", VU_T("Aa"), VU_T("a"), VU_T("x"), FALSE, TRUE, 1,
         VU_T("Ax")},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        Soft s = Make(row.text);
        const int count = row.noCase ? s.FindReplaceNoCase(row.find, row.by, FALSE, row.wholeWord)
                                     : s.FindReplace(row.find, row.by, FALSE, row.wholeWord);
        EXPECT_EQ(count, row.count);
        EXPECT_EQ(s.Str(), row.result);
    }
    Soft s = Make(VU_T("abc"), {0, 1});
    EXPECT_EQ(s.ReplaceSelectionWith(VU_T("x")), 1);
    EXPECT_EQ(s.Str(), VU_T("xc"));
    EXPECT_EQ(SelectionOf(s), Selection(0, 0));
    EXPECT_EQ(s.ReplaceSelectionWith(VU_T("yz")), 1);
    EXPECT_EQ(s.Str(), VU_T("yzc"));
}

TEST(SoftBreaksReplace, BreaksGoBackWhereTheyStoodBeforeTheEdit) {
    // The breaks stand replaced during the edit, so they are not located
    // again: they return at their old positions (the host re-wraps).
    Soft s = Make(VU_T("ab\r\r\ncd"), {0, 0});
    EXPECT_EQ(s.ReplaceSelectionWith(VU_T("XYZ")), 1);
    EXPECT_EQ(s.Str(), VU_T("XY\r\r\nZbcd"));
    EXPECT_EQ(SelectionOf(s), Selection(0, 5));
    s = VU_T("hello \r\r\nworld");
    EXPECT_EQ(s.FindReplace(VU_T("hello"), VU_T("hi"), FALSE), 1);
    EXPECT_EQ(s.Str(), VU_T("hiworl\r\r\nd"));
    EXPECT_EQ(SelectionOf(s), Selection(0, 1));
    s = VU_T("ab\r\r\n");
    s.SetSelection(0, 1);
    EXPECT_EQ(s.ReplaceSelectionWith(VU_T("")), 1);
    EXPECT_EQ(s.Str(), VU_T("\r\r\n")) << "a position past the shorter text goes to its end";
}

TEST(SoftBreaksReplace, ReplaceAllWorksWithoutBreaksAndLeavesThemOut) {
    Soft s(VU_T("a cat\r\r\ncat"));
    EXPECT_EQ(s.FindReplace(VU_T("cat"), VU_T("dog"), TRUE), 2);
    EXPECT_EQ(s.Str(), VU_T("a dogdog"));
    EXPECT_EQ(SelectionOf(s), Selection(8, 8));
    s = VU_T("a\r\r\nAa");
    EXPECT_EQ(s.FindReplaceNoCase(VU_T("A"), VU_T("xy"), TRUE), 3);
    EXPECT_EQ(s.Str(), VU_T("xyxyxy"));
    s = VU_T("ab\r\r\nbc");
    EXPECT_EQ(s.FindReplaceRegularExp(VU_T("b+"), VU_T("&"), TRUE), 1);
    EXPECT_EQ(s.Str(), VU_T("a&c"));
    EXPECT_EQ(SelectionOf(s), Selection(3, 3));
    s = VU_T("ab\r\r\ncd");
    EXPECT_EQ(s.FindReplaceRegularExp(VU_T("z"), VU_T("y"), TRUE), 0);
    EXPECT_EQ(s.Str(), VU_T("ab\r\r\ncd")) << "nothing replaced: the break is put back";
    s = Soft(vu::String(30, VU_T('a')).c_str());
    s.SetRegularExpStepLimit(100);
    EXPECT_EQ(s.FindReplaceRegularExp(VU_T("(a|aa)*[b]"), VU_T("y"), TRUE), 0);
    EXPECT_TRUE(s.IsRegularExpStepLimitExceeded()) << "carried back from the plain copy";
}

// ---- Editing and fields ------------------------------------------------------------------

TEST(SoftBreaksEdit, EditsUseUnbrokenPositionsAndResetTheState) {
    const struct {
        const char* name;
        void (*edit)(Soft&);
        vu::String result;
    } rows[] = {
        {"InsertAt text", [](Soft& s) { s.InsertAt(2, VU_T("XY")); }, VU_T("abXYcd")},
        {"InsertAt char", [](Soft& s) { s.InsertAt(3, VU_T('X')); }, VU_T("abcXd")},
        {"InsertAt past the end", [](Soft& s) { s.InsertAt(6, VU_T('X')); }, VU_T("abcd  X")},
        {"DeleteAt", [](Soft& s) { s.DeleteAt(1, 2); }, VU_T("ad")},
        {"ReplaceAt", [](Soft& s) { s.ReplaceAt(1, 2, VU_T("-")); }, VU_T("a-d")}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        Soft s = Make(VU_T("ab\r\r\ncd"), {5, 6});
        row.edit(s);
        EXPECT_EQ(s.Str(), row.result);
        EXPECT_EQ(SelectionOf(s), Selection(0, -1));
        EXPECT_FALSE(s.WereSoftLineBreaksRemoved());
    }
}

TEST(SoftBreaksFields, FieldsComeFromTheTextWithoutBreaks) {
    static_assert(std::is_same_v<decltype(Soft().GetField(VU_T(','), 0)), Soft>);
    Soft s = Make(VU_T("a,b\r\r\nc,d"), {1, 2});
    EXPECT_EQ(s.GetFieldCount(VU_T(',')), 3);
    EXPECT_EQ(s.GetFieldCount(VU_T("\r\n")), 1);
    EXPECT_EQ(s.GetField(VU_T(','), 1).Str(), VU_T("bc"));
    EXPECT_EQ(s.GetField(VU_T(","), 2).Str(), VU_T("d"));
    EXPECT_EQ(Soft(VU_T("(a\r\r\nb)(c)")).GetDelimitedField(VU_T("("), VU_T(")"), 0).Str(),
              VU_T("ab"));
    EXPECT_EQ(s.Str(), VU_T("a,b\r\r\nc,d"));
    EXPECT_EQ(SelectionOf(s), Selection(1, 2));
}

} // namespace

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

TEST(SoftBreaksConstruction, SelectionAndBreakStateOfEachForm) {
    EXPECT_EQ(SelectionOf(Soft()), Selection(-1, -1));
    EXPECT_EQ(Soft().ReplaceSelectionWith(VU_T("x")), 0);
    EXPECT_EQ(SelectionOf(Soft(VU_T('z'), 3)), Selection(0, -1)) << "a caret at zero";

    Soft s = Make(VU_T("ab\r\r\ncd"), {5, 6});
    s.SetTokenDelimiters(VU_T("|"));
    s.RemoveSoftLineBreaks();
    Soft copy(s);
    EXPECT_TRUE(copy.WereSoftLineBreaksRemoved());
    EXPECT_EQ(SelectionOf(copy), Selection(2, 3));
    EXPECT_EQ(copy.Find(VU_T("b"), 0, TRUE), -1) << "delimiters are copied";
    EXPECT_EQ(copy.ReInsertSoftLineBreaks(), 1);
    EXPECT_EQ(copy.Str(), VU_T("ab\r\r\ncd"));
    s = VU_T("x\r\r\ny\r\r\nz"); // assigning text resets the state
    EXPECT_FALSE(s.WereSoftLineBreaksRemoved());
    EXPECT_EQ(SelectionOf(s), Selection(0, -1));
    EXPECT_EQ(s.GetNumberOfSoftLineBreaks(100), 2);
}

TEST(SoftBreaksCycle, RemoveAndReInsertRestoreTheTextAndTheSelection) {
    // Breaks where wrapping never puts them (wrapped texts are in the property
    // test). Each break is compared with the bounds as the breaks before it
    // left them, and a start at a break's position stays before the break.
    const struct {
        vu::String text, removed;
        Selection before, out, back;
    } rows[] = {
        {VU_T("\r\r\nab\r\r\n"), VU_T("ab"), {0, -1}, {0, -1}, {0, -1}},
        {VU_T("a\r\r\n\r\r\nb"), VU_T("ab"), {-1, -1}, {-1, -1}, {-1, -1}},
        {VU_T("a\r\r\r\nb"), VU_T("a\rb"), {5, -1}, {5, -1}, {5, -1}}, // after a lone CR
        {VU_T("ab\r\r\ncd"), VU_T("abcd"), {6, 6}, {3, 3}, {6, 6}},
        {VU_T("ab\r\r\ncd"), VU_T("abcd"), {5, 6}, {2, 3}, {2, 6}},
        {VU_T("ab\r\r\ncd\r\r\nef"), VU_T("abcdef"), {10, 11}, {7, 5}, {13, 11}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.text));
        Soft s = Make(row.text, row.before);
        const int count = s.RemoveSoftLineBreaks();
        EXPECT_EQ(s.RemoveSoftLineBreaks(), count) << "a second removal changes nothing";
        EXPECT_EQ(s.Str(), row.removed);
        EXPECT_EQ(SelectionOf(s), row.out);
        EXPECT_EQ(s.ReInsertSoftLineBreaks(), count);
        EXPECT_EQ(s.Str(), row.text);
        EXPECT_EQ(SelectionOf(s), row.back);
    }
}

TEST(SoftBreaksCycle, ReplacementsStandInTurnAndCountPositions) {
    Soft s(VU_T("ab\r\r\ncd\r\r\nef"));
    EXPECT_EQ(s.GetNumberOfSoftLineBreaks(2), 0);
    EXPECT_EQ(s.GetNumberOfSoftLineBreaks(3), 1);
    EXPECT_EQ(s.ReplaceSoftLineBreaksWith(VU_T("<br>")), 2);
    EXPECT_EQ(s.ReplaceSoftLineBreaksWith(VU_T("|")), 2) << "replaces the replacement";
    EXPECT_EQ(s.Str(), VU_T("ab|cd|ef"));
    EXPECT_EQ(s.RemoveSoftLineBreaks(), 2);
    EXPECT_EQ(s.GetNumberOfSoftLineBreaks(5), 2);
    EXPECT_EQ(s.ReInsertSoftLineBreaks(), 2);
    EXPECT_EQ(s.Str(), VU_T("ab\r\r\ncd\r\r\nef"));
    s.ReplaceSoftLineBreaksWith(VU_T("|"));
    EXPECT_EQ(s.WordWrapText(-1), 0) << "the replacement is not text";
    EXPECT_EQ(s.Str(), VU_T("abcdef"));
}

TEST(SoftBreaksWrap, RewrapKeepsTheSelection) {
    // Plain wrapping is compared with the wrapped string in the property test.
    Soft s = Make(VU_T("a\r\r\nb\r\r\nc\r\r\nd"), {13, 13});
    EXPECT_EQ(s.WordWrapText(-1), 0);
    EXPECT_EQ(SelectionOf(s), Selection(4, 4))
        << "three breaks out move the caret short of the end";
    s = Make(VU_T("hello world"), {8, 9});
    s.WordWrapText(5);
    EXPECT_EQ(SelectionOf(s), Selection(11, 12));
}

TEST(SoftBreaksSearch, PositionsCountTheTextWithoutBreaks) {
    // Found in "abcd"; the selection then moves past the break put back. The
    // property test compares the text forms with the unwrapped text.
    // op: F Find, f Find(ch), n FindNoCase(ch), Q ReverseFindNoCase,
    //     N FindN, X FindRegularExp
    const struct {
        char op;
        const WCHAR* what;
        int found;
        Selection selection;
    } rows[] = {{'F', VU_T("bc"), 1, {1, 6}},   {'f', VU_T("d"), 3, {6, 7}},
                {'n', VU_T("C"), 2, {2, 6}},    {'Q', VU_T("CD"), 2, {2, 7}},
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
                          : row.op == 'Q' ? s.ReverseFindNoCase(row.what)
                          : row.op == 'N' ? s.FindN(c, 0, 10)
                                          : s.FindRegularExp(row.what);
        EXPECT_EQ(found, row.found);
        EXPECT_EQ(SelectionOf(s), row.selection);
        EXPECT_EQ(s.Str(), VU_T("ab\r\r\ncd")) << "the soft break stays in place";
    }
    Soft plain(VU_T("abbbc"));
    EXPECT_EQ(plain.FindRegularExp(VU_T("b+"), 0), 1);
    EXPECT_EQ(SelectionOf(plain), Selection(1, 2)) << "the pattern's length, not the match's";
    plain = VU_T("cat\r\r\ndog");
    EXPECT_EQ(plain.Find(VU_T("dog"), 0, TRUE), -1) << "a cut word is still one word";
}

TEST(SoftBreaksReplace, SingleReplacementTakesTheCharacterAfterTheMatch) {
    Soft s(VU_T("concat cat"));
    EXPECT_EQ(s.FindReplace(VU_T("cat"), VU_T("dog"), FALSE, TRUE), 1);
    EXPECT_EQ(s.Str(), VU_T("concat dog")) << "whole word honoured";
    s = VU_T("concat cat");
    EXPECT_EQ(s.FindReplace(VU_T("cat"), VU_T("dog"), FALSE, FALSE), 1);
    EXPECT_EQ(s.Str(), VU_T("condogcat"));
    s = VU_T("Aa");
    EXPECT_EQ(s.FindReplaceNoCase(VU_T("a"), VU_T("x"), FALSE, FALSE), 1);
    EXPECT_EQ(s.Str(), VU_T("Ax")) << "the no-case form matches exactly";
    s = Make(VU_T("abc"), {0, 1});
    EXPECT_EQ(s.ReplaceSelectionWith(VU_T("x")), 1);
    EXPECT_EQ(s.Str(), VU_T("xc"));
    EXPECT_EQ(SelectionOf(s), Selection(0, 0));
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
    s = VU_T("ab\r\r\nbc");
    EXPECT_EQ(s.FindReplaceRegularExp(VU_T("b+"), VU_T("&"), TRUE), 1);
    EXPECT_EQ(s.Str(), VU_T("a&c"));
    s = VU_T("ab\r\r\ncd");
    EXPECT_EQ(s.FindReplaceRegularExp(VU_T("z"), VU_T("y"), TRUE), 0);
    EXPECT_EQ(s.Str(), VU_T("ab\r\r\ncd")) << "nothing replaced: the break is put back";
    s = Soft(vu::String(30, VU_T('a')).c_str());
    s.SetRegularExpStepLimit(100);
    EXPECT_EQ(s.FindReplaceRegularExp(VU_T("(a|aa)*[b]"), VU_T("y"), TRUE), 0);
    EXPECT_TRUE(s.IsRegularExpStepLimitExceeded()) << "carried back from the plain copy";
}

TEST(SoftBreaksEdit, EditsAndFieldsUseUnbrokenPositions) {
    void (*const edits[])(Soft&) = {
        [](Soft& s) { s.InsertAt(3, VU_T('X')); }, [](Soft& s) { s.InsertAt(6, VU_T("X")); },
        [](Soft& s) { s.DeleteAt(1, 2); }, [](Soft& s) { s.ReplaceAt(1, 2, VU_T("-")); }};
    const vu::String results[] = {VU_T("abcXd"), VU_T("abcd  X"), VU_T("ad"), VU_T("a-d")};
    for (size_t i = 0; i < std::size(edits); ++i) {
        Soft s = Make(VU_T("ab\r\r\ncd"), {5, 6});
        edits[i](s);
        EXPECT_EQ(s.Str(), results[i]);
        EXPECT_EQ(SelectionOf(s), Selection(0, -1)) << "the state is reset";
        EXPECT_FALSE(s.WereSoftLineBreaksRemoved());
    }
    static_assert(std::is_same_v<decltype(Soft().GetField(VU_T(','), 0)), Soft>);
    Soft s = Make(VU_T("a,b\r\r\nc,d"), {1, 2});
    EXPECT_EQ(s.GetFieldCount(VU_T(',')), 3);
    EXPECT_EQ(s.GetField(VU_T(','), 1).Str(), VU_T("bc"));
    EXPECT_EQ(Soft(VU_T("(a\r\r\nb)(c)")).GetDelimitedField(VU_T("("), VU_T(")"), 0).Str(),
              VU_T("ab"));
    EXPECT_EQ(s.Str(), VU_T("a,b\r\r\nc,d"));
    EXPECT_EQ(SelectionOf(s), Selection(1, 2));
}

} // namespace

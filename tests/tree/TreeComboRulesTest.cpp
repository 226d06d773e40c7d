// The tree combo box's decisions and the look-ahead completion rule.
#include "tree/TreeComboRules.h"
#include "tree/LookAheadCompletion.h"

#include <gtest/gtest.h>

using namespace vu::treecombo;

namespace {

TEST(TreeComboRules, ClicksInTheDropDown) {
    struct Row {
        const char* name;
        bool onScrollBar, onRow;
        int x, level;
        bool hasChildren, selectable;
        DropClick expected;
    } rows[] = {
        {"parent's expand column, level 0", false, true, 5, 0, true, true, DropClick::Toggle},
        {"both ends of the column count", false, true, 16, 0, true, true, DropClick::Toggle},
        {"column of level 2 starts at 32", false, true, 32, 2, true, true, DropClick::Toggle},
        {"left of a level-2 column", false, true, 31, 2, true, true, DropClick::Default},
        {"parent's text selects", false, true, 40, 0, true, true, DropClick::Default},
        {"leaf's column does not toggle", false, true, 5, 0, false, true, DropClick::Default},
        {"refused leaf is ignored", false, true, 40, 1, false, false, DropClick::Ignore},
        {"refused parent still toggles", false, true, 20, 1, true, false, DropClick::Toggle},
        {"refused parent's text is ignored", false, true, 60, 1, true, false, DropClick::Ignore},
        {"scroll bar always goes through", true, true, 5, 0, true, false, DropClick::Default},
        {"below the rows goes through", false, false, 5, 0, true, false, DropClick::Default},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        EXPECT_EQ(r.expected, ClassifyDropClick(r.onScrollBar, r.onRow, r.x, r.level, r.hasChildren,
                                                r.selectable));
    }
}

TEST(TreeComboRules, CloseUpKeepsOnlyAcceptedSelections) {
    struct Row {
        const char* name;
        int selection;
        bool allowed;
        int lastAccepted, restore, newLast;
    } rows[] = {
        {"allowed becomes the last accepted", 4, true, 2, -1, 4},
        {"refused goes back to the last accepted", 4, false, 2, 2, 2},
        {"refused first selection is taken", 4, false, -1, -1, 4},
        {"no selection, allowed", -1, true, 3, -1, -1},
        {"last accepted row 0 is restored", 5, false, 0, 0, 0},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        const CloseUp result = DecideCloseUp(r.selection, r.allowed, r.lastAccepted);
        EXPECT_EQ(r.restore, result.restore);
        EXPECT_EQ(r.newLast, result.lastAccepted);
    }
}

TEST(TreeComboRules, HidingPlaceBySystemVersion) {
    struct Row {
        unsigned major, minor;
        bool move;
        int x, y;
    } rows[] = {{5, 0, false, 0, 0},        {4, 2, false, 0, 0}, {5, 1, true, -1000, -1000},
                {5, 2, true, 0, 0},         {6, 2, true, 0, 0},  {6, 1, true, -1000, -1000},
                {10, 0, true, -1000, -1000}};
    for (const Row& r : rows) {
        SCOPED_TRACE(std::to_string(r.major) + "." + std::to_string(r.minor));
        const HidingPlace place = HidingPlaceFor(r.major, r.minor);
        EXPECT_EQ(r.move, place.move);
        if (r.move) {
            EXPECT_EQ(r.x, place.x);
            EXPECT_EQ(r.y, place.y);
        }
    }
}

TEST(TreeComboRules, EditFieldHeldToSelectionOnlyWhileOpenWithTree) {
    EXPECT_TRUE(MustShowSelection(true, true, VU_T("typed"), VU_T("Motor")));
    EXPECT_FALSE(MustShowSelection(true, true, VU_T("Motor"), VU_T("Motor")));
    EXPECT_FALSE(MustShowSelection(true, false, VU_T("typed"), VU_T("Motor")));
    EXPECT_FALSE(MustShowSelection(false, true, VU_T("typed"), VU_T("Motor")));
}

// ---- Look-ahead completion ------------------------------------------------------

TEST(LookAheadCompletion, OnlyPrintableCharactersAtTheEndLookUp) {
    struct Row {
        const char* name;
        WCHAR typed;
        int selStart, selEnd, length;
        bool expected;
    } rows[] = {
        {"letter at the end", VU_T('m'), 3, 3, 3, true},
        {"space at the end", VU_T(' '), 4, 4, 4, true},
        {"backspace", 8, 2, 2, 2, false},
        {"ctrl+a", 1, 0, 3, 3, false},
        {"DEL", 0x7F, 3, 3, 3, false},
        {"typed in the middle", VU_T('x'), 2, 2, 5, false},
        {"a selection left after the edit", VU_T('x'), 1, 3, 3, false},
        {"empty field", VU_T('x'), 0, 0, 0, false},
        {"non-ASCII letter", 0x00E9, 1, 1, 1, true},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        EXPECT_EQ(r.expected,
                  VU_CLookAheadCompletion::ShouldLookUp(r.typed, r.selStart, r.selEnd, r.length));
    }
}

TEST(LookAheadCompletion, CompletesWithTheItemsTextAndSelectsTheTail) {
    auto done = VU_CLookAheadCompletion::Complete(VU_T("mot"), VU_T("Motor_Start"));
    ASSERT_TRUE(done.has_value());
    EXPECT_TRUE(done->text == VU_T("Motor_Start"));
    EXPECT_EQ(3, done->selStart);
    EXPECT_EQ(11, done->selEnd);

    // Case beyond ASCII is blind too.
    EXPECT_TRUE(VU_CLookAheadCompletion::Complete(VU_T("\u00c9t"), VU_T("\u00e9tat")).has_value());

    struct Row {
        const char* name;
        const WCHAR* typed;
        const WCHAR* item;
    } refused[] = {
        {"item equal to the typed text", VU_T("Motor"), VU_T("motor")},
        {"item shorter", VU_T("Motors"), VU_T("Motor")},
        {"item not starting with it", VU_T("Mx"), VU_T("Motor")},
        {"nothing typed", VU_T(""), VU_T("Motor")},
    };
    for (const Row& r : refused) {
        SCOPED_TRACE(r.name);
        EXPECT_FALSE(VU_CLookAheadCompletion::Complete(r.typed, r.item).has_value());
    }
}

TEST(LookAheadCompletion, ProposedTailIsTheSelectionRunningToTheEnd) {
    const vu::StringView text = VU_T("Motor_Start");
    EXPECT_TRUE(VU_CLookAheadCompletion::ProposedTail(text, 3, 11) == VU_T("or_Start"));
    EXPECT_TRUE(VU_CLookAheadCompletion::ProposedTail(text, 11, 3) == VU_T("or_Start"));
    EXPECT_TRUE(VU_CLookAheadCompletion::ProposedTail(text, 3, 5).empty());
    EXPECT_TRUE(VU_CLookAheadCompletion::ProposedTail(text, 11, 11).empty());
    EXPECT_TRUE(VU_CLookAheadCompletion::ProposedTail(text, -1, 11).empty());
    EXPECT_TRUE(VU_CLookAheadCompletion::ProposedTail(text, 3, 40).empty());
}

} // namespace

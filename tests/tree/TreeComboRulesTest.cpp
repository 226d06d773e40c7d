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
        {"left of a level-2 column", false, true, 31, 2, true, true, DropClick::Default},
        {"leaf's column does not toggle", false, true, 5, 0, false, true, DropClick::Default},
        {"refused leaf is ignored", false, true, 40, 1, false, false, DropClick::Ignore},
        {"refused parent still toggles", false, true, 20, 1, true, false, DropClick::Toggle},
        {"scroll bar always goes through", true, true, 5, 0, true, false, DropClick::Default},
        {"below the rows goes through", false, false, 5, 0, true, false, DropClick::Default},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        EXPECT_EQ(r.expected, ClassifyDropClick(r.onScrollBar, r.onRow, r.x, r.level, r.hasChildren,
                                                r.selectable));
    }
}

TEST(LookAheadCompletion, PrintableCharactersAtTheEndCompleteToTheItemsText) {
    struct Row {
        const char* name;
        WCHAR typed;
        int selStart, selEnd, length;
        bool expected;
    } rows[] = {
        {"letter at the end", VU_T('m'), 3, 3, 3, true},
        {"backspace", 8, 2, 2, 2, false},
        {"typed in the middle", VU_T('x'), 2, 2, 5, false},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        EXPECT_EQ(r.expected,
                  VU_CLookAheadCompletion::ShouldLookUp(r.typed, r.selStart, r.selEnd, r.length));
    }

    auto done = VU_CLookAheadCompletion::Complete(VU_T("\u00c9t"), VU_T("\u00e9tat_Run"));
    ASSERT_TRUE(done.has_value()) << "case-blind beyond ASCII";
    EXPECT_TRUE(done->text == VU_T("\u00e9tat_Run"));
    EXPECT_EQ(2, done->selStart);
    EXPECT_EQ(8, done->selEnd);
    // Typed and item: equal but for case, item shorter, no common start, nothing typed.
    const WCHAR* refused[][2] = {{VU_T("Motor"), VU_T("motor")},
                                 {VU_T("Motors"), VU_T("Motor")},
                                 {VU_T("Mx"), VU_T("Motor")},
                                 {VU_T(""), VU_T("Motor")}};
    for (size_t i = 0; i < std::size(refused); ++i) {
        SCOPED_TRACE("refused case " + std::to_string(i));
        EXPECT_FALSE(VU_CLookAheadCompletion::Complete(refused[i][0], refused[i][1]).has_value());
    }
}

} // namespace

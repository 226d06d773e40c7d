// The message box's arithmetic with a fixed fake font: constants, button
// widths, the centred row and the prompt's growth.
#include "dialogs/DialogLayout.h"

#include "FakeMeasuring.h"

#include <gtest/gtest.h>

namespace {

CStringArray Captions(std::initializer_list<const WCHAR*> texts) {
    CStringArray a;
    for (const WCHAR* t : texts)
        a.Add(CString(t));
    return a;
}

TEST(DialogLayout, ConstantsUseIntegerDivisionOfEachAxis) {
    struct Row {
        const char* name;
        int baseX, baseY, minWidth, height, gap, marginX, marginY;
    } rows[] = {
        {"MS Sans Serif 8 at 96 dpi", 6, 13, 43, 22, 7, 10, 11},
        {"120 dpi", 8, 16, 58, 28, 10, 14, 14},
        {"axes swapped catch a mixed-up axis", 13, 6, 94, 10, 16, 22, 5},
        {"zero base units", 0, 0, 0, 0, 0, 0, 0},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        AF_CDialogLayout layout;
        layout.CalcConstants(r.baseX, r.baseY);
        EXPECT_EQ(r.minWidth, layout.m_nMinButtonWidth);
        EXPECT_EQ(r.height, layout.m_nButtonHeight);
        EXPECT_EQ(r.gap, layout.m_nButtonGap);
        EXPECT_EQ(r.marginX, layout.m_nMarginX);
        EXPECT_EQ(r.marginY, layout.m_nMarginY);
    }
}

TEST(DialogLayout, ButtonIsCaptionPlusSixteenOrTheMinimum) {
    // Minimum 43: captions up to 27 pixels get 43, wider ones their width + 16.
    struct Row {
        const char* name;
        const WCHAR* caption;
        unsigned expected;
    } rows[] = {
        {"empty", VU_T(""), 43},
        {"narrow", VU_T("OK"), 43},
        {"27: at the limit", VU_T("iiiiiiiii"), 43},
        {"28: one past", VU_T("Waaii"), 44},
        {"wide", VU_T("Yes To All"), 76},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        AF_CDialogLayout layout;
        layout.CalcConstants(6, 13);
        FakeMeasuring m;
        layout.CalcButtonWidths(Captions({r.caption}), m);
        ASSERT_EQ(1, layout.m_buttonWidths.GetSize());
        EXPECT_EQ(r.expected, layout.m_buttonWidths[0]);
    }
}

TEST(DialogLayout, RowIsCentredAtTheBottomWithGapsAndMargins) {
    AF_CDialogLayout layout;
    layout.CalcConstants(6, 13);
    FakeMeasuring m;
    layout.CalcButtonWidths(Captions({VU_T("OK"), VU_T("Yes To All"), VU_T("Cancel")}),
                            m); // 43, 76, 52
    EXPECT_EQ(43 + 76 + 52 + 2 * 7 + 2 * 10, layout.CalcMinClientWidthForButtons());
    EXPECT_EQ(205 + 6, layout.CalcMinDlgWidthForButtons(m));

    const std::vector<CRect> rects = layout.CalcButtonRects(CSize(300, 120));
    ASSERT_EQ(3u, rects.size());
    EXPECT_EQ(CRect(57, 87, 100, 109), rects[0]); // (300 - 205) / 2 + 10
    EXPECT_EQ(rects[0].right + 7, rects[1].left);
    EXPECT_EQ(rects[1].right + 7, rects[2].left);
    EXPECT_EQ(300 - rects[2].right, rects[0].left + 1) << "the odd pixel goes right";

    layout.CalcButtonWidths(CStringArray(), m);
    EXPECT_EQ(20, layout.CalcMinClientWidthForButtons()) << "no buttons: the margins only";
    EXPECT_TRUE(layout.CalcButtonRects(CSize(300, 120)).empty());
}

TEST(DialogLayout, PromptGrowsOnOneLineUntilTheLimitThenWraps) {
    const CRect control(0, 0, 150, 21); // 100 x 14 units at 6 x 13
    const CString word(VU_T("abcde ")); // 36 pixels
    CString longPrompt;                 // 720 pixels
    for (int i = 0; i < 20; ++i)
        longPrompt += word;
    struct Row {
        const char* name;
        CString text;
        int workArea;
        CSize expected;
    } rows[] = {
        {"short: no growth", VU_T("Save?"), 1000, {0, 0}},
        {"wider than the control, under the limit", CString(VU_T('a'), 30), 1000, {30, 0}},
        {"two lines by a line break", VU_T("one\ntwo"), 1000, {0, 5}},
        // Words of 36 pixels with their space: 15 to a line of 550 (534 wide).
        {"wraps at 55 % of 1000", longPrompt, 1000, {534 - 150, 2 * 13 - 21}},
        {"55 % of 970 truncates to 533: 14 words", longPrompt, 970, {498 - 150, 2 * 13 - 21}},
        {"narrow work area: 6 words a line", longPrompt, 400, {210 - 150, 4 * 13 - 21}},
        {"empty", VU_T(""), 1000, {0, 0}},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        FakeMeasuring m;
        m.workArea = r.workArea;
        EXPECT_EQ(r.expected, AF_CDialogLayout::CalcTextControlDxDy(r.text, control, m));
    }
}

TEST(DialogLayout, DialogKeepsItsSizeUnlessThePromptOrTheButtonsNeedMore) {
    AF_CDialogLayout layout;
    layout.CalcConstants(6, 13);
    FakeMeasuring m;
    layout.CalcButtonWidths(Captions({VU_T("OK")}), m);
    EXPECT_EQ(CSize(231, 101), layout.CalcDialogSize(CSize(231, 101), CSize(0, 0), m));
    EXPECT_EQ(CSize(261, 114), layout.CalcDialogSize(CSize(231, 101), CSize(30, 13), m));
    layout.CalcButtonWidths(Captions({VU_T("Yes To All"), VU_T("Yes To All"), VU_T("Yes To All")}),
                            m);
    EXPECT_EQ(CSize(3 * 76 + 2 * 7 + 20 + 6, 101),
              layout.CalcDialogSize(CSize(231, 101), CSize(0, 0), m));
}

} // namespace

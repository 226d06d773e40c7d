// The message box's and the save-options box's arithmetic, with the fixed
// fake font at base units 6 x 13.
#include "dialogs/DialogLayout.h"
#include "dialogs/SaveOptionsLayout.h"

#include "FakeMeasuring.h"

#include <gtest/gtest.h>

namespace {

AF_CDialogLayout Layout(std::initializer_list<const WCHAR*> captions) {
    AF_CDialogLayout layout;
    layout.CalcConstants(6, 13);
    CStringArray a;
    for (const WCHAR* c : captions)
        a.Add(CString(c));
    FakeMeasuring m;
    layout.CalcButtonWidths(a, m);
    return layout;
}

TEST(DialogLayout, ButtonsAreCaptionPlusSixteenOrTheMinimumInACentredRow) {
    // At 6 x 13: minimum 43, gap 7, margins 10 and 11, height 22 (each axis its
    // own base unit). Captions up to 27 pixels get 43: "iiiiiiiii" is 27, "Waaii" 28.
    const AF_CDialogLayout l =
        Layout({VU_T(""), VU_T("iiiiiiiii"), VU_T("Waaii"), VU_T("Yes To All")});
    EXPECT_EQ((std::vector<UINT>{43, 43, 44, 76}),
              (std::vector<UINT>(l.m_buttonWidths.GetData(), l.m_buttonWidths.GetData() + 4)));
    const int minClient = 43 + 43 + 44 + 76 + 3 * 7 + 2 * 10;
    EXPECT_EQ(minClient, l.CalcMinClientWidthForButtons());
    FakeMeasuring m;
    EXPECT_EQ(minClient + 6, l.CalcMinDlgWidthForButtons(m));
    const std::vector<CRect> rects = l.CalcButtonRects(CSize(300, 120));
    ASSERT_EQ(4u, rects.size());
    EXPECT_EQ(CRect(36, 87, 79, 109), rects[0]); // (300 - 247) / 2 + 10, bottom 120 - 11
    EXPECT_EQ(300 - 37, rects[3].right) << "gaps of 7; the odd pixel goes right";
    EXPECT_EQ(20, Layout({}).CalcMinClientWidthForButtons()) << "no buttons: the margins";
}

TEST(DialogLayout, PromptGrowsOnOneLineUpToFiftyFivePercentThenWraps) {
    const CRect control(0, 0, 150, 21);
    CString words; // 20 words of 36 pixels with their space: 720 pixels
    for (int i = 0; i < 20; ++i)
        words += VU_T("abcde ");
    struct Row {
        const char* name;
        CString text;
        int workArea;
        CSize expected;
    } rows[] = {
        {"short", VU_T("Save?"), 1000, {0, 0}},
        {"wider than the control, within the limit", CString(VU_T('a'), 30), 1000, {30, 0}},
        {"a line break", VU_T("one\ntwo"), 1000, {0, 5}},
        {"wraps at 550: 15 words a line", words, 1000, {534 - 150, 5}},
        {"55 % of 970 truncates to 533: 14 words", words, 970, {498 - 150, 5}},
        {"wraps at 220: 6 words a line", words, 400, {210 - 150, 4 * 13 - 21}},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        FakeMeasuring m;
        m.workArea = r.workArea;
        EXPECT_EQ(r.expected, AF_CDialogLayout::CalcTextControlDxDy(r.text, control, m));
    }
}

TEST(SaveOptionsLayout, GrowsAroundThePromptWithTheButtonsCentredUnderIt) {
    const CRect control(50, 15, 350, 45); // centred over the buttons at x 200
    EXPECT_EQ(CSize(0, 0), Vu_CSaveOptionsLayout::CalcGrowth(control, {50, 15, 300, 41}, 5));
    // A path 21 pixels too wide on three lines: the excess and two average
    // characters wider, 9 pixels taller.
    const CSize growth = Vu_CSaveOptionsLayout::CalcGrowth(control, {50, 15, 371, 54}, 5);
    EXPECT_EQ(CSize(31, 9), growth);
    CRect dialog(100, 100, 500, 220), prompt = control;
    std::vector<CRect> buttons{CRect(40, 80, 115, 102), CRect(285, 80, 360, 102)};
    Vu_CSaveOptionsLayout::Apply(growth, dialog, prompt, buttons);
    EXPECT_EQ(CRect(85, 96, 516, 225), dialog) << "half each side";
    EXPECT_EQ(CRect(50, 15, 381, 54), prompt);
    EXPECT_EQ(CRect(55, 89, 130, 111), buttons[0]);
    EXPECT_EQ(prompt.CenterPoint().x, (buttons[0].left + buttons[1].right) / 2);
}

} // namespace

// Values cut to their width, and the save-options box's growth.
#include "dialogs/SaveOptionsLayout.h"
#include "dialogs/TextTruncation.h"

#include "FakeMeasuring.h"

#include <gtest/gtest.h>

namespace {

TEST(TextTruncation, CutsTheEndOrTheStartToFit) {
    const CString path(VU_T("Line3_Packer.Motors.M1")); // 129 pixels
    struct Row {
        const char* name;
        CString text;
        int width;
        bool keepEnd;
        const WCHAR* expected;
    } rows[] = {
        {"fits exactly", path, 129, false, VU_T("Line3_Packer.Motors.M1")},
        {"one pixel short", path, 128, false, VU_T("Line3_Packer.Motor...")},
        {"start kept", path, 60, false, VU_T("Line3_P...")},
        {"end kept", path, 60, true, VU_T("...tors.M1")},
        {"room for the dots only", path, 20, true, VU_T("...")},
        {"no room for the dots", path, 17, false, VU_T("")},
        {"empty text", VU_T(""), 0, false, VU_T("")},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        FakeMeasuring m;
        const CString cut = VuTruncateText(r.text, r.width, r.keepEnd, m);
        EXPECT_EQ(CString(r.expected), cut);
        EXPECT_LE(m.GetTextExtent(cut).cx, std::max(r.width, 0));
    }
}

TEST(SaveOptionsLayout, GrowsAroundThePromptAndKeepsTheButtonsCentred) {
    const CRect control(50, 15, 350, 45);
    struct Row {
        const char* name;
        CRect measured;
        CSize expected;
    } rows[] = {
        {"fits", CRect(50, 15, 300, 41), {0, 0}},
        {"three lines", CRect(50, 15, 350, 54), {0, 9}},
        {"a path wider than the control", CRect(50, 15, 371, 41), {21 + 10, 0}},
        {"both", CRect(50, 15, 360, 67), {10 + 10, 22}},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        const CSize growth = Vu_CSaveOptionsLayout::CalcGrowth(control, r.measured, 5);
        EXPECT_EQ(r.expected, growth);

        CRect dialog(100, 100, 500, 220), prompt = control;
        std::vector<CRect> buttons{CRect(40, 80, 115, 102), CRect(285, 80, 360, 102)};
        const int gapsBefore = buttons[0].left - prompt.left - (prompt.right - buttons[1].right);
        Vu_CSaveOptionsLayout::Apply(growth, dialog, prompt, buttons);
        EXPECT_EQ(400 + growth.cx, dialog.Width());
        EXPECT_EQ(120 + growth.cy, dialog.Height());
        EXPECT_LE(std::abs(dialog.CenterPoint().y - 160), 1) << "half above, half below";
        EXPECT_EQ(control.Width() + growth.cx, prompt.Width());
        EXPECT_EQ(80 + growth.cy, buttons[0].top);
        const int gapsAfter = buttons[0].left - prompt.left - (prompt.right - buttons[1].right);
        EXPECT_LE(std::abs(gapsAfter - gapsBefore), 1) << "still centred under the prompt";
        EXPECT_EQ(75, buttons[1].Width());
    }
}

} // namespace

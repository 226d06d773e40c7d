// The condition-action dialog's layout with the fake font at base units
// 6 x 13 (row step 13, small gap 4) on the template's geometry in pixels:
// label (11, 10, 59, 23), condition text (68, 10, 381, 33).
#include "dialogs/ConditionActionLayout.h"

#include "FakeMeasuring.h"

#include <gtest/gtest.h>

namespace {

struct Dialog {
    Dialog() {
        in.baseX = 6;
        in.baseY = 13;
        in.rcLabel = CRect(11, 10, 59, 23);
        in.rcCondition = CRect(68, 10, 381, 33);
        in.windowSize = CSize(399, 178);
        in.clientSize = CSize(393, 154);
        in.labelText = VU_T("Condition:"); // 54 pixels: 6 more than its control
        in.conditionText = VU_T("Motor M1 is running");
        in.captions.Add(CString(VU_T("Yes")));
        in.captions.Add(CString(VU_T("No")));
    }
    void Label(const WCHAR* text, bool group) { labels.Add(CStaticTextItem(text, group)); }
    void Warning(const CString& text, bool box) {
        warnings.SetSize(warnings.GetSize() + 1);
        warnings[warnings.GetUpperBound()].m_strText = text;
        warnings[warnings.GetUpperBound()].m_bHasCheckbox = box;
    }
    const AF_CConditionActionLayout& Run() {
        layout.Calculate(in, labels, values, warnings, m);
        return layout;
    }
    AF_CConditionActionLayout::Input in;
    CArray<CStaticTextItem> labels;
    CArray<CTruncStaticTextItem> values;
    CArray<CWarningItem> warnings;
    FakeMeasuring m;
    AF_CConditionActionLayout layout;
};

TEST(ConditionActionLayout, LabelsAndValuesBelowTheConditionLine) {
    for (bool visible : {true, false}) {
        SCOPED_TRACE(visible ? "condition shown" : "condition empty: as if it were there");
        Dialog d;
        d.in.conditionText = visible ? d.in.conditionText : CString();
        d.Label(VU_T("Tag"), true);
        d.Label(VU_T("Name:"), false);
        d.Label(VU_T("Type:"), false);
        d.Label(VU_T("Where"), true);
        d.Label(VU_T("Routine:"), false);
        d.values.Add(CTruncStaticTextItem(VU_T("Motor_M1"), false));
        d.values.Add(CTruncStaticTextItem(VU_T("BOOL"), false));
        const AF_CConditionActionLayout& l = d.Run();
        EXPECT_EQ(13, l.m_nRowStep) << "9 units converted with baseX";
        EXPECT_EQ(CRect(11, 10, 65, 23), l.m_rcLabel) << "widened by the label's excess";
        EXPECT_EQ(CRect(74, 10, 381, 33), l.m_rcCondition) << "its right edge stays";
        const int tops[] = {45, 62, 79, 100, 117}; // +17, +17, +21 before a group, +17
        const int lefts[] = {11, 74, 74, 11, 74};
        for (int i = 0; i < 5; ++i) {
            EXPECT_EQ(tops[i], d.labels[i].m_nTop) << i;
            EXPECT_EQ(lefts[i], d.labels[i].m_nLeft) << i;
        }
        ASSERT_EQ(2u, l.m_valueRects.size()); // right of "Routine:", the widest item label (45)
        EXPECT_EQ(CRect(74 + 45 + 7, 62, 381, 75), l.m_valueRects[0]);
        EXPECT_EQ(79, l.m_valueRects[1].top);
    }
    Dialog wide; // an item label that leaves less than a minimum button widens the dialog
    wide.Label(CString(VU_T('W'), 28), false);
    wide.values.Add(CTruncStaticTextItem(VU_T("1"), false));
    const AF_CConditionActionLayout& w = wide.Run();
    EXPECT_EQ(CRect(74 + 280 + 7, 45, 74 + 280 + 7 + 43, 58), w.m_valueRects[0]);
    EXPECT_EQ(399 + w.m_valueRects[0].right - 381, w.m_windowSize.cx);
}

TEST(ConditionActionLayout, WarningsStackBelowTheLabelsAndWrap) {
    Dialog d;
    d.Label(VU_T("Tag"), true);
    d.Warning(VU_T("Outputs change state."), false);
    CString long342; // 342 pixels: fits 347, not the 330 beside a check box
    for (int i = 0; i < 9; ++i)
        long342 += VU_T("abcde ");
    d.Warning(long342 + VU_T("end"), true);
    d.Warning(VU_T("Last"), false);
    const AF_CConditionActionLayout& l = d.Run();
    ASSERT_EQ(3u, l.m_warningPositions.size());
    EXPECT_EQ(CRect(11, 70, 27, 86), l.m_warningPositions[0].m_rcIcon); // 45 + 13 + 3 gaps
    EXPECT_EQ(CRect(34, 71, 381, 84), l.m_warningPositions[0].m_rcText) << "centred on the icon";
    EXPECT_EQ(CRect(34, 90, 381, 116), l.m_warningPositions[1].m_rcText) << "two lines";
    EXPECT_EQ(120, l.m_warningPositions[2].m_rcIcon.top) << "below the taller text";
}

TEST(ConditionActionLayout, PromptAndHeightFollowTheLowestPart) {
    struct Row {
        const char* name;
        bool condition, label, warning, prompt;
        int promptTop; // -1: no prompt
        int lowest;    // what the height counts from
    } rows[] = {
        {"prompt after a warning", true, true, true, true, 84 + 26, 110 + 13},
        {"prompt after a label", true, true, false, true, 45 + 26, 71 + 13},
        {"prompt after the condition", true, false, false, true, 33 + 26, 59 + 13},
        {"prompt at a hidden condition's top", false, false, false, true, 10, 23},
        {"no prompt: the warning icon's bottom", true, true, true, false, -1, 86},
        {"no prompt: the last label's top", true, true, false, false, -1, 45},
        {"nothing: the condition's bottom", false, false, false, false, -1, 33},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        Dialog d;
        d.in.conditionText = r.condition ? d.in.conditionText : CString();
        if (r.label)
            d.Label(VU_T("Tag"), true);
        if (r.warning)
            d.Warning(VU_T("Careful"), false);
        d.in.promptText = r.prompt ? VU_T("Continue?") : VU_T("");
        const AF_CConditionActionLayout& l = d.Run();
        EXPECT_EQ(r.prompt ? CRect(74, r.promptTop, 381, r.promptTop + 13) : CRect(), l.m_rcPrompt);
        EXPECT_EQ(r.lowest - 10 + 22 + 18 + 3 * 22, l.m_windowSize.cy);
        ASSERT_EQ(2u, l.m_buttonRects.size());
        EXPECT_EQ(154 + l.m_windowSize.cy - 178 - 11, l.m_buttonRects[0].bottom);
    }
}

} // namespace

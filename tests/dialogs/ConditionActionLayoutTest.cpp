// The condition-action dialog's layout with the fake font at base units
// 6 x 13 (row step 13, small gap 4) on the template's geometry in pixels.
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
        CWarningItem w;
        w.m_strText = text;
        w.m_bHasCheckbox = box;
        warnings.Add(w);
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

TEST(ConditionActionLayout, WiderLabelTakesItsRoomFromTheConditionText) {
    Dialog d;
    const AF_CConditionActionLayout& l = d.Run();
    EXPECT_EQ(13, l.m_nRowStep) << "9 units converted with baseX";
    EXPECT_EQ(4, l.m_nSmallGap);
    EXPECT_EQ(CRect(11, 10, 65, 23), l.m_rcLabel);
    EXPECT_EQ(CRect(74, 10, 381, 33), l.m_rcCondition) << "the right edge stays";
    EXPECT_EQ(CSize(399, 33 - 10 + 22 + 18 + 3 * 22), l.m_windowSize);
}

TEST(ConditionActionLayout, LabelTopsStepWithAnExtraGapBeforeEachGroup) {
    for (bool visible : {true, false}) {
        SCOPED_TRACE(visible ? "condition shown" : "condition empty: as if it were there");
        Dialog d;
        if (!visible)
            d.in.conditionText = VU_T("");
        d.Label(VU_T("Tag"), true);
        d.Label(VU_T("Name:"), false);
        d.Label(VU_T("Type:"), false);
        d.Label(VU_T("Where"), true);
        d.Label(VU_T("Routine:"), false);
        const AF_CConditionActionLayout& l = d.Run();
        EXPECT_EQ(visible, l.m_bConditionVisible);
        const int tops[] = {45, 62, 79, 100, 117};
        const int lefts[] = {11, 74, 74, 11, 74};
        for (int i = 0; i < 5; ++i) {
            EXPECT_EQ(tops[i], d.labels[i].m_nTop) << i;
            EXPECT_EQ(lefts[i], d.labels[i].m_nLeft) << i;
        }
    }
}

TEST(ConditionActionLayout, ValuesStandRightOfTheWidestItemLabel) {
    Dialog d;
    d.Label(VU_T("Tag"), true);
    d.Label(VU_T("Name:"), false);
    d.Label(VU_T("Routine:"), false); // 45 pixels
    d.values.Add(CTruncStaticTextItem(VU_T("Motor_M1"), false));
    d.values.Add(CTruncStaticTextItem(VU_T("MainRoutine"), false));
    d.values.Add(CTruncStaticTextItem(VU_T("no label left"), false));
    const AF_CConditionActionLayout& l = d.Run();
    ASSERT_EQ(2u, l.m_valueRects.size()) << "a value without an item label is not placed";
    EXPECT_EQ(CRect(126, 62, 381, 75), l.m_valueRects[0]);
    EXPECT_EQ(CRect(126, 79, 381, 92), l.m_valueRects[1]);

    // An item label that leaves less than a minimum button widens the dialog.
    Dialog wide;
    wide.Label(CString(VU_T('W'), 28), false); // 280 pixels
    wide.values.Add(CTruncStaticTextItem(VU_T("1"), false));
    const AF_CConditionActionLayout& w = wide.Run();
    ASSERT_EQ(1u, w.m_valueRects.size());
    EXPECT_EQ(74 + 280 + 7, w.m_valueRects[0].left);
    EXPECT_EQ(43, w.m_valueRects[0].Width());
    EXPECT_EQ(399 + w.m_valueRects[0].right - 381, w.m_windowSize.cx);
    EXPECT_EQ(393 + w.m_valueRects[0].right - 381, w.m_clientSize.cx);
}

TEST(ConditionActionLayout, WarningsStackBelowTheLabelsAndWrap) {
    Dialog d;
    d.Label(VU_T("Tag"), true);
    d.Warning(VU_T("Outputs change state."), false);
    d.Warning(CString(VU_T("abcde ")) + CString(VU_T("abcde ")) + CString(VU_T("abcde ")) +
                  CString(VU_T("abcde ")) + CString(VU_T("abcde ")) + CString(VU_T("abcde ")) +
                  CString(VU_T("abcde ")) + CString(VU_T("abcde ")) + CString(VU_T("abcde ")) +
                  VU_T("end"),
              true);
    d.Warning(VU_T("Last"), false);
    const AF_CConditionActionLayout& l = d.Run();
    ASSERT_EQ(3u, l.m_warningPositions.size());
    const CWarningPosition& first = l.m_warningPositions[0];
    EXPECT_EQ(CRect(11, 45 + 13 + 12, 27, 86), first.m_rcIcon);
    EXPECT_EQ(CRect(34, 71, 381, 84), first.m_rcText) << "one line centred on the icon";
    // 330 pixels of text beside a 17-pixel box in 347: two lines.
    const CWarningPosition& second = l.m_warningPositions[1];
    EXPECT_EQ(90, second.m_rcIcon.top);
    EXPECT_EQ(CRect(34, 90, 381, 116), second.m_rcText);
    EXPECT_EQ(120, l.m_warningPositions[2].m_rcIcon.top) << "below the taller text, not the icon";
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
        {"only the condition", true, false, false, false, -1, 33},
        {"nothing at all", false, false, false, false, -1, 33},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        Dialog d;
        if (!r.condition)
            d.in.conditionText = VU_T("");
        if (r.label)
            d.Label(VU_T("Tag"), true);
        if (r.warning)
            d.Warning(VU_T("Careful"), false);
        if (r.prompt)
            d.in.promptText = VU_T("Continue?");
        const AF_CConditionActionLayout& l = d.Run();
        EXPECT_EQ(r.promptTop, r.prompt ? l.m_rcPrompt.top : -1);
        if (r.prompt) {
            EXPECT_EQ(CRect(74, r.promptTop, 381, r.promptTop + 13), l.m_rcPrompt);
        }
        EXPECT_EQ(r.lowest - 10 + 22 + 18 + 3 * 22, l.m_windowSize.cy);
        EXPECT_EQ(154 + l.m_windowSize.cy - 178, l.m_clientSize.cy);
        ASSERT_EQ(2u, l.m_buttonRects.size());
        EXPECT_EQ(l.m_clientSize.cy - 11, l.m_buttonRects[0].bottom);
    }
}

} // namespace

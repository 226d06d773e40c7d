// The condition-action dialog's layout with the fake font at base units
// 6 x 13 (row step 13, small gap 4) on the template's geometry in pixels:
// label (11, 10, 59, 23), condition text (68, 10, 381, 33).
#include "dialogs/ConditionActionLayout.h"

#include "FakeMeasuring.h"

#include <gtest/gtest.h>

namespace {

struct Dialog {
    Dialog() {
        in = {6,          13,         {11, 10, 59, 23},   {68, 10, 381, 33},
              {399, 178}, {393, 154}, VU_T("Condition:"), VU_T("Motor M1 is running"),
              {},         {}}; // the label needs 6 more pixels than its control
        in.captions.Add(CString(VU_T("Yes")));
        in.captions.Add(CString(VU_T("No")));
    }
    // Item labels end in a colon; the others are group labels.
    void Labels(std::initializer_list<CString> texts) {
        for (const CString& t : texts)
            labels.Add(CStaticTextItem(t, t.Right(1) != VU_T(":")));
    }
    void Warning(const CString& text, bool box) { warnings.Add(CWarningItem{text, box}); }
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
    Dialog d;
    d.Labels({VU_T("Tag"), VU_T("Name:"), VU_T("Type:"), VU_T("Where"), VU_T("Routine:")});
    d.values.Add(CTruncStaticTextItem(VU_T("Motor_M1"), false));
    d.values.Add(CTruncStaticTextItem(VU_T("BOOL"), false));
    const AF_CConditionActionLayout& l = d.Run();
    EXPECT_EQ(13, l.m_nRowStep) << "9 units converted with baseX";
    EXPECT_EQ(CRect(11, 10, 65, 23), l.m_rcLabel) << "widened by the label's excess";
    EXPECT_EQ(CRect(74, 10, 381, 33), l.m_rcCondition) << "its right edge stays";
    std::vector<CPoint> at; // tops +17, +17, +21 before a group, +17
    for (INT_PTR i = 0; i < d.labels.GetSize(); ++i)
        at.emplace_back(d.labels[i].m_nLeft, d.labels[i].m_nTop);
    EXPECT_EQ((std::vector<CPoint>{{11, 45}, {74, 62}, {74, 79}, {11, 100}, {74, 117}}), at);
    ASSERT_EQ(2u, l.m_valueRects.size()); // right of "Routine:", the widest item label (45)
    EXPECT_EQ(CRect(74 + 45 + 7, 62, 381, 75), l.m_valueRects[0]);
}

TEST(ConditionActionLayout, WarningsStackBelowTheLabelsAndWrap) {
    Dialog d;
    d.Labels({VU_T("Tag")});
    d.Warning(VU_T("Outputs change state."), false);
    // 342 pixels: fits the 347 of a text, not the 330 beside a check box.
    d.Warning(VU_T("abcde abcde abcde abcde abcde abcde abcde abcde abcde end"), true);
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
            d.Labels({VU_T("Tag")});
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

// The condition-action dialog: check boxes, help and buttons by real input,
// its controls where the layout puts them, and its set-up results.
#include "RealInput.h"

#include "dialogs/win/ConditionActionDlg.h"

#include <gtest/gtest.h>

namespace {

// Checks the controls against the layout and the enablers once the
// controls exist (button 7 and box 2501 were disabled before).
class CheckedDlg : public AF_CConditionActionDlg {
public:
    BOOL OnInitDialog() override {
        AF_CConditionActionDlg::OnInitDialog();
        CRect window;
        GetWindowRect(&window);
        EXPECT_EQ(m_layout.m_windowSize, window.Size());
        for (const auto& label : m_labelCtrls)
            labelTops.push_back(Rect(*label).top);
        for (size_t i = 0; i < m_valueCtrls.size(); ++i) {
            EXPECT_EQ(m_layout.m_valueRects[i], Rect(*m_valueCtrls[i]));
            shown.push_back(m_valueCtrls[i]->GetDisplayedText());
        }
        for (size_t i = 0; i < m_warningTexts.size(); ++i)
            EXPECT_EQ(m_layout.m_warningPositions[i].m_rcText, Rect(*m_warningTexts[i]));
        EXPECT_EQ(m_layout.m_rcPrompt, Rect(m_wndPrompt));
        conditionShown = (m_wndConditionText.GetStyle() & WS_VISIBLE) != 0;
        EXPECT_EQ(conditionShown, (m_wndConditionLabel.GetStyle() & WS_VISIBLE) != 0);
        for (bool after : {false, true}) {
            EXPECT_EQ(after, ::IsWindowEnabled(::GetDlgItem(m_hWnd, 7)) != 0);
            EXPECT_EQ(after, ::IsWindowEnabled(::GetDlgItem(m_hWnd, 2501)) != 0);
            EnableButton(7, true);
            EnableCheckbox(2501, true);
        }
        if (closeAtOnce)
            ::EndDialog(m_hWnd, 1234);
        return TRUE;
    }
    CRect Rect(const CWnd& w) const { return vutest::ChildRect(m_hWnd, w.m_hWnd); }
    // Records each box and its state as stored when the callback runs.
    static int OnCheck(unsigned id, void* self) {
        auto* dlg = static_cast<CheckedDlg*>(self);
        dlg->checks.emplace_back(id, dlg->IsWarningCheckboxChecked(id));
        return 1;
    }
    std::vector<std::pair<unsigned, bool>> checks;
    bool closeAtOnce = false, conditionShown = false;
    std::vector<int> labelTops;
    std::vector<CString> shown;
};

// A condition, one group of two values, two warnings with check boxes (the
// second checked), a prompt, and Yes and No.
void Fill(CheckedDlg& dlg, const wchar_t* condition) {
    dlg.SetTitle(L"Condition dialog");
    dlg.SetConditionText(condition);
    dlg.AddGroupLabelAndItemLabels(IDS_T_GROUP, IDS_T_NAME, IDS_T_TYPE, 0);
    dlg.AddGroupItemValue(L"Line3_Packer.Motors.M1.Command.Output.Speed_Reference", true);
    dlg.AddGroupItemValue(L"MOTOR_CONTROL", false);
    dlg.AddWarning(IDS_T_WARN_OUTPUTS, true, 2501, false);
    dlg.AddWarning(IDS_T_WARN_FORCES, true, 2502, true);
    dlg.SetPromptText(L"Stop the motor now?");
    dlg.SetButtonStringIDs(IDS_T_YES, IDS_T_NO, 0);
    dlg.SetButtonCmdIDs(6, 7, 0);
    dlg.SetHelpContext(77);
    dlg.EnableButton(7, false);
    dlg.EnableCheckbox(2501, false);
}

TEST(ConditionActionInput, CheckBoxesHelpRefusedEscAndTheLayout) {
    vutest::HelpRecorder help;
    vutest::CallbackLog presses{{}, 9}; // help goes on to the host
    CheckedDlg dlg, empty;
    Fill(dlg, L"Motor_M1 is running in Remote Run mode.");
    dlg.SetButtonPressCallback(&vutest::CallbackLog::Callback, &presses);
    dlg.SetCheckboxClickCallback(&CheckedDlg::OnCheck, &dlg);
    const INT_PTR result = vutest::RunWithInput(dlg, L"Condition dialog", L"2501 2502 F1 Escape 6");
    EXPECT_EQ(6, result);
    EXPECT_EQ((std::vector<std::pair<unsigned, bool>>{{2501, true}, {2502, false}}), dlg.checks);
    EXPECT_TRUE(dlg.IsWarningCheckboxChecked(2501) && !dlg.IsWarningCheckboxChecked(2502));
    EXPECT_EQ((std::vector<unsigned>{9, 6}), presses.ids) << "Esc refused before the callback";
    EXPECT_EQ((std::vector<DWORD>{0x20000 + 77}), help.contexts);
    ASSERT_EQ(2u, dlg.shown.size());
    EXPECT_EQ(CString(L"..."), dlg.shown[0].Left(3)) << "the long value keeps its end";
    EXPECT_EQ(CString(L"Speed_Reference"), dlg.shown[0].Right(15));
    EXPECT_EQ(CString(L"MOTOR_CONTROL"), dlg.shown[1]);

    Fill(empty, L""); // no condition: its line hides, the rest stays where it was
    empty.closeAtOnce = true;
    ASSERT_EQ(1234, empty.DoModal());
    EXPECT_TRUE(dlg.conditionShown && !empty.conditionShown);
    EXPECT_EQ(dlg.labelTops, empty.labelTops);
}

TEST(ConditionActionSetup, AddersReportWhatTheyTook) {
    AF_CConditionActionDlg dlg;
    const std::tuple<UINT, bool, UINT, int> rows[] = {
        {IDS_T_WARN_OUTPUTS, true, 2500, 0}, {IDS_T_WARN_OUTPUTS, true, 2501, 1},
        {IDS_T_WARN_OUTPUTS, true, 2600, 1}, {IDS_T_WARN_OUTPUTS, true, 2601, 0},
        {IDS_T_WARN_FORCES, false, 7, 1},    {IDS_T_MISSING, true, 2510, 0}};
    for (const auto& [text, box, id, expected] : rows)
        EXPECT_EQ(expected, dlg.AddWarning(text, box, id, true)) << id;
    EXPECT_TRUE(dlg.IsWarningCheckboxChecked(2600) && !dlg.IsWarningCheckboxChecked(7));
    EXPECT_EQ(0, dlg.AddWarnings(IDS_T_WARN_FORCES, IDS_T_MISSING, 0));
    EXPECT_EQ(0, dlg.AddGroupLabelAndItemLabels(IDS_T_GROUP, IDS_T_MISSING, 0));
    EXPECT_FALSE(dlg.EnableCheckbox(2599, false) || dlg.EnableButton(6, false)) << "unknown ids";
}

} // namespace

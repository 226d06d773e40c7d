// The condition-action dialog: check boxes, help and buttons by real input;
// its set-up results; and its controls where the layout puts them.
#include "DialogTestStrings.h"
#include "DialogTestSupport.h"

#include "dialogs/win/ConditionActionDlg.h"
#include "resources/resource.h"

#include <gtest/gtest.h>

namespace {

// A dialog with a condition, one group of two values, two warnings with
// check boxes (the second checked), a prompt and Yes/No.
template <class Dlg> void Fill(Dlg& dlg, const wchar_t* title) {
    dlg.SetTitle(title);
    dlg.SetConditionText(L"Motor_M1 is running in Remote Run mode.");
    dlg.AddGroupLabelAndItemLabels(IDS_T_GROUP, IDS_T_NAME, IDS_T_TYPE, 0);
    dlg.AddGroupItemValue(L"Line3_Packer.Motors.M1.Command.Output.Speed_Reference", true);
    dlg.AddGroupItemValue(L"MOTOR_CONTROL", false);
    dlg.AddWarning(IDS_T_WARN_OUTPUTS, true, 2501, false);
    dlg.AddWarning(IDS_T_WARN_FORCES, true, 2502, true);
    dlg.SetPromptText(L"Stop the motor now?");
    dlg.SetButtonStringIDs(IDS_T_YES, IDS_T_NO, 0);
    dlg.SetButtonCmdIDs(6, 7, 0);
    dlg.SetHelpContext(77);
}

struct CheckLog {
    AF_CConditionActionDlg* dlg = nullptr;
    std::vector<unsigned> ids;
    std::vector<bool> seen; // the stored state when the callback runs
    static int Callback(unsigned id, void* user) {
        auto* log = static_cast<CheckLog*>(user);
        log->ids.push_back(id);
        log->seen.push_back(log->dlg->IsWarningCheckboxChecked(id));
        return 1;
    }
};

TEST(ConditionActionInput, CheckBoxesHelpAndARefusedButton) {
    vutest::HelpRecorder help;
    vutest::CallbackLog presses;
    presses.refuse = {6, 9};
    AF_CConditionActionDlg dlg;
    Fill(dlg, L"Real input condition");
    CheckLog checks;
    checks.dlg = &dlg;
    dlg.SetButtonPressCallback(&vutest::CallbackLog::Callback, &presses);
    dlg.SetCheckboxClickCallback(&CheckLog::Callback, &checks);
    INT_PTR result = 0;
    {
        vutest::InputScript script(L"Real input condition", [](HWND h) {
            return vutest::ClickOn(GetDlgItem(h, 2501)) + vutest::ClickOn(GetDlgItem(h, 2502)) +
                   vutest::KeyIn(h, L"F1") + vutest::KeyIn(h, L"Escape") +
                   vutest::ClickOn(GetDlgItem(h, 6)) + vutest::ClickOn(GetDlgItem(h, 7));
        });
        result = dlg.DoModal();
    }
    EXPECT_EQ(7, result);
    EXPECT_EQ((std::vector<unsigned>{2501, 2502}), checks.ids);
    EXPECT_EQ((std::vector<bool>{true, false}), checks.seen);
    EXPECT_TRUE(dlg.IsWarningCheckboxChecked(2501));
    EXPECT_FALSE(dlg.IsWarningCheckboxChecked(2502));
    EXPECT_FALSE(dlg.IsWarningCheckboxChecked(2503));
    EXPECT_EQ((std::vector<unsigned>{9, 6, 7}), presses.ids) << "Esc never reaches the callback";
    EXPECT_EQ((std::vector<DWORD>{0x20000 + 77}), help.contexts);
}

TEST(ConditionActionSetup, AddersAndSettersReportWhatTheyTook) {
    AF_CConditionActionDlg dlg;
    struct Row {
        const char* name;
        UINT text;
        bool box;
        UINT id;
        int expected;
    } rows[] = {
        {"box 2500 refused", IDS_T_WARN_OUTPUTS, true, 2500, 0},
        {"box 2501", IDS_T_WARN_OUTPUTS, true, 2501, 1},
        {"box 2600", IDS_T_WARN_OUTPUTS, true, 2600, 1},
        {"box 2601 refused", IDS_T_WARN_OUTPUTS, true, 2601, 0},
        {"no box: the id does not matter", IDS_T_WARN_FORCES, false, 7, 1},
        {"text missing", IDS_T_MISSING, true, 2510, 0},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        EXPECT_EQ(r.expected, dlg.AddWarning(r.text, r.box, r.id, true));
    }
    EXPECT_TRUE(dlg.IsWarningCheckboxChecked(2600)) << "added checked";
    EXPECT_FALSE(dlg.IsWarningCheckboxChecked(7));
    EXPECT_EQ(0, dlg.AddWarnings(IDS_T_WARN_FORCES, IDS_T_MISSING, 0));
    EXPECT_EQ(1, dlg.AddGroupLabelAndItemLabels(IDS_T_GROUP, IDS_T_NAME, 0));
    EXPECT_EQ(0, dlg.AddGroupLabelAndItemLabels(IDS_T_GROUP, IDS_T_MISSING, 0));
    EXPECT_EQ(0, dlg.SetTitle(IDS_T_MISSING));
    EXPECT_TRUE(dlg.EnableCheckbox(2501, false));
    EXPECT_FALSE(dlg.EnableCheckbox(2599, false));
    EXPECT_FALSE(dlg.EnableButton(6, false)) << "no command ids yet";
}

// Records the controls as OnInitDialog left them, tries EnableButton and
// EnableCheckbox afterwards, and closes before showing.
class InspectedDlg : public AF_CConditionActionDlg {
public:
    BOOL OnInitDialog() override {
        AF_CConditionActionDlg::OnInitDialog();
        GetWindowRect(&window);
        for (size_t i = 0; i < m_labelCtrls.size(); ++i)
            labels.push_back(ChildRect(*m_labelCtrls[i]));
        for (const auto& v : m_valueCtrls) {
            values.push_back(ChildRect(*v));
            shown.push_back(v->GetDisplayedText());
        }
        for (const auto& w : m_warningTexts)
            warnings.push_back(ChildRect(*w));
        prompt = m_wndPrompt.m_hWnd ? ChildRect(m_wndPrompt) : CRect();
        conditionShown = (m_wndConditionText.GetStyle() & WS_VISIBLE) != 0;
        labelShown = (m_wndConditionLabel.GetStyle() & WS_VISIBLE) != 0;
        box2502Checked = IsDlgButtonChecked(m_hWnd, 2502) == BST_CHECKED;
        enabledBefore = {::IsWindowEnabled(::GetDlgItem(m_hWnd, 7)) != 0,
                         ::IsWindowEnabled(::GetDlgItem(m_hWnd, 2501)) != 0};
        EnableButton(7, true);
        EnableCheckbox(2501, true);
        enabledAfter = {::IsWindowEnabled(::GetDlgItem(m_hWnd, 7)) != 0,
                        ::IsWindowEnabled(::GetDlgItem(m_hWnd, 2501)) != 0};
        closeGrey = vutest::CloseIsGrey(m_hWnd);
        layout = m_layout;
        ::EndDialog(m_hWnd, 1234);
        return TRUE;
    }
    CRect ChildRect(const CWnd& w) const {
        CRect rc;
        w.GetWindowRect(&rc);
        ScreenToClient(&rc);
        return rc;
    }
    CRect window, prompt;
    std::vector<CRect> labels, values, warnings;
    std::vector<CString> shown;
    bool conditionShown = false, labelShown = false, box2502Checked = false, closeGrey = false;
    std::vector<bool> enabledBefore, enabledAfter;
    AF_CConditionActionLayout layout;
};

TEST(ConditionActionLayout, ControlsStandWhereTheLayoutPutsThem) {
    InspectedDlg dlg;
    Fill(dlg, L"Inspected");
    dlg.EnableButton(7, false);
    dlg.EnableCheckbox(2501, false);
    ASSERT_EQ(1234, dlg.DoModal());
    const AF_CConditionActionLayout& l = dlg.layout;
    EXPECT_EQ(l.m_windowSize, dlg.window.Size());
    ASSERT_EQ(3u, dlg.labels.size());
    EXPECT_EQ(l.m_nRowStep, dlg.labels[1].Height());
    ASSERT_EQ(2u, dlg.values.size());
    EXPECT_EQ(l.m_valueRects[0], dlg.values[0]);
    EXPECT_EQ(l.m_valueRects[1], dlg.values[1]);
    EXPECT_EQ(dlg.labels[1].top, dlg.values[0].top) << "a value beside its label";
    EXPECT_LE(dlg.labels[2].right, dlg.values[1].left);
    EXPECT_EQ(CString(L"MOTOR_CONTROL"), dlg.shown[1]);
    EXPECT_EQ(CString(L"..."), dlg.shown[0].Left(3)) << "the long value keeps its end";
    EXPECT_EQ(CString(L"Speed_Reference"), dlg.shown[0].Right(15));
    ASSERT_EQ(2u, dlg.warnings.size());
    EXPECT_EQ(l.m_warningPositions[1].m_rcText, dlg.warnings[1]);
    EXPECT_GT(dlg.warnings[0].top, dlg.labels[2].bottom);
    EXPECT_EQ(l.m_rcPrompt, dlg.prompt);
    EXPECT_GT(dlg.prompt.top, dlg.warnings[1].bottom);
    EXPECT_TRUE(dlg.box2502Checked);
    EXPECT_TRUE(dlg.conditionShown && dlg.labelShown);
    EXPECT_EQ((std::vector<bool>{false, false}), dlg.enabledBefore) << "wishes applied";
    EXPECT_EQ((std::vector<bool>{true, true}), dlg.enabledAfter) << "enabled at once";
    EXPECT_TRUE(dlg.closeGrey) << "Yes and No: no cancel";

    InspectedDlg empty; // no condition: its line hides, the layout stays
    Fill(empty, L"Inspected");
    empty.SetConditionText(L"");
    ASSERT_EQ(1234, empty.DoModal());
    EXPECT_FALSE(empty.conditionShown || empty.labelShown);
    EXPECT_EQ(dlg.labels[0].top, empty.labels[0].top);
}

} // namespace

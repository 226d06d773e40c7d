// The dialogs: the message box with a long prompt and four buttons, the
// save-options box with a two-line prompt, and a condition-action dialog
// with groups of values, warnings and a prompt. Each runs modally as a
// host would run it; a timer takes its picture once it shows and closes it.
#include "DialogExhibitStrings.h"
#include "Gallery.h"

#include "dialogs/win/ConditionActionDlg.h"
#include "dialogs/win/MessageBox.h"
#include "dialogs/win/SaveOptionsMessageBox.h"
#include "resources/resource.h"

namespace gallery {
namespace {

const UINT_PTR kSnapshotTimer = 1;
const int kSnapshotResult = 4242;

// Runs a library dialog modally; once it shows, saves its picture, checks
// that its controls neither overlap nor leave its client area, and closes.
template <class Dlg> class Snapshot : public Dlg {
public:
    template <class... Args>
    Snapshot(Context& c, const wchar_t* name, const wchar_t* caption, Args&&... args)
        : Dlg(std::forward<Args>(args)...), m_context(c), m_name(name), m_caption(caption) {}

protected:
    BOOL OnInitDialog() override {
        const BOOL result = Dlg::OnInitDialog();
        this->SetTimer(kSnapshotTimer, 300);
        return result;
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_TIMER && wParam == kSnapshotTimer) {
            this->KillTimer(kSnapshotTimer);
            // The client area: without a window manager Wine leaves a
            // dialog's caption and frame undrawn.
            m_context.Check(m_context.SaveClientPng(this->m_hWnd, m_name, m_caption),
                            "saving the picture");
            CheckControls();
            Dlg::EndDialog(kSnapshotResult);
            return 0;
        }
        return Dlg::WindowProc(message, wParam, lParam);
    }

private:
    // Visible controls inside the client area and apart from each other.
    void CheckControls() {
        RECT client;
        ::GetClientRect(this->m_hWnd, &client);
        std::vector<RECT> rects;
        for (HWND h = ::GetWindow(this->m_hWnd, GW_CHILD); h; h = ::GetWindow(h, GW_HWNDNEXT)) {
            if (!::IsWindowVisible(h))
                continue;
            RECT rc;
            ::GetWindowRect(h, &rc);
            ::MapWindowPoints(nullptr, this->m_hWnd, reinterpret_cast<POINT*>(&rc), 2);
            RECT inside;
            ::IntersectRect(&inside, &rc, &client);
            m_context.Check(::EqualRect(&inside, &rc) != FALSE, "a control inside the dialog");
            for (const RECT& other : rects) {
                RECT overlap;
                m_context.Check(!::IntersectRect(&overlap, &rc, &other), "controls apart");
            }
            rects.push_back(rc);
        }
    }

    Context& m_context;
    const wchar_t* m_name;
    const wchar_t* m_caption;
};

void MessageBoxExhibit(Context& c) {
    Snapshot<AF_CMessageBox> box(
        c, L"message_box",
        L"AF_CMessageBox \"Unsaved edits\": a long prompt wrapped at 55 % of the screen, "
        L"four buttons of unequal captions centred under it");
    box.SetTitle(L"Unsaved edits");
    box.SetPromptText(IDS_G_UNSAVED_PROMPT, L"Fill_Sequence", L"Line3_Filler", L"Line3_Packer.VXD");
    box.SetButtonStringIDs(IDS_G_SAVE, IDS_G_SAVE_AS, IDS_G_DISCARD, IDS_VU_CANCEL, 0);
    box.SetButtonCmdIDs(IDYES, 10, IDNO, IDCANCEL, 0);
    box.SetStandardMessageIcon(MB_ICONQUESTION);
    c.Check(box.DoModal() == kSnapshotResult, "running the message box");
}

void SaveOptionsExhibit(Context& c) {
    Snapshot<Vu_CSaveOptionsMessageBox> box(
        c, L"save_options_box",
        L"Vu_CSaveOptionsMessageBox \"Confirm Save Operation\": a two-line prompt",
        L"Routine Fill_Sequence has been edited.\nSave the changes before downloading "
        L"to the controller?",
        MB_ICONQUESTION, nullptr);
    c.Check(box.DoModal() == kSnapshotResult, "running the save-options box");
}

void ConditionActionExhibit(Context& c) {
    Snapshot<AF_CConditionActionDlg> dlg(
        c, L"condition_action_dialog",
        L"AF_CConditionActionDlg \"Go Offline\": two groups of values (one cut to keep its "
        L"end), two warnings (one with a checked box) and a prompt");
    dlg.SetTitle(IDS_G_TITLE_GO_OFFLINE);
    dlg.SetConditionText(L"The controller Line3_Packer is in Remote Run mode with test edits "
                         L"active.");
    dlg.AddGroupLabelAndItemLabels(IDS_G_GROUP_TAG, IDS_G_TAG_NAME, IDS_G_TAG_TYPE, 0);
    dlg.AddGroupItemValue(L"Line3_Packer.Motors.Infeed_Conveyor.Drive.Command.Speed_Reference",
                          true);
    dlg.AddGroupItemValue(L"MOTOR_CONTROL", false);
    dlg.AddGroupLabelAndItemLabels(IDS_G_GROUP_ROUTINE, IDS_G_ROUTINE_NAME, IDS_G_ROUTINE_PROGRAM,
                                   0);
    dlg.AddGroupItemValue(L"Fill_Sequence", false);
    dlg.AddGroupItemValue(L"Line3_Filler", false);
    dlg.AddWarning(IDS_G_WARN_OUTPUTS, false, 0, false);
    dlg.AddWarning(IDS_G_WARN_TEST_EDITS, true, 2501, true);
    dlg.SetPromptText(L"Go offline now?");
    dlg.SetButtonStringIDs(IDS_VU_YES, IDS_VU_NO, IDS_VU_HELP, 0);
    dlg.SetButtonCmdIDs(IDYES, IDNO, IDHELP, 0);
    c.Check(dlg.DoModal() == kSnapshotResult, "running the condition-action dialog");
}

VU_GALLERY_EXHIBIT("message box: a long prompt and four buttons", MessageBoxExhibit);
VU_GALLERY_EXHIBIT("save-options box: a two-line prompt", SaveOptionsExhibit);
VU_GALLERY_EXHIBIT("condition-action dialog: groups, warnings and a prompt",
                   ConditionActionExhibit);

} // namespace
} // namespace gallery

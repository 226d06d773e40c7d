// The message box as a user meets it: real keys and clicks through the X
// server on a real modal box; its layout and set-up on the real controls.
#include "DialogTestStrings.h"
#include "RealInput.h"

#include "dialogs/win/DialogMeasurer.h"
#include "dialogs/win/MessageBox.h"
#include "framework/InvalidArgException.h"
#include "resources/resource.h"

#include <gtest/gtest.h>

namespace {

TEST(MessageBoxInput, KeysAndClicksCloseItAsTheCallerAsked) {
    // Buttons: 0 "&Yes" 6, "&No" 7, "Cancel" 2; 1 "OK" 1, "&No" 7; 2 "Help" 9, "Cancel" 2.
    const std::vector<UINT> captions[] = {
        {IDS_T_YES, IDS_T_NO, IDS_VU_CANCEL}, {IDS_VU_OK, IDS_T_NO}, {IDS_VU_HELP, IDS_VU_CANCEL}};
    const std::vector<UINT> ids[] = {{6, 7, 2}, {1, 7}, {9, 2}};
    struct Row {
        const char* name;
        int buttons;
        UINT defaultId;
        bool f1;
        unsigned refuse;
        const wchar_t* steps;
        INT_PTR result;
        std::vector<unsigned> calls;
    } rows[] = {
        {"Enter: the default", 0, 7, true, 0, L"Return", 7, {7}},
        {"Esc with Cancel", 0, 0, true, 0, L"Escape", 2, {2}},
        {"Alt+N: &No", 0, 0, true, 0, L"alt+n", 7, {7}},
        {"click the first", 0, 0, true, 0, L"6", 6, {6}},
        {"click the middle", 0, 0, true, 0, L"7", 7, {7}},
        {"click Cancel", 0, 0, true, 0, L"2", 2, {2}},
        {"refused by the callback", 0, 0, true, 6, L"6 7", 7, {6, 7}},
        {"Esc without Cancel", 1, 0, true, 0, L"Escape 7", 7, {7}},
        {"F1: callback, then the host", 0, 0, true, 9, L"F1 Escape", 2, {9, 2}},
        {"F1 disabled", 0, 0, false, 0, L"F1 Escape", 2, {2}},
        {"Help button: the callback", 2, 0, true, 0, L"9 Escape", 2, {9, 2}},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        vutest::HelpRecorder help;
        vutest::CallbackLog log{{}, r.refuse};
        AF_CMessageBox box;
        box.SetTitle(L"Real input box");
        box.SetPromptText(IDS_T_FORMAT, L"3", L"12", L"the controller");
        box.SetButtonStringIDs(vutest::Ids(captions[r.buttons]));
        box.SetButtonCmdIDs(vutest::Ids(ids[r.buttons]));
        box.SetDefaultButton(r.defaultId);
        if (!r.f1)
            box.DisableF1Help();
        box.SetButtonPressCallback(&vutest::CallbackLog::Callback, &log);
        INT_PTR result = 0;
        {
            vutest::InputScript input(L"Real input box", r.steps);
            result = box.DoModal();
        }
        EXPECT_EQ(r.result, result);
        EXPECT_EQ(r.calls, log.ids);
        EXPECT_EQ(r.refuse == 9 ? std::vector<DWORD>{0x30000 + IDS_T_FORMAT} : std::vector<DWORD>{},
                  help.contexts);
    }
}

// What OnInitDialog should leave, checked there on the real controls
// against the arithmetic before the box closes unseen.
struct Expect {
    LPCWSTR icon; // null: none
    BOOL initResult;
    int focus;
    bool closeGrey, wraps;
};

class InspectedBox : public AF_CMessageBox {
public:
    explicit InspectedBox(const Expect& e) : m_expect(e) {}
    BOOL OnInitDialog() override {
        const BOOL result = AF_CMessageBox::OnInitDialog();
        CRect client;
        GetClientRect(&client);
        std::vector<CRect> buttons;
        for (const auto& b : m_buttons.m_buttons)
            buttons.push_back(vutest::ChildRect(m_hWnd, b->m_hWnd));
        EXPECT_EQ(m_layout.CalcButtonRects(client.Size()), buttons);
        const CRect text = vutest::ChildRect(m_hWnd, m_wndText.m_hWnd);
        AF_CDialogMeasurer measurer(m_wndText.m_hWnd);
        const CRect needed = measurer.CalcTextRect(m_strPrompt, text, true);
        EXPECT_TRUE(needed.bottom <= text.bottom && needed.right <= text.right) << "prompt shows";
        EXPECT_LT(text.bottom, buttons.at(0).top);
        const int limit = AF_CDialogLayout::CalcTextWidthLimit(measurer.GetWorkAreaWidth());
        EXPECT_EQ(m_expect.wraps, text.Width() > limit * 9 / 10 && text.Width() <= limit &&
                                      text.Height() >= 2 * measurer.GetTextExtent(L"Ag").cy);
        EXPECT_EQ(m_expect.icon ? LoadIconW(nullptr, m_expect.icon) : nullptr,
                  reinterpret_cast<HICON>(
                      SendDlgItemMessageW(m_hWnd, IDC_VU_MSGBOX_ICON, STM_GETICON, 0, 0)));
        EXPECT_EQ(m_expect.initResult, result);
        EXPECT_EQ(m_expect.focus, ::GetDlgCtrlID(::GetFocus()));
        EXPECT_EQ(m_expect.closeGrey, vutest::CloseIsGrey(m_hWnd));
        ::EndDialog(m_hWnd, 1234);
        return result;
    }

private:
    Expect m_expect;
};

TEST(MessageBoxSetup, LayoutIconFocusAndCancelRule) {
    struct Row {
        const char* name;
        UINT prompt;
        std::vector<UINT> ids;
        UINT defaultId, icon;
        Expect expect;
    } rows[] = {
        {"hand, OK alone allows Esc", IDS_VU_OK, {1}, 0, 16, {IDI_HAND, FALSE, 1, false, false}},
        {"question, OK and No", IDS_VU_OK, {1, 7}, 0, 32, {IDI_QUESTION, FALSE, 1, true, false}},
        {"long prompt", IDS_T_LONG, {6, 2}, 2, 48, {IDI_EXCLAMATION, FALSE, 2, false, true}},
        {"four buttons", IDS_VU_OK, {6, 3, 7, 2}, 0, 64, {IDI_ASTERISK, FALSE, 6, false, false}},
        {"no icon, absent default", IDS_VU_OK, {6, 7}, 30, 17, {nullptr, TRUE, 0, true, false}},
    };
    const std::vector<UINT> captions{IDS_T_YES_TO_ALL, IDS_VU_NO, IDS_VU_CANCEL, IDS_VU_HELP};
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        InspectedBox box(r.expect);
        box.SetPromptText(r.prompt);
        box.SetButtonStringIDs(vutest::Ids({captions.begin(), captions.begin() + r.ids.size()}));
        box.SetButtonCmdIDs(vutest::Ids(r.ids));
        box.SetDefaultButton(r.defaultId);
        box.SetStandardMessageIcon(r.icon);
        EXPECT_EQ(1234, box.DoModal());
    }
}

TEST(MessageBoxSetup, SettersResultsAndInvalidArguments) {
    AF_CMessageBox box;
    EXPECT_EQ(0, box.SetTitle(IDS_T_MISSING));
    EXPECT_EQ(1, box.SetTitle(IDS_VU_OK));
    EXPECT_EQ(1, box.SetPromptText(IDS_T_FORMAT, L"3", L"12", L"the controller"));
    EXPECT_EQ(CString(L"Save 3 of 12 routines to the controller?"), box.GetPromptText());
    EXPECT_EQ(1, box.SetPromptText(IDS_T_MISSING));
    EXPECT_EQ(CString(), box.GetPromptText());
    EXPECT_EQ(1, box.SetPromptText(IDS_VU_APPLICATION_TERMINATE)); // the formatter writes CR LF
    EXPECT_EQ(CString(L"\r\nApplication will terminate."), box.GetPromptText());
    EXPECT_EQ(1, box.SetButtonStringIDs(IDS_VU_YES, IDS_VU_NO, 0));
    EXPECT_EQ(0, box.SetButtonStringIDs(IDS_VU_YES, IDS_T_MISSING, IDS_VU_NO, 0));
    for (UINT defaultId : {0u, 1u}) { // no command ids and no default; more captions than ids
        AF_CMessageBox bad;
        bad.SetButtonStringIDs(IDS_VU_OK, IDS_VU_NO, 0);
        bad.SetDefaultButton(defaultId);
        bad.SetButtonCmdIDs(vutest::Ids(defaultId ? std::vector<UINT>{1} : std::vector<UINT>{}));
        EXPECT_THROW(bad.DoModal(), CInvalidArgException);
    }
}

} // namespace

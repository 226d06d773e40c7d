// The message box as a user meets it: real keys and clicks through the X
// server on a real modal box, and its layout and set-up checked on the
// real controls.
#include "DialogTestStrings.h"
#include "DialogTestSupport.h"

#include "dialogs/win/DialogMeasurer.h"
#include "dialogs/win/MessageBox.h"
#include "framework/InvalidArgException.h"
#include "resources/resource.h"

#include <gtest/gtest.h>

namespace {

using vutest::CallbackLog;
using vutest::ClickOn;
using vutest::KeyIn;

// ---- Real input -------------------------------------------------------------------

TEST(MessageBoxInput, KeysAndClicksCloseItAsTheCallerAsked) {
    const auto click = [](int id) { return [id](HWND h) { return ClickOn(GetDlgItem(h, id)); }; };
    const auto keys = [](const wchar_t* k) { return [k](HWND h) { return KeyIn(h, k); }; };
    struct Row {
        const char* name;
        std::vector<UINT> captions, ids;
        UINT defaultId;
        bool f1;
        std::set<unsigned> refuse;
        std::vector<std::function<std::wstring(HWND)>> steps;
        INT_PTR result;
        std::vector<unsigned> calls;
        std::vector<DWORD> help;
    } rows[] = {
        {"Enter presses the default button",
         {IDS_T_YES, IDS_T_NO, IDS_VU_CANCEL},
         {6, 7, 2},
         7,
         true,
         {},
         {keys(L"Return")},
         7,
         {7},
         {}},
        {"Esc cancels with a Cancel button",
         {IDS_T_YES, IDS_VU_CANCEL},
         {6, 2},
         0,
         true,
         {},
         {keys(L"Escape")},
         2,
         {2},
         {}},
        {"Alt+N presses &No",
         {IDS_T_YES, IDS_T_NO},
         {6, 7},
         0,
         true,
         {},
         {keys(L"alt+n")},
         7,
         {7},
         {}},
        {"click on the first",
         {IDS_T_YES, IDS_T_NO, IDS_VU_CANCEL},
         {6, 7, 2},
         0,
         true,
         {},
         {click(6)},
         6,
         {6},
         {}},
        {"click on the middle",
         {IDS_T_YES, IDS_T_NO, IDS_VU_CANCEL},
         {6, 7, 2},
         0,
         true,
         {},
         {click(7)},
         7,
         {7},
         {}},
        {"click on Cancel",
         {IDS_T_YES, IDS_T_NO, IDS_VU_CANCEL},
         {6, 7, 2},
         0,
         true,
         {},
         {click(2)},
         2,
         {2},
         {}},
        {"the callback refuses Yes",
         {IDS_T_YES, IDS_T_NO},
         {6, 7},
         0,
         true,
         {6},
         {click(6), click(7)},
         7,
         {6, 7},
         {}},
        {"Esc refused without a Cancel button",
         {IDS_VU_OK, IDS_T_NO},
         {1, 7},
         0,
         true,
         {},
         {keys(L"Escape"), click(7)},
         7,
         {7},
         {}},
        {"F1 asks the callback, then the host",
         {IDS_T_YES, IDS_VU_CANCEL},
         {6, 2},
         0,
         true,
         {9},
         {keys(L"F1"), keys(L"Escape")},
         2,
         {9, 2},
         {0x30000 + IDS_T_FORMAT}},
        {"F1 with help disabled does nothing",
         {IDS_T_YES, IDS_VU_CANCEL},
         {6, 2},
         0,
         false,
         {},
         {keys(L"F1"), keys(L"Escape")},
         2,
         {2},
         {}},
        {"Help button answered by the callback",
         {IDS_VU_HELP, IDS_VU_CANCEL},
         {9, 2},
         0,
         true,
         {},
         {click(9), keys(L"Escape")},
         2,
         {9, 2},
         {}},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        vutest::HelpRecorder help;
        CallbackLog log;
        log.refuse = r.refuse;
        AF_CMessageBox box;
        box.SetTitle(L"Real input box");
        box.SetPromptText(IDS_T_FORMAT, L"3", L"12", L"the controller");
        box.SetButtonStringIDs(vutest::Ids(r.captions));
        box.SetButtonCmdIDs(vutest::Ids(r.ids));
        box.SetDefaultButton(r.defaultId);
        if (!r.f1)
            box.DisableF1Help();
        box.SetButtonPressCallback(&CallbackLog::Callback, &log);
        INT_PTR result = 0;
        {
            vutest::InputScript script(L"Real input box", [&](HWND h) {
                std::wstring all;
                for (const auto& step : r.steps)
                    all += step(h);
                return all;
            });
            result = box.DoModal();
        }
        EXPECT_EQ(r.result, result);
        EXPECT_EQ(r.calls, log.ids);
        EXPECT_EQ(r.help, help.contexts);
    }
}

// ---- Set-up and layout on the real controls -----------------------------------------

// Records what OnInitDialog made and closes before showing.
class InspectedBox : public AF_CMessageBox {
public:
    BOOL OnInitDialog() override {
        initResult = AF_CMessageBox::OnInitDialog();
        GetClientRect(&client);
        GetWindowRect(&window);
        text = vutest::ClientRectOf(m_hWnd, IDC_VU_MSGBOX_TEXT);
        for (const auto& button : m_buttons.m_buttons)
            buttons.push_back(vutest::ClientRectOf(m_hWnd, button->GetDlgCtrlID()));
        icon = reinterpret_cast<HICON>(
            SendDlgItemMessageW(m_hWnd, IDC_VU_MSGBOX_ICON, STM_GETICON, 0, 0));
        focus = ::GetFocus() != nullptr ? ::GetDlgCtrlID(::GetFocus()) : 0;
        closeGrey = vutest::CloseIsGrey(m_hWnd);
        GetWindowText(caption);
        AF_CDialogMeasurer measurer(m_wndText.m_hWnd);
        const CRect needed = measurer.CalcTextRect(m_strPrompt, CRect(text), true);
        promptFits = needed.bottom <= text.bottom && needed.right <= text.right;
        expectedButtons = m_layout.CalcButtonRects(client.Size());
        lineHeight = measurer.GetTextExtent(CString(L"Ag")).cy;
        widthLimit = AF_CDialogLayout::CalcTextWidthLimit(measurer.GetWorkAreaWidth());
        layout = m_layout;
        ::EndDialog(m_hWnd, 1234);
        return initResult;
    }
    BOOL initResult = TRUE;
    CRect client, window, text;
    std::vector<CRect> buttons, expectedButtons;
    HICON icon = nullptr;
    int focus = 0, widthLimit = 0, lineHeight = 0;
    bool closeGrey = false, promptFits = false;
    CString caption;
    AF_CDialogLayout layout;
};

TEST(MessageBoxLayout, ButtonsAndPromptStandWhereTheArithmeticPutsThem) {
    struct Row {
        const char* name;
        UINT prompt;
        std::vector<UINT> captions;
        bool grows;
    } rows[] = {
        {"short prompt, one button", IDS_VU_FATAL_ERROR, {IDS_VU_OK}, false},
        {"four buttons of unequal captions",
         IDS_VU_FATAL_ERROR,
         {IDS_T_YES_TO_ALL, IDS_VU_NO, IDS_VU_CANCEL, IDS_VU_HELP},
         false},
        {"long prompt wraps", IDS_T_LONG, {IDS_VU_OK, IDS_VU_CANCEL}, true},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        InspectedBox box;
        box.SetPromptText(r.prompt);
        box.SetButtonStringIDs(vutest::Ids(r.captions));
        std::vector<UINT> ids;
        for (size_t i = 0; i < r.captions.size(); ++i)
            ids.push_back(static_cast<UINT>(i + 1));
        box.SetButtonCmdIDs(vutest::Ids(ids));
        ASSERT_EQ(1234, box.DoModal());
        ASSERT_EQ(r.captions.size(), box.buttons.size());
        EXPECT_EQ(box.expectedButtons, box.buttons);
        const int leftGap = box.buttons.front().left;
        const int rightGap = box.client.right - box.buttons.back().right;
        EXPECT_LE(std::abs(leftGap - rightGap), 1) << "centred";
        EXPECT_EQ(box.client.bottom - box.layout.m_nMarginY, box.buttons[0].bottom);
        EXPECT_GE(box.window.Width(), box.layout.CalcMinClientWidthForButtons());
        EXPECT_TRUE(box.promptFits) << "the whole prompt shows";
        EXPECT_LT(box.text.bottom, box.buttons[0].top) << "prompt above the buttons";
        if (r.grows) {
            EXPECT_LE(box.text.Width(), box.widthLimit) << "wraps at 55 % of the work area";
            EXPECT_GT(box.text.Width(), box.widthLimit * 9 / 10);
            EXPECT_GE(box.text.Height(), 2 * box.lineHeight) << "on more than one line";
        }
    }
}

TEST(MessageBoxSetup, IconsFocusCloseAndCaption) {
    struct Row {
        const char* name;
        unsigned icon;
        LPCWSTR expectedIcon; // null: no icon
        std::vector<UINT> ids;
        UINT defaultId;
        BOOL initResult;
        int focus;
        bool closeGrey;
    } rows[] = {
        {"hand, OK alone allows Esc", 16, IDI_HAND, {1}, 0, FALSE, 1, false},
        {"question, OK and No", 32, IDI_QUESTION, {1, 7}, 0, FALSE, 1, true},
        {"exclamation, set default", 48, IDI_EXCLAMATION, {6, 2}, 2, FALSE, 2, false},
        {"asterisk", 64, IDI_ASTERISK, {6, 2}, 0, FALSE, 6, false},
        {"unknown icon, missing default", 17, nullptr, {6, 7}, 30, TRUE, 0, true},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        InspectedBox box;
        box.SetTitle(IDS_VU_HELP);
        std::vector<UINT> captions(r.ids.size(), IDS_VU_OK);
        box.SetButtonStringIDs(vutest::Ids(captions));
        box.SetButtonCmdIDs(vutest::Ids(r.ids));
        box.SetDefaultButton(r.defaultId);
        box.SetStandardMessageIcon(r.icon);
        ASSERT_EQ(1234, box.DoModal());
        EXPECT_EQ(r.expectedIcon ? LoadIconW(nullptr, r.expectedIcon) : nullptr, box.icon);
        EXPECT_EQ(r.initResult, box.initResult);
        EXPECT_EQ(r.focus, box.focus);
        EXPECT_EQ(r.closeGrey, box.closeGrey);
        EXPECT_EQ(CString(L"Help"), box.caption);
    }
}

TEST(MessageBoxSetup, SettersReportWhatLoaded) {
    AF_CMessageBox box;
    EXPECT_EQ(0, box.SetTitle(IDS_T_MISSING));
    EXPECT_EQ(1, box.SetTitle(IDS_VU_OK));
    EXPECT_EQ(1, box.SetPromptText(IDS_T_FORMAT, L"3", L"12", L"the controller"));
    EXPECT_EQ(CString(L"Save 3 of 12 routines to the controller?"), box.GetPromptText());
    EXPECT_EQ(1, box.SetPromptText(IDS_T_MISSING));
    EXPECT_EQ(CString(), box.GetPromptText());
    EXPECT_EQ(1, box.SetPromptText(IDS_VU_APPLICATION_TERMINATE));
    // The message formatter writes a line feed as CR LF.
    EXPECT_EQ(CString(L"\r\nApplication will terminate."), box.GetPromptText());
    EXPECT_EQ(1, box.SetButtonStringIDs(IDS_VU_YES, IDS_VU_NO, 0));
    EXPECT_EQ(0, box.SetButtonStringIDs(IDS_VU_YES, IDS_T_MISSING, IDS_VU_NO, 0));
}

TEST(MessageBoxSetup, MissingCommandIdsRaiseInvalidArgument) {
    struct Row {
        const char* name;
        std::vector<UINT> captions, ids;
        UINT defaultId;
    } rows[] = {
        {"no command ids, no default", {IDS_VU_OK}, {}, 0},
        {"more captions than ids", {IDS_VU_OK, IDS_VU_NO}, {1}, 1},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        AF_CMessageBox box;
        box.SetButtonStringIDs(vutest::Ids(r.captions));
        box.SetButtonCmdIDs(vutest::Ids(r.ids));
        box.SetDefaultButton(r.defaultId);
        EXPECT_THROW(box.DoModal(), CInvalidArgException);
    }
    AF_CMessageBox extraIds; // ids beyond the captions are ignored: a lone OK
    extraIds.SetTitle(L"Extra ids");
    extraIds.SetButtonStringIDs(IDS_VU_OK, 0);
    extraIds.SetButtonCmdIDs(1, 7, 2, 0);
    vutest::InputScript script(L"Extra ids", [](HWND h) { return KeyIn(h, L"Escape"); });
    EXPECT_EQ(IDCANCEL, extraIds.DoModal());
}

} // namespace

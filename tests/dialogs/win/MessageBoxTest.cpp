// The message box and the save-options box driven by real keys and clicks;
// their layout and set-up checked on the real controls.
#include "RealInput.h"

#include "dialogs/win/DialogMeasurer.h"
#include "dialogs/win/MessageBox.h"
#include "dialogs/win/SaveOptionsMessageBox.h"
#include "framework/InvalidArgException.h"
#include "resources/resource.h"

#include <gtest/gtest.h>

namespace {

// Checks what OnInitDialog left on the real controls against the arithmetic
// and the expected icon, focus and Close item.
class CheckedBox : public AF_CMessageBox {
public:
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
        EXPECT_GE(text.bottom, measurer.CalcTextRect(m_strPrompt, text, true).bottom) << "shows";
        EXPECT_LT(text.bottom, buttons.at(0).top);
        const int limit = AF_CDialogLayout::CalcTextWidthLimit(measurer.GetWorkAreaWidth());
        EXPECT_EQ(wraps, text.Width() > limit * 9 / 10 && text.Width() <= limit &&
                             text.Height() >= 2 * measurer.GetTextExtent(L"Ag").cy);
        EXPECT_EQ(icon ? LoadIconW(nullptr, icon) : nullptr,
                  (HICON)SendDlgItemMessageW(m_hWnd, IDC_VU_MSGBOX_ICON, STM_GETICON, 0, 0));
        EXPECT_EQ(focus == 0, result != FALSE);
        EXPECT_EQ(focus, ::GetDlgCtrlID(::GetFocus()));
        EXPECT_EQ(closeGrey, vutest::CloseIsGrey(m_hWnd));
        return result;
    }
    LPCWSTR icon = nullptr;
    int focus = 0;
    bool wraps = false, closeGrey = false;
};

TEST(MessageBoxInput, KeysAndClicksCloseItAsTheCallerAsked) {
    // Buttons: 0 "&Yes" 6, "&No" 7, "Cancel" 2; 1 "OK" 1, "&No" 7 (no cancel);
    // 2 "Help" 9, "Cancel" 2; 3 "OK" 1 alone (cancels).
    const std::vector<UINT> captions[] = {{IDS_T_YES, IDS_T_NO, IDS_VU_CANCEL},
                                          {IDS_VU_OK, IDS_T_NO},
                                          {IDS_VU_HELP, IDS_VU_CANCEL},
                                          {IDS_VU_OK}};
    const std::vector<UINT> ids[] = {{6, 7, 2}, {1, 7}, {9, 2}, {1}};
    const std::pair<UINT, LPCWSTR> icons[] = {{48, IDI_EXCLAMATION},
                                              {16, IDI_HAND},
                                              {32, IDI_QUESTION},
                                              {64, IDI_ASTERISK},
                                              {17, nullptr}};
    struct Row {
        const char* name;
        int buttons, icon;
        UINT defaultId;
        bool f1;
        unsigned refuse;
        const wchar_t* steps;
        INT_PTR result;
        std::vector<unsigned> calls;
    } rows[] = {
        {"Enter: the default", 0, 0, 7, true, 0, L"Return", 7, {7}},
        {"Esc with Cancel", 0, 1, 0, true, 0, L"Escape", 2, {2}},
        {"Alt+N: &No", 0, 2, 0, true, 0, L"alt+n", 7, {7}},
        {"click the first", 0, 3, 0, true, 0, L"6", 6, {6}},
        {"click the middle, an absent default", 0, 4, 30, true, 0, L"7", 7, {7}},
        {"click Cancel, a long prompt", 0, 0, 0, true, 0, L"2", 2, {2}},
        {"refused by the callback", 0, 0, 0, true, 6, L"6 7", 7, {6, 7}},
        {"Esc without Cancel", 1, 0, 0, true, 0, L"Escape 7", 7, {7}},
        {"Esc with a lone OK", 3, 0, 0, true, 0, L"Escape", 2, {2}},
        {"F1: callback, then the host", 0, 0, 0, true, 9, L"F1 Escape", 2, {9, 2}},
        {"F1 disabled", 0, 0, 0, false, 0, L"F1 Escape", 2, {2}},
        {"Help button: the callback", 2, 0, 0, true, 0, L"9 Escape", 2, {9, 2}},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        vutest::HelpRecorder help;
        vutest::CallbackLog log{{}, r.refuse};
        CheckedBox box;
        box.SetTitle(L"Real input box");
        box.wraps = r.steps == std::wstring(L"2");
        if (box.wraps)
            box.SetPromptText(IDS_T_LONG);
        else
            box.SetPromptText(IDS_T_FORMAT, L"3", L"12", L"the controller");
        box.SetButtonStringIDs(vutest::Ids(captions[r.buttons]));
        box.SetButtonCmdIDs(vutest::Ids(ids[r.buttons]));
        box.SetDefaultButton(r.defaultId);
        box.SetStandardMessageIcon(icons[r.icon].first);
        box.icon = icons[r.icon].second;
        box.focus = r.defaultId == 30 ? 0 : r.defaultId ? r.defaultId : ids[r.buttons][0];
        box.closeGrey = r.buttons == 1;
        if (!r.f1)
            box.DisableF1Help();
        box.SetButtonPressCallback(&vutest::CallbackLog::Callback, &log);
        const INT_PTR result = vutest::RunWithInput(box, L"Real input box", r.steps);
        EXPECT_EQ(r.result, result);
        EXPECT_EQ(r.calls, log.ids);
        EXPECT_EQ(r.refuse == 9 ? std::vector<DWORD>{0x30000 + IDS_T_FORMAT} : std::vector<DWORD>{},
                  help.contexts);
    }
}

TEST(MessageBoxSetup, SettersResultsAndInvalidArguments) {
    AF_CMessageBox box;
    EXPECT_EQ(0, box.SetTitle(IDS_T_MISSING));
    EXPECT_EQ(1, box.SetPromptText(IDS_T_FORMAT, L"3", L"12", L"the controller"));
    EXPECT_EQ(CString(L"Save 3 of 12 routines to the controller?"), box.GetPromptText());
    EXPECT_EQ(1, box.SetPromptText(IDS_T_MISSING));
    EXPECT_EQ(CString(), box.GetPromptText());
    EXPECT_EQ(1, box.SetPromptText(IDS_VU_APPLICATION_TERMINATE)); // the formatter writes CR LF
    EXPECT_EQ(CString(L"\r\nApplication will terminate."), box.GetPromptText());
    EXPECT_EQ(0, box.SetButtonStringIDs(IDS_VU_YES, IDS_T_MISSING, IDS_VU_NO, 0));
    AF_CMessageBox noIds, fewIds; // no command ids and no default; more captions than ids
    noIds.SetButtonStringIDs(IDS_VU_OK, 0);
    fewIds.SetButtonStringIDs(IDS_VU_OK, IDS_VU_NO, 0);
    fewIds.SetButtonCmdIDs(1, 0);
    EXPECT_THROW(noIds.DoModal(), CInvalidArgException);
    EXPECT_THROW(fewIds.DoModal(), CInvalidArgException);
}

// Records the icon the style chose.
struct SaveBox : Vu_CSaveOptionsMessageBox {
    explicit SaveBox(unsigned style) : Vu_CSaveOptionsMessageBox(L"Save Line3_Packer?", style) {}
    BOOL OnInitDialog() override {
        const BOOL result = Vu_CSaveOptionsMessageBox::OnInitDialog();
        icon = (HICON)SendDlgItemMessageW(m_hWnd, IDC_VU_SAVE_ICON, STM_GETICON, 0, 0);
        return result;
    }
    HICON icon = nullptr;
};

TEST(SaveOptionsInput, FourAnswersWithTheirResultsReturnCodesAndIcons) {
    struct Row {
        const wchar_t* steps;
        INT_PTR result;
        long code;
        unsigned style;
        LPCWSTR icon; // hand wins, exclamation (48) has its bit, button styles ask
    } rows[] = {{L"alt+y", IDYES, 0x42800, MB_ICONHAND | MB_ICONQUESTION, IDI_HAND},
                {L"alt+a", IDC_VU_SAVE_YESTOALL, 0x42803, MB_ICONEXCLAMATION, IDI_HAND},
                {L"7", IDNO, 0x42801, 0, IDI_APPLICATION},
                {L"Escape", IDCANCEL, 0x42802, MB_ICONASTERISK | MB_YESNO, IDI_QUESTION}};
    for (const Row& r : rows) {
        SaveBox box(r.style);
        const INT_PTR result = vutest::RunWithInput(box, L"Confirm Save Operation", r.steps);
        EXPECT_EQ(r.result, result) << r.steps;
        EXPECT_EQ(r.code, box.GetAFReturnCode()) << r.steps;
        EXPECT_EQ(LoadIconW(nullptr, r.icon), box.icon) << r.steps;
    }
    EXPECT_EQ(0x42801, Vu_CSaveOptionsMessageBox(IDS_VU_OK, 0).GetAFReturnCode()) << "never shown";
}

} // namespace

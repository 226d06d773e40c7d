// The save-options box: its four answers by real keys and clicks, its icon
// rule, and how it grows around its prompt.
#include "DialogTestSupport.h"

#include "dialogs/win/SaveOptionsMessageBox.h"
#include "resources/resource.h"

#include <gtest/gtest.h>

namespace {

TEST(SaveOptionsInput, FourAnswersWithTheirResultsAndReturnCodes) {
    struct Row {
        const char* name;
        std::function<std::wstring(HWND)> step;
        INT_PTR result;
        long code;
    } rows[] = {
        {"Alt+Y", [](HWND h) { return vutest::KeyIn(h, L"alt+y"); }, IDYES, 0x42800},
        {"Alt+A", [](HWND h) { return vutest::KeyIn(h, L"alt+a"); }, IDC_VU_SAVE_YESTOALL, 0x42803},
        {"click on No", [](HWND h) { return vutest::ClickOn(GetDlgItem(h, IDNO)); }, IDNO, 0x42801},
        {"Esc", [](HWND h) { return vutest::KeyIn(h, L"Escape"); }, IDCANCEL, 0x42802},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        Vu_CSaveOptionsMessageBox box(L"Save changes to Line3_Packer?", MB_ICONQUESTION);
        INT_PTR result = 0;
        {
            vutest::InputScript script(L"Confirm Save Operation", r.step);
            result = box.DoModal();
        }
        EXPECT_EQ(r.result, result);
        EXPECT_EQ(r.code, box.GetAFReturnCode());
    }
    EXPECT_EQ(0x42801, Vu_CSaveOptionsMessageBox(IDS_VU_OK, 0).GetAFReturnCode()) << "never shown";
}

// Records the box as OnInitDialog left it and closes before showing.
class InspectedSaveBox : public Vu_CSaveOptionsMessageBox {
public:
    using Vu_CSaveOptionsMessageBox::Vu_CSaveOptionsMessageBox;
    BOOL OnInitDialog() override {
        Vu_CSaveOptionsMessageBox::OnInitDialog();
        GetWindowRect(&window);
        prompt = vutest::ClientRectOf(m_hWnd, IDC_VU_SAVE_PROMPT);
        for (int id : {IDYES, IDC_VU_SAVE_YESTOALL, IDNO, IDCANCEL})
            buttons.push_back(vutest::ClientRectOf(m_hWnd, id));
        icon = reinterpret_cast<HICON>(
            SendDlgItemMessageW(m_hWnd, IDC_VU_SAVE_ICON, STM_GETICON, 0, 0));
        ::EndDialog(m_hWnd, 1234);
        return TRUE;
    }
    CRect window, prompt;
    std::vector<CRect> buttons;
    HICON icon = nullptr;
};

TEST(SaveOptionsSetup, IconFollowsTheStyle) {
    struct Row {
        const char* name;
        unsigned style;
        LPCWSTR icon;
    } rows[] = {
        {"hand wins", MB_ICONHAND | MB_ICONQUESTION, IDI_HAND},
        {"nothing: the application's", 0, IDI_APPLICATION},
        {"asterisk", MB_ICONASTERISK, IDI_ASTERISK},
        {"question", MB_ICONQUESTION, IDI_QUESTION},
        {"yes/no buttons ask", MB_YESNO, IDI_QUESTION},
        {"asterisk with OK/Cancel asks", MB_ICONASTERISK | MB_OKCANCEL, IDI_QUESTION},
        {"exclamation carries the hand's bit", MB_ICONEXCLAMATION, IDI_HAND},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        InspectedSaveBox box(L"Save?", r.style);
        ASSERT_EQ(1234, box.DoModal());
        EXPECT_EQ(LoadIconW(nullptr, r.icon), box.icon);
    }
}

TEST(SaveOptionsSetup, GrowsAroundThePromptWithTheButtonsCentredUnderIt) {
    InspectedSaveBox plain(L"Save?", 0);
    ASSERT_EQ(1234, plain.DoModal());
    const int screenMid = GetSystemMetrics(SM_CXSCREEN) / 2;
    struct Row {
        const char* name;
        const wchar_t* prompt;
        bool wider, taller;
    } rows[] = {
        {"fits", L"Save changes?", false, false},
        {"four lines",
         L"Save the changes to MainRoutine in MainProgram? The copy on the "
         L"controller is replaced, and the previous version of the routine "
         L"cannot be recovered afterwards from the project file.",
         false, true},
        {"a path longer than the line",
         L"Save "
         L"C:\\Projects\\Packaging\\Line3_Packer\\Controllers\\Archive\\Revision_2026_11\\Line3_"
         L"Packer_Main_Controller_Backup.VXD?",
         true, false},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        InspectedSaveBox box(r.prompt, 0);
        ASSERT_EQ(1234, box.DoModal());
        const int dw = box.window.Width() - plain.window.Width();
        const int dh = box.window.Height() - plain.window.Height();
        EXPECT_EQ(r.wider, dw > 0);
        EXPECT_EQ(r.taller, dh > 0);
        EXPECT_EQ(plain.prompt.Width() + dw, box.prompt.Width());
        EXPECT_EQ(plain.prompt.Height() + dh, box.prompt.Height());
        EXPECT_LE(std::abs(box.window.CenterPoint().x - screenMid), 1) << "centred";
        for (size_t i = 0; i < box.buttons.size(); ++i) {
            EXPECT_EQ(plain.buttons[i].Size(), box.buttons[i].Size());
            EXPECT_EQ(plain.buttons[i].top + dh, box.buttons[i].top);
            EXPECT_LE(std::abs(plain.buttons[i].left + dw / 2 - box.buttons[i].left), 0);
        }
        const int rowMid = (box.buttons.front().left + box.buttons.back().right) / 2;
        const int plainRowMid = (plain.buttons.front().left + plain.buttons.back().right) / 2;
        EXPECT_LE(
            std::abs((rowMid - box.window.Width() / 2) - (plainRowMid - plain.window.Width() / 2)),
            1)
            << "the row keeps its place under the grown prompt";
    }
}

} // namespace

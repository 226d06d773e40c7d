// The save-options box: its four answers by real keys and clicks, and its
// icon rule.
#include "RealInput.h"

#include "dialogs/win/SaveOptionsMessageBox.h"
#include "resources/resource.h"

#include <gtest/gtest.h>

namespace {

TEST(SaveOptionsInput, FourAnswersWithTheirResultsAndReturnCodes) {
    struct Row {
        const wchar_t* steps;
        INT_PTR result;
        long code;
    } rows[] = {{L"alt+y", IDYES, 0x42800},
                {L"alt+a", IDC_VU_SAVE_YESTOALL, 0x42803},
                {L"7", IDNO, 0x42801},
                {L"Escape", IDCANCEL, 0x42802}};
    for (const Row& r : rows) {
        Vu_CSaveOptionsMessageBox box(L"Save changes to Line3_Packer?", MB_ICONQUESTION);
        INT_PTR result = 0;
        {
            vutest::InputScript input(L"Confirm Save Operation", r.steps);
            result = box.DoModal();
        }
        EXPECT_EQ(r.result, result) << r.steps;
        EXPECT_EQ(r.code, box.GetAFReturnCode()) << r.steps;
    }
    EXPECT_EQ(0x42801, Vu_CSaveOptionsMessageBox(IDS_VU_OK, 0).GetAFReturnCode()) << "never shown";
}

TEST(SaveOptionsSetup, IconFollowsTheStyle) {
    struct Row {
        const char* name;
        unsigned style;
        LPCWSTR icon;
    } rows[] = {
        {"hand wins", MB_ICONHAND | MB_ICONQUESTION, IDI_HAND},
        {"exclamation carries the hand's bit", MB_ICONEXCLAMATION, IDI_HAND},
        {"nothing: the application's", 0, IDI_APPLICATION},
        {"asterisk", MB_ICONASTERISK, IDI_ASTERISK},
        {"yes/no buttons ask", MB_ICONASTERISK | MB_YESNO, IDI_QUESTION},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        struct Box : Vu_CSaveOptionsMessageBox {
            using Vu_CSaveOptionsMessageBox::Vu_CSaveOptionsMessageBox;
            BOOL OnInitDialog() override {
                Vu_CSaveOptionsMessageBox::OnInitDialog();
                icon = reinterpret_cast<HICON>(
                    SendDlgItemMessageW(m_hWnd, IDC_VU_SAVE_ICON, STM_GETICON, 0, 0));
                ::EndDialog(m_hWnd, 1234);
                return TRUE;
            }
            HICON icon = nullptr;
        } box(L"Save?", r.style);
        ASSERT_EQ(1234, box.DoModal());
        EXPECT_EQ(LoadIconW(nullptr, r.icon), box.icon);
    }
}

} // namespace

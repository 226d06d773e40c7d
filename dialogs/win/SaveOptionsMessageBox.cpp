#include "dialogs/win/SaveOptionsMessageBox.h"

#include "dialogs/SaveOptionsLayout.h"
#include "dialogs/win/DialogMeasurer.h"
#include "framework/win/DynLinkLibrary.h"
#include "resources/resource.h"

namespace {

const UINT kButtonIds[] = {IDYES, IDC_VU_SAVE_YESTOALL, IDNO, IDCANCEL};

// A child's rectangle in its parent's client coordinates.
CRect ChildRect(HWND hWndParent, HWND hWnd) {
    RECT rc{};
    ::GetWindowRect(hWnd, &rc);
    ::MapWindowPoints(nullptr, hWndParent, reinterpret_cast<POINT*>(&rc), 2);
    return CRect(rc.left, rc.top, rc.right, rc.bottom);
}

void MoveChild(HWND hWnd, const CRect& rc) {
    ::MoveWindow(hWnd, rc.left, rc.top, rc.Width(), rc.Height(), TRUE);
}

} // namespace

Vu_CSaveOptionsMessageBox::Vu_CSaveOptionsMessageBox(unsigned int nPromptID, unsigned int nStyle,
                                                     CWnd* pParent)
    : CDialog(IDD_VU_SAVE_OPTIONS, pParent), m_nStyle(nStyle) {
    AfxLoadString(nPromptID, m_strPrompt);
}

Vu_CSaveOptionsMessageBox::Vu_CSaveOptionsMessageBox(const wchar_t* lpszPrompt, unsigned int nStyle,
                                                     CWnd* pParent)
    : CDialog(IDD_VU_SAVE_OPTIONS, pParent), m_strPrompt(lpszPrompt), m_nStyle(nStyle) {}

HICON Vu_CSaveOptionsMessageBox::LoadIcon() const {
    if (m_nStyle & MB_ICONHAND)
        return ::LoadIconW(nullptr, IDI_HAND);
    // Question, or one of the button styles that ask a question.
    if ((m_nStyle & (MB_ICONQUESTION | 0x07)) == 0)
        return ::LoadIconW(nullptr, (m_nStyle & MB_ICONASTERISK) ? IDI_ASTERISK : IDI_APPLICATION);
    return ::LoadIconW(nullptr, IDI_QUESTION);
}

BOOL Vu_CSaveOptionsMessageBox::OnInitDialog() {
    CDialog::OnInitDialog();
    SetDlgItemText(IDC_VU_SAVE_PROMPT, m_strPrompt);
    ::SendDlgItemMessageW(m_hWnd, IDC_VU_SAVE_ICON, STM_SETICON,
                          reinterpret_cast<WPARAM>(LoadIcon()), 0);
    AdjustDialog();
    return TRUE;
}

void Vu_CSaveOptionsMessageBox::AdjustDialog() {
    HWND hPrompt = ::GetDlgItem(m_hWnd, IDC_VU_SAVE_PROMPT);
    if (hPrompt == nullptr)
        return;
    CRect prompt = ChildRect(m_hWnd, hPrompt);
    AF_CDialogMeasurer measurer(hPrompt);
    const CRect measured =
        measurer.CalcTextRect(m_strPrompt, CRect(0, 0, prompt.Width(), prompt.Height()), true);
    const CSize growth =
        Vu_CSaveOptionsLayout::CalcGrowth(prompt, measured, measurer.GetAverageCharWidth());

    CRect dialog;
    GetWindowRect(&dialog);
    HWND hParent = ::GetParent(m_hWnd);
    const bool child = (GetStyle() & WS_CHILD) != 0 && hParent != nullptr;
    if (child) // a child keeps its coordinates relative to its parent
        ::MapWindowPoints(nullptr, hParent, reinterpret_cast<POINT*>(&dialog), 2);
    std::vector<CRect> buttons;
    std::vector<HWND> handles;
    for (UINT id : kButtonIds) {
        if (HWND hButton = ::GetDlgItem(m_hWnd, static_cast<int>(id))) {
            handles.push_back(hButton);
            buttons.push_back(ChildRect(m_hWnd, hButton));
        }
    }
    Vu_CSaveOptionsLayout::Apply(growth, dialog, prompt, buttons);
    MoveWindow(dialog);
    MoveChild(hPrompt, prompt);
    for (size_t i = 0; i < handles.size(); ++i)
        MoveChild(handles[i], buttons[i]);
    if (!child)
        CenterWindow();
}

void Vu_CSaveOptionsMessageBox::OnYes() {
    m_nReturnCode = kReturnYes;
    EndDialog(IDYES);
}
void Vu_CSaveOptionsMessageBox::OnNo() {
    m_nReturnCode = kReturnNo;
    EndDialog(IDNO);
}
void Vu_CSaveOptionsMessageBox::OnYestoall() {
    m_nReturnCode = kReturnYesToAll;
    EndDialog(IDC_VU_SAVE_YESTOALL);
}
void Vu_CSaveOptionsMessageBox::OnCancel() {
    m_nReturnCode = kReturnCancel;
    EndDialog(IDCANCEL);
}

BOOL Vu_CSaveOptionsMessageBox::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (HIWORD(wParam) != BN_CLICKED)
        return CDialog::OnCommand(wParam, lParam);
    switch (LOWORD(wParam)) {
    case IDYES:
        OnYes();
        return TRUE;
    case IDNO:
        OnNo();
        return TRUE;
    case IDC_VU_SAVE_YESTOALL:
        OnYestoall();
        return TRUE;
    default:
        return CDialog::OnCommand(wParam, lParam);
    }
}

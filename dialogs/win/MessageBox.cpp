#include "dialogs/win/MessageBox.h"

#include "dialogs/win/DialogMeasurer.h"
#include "foundation/win/HostServices.h"
#include "framework/InvalidArgException.h"
#include "framework/win/DynLinkLibrary.h"
#include "resources/resource.h"

AF_CMessageBox::AF_CMessageBox(CWnd* pParent) : CDialog(IDD_VU_MESSAGE_BOX, pParent) {}

void AF_CMessageBox::SetTitle(const wchar_t* lpszTitle) {
    m_strTitle = lpszTitle;
}

int AF_CMessageBox::SetTitle(unsigned int nID) {
    CString title;
    if (!AfxLoadString(nID, title))
        return 0;
    m_strTitle = title;
    return 1;
}

int AF_CMessageBox::SetPromptText(unsigned int nID, ...) {
    m_nPromptId = nID;
    m_strPrompt.Empty();
    CString format;
    if (!AfxLoadString(nID, format))
        return 1;
    va_list args;
    va_start(args, nID);
    wchar_t buffer[1024];
    const DWORD length =
        ::FormatMessageW(FORMAT_MESSAGE_FROM_STRING, format.GetString(), 0, 0, buffer, 1024, &args);
    va_end(args);
    m_strPrompt = length > 0 ? CString(buffer, static_cast<int>(length)) : format;
    return 1;
}

int AF_CMessageBox::SetButtonStringIDs(unsigned int nFirstID, ...) {
    va_list args;
    va_start(args, nFirstID);
    const CUIntArray ids = AF_CDialogButtons::CollectIds(nFirstID, args);
    va_end(args);
    return m_buttons.SetStringIDs(ids);
}

int AF_CMessageBox::SetButtonStringIDs(const CUIntArray& ids) {
    return m_buttons.SetStringIDs(ids);
}

void AF_CMessageBox::SetButtonCmdIDs(unsigned int nFirstID, ...) {
    va_list args;
    va_start(args, nFirstID);
    const CUIntArray ids = AF_CDialogButtons::CollectIds(nFirstID, args);
    va_end(args);
    m_buttons.SetCmdIDs(ids);
}

void AF_CMessageBox::SetButtonCmdIDs(const CUIntArray& ids) {
    m_buttons.SetCmdIDs(ids);
}

void AF_CMessageBox::SetButtonPressCallback(PressCallback pfn, void* pData) {
    m_buttons.m_pfnCallback = pfn;
    m_buttons.m_pCallbackData = pData;
}

INT_PTR AF_CMessageBox::DoModal() {
    m_bInitFailed = false;
    const INT_PTR result = CDialog::DoModal();
    if (m_bInitFailed)
        AfxThrowInvalidArgException();
    return result;
}

// ---- Layout ---------------------------------------------------------------

CSize AF_CMessageBox::GetActualDialogBaseUnits() const {
    CRect rc(0, 0, 4, 8);
    MapDialogRect(&rc);
    return CSize(rc.right, rc.bottom);
}

void AF_CMessageBox::CalcConstants() {
    const CSize base = GetActualDialogBaseUnits();
    m_layout.CalcConstants(base.cx, base.cy);
}

void AF_CMessageBox::CalcButtonWidths() {
    AF_CDialogMeasurer measurer(m_hWnd);
    m_layout.CalcButtonWidths(m_buttons.m_captions, measurer);
}

int AF_CMessageBox::CalcMinClientWidthForButtons() const {
    return m_layout.CalcMinClientWidthForButtons();
}

int AF_CMessageBox::CalcMinDlgWidthForButtons() {
    AF_CDialogMeasurer measurer(m_hWnd);
    return m_layout.CalcMinDlgWidthForButtons(measurer);
}

void AF_CMessageBox::CalcTextControlDxDy(CSize& dxdy) {
    CRect client;
    m_wndText.GetClientRect(&client);
    AF_CDialogMeasurer measurer(m_wndText.m_hWnd);
    dxdy = AF_CDialogLayout::CalcTextControlDxDy(m_strPrompt, client, measurer);
}

void AF_CMessageBox::CreateButtonWindows() {
    CRect client;
    GetClientRect(&client);
    m_buttons.Create(this, m_layout.CalcButtonRects(client.Size()));
}

HICON AF_CMessageBox::LoadStandardMessageIcon() const {
    LPCWSTR name = nullptr;
    switch (m_nStandardIcon) {
    case MB_ICONHAND:
        name = IDI_HAND;
        break;
    case MB_ICONQUESTION:
        name = IDI_QUESTION;
        break;
    case MB_ICONEXCLAMATION:
        name = IDI_EXCLAMATION;
        break;
    case MB_ICONASTERISK:
        name = IDI_ASTERISK;
        break;
    default:
        return nullptr;
    }
    return ::LoadIconW(nullptr, name);
}

BOOL AF_CMessageBox::OnInitDialog() {
    CDialog::OnInitDialog();
    m_wndText.SubclassDlgItem(IDC_VU_MSGBOX_TEXT, this);
    SetWindowText(m_strTitle);
    ::SendDlgItemMessageW(m_hWnd, IDC_VU_MSGBOX_ICON, STM_SETICON,
                          reinterpret_cast<WPARAM>(LoadStandardMessageIcon()), 0);

    CalcConstants();
    CalcButtonWidths();
    m_wndText.SetWindowText(m_strPrompt);
    CSize dxdy(0, 0);
    CalcTextControlDxDy(dxdy);
    if (dxdy.cx > 0 || dxdy.cy >= 1) {
        CRect rcText;
        m_wndText.GetWindowRect(&rcText);
        ScreenToClient(&rcText);
        m_wndText.MoveWindow(rcText.left, rcText.top, rcText.Width() + dxdy.cx,
                             rcText.Height() + dxdy.cy);
    }
    CRect rcDlg;
    GetWindowRect(&rcDlg);
    AF_CDialogMeasurer measurer(m_hWnd);
    const CSize size = m_layout.CalcDialogSize(rcDlg.Size(), dxdy, measurer);
    MoveWindow(rcDlg.left, rcDlg.top, size.cx, size.cy);
    CenterWindow();

    CreateButtonWindows();
    const unsigned int defaultId = m_buttons.GetDefaultId();
    BOOL result = TRUE;
    const int index = FindButton(defaultId);
    if (index >= 0) {
        GotoDlgCtrl(m_buttons.m_buttons[static_cast<size_t>(index)].get());
        result = FALSE;
    }
    m_buttons.UpdateCancelAllowed(this);
    return result;
}

// ---- Buttons and help -----------------------------------------------------

void AF_CMessageBox::OnButtonPressed(unsigned int nID) {
    switch (m_buttons.Decide(nID)) {
    case AF_CDialogButtons::Press::ShowHelp:
        OnHelp();
        break;
    case AF_CDialogButtons::Press::EndDialog:
        EndDialog(static_cast<int>(nID));
        break;
    case AF_CDialogButtons::Press::Ignore:
        break;
    }
}

void AF_CMessageBox::OnHelp() {
    VuGetHostServices()->ShowContextHelp(kHelpContextBase + m_nPromptId, m_hWnd);
}

LRESULT AF_CMessageBox::OnCommandHelp(WPARAM, LPARAM) {
    if (m_buttons.WantsF1Help())
        OnHelp();
    return TRUE;
}

BOOL AF_CMessageBox::OnCommand(WPARAM wParam, LPARAM lParam) {
    const UINT id = LOWORD(wParam);
    if (HIWORD(wParam) == BN_CLICKED && id >= 1 && id <= 30) {
        OnButtonPressed(id);
        return TRUE;
    }
    return CDialog::OnCommand(wParam, lParam);
}

LRESULT AF_CMessageBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_INITDIALOG:
        try {
            return CDialog::WindowProc(message, wParam, lParam);
        } catch (const CInvalidArgException&) {
            // Nothing may unwind through the dialog manager: DoModal raises it.
            m_bInitFailed = true;
            ::EndDialog(m_hWnd, -1);
            return TRUE;
        }
    case WM_COMMANDHELP:
    case WM_HELP:
        return OnCommandHelp(wParam, lParam);
    default:
        return CDialog::WindowProc(message, wParam, lParam);
    }
}

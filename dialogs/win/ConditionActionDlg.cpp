#include "dialogs/win/ConditionActionDlg.h"

#include "dialogs/win/DialogMeasurer.h"
#include "foundation/win/HostServices.h"
#include "framework/InvalidArgException.h"
#include "framework/win/DynLinkLibrary.h"
#include "resources/resource.h"

namespace {

CRect ChildRect(const CWnd& parent, const CWnd& child) {
    CRect rc;
    child.GetWindowRect(&rc);
    parent.ScreenToClient(&rc);
    return rc;
}

} // namespace

AF_CConditionActionDlg::AF_CConditionActionDlg(CWnd* pParent)
    : CDialog(IDD_VU_CONDITION_ACTION, pParent) {}

// ---- Set-up ---------------------------------------------------------------

void AF_CConditionActionDlg::SetTitle(const wchar_t* lpszTitle) {
    m_strTitle = lpszTitle;
}

int AF_CConditionActionDlg::SetTitle(unsigned int nID) {
    CString title;
    if (!AfxLoadString(nID, title))
        return 0;
    m_strTitle = title;
    return 1;
}

void AF_CConditionActionDlg::SetConditionText(const wchar_t* lpszText) {
    m_strCondition = lpszText;
}
void AF_CConditionActionDlg::SetPromptText(const wchar_t* lpszText) {
    m_strPrompt = lpszText;
}

int AF_CConditionActionDlg::SetButtonStringIDs(unsigned int nFirstID, ...) {
    va_list args;
    va_start(args, nFirstID);
    const CUIntArray ids = AF_CDialogButtons::CollectIds(nFirstID, args);
    va_end(args);
    return m_buttons.SetStringIDs(ids);
}

int AF_CConditionActionDlg::SetButtonStringIDs(const CUIntArray& ids) {
    return m_buttons.SetStringIDs(ids);
}

void AF_CConditionActionDlg::SetButtonCmdIDs(unsigned int nFirstID, ...) {
    va_list args;
    va_start(args, nFirstID);
    const CUIntArray ids = AF_CDialogButtons::CollectIds(nFirstID, args);
    va_end(args);
    m_buttons.SetCmdIDs(ids);
}

void AF_CConditionActionDlg::SetButtonCmdIDs(const CUIntArray& ids) {
    m_buttons.SetCmdIDs(ids);
}

void AF_CConditionActionDlg::SetButtonPressCallback(PressCallback pfn, void* pData) {
    m_buttons.m_pfnCallback = pfn;
    m_buttons.m_pCallbackData = pData;
}

void AF_CConditionActionDlg::SetCheckboxClickCallback(PressCallback pfn, void* pData) {
    m_pfnCheckboxCallback = pfn;
    m_pCheckboxData = pData;
}

int AF_CConditionActionDlg::AddGroupLabelAndItemLabels(const CUIntArray& ids) {
    CArray<CStaticTextItem> group;
    for (INT_PTR i = 0; i < ids.GetSize(); ++i) {
        CString text;
        if (!AfxLoadString(ids[i], text))
            return 0;
        group.Add(CStaticTextItem(text, i == 0));
    }
    m_labels.Append(group);
    return 1;
}

int AF_CConditionActionDlg::AddGroupLabelAndItemLabels(unsigned int nGroupID, ...) {
    va_list args;
    va_start(args, nGroupID);
    const CUIntArray ids = AF_CDialogButtons::CollectIds(nGroupID, args);
    va_end(args);
    return AddGroupLabelAndItemLabels(ids);
}

void AF_CConditionActionDlg::AddGroupItemValue(const wchar_t* lpszValue, bool bKeepEnd) {
    m_values.Add(CTruncStaticTextItem(lpszValue, bKeepEnd));
}

int AF_CConditionActionDlg::AddWarning(unsigned int nTextID, bool bHasCheckbox,
                                       unsigned int nCheckboxID, bool bChecked) {
    CWarningItem warning;
    if (!AfxLoadString(nTextID, warning.m_strText))
        return 0;
    if (bHasCheckbox && !CWarningItem::IsCheckboxId(nCheckboxID))
        return 0;
    warning.m_bHasCheckbox = bHasCheckbox;
    warning.m_nCheckboxId = bHasCheckbox ? nCheckboxID : 0;
    warning.m_bChecked = bHasCheckbox && bChecked;
    m_warnings.Add(warning);
    return 1;
}

int AF_CConditionActionDlg::AddWarnings(const CUIntArray& textIds) {
    int result = 1;
    for (INT_PTR i = 0; i < textIds.GetSize(); ++i)
        if (!AddWarning(textIds[i], false, 0, false))
            result = 0;
    return result;
}

int AF_CConditionActionDlg::AddWarnings(unsigned int nFirstID, ...) {
    va_list args;
    va_start(args, nFirstID);
    const CUIntArray ids = AF_CDialogButtons::CollectIds(nFirstID, args);
    va_end(args);
    return AddWarnings(ids);
}

INT_PTR AF_CConditionActionDlg::DoModal() {
    m_bInitFailed = false;
    const INT_PTR result = CDialog::DoModal();
    m_bInitialized = false; // the controls went with the window
    if (m_bInitFailed)
        AfxThrowInvalidArgException();
    return result;
}

// ---- Any time -------------------------------------------------------------

BOOL AF_CConditionActionDlg::EnableButton(unsigned int nID, bool bEnable) {
    return m_buttons.Enable(nID, bEnable);
}

BOOL AF_CConditionActionDlg::EnableCheckbox(unsigned int nID, bool bEnable) {
    CWarningItem* warning = FindWarning(nID);
    if (warning == nullptr)
        return FALSE;
    warning->m_bEnabled = bEnable;
    if (m_bInitialized)
        ::EnableWindow(::GetDlgItem(m_hWnd, static_cast<int>(nID)), bEnable);
    return TRUE;
}

bool AF_CConditionActionDlg::IsWarningCheckboxChecked(unsigned int nID) const {
    const CWarningItem* warning = FindWarning(nID);
    return warning != nullptr && warning->m_bChecked;
}

CWarningItem* AF_CConditionActionDlg::FindWarning(unsigned int nCheckboxID) {
    for (INT_PTR i = 0; i < m_warnings.GetSize(); ++i)
        if (m_warnings[i].m_bHasCheckbox && m_warnings[i].m_nCheckboxId == nCheckboxID)
            return &m_warnings[i];
    return nullptr;
}

const CWarningItem* AF_CConditionActionDlg::FindWarning(unsigned int nCheckboxID) const {
    return const_cast<AF_CConditionActionDlg*>(this)->FindWarning(nCheckboxID);
}

// ---- Initialisation -------------------------------------------------------

void AF_CConditionActionDlg::CalcLayout() {
    AF_CConditionActionLayout::Input in;
    CRect base(0, 0, 4, 8);
    MapDialogRect(&base);
    in.baseX = base.right;
    in.baseY = base.bottom;
    in.rcLabel = ChildRect(*this, m_wndConditionLabel);
    in.rcCondition = ChildRect(*this, m_wndConditionText);
    CRect window, client;
    GetWindowRect(&window);
    GetClientRect(&client);
    in.windowSize = window.Size();
    in.clientSize = client.Size();
    m_wndConditionLabel.GetWindowText(in.labelText);
    in.conditionText = m_strCondition;
    in.promptText = m_strPrompt;
    in.captions.Copy(m_buttons.m_captions);
    AF_CDialogMeasurer measurer(m_hWnd);
    m_layout.Calculate(in, m_labels, m_values, m_warnings, measurer);
}

void AF_CConditionActionDlg::PlaceConditionLine() {
    m_wndConditionLabel.MoveWindow(m_layout.m_rcLabel);
    m_wndConditionText.MoveWindow(m_layout.m_rcCondition);
    if (m_layout.m_bConditionVisible) {
        m_wndConditionText.SetWindowText(m_strCondition);
    } else {
        m_wndConditionText.ShowWindow(SW_HIDE);
        m_wndConditionLabel.ShowWindow(SW_HIDE);
    }
}

void AF_CConditionActionDlg::CreateLabelControls() {
    m_labelCtrls.clear();
    for (INT_PTR i = 0; i < m_labels.GetSize(); ++i) {
        const CStaticTextItem& label = m_labels[i];
        const int width = m_layout.m_labelWidths[static_cast<size_t>(i)];
        auto ctrl = std::make_unique<CStatic>();
        const CRect rc(label.m_nLeft, label.m_nTop, label.m_nLeft + width,
                       label.m_nTop + m_layout.m_nRowStep);
        if (!ctrl->Create(label.m_strText, WS_CHILD | WS_VISIBLE | SS_LEFT | SS_NOPREFIX, rc, this))
            return;
        ctrl->SetFont(GetFont(), FALSE);
        m_labelCtrls.push_back(std::move(ctrl));
    }
}

void AF_CConditionActionDlg::CreateItemValueControls() {
    m_valueCtrls.clear();
    for (size_t i = 0; i < m_layout.m_valueRects.size(); ++i) {
        const CTruncStaticTextItem& value = m_values[static_cast<INT_PTR>(i)];
        auto ctrl = std::make_unique<AF_CTruncStaticCtrl>();
        ctrl->SetKeepEnd(value.m_bKeepEnd);
        if (!ctrl->Create(value.m_strText, WS_CHILD | WS_VISIBLE | SS_LEFT | SS_NOPREFIX,
                          m_layout.m_valueRects[i], this))
            return;
        ctrl->SetFont(GetFont(), FALSE);
        m_valueCtrls.push_back(std::move(ctrl));
    }
}

void AF_CConditionActionDlg::CreateWarningControls() {
    m_warningIcons.clear();
    m_warningTexts.clear();
    const int iconSize = ::GetSystemMetrics(SM_CXSMICON);
    if (m_hWarningIcon == nullptr)
        m_hWarningIcon = static_cast<HICON>(
            ::LoadImageW(nullptr, IDI_EXCLAMATION, IMAGE_ICON, iconSize, iconSize, LR_SHARED));
    for (INT_PTR i = 0; i < m_warnings.GetSize(); ++i) {
        const CWarningItem& warning = m_warnings[i];
        const CWarningPosition& pos = m_layout.m_warningPositions[static_cast<size_t>(i)];
        auto icon = std::make_unique<CStatic>();
        if (!icon->Create(L"", WS_CHILD | WS_VISIBLE | SS_ICON | SS_CENTERIMAGE, pos.m_rcIcon,
                          this))
            return;
        icon->SetIcon(m_hWarningIcon);
        icon->MoveWindow(pos.m_rcIcon); // an icon static sizes itself to the icon
        m_warningIcons.push_back(std::move(icon));

        std::unique_ptr<CWnd> text;
        if (warning.m_bHasCheckbox) {
            auto box = std::make_unique<CButton>();
            if (!box->Create(warning.m_strText,
                             WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_AUTOCHECKBOX | BS_MULTILINE |
                                 BS_TOP,
                             pos.m_rcText, this, warning.m_nCheckboxId))
                return;
            box->SetCheck(warning.m_bChecked ? BST_CHECKED : BST_UNCHECKED);
            text = std::move(box);
        } else {
            auto label = std::make_unique<CStatic>();
            if (!label->Create(warning.m_strText, WS_CHILD | WS_VISIBLE | SS_LEFT | SS_NOPREFIX,
                               pos.m_rcText, this))
                return;
            text = std::move(label);
        }
        text->SetFont(GetFont(), FALSE);
        if (!warning.m_bEnabled)
            text->EnableWindow(FALSE);
        m_warningTexts.push_back(std::move(text));
    }
}

void AF_CConditionActionDlg::CreatePromptControl() {
    if (m_strPrompt.IsEmpty())
        return;
    if (m_wndPrompt.Create(m_strPrompt, WS_CHILD | WS_VISIBLE | SS_LEFT | SS_NOPREFIX,
                           m_layout.m_rcPrompt, this))
        m_wndPrompt.SetFont(GetFont(), FALSE);
}

BOOL AF_CConditionActionDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    m_bInitialized = false;
    m_wndConditionText.SubclassDlgItem(IDC_VU_CONDITION_TEXT, this);
    m_wndConditionLabel.SubclassDlgItem(IDC_VU_CONDITION_LABEL, this);
    SetWindowText(m_strTitle);
    CString label;
    AfxLoadString(IDS_VU_CONDITION, label);
    m_wndConditionLabel.SetWindowText(label);

    CalcLayout();
    PlaceConditionLine();
    SetWindowPos(static_cast<HWND>(nullptr), 0, 0, m_layout.m_windowSize.cx,
                 m_layout.m_windowSize.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    CenterWindow();

    CRect client;
    GetClientRect(&client);
    m_buttons.Create(this, m_layout.CalcButtonRects(client.Size()));
    CreateLabelControls();
    CreateItemValueControls();
    CreateWarningControls();
    CreatePromptControl();

    if (m_buttons.Present(m_buttons.GetDefaultId()))
        SendMessage(DM_SETDEFID, m_buttons.m_nDefaultId);
    m_buttons.UpdateCancelAllowed(this);
    m_bInitialized = true;
    return TRUE;
}

// ---- Buttons, check boxes and help ----------------------------------------

void AF_CConditionActionDlg::OnButtonPressed(unsigned int nID) {
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

void AF_CConditionActionDlg::OnCheckboxClicked(unsigned int nID) {
    CWarningItem* warning = FindWarning(nID);
    if (warning == nullptr)
        return;
    warning->m_bChecked =
        ::SendDlgItemMessageW(m_hWnd, static_cast<int>(nID), BM_GETCHECK, 0, 0) != 0;
    if (m_pfnCheckboxCallback != nullptr)
        m_pfnCheckboxCallback(nID, m_pCheckboxData);
}

void AF_CConditionActionDlg::OnHelp() {
    VuGetHostServices()->ShowContextHelp(kHelpContextBase + m_nHelpContext, m_hWnd);
}

LRESULT AF_CConditionActionDlg::OnCommandHelp(WPARAM, LPARAM) {
    if (m_buttons.WantsF1Help())
        OnHelp();
    return TRUE;
}

BOOL AF_CConditionActionDlg::OnCommand(WPARAM wParam, LPARAM lParam) {
    const UINT id = LOWORD(wParam);
    if (HIWORD(wParam) == BN_CLICKED) {
        if (id >= 1 && id <= kLastButtonId) {
            OnButtonPressed(id);
            return TRUE;
        }
        if (CWarningItem::IsCheckboxId(id)) {
            OnCheckboxClicked(id);
            return TRUE;
        }
    }
    return CDialog::OnCommand(wParam, lParam);
}

LRESULT AF_CConditionActionDlg::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
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

#include "framework/win/Dialog.h"

#include "framework/win/DynLinkLibrary.h"
#include "framework/win/Geometry.h"

CDialog::CDialog(UINT nIDTemplate, CWnd* pParentWnd)
    : m_nIDTemplate(nIDTemplate), m_nIDHelp(nIDTemplate), m_pParentWnd(pParentWnd) {}

BOOL CDialog::InitModalIndirect(const DLGTEMPLATE* lpDialogTemplate, CWnd* pParentWnd) {
    if (lpDialogTemplate == nullptr)
        return FALSE;
    m_lpDialogTemplate = lpDialogTemplate;
    if (pParentWnd != nullptr)
        m_pParentWnd = pParentWnd;
    return TRUE;
}

const DLGTEMPLATE* CDialog::FindTemplate(UINT nIDTemplate, HINSTANCE* phInst) const {
    HINSTANCE hInst = AfxFindResourceHandle(MAKEINTRESOURCEW(nIDTemplate), RT_DIALOG);
    if (hInst == nullptr)
        return nullptr;
    HRSRC hInfo = FindResourceW(hInst, MAKEINTRESOURCEW(nIDTemplate), RT_DIALOG);
    HGLOBAL hData = hInfo != nullptr ? LoadResource(hInst, hInfo) : nullptr;
    *phInst = hInst;
    return static_cast<const DLGTEMPLATE*>(LockResource(hData));
}

HWND CDialog::ParentHandle() const {
    return m_pParentWnd != nullptr ? m_pParentWnd->m_hWnd : m_hWndParent;
}

INT_PTR CDialog::DoModal() {
    if (m_hWnd != nullptr)
        return -1;
    HINSTANCE hInst = AfxGetInstanceHandle();
    const DLGTEMPLATE* lpTemplate = m_lpDialogTemplate;
    if (lpTemplate == nullptr)
        lpTemplate = FindTemplate(m_nIDTemplate, &hInst);
    if (lpTemplate == nullptr)
        return -1;

    CWnd* pOwner = CWnd::GetSafeOwner(CWnd::FromHandle(ParentHandle()));
    m_bModal = TRUE;
    m_bHookPending = true;
    HookCreation();
    INT_PTR result =
        DialogBoxIndirectParamW(hInst, lpTemplate, pOwner != nullptr ? pOwner->m_hWnd : nullptr,
                                &CDialog::AfxDlgProc, reinterpret_cast<LPARAM>(this));
    if (m_bHookPending) {
        m_bHookPending = false;
        UnhookCreation();
    }
    m_bModal = FALSE;
    if (m_hWnd != nullptr && !::IsWindow(m_hWnd))
        Detach();
    return result;
}

BOOL CDialog::Create(UINT nIDTemplate, CWnd* pParentWnd) {
    m_nIDTemplate = nIDTemplate;
    if (m_nIDHelp == 0)
        m_nIDHelp = nIDTemplate;
    HINSTANCE hInst = nullptr;
    const DLGTEMPLATE* lpTemplate = FindTemplate(nIDTemplate, &hInst);
    if (lpTemplate == nullptr)
        return FALSE;
    if (pParentWnd != nullptr)
        m_pParentWnd = pParentWnd;
    m_lpDialogTemplate = lpTemplate;
    HWND hWndParent = ParentHandle();
    m_bHookPending = true;
    HookCreation();
    HWND hWnd = CreateDialogIndirectParamW(hInst, lpTemplate, hWndParent, &CDialog::AfxDlgProc,
                                           reinterpret_cast<LPARAM>(this));
    if (m_bHookPending) {
        m_bHookPending = false;
        UnhookCreation();
    }
    return hWnd != nullptr && m_hWnd == hWnd;
}

BOOL CDialog::CreateIndirect(const DLGTEMPLATE* lpDialogTemplate, CWnd* pParentWnd) {
    if (lpDialogTemplate == nullptr || m_hWnd != nullptr)
        return FALSE;
    if (pParentWnd != nullptr)
        m_pParentWnd = pParentWnd;
    m_lpDialogTemplate = lpDialogTemplate;
    m_bHookPending = true;
    HookCreation();
    HWND hWnd = CreateDialogIndirectParamW(AfxGetInstanceHandle(), lpDialogTemplate, ParentHandle(),
                                           &CDialog::AfxDlgProc, reinterpret_cast<LPARAM>(this));
    if (m_bHookPending) {
        m_bHookPending = false;
        UnhookCreation();
    }
    return hWnd != nullptr && m_hWnd == hWnd;
}

// Our subclass sees the dialog's messages before the dialog manager calls
// this procedure, so it only has to cover a dialog the creation hook missed.
INT_PTR CALLBACK CDialog::AfxDlgProc(HWND hWnd, UINT message, WPARAM, LPARAM lParam) {
    if (message != WM_INITDIALOG)
        return FALSE;
    auto* pDlg = reinterpret_cast<CDialog*>(lParam);
    if (pDlg == nullptr || pDlg->m_hWnd != nullptr)
        return FALSE;
    if (pDlg->m_bHookPending) {
        pDlg->m_bHookPending = false;
        UnhookCreation();
    }
    if (!pDlg->SubclassWindow(hWnd))
        return TRUE;
    BOOL result = TRUE;
    try {
        result = pDlg->OnInitDialog();
    } catch (...) {
        result = TRUE;
    }
    return result;
}

LRESULT CDialog::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        if (m_bHookPending) { // the dialog is ours: later windows are not
            m_bHookPending = false;
            UnhookCreation();
        }
        return OnInitDialog();
    }
    return CWnd::WindowProc(message, wParam, lParam);
}

BOOL CDialog::OnCommand(WPARAM wParam, LPARAM) {
    UINT code = HIWORD(wParam);
    if (code != BN_CLICKED) // also 0 from menus and the dialog manager
        return FALSE;
    switch (LOWORD(wParam)) {
    case IDOK:
        OnOK();
        return TRUE;
    case IDCANCEL:
        OnCancel();
        return TRUE;
    default:
        return FALSE;
    }
}

BOOL CDialog::OnInitDialog() {
    return TRUE;
}
void CDialog::OnOK() {
    EndDialog(IDOK);
}
void CDialog::OnCancel() {
    EndDialog(IDCANCEL);
}

void CDialog::EndDialog(int nResult) {
    if (m_hWnd == nullptr)
        return;
    if (m_bModal)
        ::EndDialog(m_hWnd, nResult);
    else
        ::ShowWindow(m_hWnd, SW_HIDE);
}

void CDialog::GotoDlgCtrl(CWnd* pWndCtrl) {
    if (pWndCtrl != nullptr)
        SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(pWndCtrl->m_hWnd), TRUE);
}

void CDialog::NextDlgCtrl() const {
    SendMessage(WM_NEXTDLGCTL, 0, 0);
}
void CDialog::PrevDlgCtrl() const {
    SendMessage(WM_NEXTDLGCTL, 1, 0);
}
void CDialog::SetDefID(UINT nID) {
    SendMessage(DM_SETDEFID, nID);
}
DWORD CDialog::GetDefID() const {
    return static_cast<DWORD>(SendMessage(DM_GETDEFID));
}
void CDialog::MapDialogRect(CRect* lpRect) const {
    ::MapDialogRect(m_hWnd, vu::AsRECT(lpRect));
}

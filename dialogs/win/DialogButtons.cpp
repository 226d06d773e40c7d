#include "dialogs/win/DialogButtons.h"

#include "framework/win/DynLinkLibrary.h"

int AF_CDialogButtons::SetStringIDs(const CUIntArray& ids) {
    m_captions.RemoveAll();
    for (INT_PTR i = 0; i < ids.GetSize(); ++i) {
        CString caption;
        if (!AfxLoadString(ids[i], caption))
            return 0;
        m_captions.Add(caption);
    }
    return 1;
}

void AF_CDialogButtons::SetCmdIDs(const CUIntArray& ids) {
    m_cmdIds.Copy(ids);
    m_enabled.assign(static_cast<size_t>(ids.GetSize()), true);
}

CUIntArray AF_CDialogButtons::CollectIds(unsigned int first, va_list args) {
    CUIntArray ids;
    for (unsigned int id = first; id != 0; id = va_arg(args, unsigned int))
        ids.Add(id);
    return ids;
}

void AF_CDialogButtons::Create(CWnd* pDlg, const std::vector<CRect>& rects) {
    m_buttons.clear();
    CFont* pFont = pDlg->GetFont();
    for (INT_PTR i = 0; i < m_captions.GetSize(); ++i) {
        const UINT id = m_cmdIds[i]; // more captions than ids: CInvalidArgException
        auto button = std::make_unique<CButton>();
        if (static_cast<size_t>(i) >= rects.size() ||
            !button->Create(m_captions[i], WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_PUSHBUTTON,
                            rects[static_cast<size_t>(i)], pDlg, id))
            return;
        button->SetFont(pFont, FALSE);
        if (!m_enabled[static_cast<size_t>(i)])
            button->EnableWindow(FALSE);
        m_buttons.push_back(std::move(button));
    }
}

int AF_CDialogButtons::Find(unsigned int id) const {
    for (size_t i = 0; i < m_buttons.size(); ++i)
        if (static_cast<unsigned int>(m_buttons[i]->GetDlgCtrlID()) == id)
            return static_cast<int>(i);
    return -1;
}

unsigned int AF_CDialogButtons::GetDefaultId() const {
    return m_nDefaultId != 0 ? m_nDefaultId : m_cmdIds[0];
}

void AF_CDialogButtons::UpdateCancelAllowed(CWnd* pDlg) {
    m_bCancelAllowed = Present(IDCANCEL) || (Present(IDOK) && m_buttons.size() == 1);
    if (!m_bCancelAllowed)
        ::EnableMenuItem(::GetSystemMenu(pDlg->m_hWnd, FALSE), SC_CLOSE, MF_BYCOMMAND | MF_GRAYED);
}

BOOL AF_CDialogButtons::Enable(unsigned int id, bool enable) {
    const int index = Find(id);
    if (index >= 0) {
        m_buttons[static_cast<size_t>(index)]->EnableWindow(enable);
        return TRUE;
    }
    for (INT_PTR i = 0; i < m_cmdIds.GetSize(); ++i) {
        if (m_cmdIds[i] == id) {
            m_enabled[static_cast<size_t>(i)] = enable;
            return TRUE;
        }
    }
    return FALSE;
}

BOOL AF_CDialogButtons::Ask(unsigned int id) const {
    return m_pfnCallback == nullptr || m_pfnCallback(id, m_pCallbackData) != 0;
}

AF_CDialogButtons::Press AF_CDialogButtons::Decide(unsigned int id) const {
    if (id == IDCANCEL && !m_bCancelAllowed)
        return Press::Ignore;
    if (id == kHelpId)
        return m_pfnCallback == nullptr || m_pfnCallback(id, m_pCallbackData) == 0 ? Press::ShowHelp
                                                                                   : Press::Ignore;
    return Ask(id) ? Press::EndDialog : Press::Ignore;
}

BOOL AF_CDialogButtons::WantsF1Help() const {
    return m_bF1Help && (m_pfnCallback == nullptr || m_pfnCallback(kHelpId, m_pCallbackData) == 0);
}

#include "tree/win/TreeComboBoxEditControl.h"

#include "tree/TreeComboRules.h"
#include "tree/win/TreeComboBoxEx.h"

bool VU_CTreeComboBoxEditControl::s_settingSelectionText = false;

bool VU_CTreeComboBoxEditControl::IsTreeDropped() const {
    return m_combo != nullptr && m_combo->IsUsingTree() && m_combo->GetDroppedState();
}

int VU_CTreeComboBoxEditControl::Lookup(CString& text) {
    if (m_combo == nullptr || m_combo->GetCount() <= 0)
        return 0;
    if (m_combo->IsUsingTree()) {
        m_combo->FindStringEx(-1, text.GetString());
        return 0;
    }
    const int row = m_combo->FindNoCaseChildString(text, text.GetLength(), 0, 1);
    if (row < 0)
        return 0;
    m_combo->GetLBItemText(row, text);
    m_combo->SetCurSel(row);
    return 1;
}

LRESULT VU_CTreeComboBoxEditControl::OnKeyDown(WPARAM wParam, LPARAM lParam) {
    const bool dropped = m_combo != nullptr && m_combo->GetDroppedState();
    switch (wParam) {
    case VK_RETURN:
        if (dropped) {
            m_combo->ShowDropDown(FALSE);
            return 0;
        }
        break;
    case VK_LEFT:
    case VK_RIGHT:
        if (dropped && m_combo->IsUsingTree() && m_combo->GetListBox().m_hWnd != nullptr) {
            m_combo->GetListBox().PostMessage(WM_KEYDOWN, wParam, lParam);
            return 0;
        }
        break;
    default:
        break;
    }
    return VU_CLookAheadEdit::OnKeyDown(wParam, lParam);
}

LRESULT VU_CTreeComboBoxEditControl::OnChar(WPARAM wParam, LPARAM lParam) {
    const LRESULT result = VU_CLookAheadEdit::OnChar(wParam, lParam);
    if (IsTreeDropped() && wParam >= 0x20) {
        // What was typed only searched; the field goes back to the selected row.
        CString text;
        GetWindowText(text);
        SetWindowText(text.GetString());
        const int length = GetWindowTextLength();
        SetSel(0, length);
    }
    return result;
}

LRESULT VU_CTreeComboBoxEditControl::OnSetText(WPARAM wParam, LPARAM lParam) {
    const auto* text = reinterpret_cast<const wchar_t*>(lParam);
    if (s_settingSelectionText || m_combo == nullptr || text == nullptr)
        return VU_CLookAheadEdit::OnSetText(wParam, lParam);
    const bool useTree = m_combo->IsUsingTree();
    // Held only while a row is selected: with none, what is typed stays.
    const bool dropped = useTree && m_combo->GetDroppedState() && m_combo->GetCurSel() >= 0;
    const CString selection = dropped ? m_combo->GetCurSelDisplayText() : CString();
    if (!vu::treecombo::MustShowSelection(
            useTree, dropped, text,
            std::wstring_view(selection.GetString(), static_cast<size_t>(selection.GetLength()))))
        return VU_CLookAheadEdit::OnSetText(wParam, lParam);
    s_settingSelectionText = true;
    const LRESULT result =
        VU_CLookAheadEdit::OnSetText(wParam, reinterpret_cast<LPARAM>(selection.GetString()));
    s_settingSelectionText = false;
    return result;
}

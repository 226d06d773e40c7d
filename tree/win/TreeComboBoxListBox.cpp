#include "tree/win/TreeComboBoxListBox.h"

#include "tree/TreeComboRules.h"
#include "tree/win/TreeComboBoxEx.h"

#include <windowsx.h>

#include <cstring>

using vu::treecombo::DropClick;

int VU_CTreeComboBoxListBox::GetChildItemTextLength(int row) const {
    const CTreeNode* node = GetNode(row);
    return node == nullptr ? LB_ERR : node->GetDisplayText().GetLength();
}

int VU_CTreeComboBoxListBox::GetChildItemText(int row, wchar_t* buffer) const {
    const CTreeNode* node = GetNode(row);
    if (node == nullptr || buffer == nullptr)
        return LB_ERR;
    const CString text = node->GetDisplayText();
    std::memcpy(buffer, text.GetString(), sizeof(wchar_t) * static_cast<size_t>(text.GetLength()));
    buffer[text.GetLength()] = 0;
    return text.GetLength();
}

int VU_CTreeComboBoxListBox::GetItemIcon(int row) const {
    const CTreeNode* node = GetNode(row);
    return node == nullptr ? -1 : node->GetImageIndex(0);
}

void VU_CTreeComboBoxListBox::Expand(int row) {
    CTreeNode* node = GetNode(row);
    const bool opens = node != nullptr && !node->IsExpanded() && node->GetNumberOfChildren() > 0;
    if (!opens)
        return;
    BeginUpdate(); // one repaint for the rows, the size and the scrolling
    VU_CTreeListBox::Expand(row);
    FitDropDownToRows();
    // Bring the new children in, as many as the page holds below the parent:
    // the parent goes to the top when they do not all fit.
    const int shown = node->ComputeNumberOfExpandedNodesShowing();
    RECT client{};
    ::GetClientRect(m_hWnd, &client);
    const int itemHeight = static_cast<int>(::SendMessageW(m_hWnd, LB_GETITEMHEIGHT, 0, 0));
    const int page = itemHeight > 0 ? client.bottom / itemHeight : 0;
    if (vu::treecombo::ParentGoesToTop(shown, page))
        SetTopIndex(row);
    else
        ScrollItemIntoView(row + shown);
    EndUpdate();
}

void VU_CTreeComboBoxListBox::FitDropDownToRows() {
    // The drop-down was sized to the rows it opened with; rows that a toggle
    // adds must stay inside it, up to the height the combo was given. It
    // does not shrink again while open: the rows under the pointer stay put.
    if (m_combo == nullptr || m_hWnd == nullptr || !m_combo->GetDroppedState())
        return;
    CRect dropped;
    m_combo->GetDroppedControlRect(&dropped);
    RECT window{}, client{};
    ::GetWindowRect(m_hWnd, &window);
    ::GetClientRect(m_hWnd, &client);
    const int itemHeight = static_cast<int>(::SendMessageW(m_hWnd, LB_GETITEMHEIGHT, 0, 0));
    const int current = window.bottom - window.top;
    const int height = vu::treecombo::DropDownHeight(
        GetRowCount(), itemHeight, current - client.bottom, dropped.Height(), current);
    if (height != current)
        ::SetWindowPos(m_hWnd, nullptr, 0, 0, window.right - window.left, height,
                       SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

BOOL VU_CTreeComboBoxListBox::HasFocus() {
    if (m_combo == nullptr)
        return VU_CTreeListBox::HasFocus();
    if (m_combo->GetDroppedState())
        return TRUE; // an open drop-down is where the user is choosing
    HWND focus = ::GetFocus();
    return focus != nullptr && (focus == m_combo->m_hWnd || ::IsChild(m_combo->m_hWnd, focus));
}

bool VU_CTreeComboBoxListBox::IsItemAllowedToBeSelected(int row) {
    if (!IsRowSelectable(row) || GetNode(row) == nullptr)
        return false;
    return m_combo == nullptr || m_combo->IsItemAllowedToBeSelected(row);
}

BOOL VU_CTreeComboBoxListBox::PreTranslateMessage(MSG* msg) {
    return VU_CTreeListBox::PreTranslateMessage(msg);
}

LRESULT VU_CTreeComboBoxListBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_LBUTTONDOWN:
        return OnDropLButtonDown(wParam, lParam);
    case WM_LBUTTONUP:
        return OnDropLButtonUp(wParam, lParam);
    case WM_LBUTTONDBLCLK:
        return OnDropLButtonDblClk(wParam, lParam);
    case WM_MOUSEMOVE:
        return OnDropMouseMove(wParam, lParam);
    case LB_GETTEXT:
        return GetChildItemText(static_cast<int>(wParam), reinterpret_cast<wchar_t*>(lParam));
    case LB_GETTEXTLEN:
        return GetChildItemTextLength(static_cast<int>(wParam));
    default:
        return VU_CTreeListBox::WindowProc(message, wParam, lParam);
    }
}

LRESULT VU_CTreeComboBoxListBox::OnDropLButtonDown(WPARAM wParam, LPARAM lParam) {
    const CPoint point(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
    const bool onScrollBar = IsOnScrollBar(point);
    // A click that may end the drop-down starts from the row it opened with.
    if (!onScrollBar && m_combo != nullptr && !m_combo->GetInitialText().IsEmpty())
        SelectItemFromString(m_combo->GetInitialText(), false);
    const int row = RowFromPoint(point);
    const CTreeNode* node = GetNode(row);
    const DropClick click = vu::treecombo::ClassifyDropClick(
        onScrollBar, node != nullptr, point.x, node != nullptr ? node->GetLevel() : 0,
        node != nullptr && node->GetNumberOfChildren() > 0,
        node != nullptr && IsItemAllowedToBeSelected(row));
    switch (click) {
    case DropClick::Toggle:
        if (node->IsExpanded())
            Collapse(row);
        else
            Expand(row);
        m_pressSwallowed = true;
        return 0;
    case DropClick::Ignore:
        m_pressSwallowed = true;
        return 0;
    case DropClick::Default:
        break;
    }
    m_pressSwallowed = false;
    return VU_CTreeListBox::WindowProc(WM_LBUTTONDOWN, wParam, lParam);
}

LRESULT VU_CTreeComboBoxListBox::OnDropLButtonUp(WPARAM wParam, LPARAM lParam) {
    // The release of a press that toggled or was ignored chooses nothing
    // (some list boxes would report a selection change for it and close).
    if (m_pressSwallowed) {
        m_pressSwallowed = false;
        return 0;
    }
    m_closingClick = true;
    const LRESULT result = VU_CTreeListBox::WindowProc(WM_LBUTTONUP, wParam, lParam);
    m_closingClick = false;
    return result;
}

LRESULT VU_CTreeComboBoxListBox::OnDropLButtonDblClk(WPARAM wParam, LPARAM lParam) {
    const CPoint point(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
    const int row = RowFromPoint(point);
    const CTreeNode* node = GetNode(row);
    // A parent opens or closes (the tree list's own double click); a row
    // that may not be chosen stays unchosen.
    if (!IsOnScrollBar(point) && node != nullptr && node->GetNumberOfChildren() == 0 &&
        !IsItemAllowedToBeSelected(row))
        return 0;
    return VU_CTreeListBox::WindowProc(WM_LBUTTONDBLCLK, wParam, lParam);
}

LRESULT VU_CTreeComboBoxListBox::OnDropMouseMove(WPARAM wParam, LPARAM lParam) {
    // The drop-down selects the row under a moving pointer; it must not rest
    // on a row that cannot be chosen.
    const CPoint point(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
    const int row = RowFromPoint(point);
    if (row >= 0 && !IsOnScrollBar(point) && !IsItemAllowedToBeSelected(row))
        return 0;
    return VU_CTreeListBox::WindowProc(WM_MOUSEMOVE, wParam, lParam);
}

void VU_CTreeComboBoxListBox::OnReflectedSelChange() {
    if (m_combo == nullptr) {
        m_closingClick = false;
        return;
    }
    const int row = GetSelectedRow();
    if (row >= 0 && IsChildNode(row)) {
        m_combo->SetCurSel(row);
        m_combo->SetEditText(GetDisplayText(row));
        if (m_closingClick) {
            m_combo->ShowDropDown(FALSE);
            HWND parent = ::GetParent(m_combo->m_hWnd);
            if (parent != nullptr)
                ::PostMessageW(parent, WM_COMMAND,
                               MAKEWPARAM(m_combo->GetDlgCtrlID(), CBN_SELENDOK),
                               reinterpret_cast<LPARAM>(m_combo->m_hWnd));
            m_closingClick = false;
        }
        return;
    }
    m_closingClick = false;
    const DWORD type = m_combo->GetStyle() & 0x3;
    if (type != CBS_SIMPLE && !m_combo->GetDroppedState())
        m_combo->ShowDropDown(TRUE);
}

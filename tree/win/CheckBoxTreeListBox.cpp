#include "tree/win/CheckBoxTreeListBox.h"

#include "tree/CheckRules.h"
#include "tree/win/CheckColumn.h"

#include <windowsx.h>

using namespace vu::checklist;

VU_CCheckBoxTreeListBox::VU_CCheckBoxTreeListBox() = default;
VU_CCheckBoxTreeListBox::~VU_CCheckBoxTreeListBox() = default;

CTreeNode* VU_CCheckBoxTreeListBox::CreateTreeNode(const CString& text,
                                                   const VU_CImageIndexArray& images,
                                                   unsigned long itemData, int handle,
                                                   CTreeNode* parent) {
    return new CTwoStateCheckboxTreeNode(text, images, itemData, handle, parent);
}

// ---- Operations ----------------------------------------------------------------

void VU_CCheckBoxTreeListBox::CheckAllItem(bool state) {
    vu::checks::SetAllOwnChecks(GetRoots(), state);
    InvalidateChecks();
}

void VU_CCheckBoxTreeListBox::CheckItems(CArray<CString, CString>* texts) {
    if (texts == nullptr)
        return;
    for (CTreeNode* node : vu::checks::FindNodesWithTexts(GetRoots(), *texts))
        vu::checks::SetOwnCheck(node, true, false);
    InvalidateChecks();
}

void VU_CCheckBoxTreeListBox::GetCheckedParentItemNames(CArray<CString, CString>* names) {
    vu::checks::GetOwnCheckedNames(GetRoots(), vu::checks::CheckedKind::Parents, names);
}

void VU_CCheckBoxTreeListBox::SetCheck(unsigned long itemData, bool state) {
    vu::checks::SetOwnCheck(FindNodeFromItemData(itemData), state, false);
    InvalidateChecks();
}

void VU_CCheckBoxTreeListBox::SetCheck(CString text, bool state) {
    CArray<CString, CString> texts;
    texts.Add(text);
    for (CTreeNode* node : vu::checks::FindNodesWithTexts(GetRoots(), texts))
        vu::checks::SetOwnCheck(node, state, false);
    InvalidateChecks();
}

void VU_CCheckBoxTreeListBox::SetCheck(CTwoStateCheckboxTreeNode* node, bool check,
                                       bool withChildren) {
    vu::checks::SetOwnCheck(node, check, withChildren);
    InvalidateChecks();
}

void VU_CCheckBoxTreeListBox::CheckAllSelectedItems(ACheckboxTreeNode* node) {
    if (!IsMultipleSelection(m_hWnd)) {
        vu::checks::ToggleOwnChecks({node});
        return;
    }
    std::vector<CTreeNode*> nodes;
    for (int row : GetSelectedRows(m_hWnd))
        nodes.push_back(GetNode(row));
    vu::checks::ToggleOwnChecks(nodes);
}

// ---- Messages --------------------------------------------------------------------

LRESULT VU_CCheckBoxTreeListBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_LBUTTONDOWN)
        return OnCheckClick(wParam, lParam);
    return VU_ACheckBoxTreeListBox::WindowProc(message, wParam, lParam);
}

// A check click toggles first; the tree list box then selects the row.
LRESULT VU_CCheckBoxTreeListBox::OnCheckClick(WPARAM wParam, LPARAM lParam) {
    const CPoint point(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
    if (!IsOnScrollBar(point) && IsCheckClick(point.x)) {
        CTreeNode* node = GetNode(RowFromPoint(point));
        if (node != nullptr) {
            CheckAllSelectedItems(dynamic_cast<ACheckboxTreeNode*>(node));
            ::InvalidateRect(m_hWnd, nullptr, TRUE);
        }
    }
    return VU_ACheckBoxTreeListBox::WindowProc(WM_LBUTTONDOWN, wParam, lParam);
}

// ---- Drawing ------------------------------------------------------------------------

void VU_CCheckBoxTreeListBox::DrawItem(LPDRAWITEMSTRUCT dis) {
    VU_ACheckBoxTreeListBox::DrawItem(dis);
    if (dis == nullptr || dis->itemID == static_cast<UINT>(-1))
        return;
    auto* node = reinterpret_cast<CTreeNode*>(dis->itemData);
    const ACheckboxTreeNode* checkable = vu::checks::AsOwnCheckable(node);
    if (checkable == nullptr || node->GetNumberOfChildren() > 0)
        return;
    RECT box = dis->rcItem;
    box.right = box.left + GetCheckColumnWidth();
    UINT state = DFCS_BUTTONCHECK;
    if (checkable->IsChecked())
        state |= DFCS_CHECKED;
    DrawFrameControl(dis->hDC, &box, DFC_BUTTON, state);
}

BOOL VU_CCheckBoxTreeListBox::GetTextUnderPoint(const CPoint& point, int row, int& textLeft) {
    if (IsCheckClick(point.x))
        return FALSE;
    return VU_ACheckBoxTreeListBox::GetTextUnderPoint(point, row, textLeft);
}

void VU_CCheckBoxTreeListBox::InvalidateChecks() {
    if (m_hWnd != nullptr)
        ::InvalidateRect(m_hWnd, nullptr, TRUE);
}

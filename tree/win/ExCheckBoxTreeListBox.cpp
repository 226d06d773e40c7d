#include "tree/win/ExCheckBoxTreeListBox.h"

#include "foundation/win/Library.h"
#include "tree/CheckImages.h"
#include "tree/CheckRules.h"
#include "tree/win/CheckColumn.h"

#include <windowsx.h>

using namespace vu::checklist;

VU_CExCheckBoxTreeListBox::VU_CExCheckBoxTreeListBox() {
    m_checkImageList.Create(VuGetInstanceHandle(), VU_IDB_CHECK_IMAGES, VU_CHECK_IMAGE_WIDTH, 1,
                            RGB(255, 255, 255));
    SetLeftGutterSize(GetCheckColumnWidth());
}

VU_CExCheckBoxTreeListBox::~VU_CExCheckBoxTreeListBox() = default;

CTreeNode* VU_CExCheckBoxTreeListBox::CreateTreeNode(const CString& text,
                                                     const VU_CImageIndexArray& images,
                                                     unsigned long itemData, int handle,
                                                     CTreeNode* parent) {
    return new CCheckboxTreeNode(text, images, itemData, handle, parent);
}

// ---- Attributes ----------------------------------------------------------------

void VU_CExCheckBoxTreeListBox::IncludeParentChecks(bool include) {
    m_includeParentChecks = include;
    InvalidateChecks();
}

int VU_CExCheckBoxTreeListBox::GetCheckImage(int row) const {
    return vu::checks::CheckImageOf(GetNode(row), m_includeParentChecks);
}

// ---- Operations ----------------------------------------------------------------

void VU_CExCheckBoxTreeListBox::CheckItems(CArray<CString, CString>* texts) {
    if (texts == nullptr)
        return;
    vu::checks::CheckNodesWithChildren(vu::checks::FindNodesWithTexts(GetRoots(), *texts));
    InvalidateChecks();
}

void VU_CExCheckBoxTreeListBox::ClearAllChecks() {
    vu::checks::SetAllChecks(GetRoots(), false);
    InvalidateChecks();
}

void VU_CExCheckBoxTreeListBox::CheckAllItem() {
    vu::checks::SetAllChecks(GetRoots(), true);
    InvalidateChecks();
}

bool VU_CExCheckBoxTreeListBox::IsAnyLeafChecked() const {
    return vu::checks::IsAnyLeafChecked(GetRoots());
}

void VU_CExCheckBoxTreeListBox::FillSelNodes(CArray<unsigned long, unsigned long>* itemData) {
    vu::checks::GetCheckedLeafItemData(GetRoots(), itemData);
}

void VU_CExCheckBoxTreeListBox::GetCheckedLeafItemNames(CArray<CString, CString>* names) const {
    vu::checks::GetCheckedLeafItemNames(GetRoots(), names);
}

void VU_CExCheckBoxTreeListBox::GetCheckedSingleTopLevelItemNames(
    CArray<CString, CString>* names) const {
    vu::checks::GetCheckedSingleTopLevelItemNames(GetRoots(), names);
}

// ---- Check rules -----------------------------------------------------------------

void VU_CExCheckBoxTreeListBox::SetCheck(unsigned long itemData, bool state) {
    auto* node = dynamic_cast<CCheckboxTreeNode*>(FindNodeFromItemData(itemData));
    if (node == nullptr)
        return;
    SetCheck(node, state, false);
    UpdateParentCheck(node, state);
    InvalidateChecks();
}

void VU_CExCheckBoxTreeListBox::SetCheck(CString text, bool state) {
    CArray<CString, CString> texts;
    texts.Add(text);
    for (CTreeNode* node : vu::checks::FindNodesWithTexts(GetRoots(), texts)) {
        vu::checks::SetCheck(node, state, false);
        vu::checks::UpdateParentCheck(node);
    }
    InvalidateChecks();
}

void VU_CExCheckBoxTreeListBox::SetCheck(CCheckboxTreeNode* node, bool check, bool withChildren) {
    vu::checks::SetCheck(node, check, withChildren);
}

void VU_CExCheckBoxTreeListBox::SetCheckWithChildren(CCheckboxTreeNode* node, bool state) {
    vu::checks::SetCheckWithChildren(node, state);
}

void VU_CExCheckBoxTreeListBox::UpdateParentCheck(CCheckboxTreeNode* node, bool) {
    vu::checks::UpdateParentCheck(node);
}

bool VU_CExCheckBoxTreeListBox::AreChildrenChecked(CCheckboxTreeNode* node, bool& all) {
    return vu::checks::AreChildrenChecked(node, all);
}

void VU_CExCheckBoxTreeListBox::CheckIdenticalItems(CCheckboxTreeNode* node, bool state) {
    vu::checks::CheckIdenticalItems(GetRoots(), node, state);
}

CCheckboxTreeNode* VU_CExCheckBoxTreeListBox::GetParentNode(CCheckboxTreeNode* node, int level,
                                                            CString& text) {
    auto* found = dynamic_cast<CCheckboxTreeNode*>(vu::checks::GetAncestorAtLevel(node, level));
    text = found != nullptr ? found->GetDisplayText() : CString();
    return found;
}

void VU_CExCheckBoxTreeListBox::CheckAllSelectedItems(CCheckboxTreeNode* node) {
    if (!IsMultipleSelection(m_hWnd)) {
        vu::checks::ToggleNode(GetRoots(), node);
        return;
    }
    std::vector<CTreeNode*> nodes;
    for (int row : GetSelectedRows(m_hWnd))
        nodes.push_back(GetNode(row));
    vu::checks::ToggleSelectedNodes(nodes);
}

BOOL VU_CExCheckBoxTreeListBox::IsThereNodeSelection() {
    for (int row : GetSelectedRows(m_hWnd))
        if (GetNode(row) != nullptr)
            return TRUE;
    return FALSE;
}

// ---- Messages --------------------------------------------------------------------

LRESULT VU_CExCheckBoxTreeListBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_LBUTTONDOWN:
        return OnCheckClick(wParam, lParam);
    case WM_CHAR:
        return OnCheckChar(wParam, lParam);
    default:
        return VU_CTreeListBox::WindowProc(message, wParam, lParam);
    }
}

// A check click toggles first; the tree list box then selects the row.
LRESULT VU_CExCheckBoxTreeListBox::OnCheckClick(WPARAM wParam, LPARAM lParam) {
    const CPoint point(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
    if (!IsOnScrollBar(point) && IsCheckClick(point.x)) {
        CTreeNode* node = GetNode(RowFromPoint(point));
        if (node != nullptr) {
            CheckAllSelectedItems(dynamic_cast<CCheckboxTreeNode*>(node));
            ::InvalidateRect(m_hWnd, nullptr, TRUE);
        }
    }
    return VU_CTreeListBox::WindowProc(WM_LBUTTONDOWN, wParam, lParam);
}

LRESULT VU_CExCheckBoxTreeListBox::OnCheckChar(WPARAM wParam, LPARAM lParam) {
    if (wParam == VK_SPACE) {
        for (int row : GetSelectedRows(m_hWnd)) {
            CTreeNode* node = GetNode(row);
            if (node == nullptr)
                continue;
            CheckAllSelectedItems(dynamic_cast<CCheckboxTreeNode*>(node));
            ::InvalidateRect(m_hWnd, nullptr, TRUE);
            return 0;
        }
    }
    return VU_CTreeListBox::WindowProc(WM_CHAR, wParam, lParam);
}

// ---- Drawing ------------------------------------------------------------------------

void VU_CExCheckBoxTreeListBox::DrawItem(LPDRAWITEMSTRUCT dis) {
    if (dis == nullptr || dis->itemID == static_cast<UINT>(-1))
        return;
    auto* node = reinterpret_cast<CTreeNode*>(dis->itemData);
    if (node != nullptr && node->IsSeparator()) {
        DrawSeparatorLines(dis->hDC, dis->rcItem);
        return;
    }
    VU_CTreeListBox::DrawItem(dis);
    const int image = vu::checks::CheckImageOf(node, m_includeParentChecks);
    if (image >= 0)
        ImageList_Draw(m_checkImageList.GetSafeHandle(), image, dis->hDC, dis->rcItem.left,
                       dis->rcItem.top, ILD_TRANSPARENT);
}

// Two grey lines, 6 and 8 pixels below the row's top, across the whole row.
void VU_CExCheckBoxTreeListBox::DrawSeparatorLines(HDC dc, const RECT& rc) {
    HBRUSH background = CreateSolidBrush(GetSysColor(COLOR_WINDOW));
    FillRect(dc, &rc, background);
    DeleteObject(background);
    HPEN pen = CreatePen(PS_SOLID, 1, GetSysColor(COLOR_GRAYTEXT));
    HGDIOBJ old = SelectObject(dc, pen);
    for (int y : {rc.top + 6, rc.top + 8}) {
        MoveToEx(dc, rc.left, y, nullptr);
        LineTo(dc, rc.right, y);
    }
    SelectObject(dc, old);
    DeleteObject(pen);
}

BOOL VU_CExCheckBoxTreeListBox::GetTextUnderPoint(const CPoint& point, int row, int& textLeft) {
    if (IsCheckClick(point.x))
        return FALSE;
    return VU_CTreeListBox::GetTextUnderPoint(point, row, textLeft);
}

void VU_CExCheckBoxTreeListBox::InvalidateChecks() {
    if (m_hWnd != nullptr)
        ::InvalidateRect(m_hWnd, nullptr, TRUE);
}

#include "tree/win/ACheckBoxTreeListBox.h"

#include "tree/CheckRules.h"
#include "tree/win/CheckColumn.h"

VU_ACheckBoxTreeListBox::VU_ACheckBoxTreeListBox() {
    SetLeftGutterSize(vu::checklist::GetCheckColumnWidth());
}

VU_ACheckBoxTreeListBox::~VU_ACheckBoxTreeListBox() = default;

CTreeNode* VU_ACheckBoxTreeListBox::CreateTreeNode(const CString& text,
                                                   const VU_CImageIndexArray& images,
                                                   unsigned long itemData, int handle,
                                                   CTreeNode* parent) {
    return new ACheckboxTreeNode(text, images, itemData, handle, parent);
}

bool VU_ACheckBoxTreeListBox::IsItemChecked(int row) const {
    const ACheckboxTreeNode* node = vu::checks::AsOwnCheckable(GetNode(row));
    return node != nullptr && node->IsChecked();
}

void VU_ACheckBoxTreeListBox::FillSelNodes(CArray<unsigned long, unsigned long>* itemData) {
    vu::checks::GetOwnCheckedItemData(GetRoots(), vu::checks::CheckedKind::Any, itemData);
}

void VU_ACheckBoxTreeListBox::GetCheckedItemNames(CArray<CString, CString>* names) {
    vu::checks::GetOwnCheckedNames(GetRoots(), vu::checks::CheckedKind::Leaves, names);
}

ACheckboxTreeNode* VU_ACheckBoxTreeListBox::GetParentNode(ACheckboxTreeNode* node, int level,
                                                          CString& text) {
    auto* found = dynamic_cast<ACheckboxTreeNode*>(vu::checks::GetAncestorAtLevel(node, level));
    text = found != nullptr ? found->GetDisplayText() : CString();
    return found;
}

void VU_ACheckBoxTreeListBox::CheckAllSelectedItems(ACheckboxTreeNode*) {}

LRESULT VU_ACheckBoxTreeListBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_CHAR)
        return OnCheckChar(wParam, lParam);
    return VU_CTreeListBox::WindowProc(message, wParam, lParam);
}

LRESULT VU_ACheckBoxTreeListBox::OnCheckChar(WPARAM wParam, LPARAM lParam) {
    if (wParam == VK_SPACE) {
        for (int row : vu::checklist::GetSelectedRows(m_hWnd)) {
            CTreeNode* node = GetNode(row);
            if (node == nullptr)
                continue;
            CheckAllSelectedItems(dynamic_cast<ACheckboxTreeNode*>(node));
            ::InvalidateRect(m_hWnd, nullptr, TRUE);
            return 0;
        }
    }
    return VU_CTreeListBox::WindowProc(WM_CHAR, wParam, lParam);
}

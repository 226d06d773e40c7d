#pragma once
// VU_CCheckBoxTreeListBox: the two-state check-box tree list box. Every node
// is checked by itself and nothing propagates; leaves show a check box in
// the check column (SM_CXHTHUMB wide, left of the tree), parents none. A
// click left of the column's right edge or the space key flips the row's
// node, or with LBS_MULTIPLESEL every selected row's node.
//
// Choices where the behaviour was open:
// - CheckAllItem(state) sets every node, parents included; CheckItems
//   checks every node (at any depth, shown or not) whose text is listed and
//   clears nothing.
// - GetCheckedParentItemNames appends the texts of the checked nodes that
//   have children, in pre-order.
// - SetCheck by item data sets the first node in pre-order that has it, by
//   text every node with that text; SetCheck(node, check, withChildren) sets
//   the node and, with withChildren, its descendants.
#include "tree/TwoStateCheckboxTreeNode.h"
#include "tree/win/ACheckBoxTreeListBox.h"

class VU_CCheckBoxTreeListBox : public VU_ACheckBoxTreeListBox {
public:
    VU_CCheckBoxTreeListBox();
    ~VU_CCheckBoxTreeListBox() override;

    // Operations
    void CheckAllItem(bool state);
    void CheckItems(CArray<CString, CString>* texts);
    virtual void GetCheckedParentItemNames(CArray<CString, CString>* names);

    // Overridables
    CTreeNode* CreateTreeNode(const CString& text, const VU_CImageIndexArray& images,
                              unsigned long itemData, int handle, CTreeNode* parent) override;
    // The check column is not text.
    BOOL GetTextUnderPoint(const CPoint& point, int row, int& textLeft) override;
    void DrawItem(LPDRAWITEMSTRUCT drawItem) override;

protected:
    void SetCheck(unsigned long itemData, bool state);
    void SetCheck(CString text, bool state);
    void SetCheck(CTwoStateCheckboxTreeNode* node, bool check, bool withChildren);
    void CheckAllSelectedItems(ACheckboxTreeNode* node) override;

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    // Message handlers
    LRESULT OnCheckClick(WPARAM wParam, LPARAM lParam);

private:
    void InvalidateChecks();
};

#pragma once
// VU_ACheckBoxTreeListBox: the base of the two-state check-box tree list
// box. Its nodes are ACheckboxTreeNode, each checked by itself; it collects
// the checked names and nodes and turns the space key into a toggle, which
// derived lists define in CheckAllSelectedItems (nothing here).
//
// Choices where the behaviour was open:
// - Space in a single-selection list toggles the current selection's row.
// - FillSelNodes appends the item data of every checked node in pre-order:
//   a parent's check is its own here, so a checked parent is chosen too.
// - GetCheckedItemNames appends the texts of the checked leaves in pre-order.
// - GetParentNode returns the node's ancestor at a level (the node itself at
//   its own level) and its text, or null and an empty text.
// Header and separator rows carry no check.
#include "framework/Array.h"
#include "tree/ACheckboxTreeNode.h"
#include "tree/win/TreeListBox.h"

class VU_ACheckBoxTreeListBox : public VU_CTreeListBox {
public:
    VU_ACheckBoxTreeListBox();
    ~VU_ACheckBoxTreeListBox() override;

    // Attributes
    // Whether the row's node is checked; false for no row.
    bool IsItemChecked(int row) const;

    // Operations
    void FillSelNodes(CArray<unsigned long, unsigned long>* itemData);
    virtual void GetCheckedItemNames(CArray<CString, CString>* names);
    ACheckboxTreeNode* GetParentNode(ACheckboxTreeNode* node, int level, CString& text);

    // Overridables
    CTreeNode* CreateTreeNode(const CString& text, const VU_CImageIndexArray& images,
                              unsigned long itemData, int handle, CTreeNode* parent) override;

protected:
    // The toggle of the space key (and, in derived lists, a click) on the node's row.
    virtual void CheckAllSelectedItems(ACheckboxTreeNode* node);

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    // Message handlers
    LRESULT OnCheckChar(WPARAM wParam, LPARAM lParam);
};

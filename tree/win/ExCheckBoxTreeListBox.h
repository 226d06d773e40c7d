#pragma once
// VU_CExCheckBoxTreeListBox: a tree list box with a check box left of each
// row whose checks propagate. Checking a row checks its whole subtree; a
// parent is checked exactly when every descendant is, and shows all, some or
// none; top-level rows with the same text follow each other when one of them
// is toggled in a single-selection list. The rules are tree/CheckRules.h.
//
// The check column is the tree list box's left gutter, SM_CXHTHUMB wide; a
// click left of it (x below the width) or the space key toggles. With
// LBS_MULTIPLESEL the toggle flips every selected row in turn.
//
// Choices where the behaviour was open:
// - Space in a single-selection list toggles the current selection's row.
// - CheckItems checks every node (shown or not, at any depth) whose text is
//   listed, with its descendants, and brings the ancestors up to date; it
//   clears nothing. ClearAllChecks and CheckAllItem set every node.
// - FillSelNodes appends the item data of the checked leaves in pre-order,
//   the items a user chose (a parent's check only sums up its leaves).
// - SetCheck by item data (the first node in pre-order) or by text (every
//   node with that text) keeps the rule of SetCheck(node, state, false) and
//   then updates the ancestors.
// - GetParentNode returns the node's ancestor at a level (the node itself at
//   its own level) and its text, or null and an empty text.
// Header and separator rows carry no check.
#include "framework/Array.h"
#include "framework/win/ImageList.h"
#include "tree/CheckboxTreeNode.h"
#include "tree/win/TreeListBox.h"

class VU_CExCheckBoxTreeListBox : public VU_CTreeListBox {
public:
    VU_CExCheckBoxTreeListBox();
    ~VU_CExCheckBoxTreeListBox() override;

    // Attributes
    // Whether rows with children show their check image (true by default);
    // their flags follow the rules either way.
    void IncludeParentChecks(bool include);
    bool AreParentChecksIncluded() const { return m_includeParentChecks; }
    // The check image the row shows (VU_CheckImage), -1 for none or no row.
    int GetCheckImage(int row) const;

    // Operations
    void CheckItems(CArray<CString, CString>* texts);
    void ClearAllChecks();
    void CheckAllItem();
    bool IsAnyLeafChecked() const;
    virtual void FillSelNodes(CArray<unsigned long, unsigned long>* itemData);
    void GetCheckedLeafItemNames(CArray<CString, CString>* names) const;
    void GetCheckedSingleTopLevelItemNames(CArray<CString, CString>* names) const;

    // Overridables
    CTreeNode* CreateTreeNode(const CString& text, const VU_CImageIndexArray& images,
                              unsigned long itemData, int handle, CTreeNode* parent) override;
    // The check column is not text.
    BOOL GetTextUnderPoint(const CPoint& point, int row, int& textLeft) override;
    void DrawItem(LPDRAWITEMSTRUCT drawItem) override;

protected:
    void SetCheck(unsigned long itemData, bool state);
    void SetCheck(CString text, bool state);
    void SetCheck(CCheckboxTreeNode* node, bool check, bool withChildren);
    void SetCheckWithChildren(CCheckboxTreeNode* node, bool state);
    // The ancestors' flags are computed from the tree; `state` is the node's
    // new flag, which the rule reads from the node itself.
    void UpdateParentCheck(CCheckboxTreeNode* node, bool state);
    bool AreChildrenChecked(CCheckboxTreeNode* node, bool& all);
    void CheckIdenticalItems(CCheckboxTreeNode* node, bool state);
    CCheckboxTreeNode* GetParentNode(CCheckboxTreeNode* node, int level, CString& text);
    // The toggle of a click or the space key on the node's row.
    virtual void CheckAllSelectedItems(CCheckboxTreeNode* node);
    BOOL IsThereNodeSelection();

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    // Message handlers
    LRESULT OnCheckClick(WPARAM wParam, LPARAM lParam);
    LRESULT OnCheckChar(WPARAM wParam, LPARAM lParam);

private:
    void DrawSeparatorLines(HDC dc, const RECT& rc);
    void InvalidateChecks();

    // Attributes
    CImageList m_checkImageList;       // bitmap 3336, 16-pixel images, white mask
    bool m_includeParentChecks = true; // parent rows show their state
};

#pragma once
// A node of VU_CExCheckBoxTreeListBox: a tree node with a check flag whose
// state propagates through the tree (see tree/CheckRules.h). The flag of a
// node with children is kept equal to "every descendant is checked" by the
// list; what a parent row shows is computed from its descendants.
#include "tree/TreeNode.h"

class CCheckboxTreeNode : public CTreeNode {
public:
    using CTreeNode::CTreeNode;

    // Attributes
    bool IsChecked() const { return m_checked; }
    void SetCheck(bool checked) { m_checked = checked; }

private:
    bool m_checked = false;
};

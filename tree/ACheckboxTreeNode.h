#pragma once
// A node of VU_ACheckBoxTreeListBox and the lists derived from it: a tree
// node with a check flag of its own. Nothing propagates between such nodes:
// checking a parent leaves its children as they are.
#include "tree/TreeNode.h"

class ACheckboxTreeNode : public CTreeNode {
public:
    using CTreeNode::CTreeNode;

    // Attributes
    bool IsChecked() const { return m_checked; }
    void SetCheck(bool checked) { m_checked = checked; }

private:
    bool m_checked = false;
};

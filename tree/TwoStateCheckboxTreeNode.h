#pragma once
// A node of VU_CCheckBoxTreeListBox: checked or not, by itself. Only leaves
// show a box; a parent's flag is set only by the host or the space key.
#include "tree/ACheckboxTreeNode.h"

class CTwoStateCheckboxTreeNode : public ACheckboxTreeNode {
public:
    using ACheckboxTreeNode::ACheckboxTreeNode;
};

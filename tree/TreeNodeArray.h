#pragma once
// An ordered array of tree node pointers. It does not own what it points to:
// a CTreeNode (which is such an array of its children) or a control owns them.
#include "foundation/GString.h"
#include "framework/Array.h"

class CTreeNode;
class VU_ATreeNodeVisitor;

class CTreeNodeArray : public CArray<CTreeNode*, CTreeNode*> {
public:
    CTreeNodeArray() = default;
    CTreeNodeArray(const CTreeNodeArray&) = delete;
    CTreeNodeArray& operator=(const CTreeNodeArray&) = delete;
    ~CTreeNodeArray() = default;

    // Index of the first entry equal to node, -1 when absent.
    int GetNodeIndex(CTreeNode* node) const;

    // Pre-order walk; see VU_ATreeNodeVisitor.
    void Accept(VU_ATreeNodeVisitor* visitor);

    // The XML of the entries' visible rows, concatenated in index order.
    AF_GString XmlGetString();
};

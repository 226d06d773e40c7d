#pragma once
// Visitor over a tree of nodes. CTreeNodeArray::Accept walks in pre-order and
// hands every element, node or not, to Visit(CTreeNodeArray*); a visitor that
// wants the node casts what it is given. SetVisitComplete(true) ends the walk.
class CTreeNodeArray;
class CTreeNode;

class VU_ATreeNodeVisitor {
public:
    VU_ATreeNodeVisitor() = default;
    VU_ATreeNodeVisitor(const VU_ATreeNodeVisitor&) = default;
    VU_ATreeNodeVisitor& operator=(const VU_ATreeNodeVisitor&) = default;

    bool IsVisitComplete() const { return m_visitComplete; }
    void SetVisitComplete(bool complete) { m_visitComplete = complete; }

    // Overridables
    virtual void Visit(CTreeNodeArray* /*array*/) {}
    virtual void Visit(CTreeNode* /*node*/) {}

protected:
    // Used as a stack object of a derived class, never deleted through a base pointer.
    ~VU_ATreeNodeVisitor() = default;

private:
    bool m_visitComplete = false;
};

#include "tree/TreeNodeArray.h"

#include "tree/TreeNode.h"
#include "tree/TreeNodeVisitor.h"

#include <utility>
#include <vector>

int CTreeNodeArray::GetNodeIndex(CTreeNode* node) const {
    for (INT_PTR i = 0; i < GetSize(); ++i)
        if (GetAt(i) == node)
            return static_cast<int>(i);
    return -1;
}

void CTreeNodeArray::Accept(VU_ATreeNodeVisitor* visitor) {
    if (visitor == nullptr || visitor->IsVisitComplete())
        return;
    // Pre-order with an explicit stack; every element is visited as an array.
    std::vector<CTreeNodeArray*> pending{this};
    while (!pending.empty()) {
        CTreeNodeArray* array = pending.back();
        pending.pop_back();
        if (array == nullptr)
            continue;
        visitor->Visit(array);
        if (visitor->IsVisitComplete())
            return;
        for (INT_PTR i = array->GetSize() - 1; i >= 0; --i)
            pending.push_back(array->GetAt(i));
    }
}

AF_GString CTreeNodeArray::XmlGetString() {
    AF_GString out;
    size_t estimate = 0;
    for (INT_PTR i = 0; i < GetSize(); ++i)
        if (const CTreeNode* node = GetAt(i))
            estimate += node->EstimateXmlSize();
    out.reserve(estimate);
    for (INT_PTR i = 0; i < GetSize(); ++i)
        if (CTreeNode* node = GetAt(i))
            node->AppendXml(out);
    return out;
}

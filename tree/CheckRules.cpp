#include "tree/CheckRules.h"

#include <algorithm>
#include <typeinfo>

namespace vu::checks {
namespace {

// ---- Walks ------------------------------------------------------------------
// Each calls visit(node) in pre-order until it returns false, and returns
// false when the walk was stopped that way.

template <class Visit> bool WalkSubtree(CTreeNode* node, Visit& visit) {
    if (!visit(node))
        return false;
    const int count = node->GetNumberOfChildren();
    for (int i = 0; i < count; ++i)
        if (!WalkSubtree(node->GetChild(i), visit))
            return false;
    return true;
}

template <class Visit> bool WalkDescendants(const CTreeNode* node, Visit& visit) {
    const int count = node->GetNumberOfChildren();
    for (int i = 0; i < count; ++i)
        if (!WalkSubtree(node->GetChild(i), visit))
            return false;
    return true;
}

template <class Visit> bool WalkRoots(const CTreeNodeArray& roots, Visit& visit) {
    for (INT_PTR i = 0; i < roots.GetSize(); ++i)
        if (roots.GetAt(i) != nullptr && !WalkSubtree(roots.GetAt(i), visit))
            return false;
    return true;
}

bool CarriesCheck(const CTreeNode* node) {
    return node != nullptr && !node->IsHeader() && !node->IsSeparator();
}

bool IsLeaf(const CTreeNode* node) {
    return node->GetNumberOfChildren() == 0;
}

// A node that carries no check does not stop its ancestors from being "all checked".
bool IsCheckedOrCheckless(const CTreeNode* node) {
    const CCheckboxTreeNode* checkable = AsCheckable(node);
    return checkable == nullptr || checkable->IsChecked();
}

bool AllDescendantsChecked(const CTreeNode* node) {
    auto checked = [](CTreeNode* n) { return IsCheckedOrCheckless(n); };
    return WalkDescendants(node, checked);
}

bool IsOfKind(const CTreeNode* node, CheckedKind kind) {
    switch (kind) {
    case CheckedKind::Leaves:
        return IsLeaf(node);
    case CheckedKind::Parents:
        return !IsLeaf(node);
    case CheckedKind::Any:
        break;
    }
    return true;
}

} // namespace

// ---- Propagating rules ------------------------------------------------------

CCheckboxTreeNode* AsCheckable(CTreeNode* node) {
    return const_cast<CCheckboxTreeNode*>(AsCheckable(static_cast<const CTreeNode*>(node)));
}

const CCheckboxTreeNode* AsCheckable(const CTreeNode* node) {
    if (!CarriesCheck(node))
        return nullptr;
    // Nearly every node is of the class itself: compare the type before the full cast.
    if (typeid(*node) == typeid(CCheckboxTreeNode))
        return static_cast<const CCheckboxTreeNode*>(node);
    return dynamic_cast<const CCheckboxTreeNode*>(node);
}

void SetCheckWithChildren(CTreeNode* node, bool state) {
    if (node == nullptr)
        return;
    auto set = [state](CTreeNode* n) {
        if (CCheckboxTreeNode* checkable = AsCheckable(n))
            checkable->SetCheck(state);
        return true;
    };
    WalkSubtree(node, set);
}

void SetCheck(CTreeNode* node, bool state, bool withChildren) {
    if (node == nullptr)
        return;
    if (IsLeaf(node) || (!node->IsExpanded() && !withChildren)) {
        if (CCheckboxTreeNode* checkable = AsCheckable(node))
            checkable->SetCheck(state);
        return;
    }
    SetCheckWithChildren(node, state);
}

bool AreChildrenChecked(const CTreeNode* node, bool& all) {
    all = node != nullptr && !IsLeaf(node);
    if (node == nullptr)
        return false;
    bool any = false;
    auto test = [&any, &all](CTreeNode* n) {
        if (const CCheckboxTreeNode* checkable = AsCheckable(n)) {
            if (checkable->IsChecked())
                any = true;
            else
                all = false;
        }
        return !(any && !all); // both answers are settled
    };
    WalkDescendants(node, test);
    return any;
}

void UpdateParentCheck(CTreeNode* node) {
    if (node == nullptr || node->GetParent() == nullptr)
        return;
    // all: every node of the subtree of `child` is checked (or carries no check).
    CTreeNode* child = node;
    bool all = IsCheckedOrCheckless(child) && AllDescendantsChecked(child);
    for (CTreeNode* parent = child->GetParent(); parent != nullptr;
         child = parent, parent = parent->GetParent()) {
        // Once false, false all the way up: the unchecked node lies below each ancestor.
        for (int i = 0; all && i < parent->GetNumberOfChildren(); ++i) {
            const CTreeNode* sibling = parent->GetChild(i);
            if (sibling != child)
                all = IsCheckedOrCheckless(sibling) && AllDescendantsChecked(sibling);
        }
        if (CCheckboxTreeNode* checkable = AsCheckable(parent))
            checkable->SetCheck(all);
    }
}

void CheckIdenticalItems(const CTreeNodeArray& roots, const CTreeNode* node, bool state) {
    if (node == nullptr)
        return;
    const CString text = node->GetDisplayText();
    for (INT_PTR i = 0; i < roots.GetSize(); ++i) {
        CTreeNode* root = roots.GetAt(i);
        CCheckboxTreeNode* checkable = AsCheckable(root);
        if (checkable != nullptr && root->GetDisplayText() == text)
            checkable->SetCheck(state);
    }
}

void ToggleNode(const CTreeNodeArray& roots, CTreeNode* node) {
    CCheckboxTreeNode* checkable = AsCheckable(node);
    if (checkable == nullptr)
        return;
    SetCheckWithChildren(node, !checkable->IsChecked());
    UpdateParentCheck(node);
    CheckIdenticalItems(roots, node, checkable->IsChecked());
}

void ToggleSelectedNodes(const std::vector<CTreeNode*>& selected) {
    for (CTreeNode* node : selected) {
        CCheckboxTreeNode* checkable = AsCheckable(node);
        if (checkable == nullptr)
            continue;
        SetCheckWithChildren(node, !checkable->IsChecked());
        UpdateParentCheck(node);
    }
}

int CheckImageOf(const CTreeNode* node, bool includeParentChecks) {
    const CCheckboxTreeNode* checkable = AsCheckable(node);
    if (checkable == nullptr)
        return VU_CHECKIMAGE_NONE;
    if (IsLeaf(node))
        return checkable->IsChecked() ? VU_CHECKIMAGE_LEAF_CHECKED : VU_CHECKIMAGE_UNCHECKED;
    if (!includeParentChecks)
        return VU_CHECKIMAGE_NONE;
    bool all = false;
    const bool any = AreChildrenChecked(node, all);
    if (any && all)
        return VU_CHECKIMAGE_ALL;
    return any ? VU_CHECKIMAGE_SOME : VU_CHECKIMAGE_UNCHECKED;
}

void SetAllChecks(const CTreeNodeArray& roots, bool state) {
    for (INT_PTR i = 0; i < roots.GetSize(); ++i)
        SetCheckWithChildren(roots.GetAt(i), state);
}

void CheckNodesWithChildren(const std::vector<CTreeNode*>& nodes) {
    for (CTreeNode* node : nodes) {
        SetCheckWithChildren(node, true);
        UpdateParentCheck(node);
    }
}

bool IsAnyLeafChecked(const CTreeNodeArray& roots) {
    auto unchecked = [](CTreeNode* n) {
        const CCheckboxTreeNode* checkable = AsCheckable(n);
        return checkable == nullptr || !checkable->IsChecked();
    };
    return !WalkRoots(roots, unchecked);
}

void GetCheckedLeafItemNames(const CTreeNodeArray& roots, CArray<CString, CString>* names) {
    if (names == nullptr)
        return;
    auto collect = [names](CTreeNode* n) {
        const CCheckboxTreeNode* checkable = AsCheckable(n);
        if (checkable != nullptr && checkable->IsChecked() && IsLeaf(n))
            names->Add(n->GetDisplayText());
        return true;
    };
    WalkRoots(roots, collect);
}

void GetCheckedLeafItemData(const CTreeNodeArray& roots,
                            CArray<unsigned long, unsigned long>* data) {
    if (data == nullptr)
        return;
    auto collect = [data](CTreeNode* n) {
        const CCheckboxTreeNode* checkable = AsCheckable(n);
        if (checkable != nullptr && checkable->IsChecked() && IsLeaf(n))
            data->Add(n->GetItemData());
        return true;
    };
    WalkRoots(roots, collect);
}

void GetCheckedSingleTopLevelItemNames(const CTreeNodeArray& roots,
                                       CArray<CString, CString>* names) {
    if (names == nullptr)
        return;
    for (INT_PTR i = 0; i < roots.GetSize(); ++i) {
        const CCheckboxTreeNode* checkable = AsCheckable(roots.GetAt(i));
        if (checkable != nullptr && checkable->IsChecked() && IsLeaf(checkable))
            names->Add(checkable->GetDisplayText());
    }
}

// ---- Two-state rules --------------------------------------------------------

ACheckboxTreeNode* AsOwnCheckable(CTreeNode* node) {
    return CarriesCheck(node) ? dynamic_cast<ACheckboxTreeNode*>(node) : nullptr;
}

void ToggleOwnChecks(const std::vector<CTreeNode*>& nodes) {
    for (CTreeNode* node : nodes)
        if (ACheckboxTreeNode* checkable = AsOwnCheckable(node))
            checkable->SetCheck(!checkable->IsChecked());
}

void SetOwnCheck(CTreeNode* node, bool state, bool withChildren) {
    if (node == nullptr)
        return;
    auto set = [state, withChildren, node](CTreeNode* n) {
        if (ACheckboxTreeNode* checkable = AsOwnCheckable(n))
            checkable->SetCheck(state);
        return withChildren || n != node;
    };
    WalkSubtree(node, set);
}

void SetAllOwnChecks(const CTreeNodeArray& roots, bool state) {
    for (INT_PTR i = 0; i < roots.GetSize(); ++i)
        SetOwnCheck(roots.GetAt(i), state, true);
}

void GetOwnCheckedNames(const CTreeNodeArray& roots, CheckedKind kind,
                        CArray<CString, CString>* names) {
    if (names == nullptr)
        return;
    auto collect = [names, kind](CTreeNode* n) {
        const ACheckboxTreeNode* checkable = AsOwnCheckable(n);
        if (checkable != nullptr && checkable->IsChecked() && IsOfKind(n, kind))
            names->Add(n->GetDisplayText());
        return true;
    };
    WalkRoots(roots, collect);
}

void GetOwnCheckedItemData(const CTreeNodeArray& roots, CheckedKind kind,
                           CArray<unsigned long, unsigned long>* data) {
    if (data == nullptr)
        return;
    auto collect = [data, kind](CTreeNode* n) {
        const ACheckboxTreeNode* checkable = AsOwnCheckable(n);
        if (checkable != nullptr && checkable->IsChecked() && IsOfKind(n, kind))
            data->Add(n->GetItemData());
        return true;
    };
    WalkRoots(roots, collect);
}

// ---- Finding nodes ----------------------------------------------------------

std::vector<CTreeNode*> FindNodesWithTexts(const CTreeNodeArray& roots,
                                           const CArray<CString, CString>& texts) {
    std::vector<CString> sorted(texts.begin(), texts.end());
    std::sort(sorted.begin(), sorted.end());
    std::vector<CTreeNode*> found;
    if (sorted.empty())
        return found;
    auto match = [&sorted, &found](CTreeNode* n) {
        if (std::binary_search(sorted.begin(), sorted.end(), n->GetDisplayText()))
            found.push_back(n);
        return true;
    };
    WalkRoots(roots, match);
    return found;
}

CTreeNode* GetAncestorAtLevel(CTreeNode* node, int level) {
    if (node == nullptr || level < 0 || level > node->GetLevel())
        return nullptr;
    while (node != nullptr && node->GetLevel() > level)
        node = node->GetParent();
    return node != nullptr && node->GetLevel() == level ? node : nullptr;
}

} // namespace vu::checks

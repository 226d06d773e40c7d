#pragma once
// The check rules of the check-box tree list boxes, as plain functions over
// the node model, so that they run (and are tested) without a window.
//
// Propagating rules (VU_CExCheckBoxTreeListBox, CCheckboxTreeNode): a check
// goes down to every descendant and up to every ancestor, whose flag means
// "every descendant is checked"; top-level rows with the same text follow
// each other. Two-state rules (VU_CCheckBoxTreeListBox, ACheckboxTreeNode):
// every node is checked by itself.
//
// Header and separator nodes carry no check, nor do nodes of another class
// than the rules' own: setters leave them, tests and queries skip them (their
// children, if any, are still walked). Every walk is pre-order and linear in
// the nodes it visits; none allocates per node except the collected results.
#include "framework/Array.h"
#include "framework/CString.h"
#include "tree/CheckImages.h"
#include "tree/CheckboxTreeNode.h"
#include "tree/TwoStateCheckboxTreeNode.h"

#include <vector>

namespace vu::checks {

// ---- Propagating rules ------------------------------------------------------

// The node as a CCheckboxTreeNode that carries a check, or null.
CCheckboxTreeNode* AsCheckable(CTreeNode* node);
const CCheckboxTreeNode* AsCheckable(const CTreeNode* node);

// Sets the node's flag and that of every descendant.
void SetCheckWithChildren(CTreeNode* node, bool state);
// A leaf's flag only; a collapsed parent's own flag only unless withChildren;
// otherwise the node with all its descendants.
void SetCheck(CTreeNode* node, bool state, bool withChildren);
// Whether any descendant is checked; `all` tells whether every one is (false
// for a leaf, which has none).
bool AreChildrenChecked(const CTreeNode* node, bool& all);
// Each ancestor's flag becomes "every descendant is checked". Only the
// subtrees beside the path up are read, and none past the first unchecked
// node, so a change costs at most one walk of the tree.
void UpdateParentCheck(CTreeNode* node);
// Every top-level node whose text equals the node's exactly (case matters)
// takes `state`; other levels are not compared.
void CheckIdenticalItems(const CTreeNodeArray& roots, const CTreeNode* node, bool state);

// What a click or the space key does to one node in a single-selection list:
// the node and its descendants take the negation of the node's flag, the
// ancestors follow, then the same-text top-level nodes.
void ToggleNode(const CTreeNodeArray& roots, CTreeNode* node);
// The same for the selected nodes of a multiple-selection list, each in turn
// (a child after its selected parent flips back), without the same-text pass.
void ToggleSelectedNodes(const std::vector<CTreeNode*>& selected);

// The check image a row shows (VU_CheckImage), VU_CHECKIMAGE_NONE for rows
// without one: headers, separators, other nodes, and parents when parent
// rows do not show their state.
int CheckImageOf(const CTreeNode* node, bool includeParentChecks);

// Every node checked or cleared (with children and parents alike).
void SetAllChecks(const CTreeNodeArray& roots, bool state);
// Checks each listed node with its descendants and brings its ancestors up to date.
void CheckNodesWithChildren(const std::vector<CTreeNode*>& nodes);

bool IsAnyLeafChecked(const CTreeNodeArray& roots);
// Texts of the checked leaves (nodes without children) in pre-order.
void GetCheckedLeafItemNames(const CTreeNodeArray& roots, CArray<CString, CString>* names);
// Item data of the checked leaves in pre-order.
void GetCheckedLeafItemData(const CTreeNodeArray& roots,
                            CArray<unsigned long, unsigned long>* data);
// Texts of the checked top-level nodes without children.
void GetCheckedSingleTopLevelItemNames(const CTreeNodeArray& roots,
                                       CArray<CString, CString>* names);

// ---- Two-state rules --------------------------------------------------------

ACheckboxTreeNode* AsOwnCheckable(CTreeNode* node);

// Flips each node's own flag; nothing else changes.
void ToggleOwnChecks(const std::vector<CTreeNode*>& nodes);
// The node's own flag, and with withChildren every descendant's.
void SetOwnCheck(CTreeNode* node, bool state, bool withChildren);
void SetAllOwnChecks(const CTreeNodeArray& roots, bool state);

enum class CheckedKind { Leaves, Parents, Any };
// Texts (or item data) of the checked nodes of a kind, in pre-order.
void GetOwnCheckedNames(const CTreeNodeArray& roots, CheckedKind kind,
                        CArray<CString, CString>* names);
void GetOwnCheckedItemData(const CTreeNodeArray& roots, CheckedKind kind,
                           CArray<unsigned long, unsigned long>* data);

// ---- Finding nodes ----------------------------------------------------------

// Every node (at any depth, shown or not) whose text equals one of `texts`
// exactly, in pre-order; one pass whatever the number of texts.
std::vector<CTreeNode*> FindNodesWithTexts(const CTreeNodeArray& roots,
                                           const CArray<CString, CString>& texts);
// The node's ancestor at `level` (the node itself at its own level); null
// for a null node or a level outside 0..the node's level.
CTreeNode* GetAncestorAtLevel(CTreeNode* node, int level);

} // namespace vu::checks

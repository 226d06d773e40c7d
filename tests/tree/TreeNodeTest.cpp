#include "tree/TreeNode.h"
#include "tree/TreeNodeVisitor.h"

#include "framework/InvalidArgException.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

// Builds nodes the way a control does: linked to the parent, appended to its
// children, with level and handle set.
CTreeNode* AddChild(CTreeNode* parent, const WCHAR* text, int handle, unsigned long data = 0) {
    auto* node = new CTreeNode(CString(text), -1, -1, data, handle, parent);
    node->SetLevel(parent->GetLevel() + 1);
    parent->Add(node);
    return node;
}

// root(1)
//   a(2)
//     a1(3)
//     a2(4)
//   b(5)
//     b1(6)
//   c(7)
struct SampleTree {
    SampleTree() : root(CString(VU_T("root")), 0, 1, 100, 1, nullptr) {
        a = AddChild(&root, VU_T("a"), 2, 200);
        a1 = AddChild(a, VU_T("a1"), 3, 300);
        a2 = AddChild(a, VU_T("a2"), 4, 400);
        b = AddChild(&root, VU_T("b"), 5, 500);
        b1 = AddChild(b, VU_T("b1"), 6, 600);
        c = AddChild(&root, VU_T("c"), 7, 700);
    }
    CTreeNode root;
    CTreeNode *a, *a1, *a2, *b, *b1, *c;
};

// ---- Construction and flags -------------------------------------------------

TEST(TreeNode, SeparatorIsFixedAtConstructionAndALeafIsNeverExpanded) {
    CTreeNode separator(CString(VU_T("")), 1, 2, 0, 1, nullptr);
    separator.SetDisplayText(CString(VU_T("now with text")));
    EXPECT_TRUE(separator.IsSeparator());
    CTreeNode item(CString(VU_T("x")), VU_CImageIndexArray(), 0, 2, nullptr);
    item.SetDisplayText(CString(VU_T("")));
    EXPECT_FALSE(item.IsSeparator());

    item.Expand(1);
    EXPECT_EQ(0, item.IsExpanded());
    AddChild(&item, VU_T("child"), 3);
    item.SetExpandFlag(7); // the flag is stored as given
    EXPECT_EQ(7, item.IsExpanded());
}

// ---- Images ---------------------------------------------------------------------

TEST(TreeNode, ImageLookups) {
    VU_CImageIndexArray one, pair = VU_CImageIndexArray::Pair(3, 4), two;
    one.Add(3);
    two.Append(pair);
    two.Append(VU_CImageIndexArray::Pair(20, 21));
    struct Row {
        const char* name;
        const VU_CImageIndexArray* images;
        int state;
        int normal;
        int selected;
    } rows[] = {
        {"empty array", nullptr, 0, -1, -1},      {"single entry, state 0", &one, 0, 3, -1},
        {"one pair, state 1", &pair, 1, -1, -1},  {"two pairs, state 1", &two, 1, 20, 21},
        {"huge state", &two, 0x40000000, -1, -1},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        CTreeNode node(CString(VU_T("n")), row.images ? *row.images : VU_CImageIndexArray(), 0, 1,
                       nullptr);
        EXPECT_EQ(row.normal, node.GetImageIndex(row.state));
        EXPECT_EQ(row.selected, node.GetSelectedImageIndex(row.state));
    }
}

// ---- Counts and searches ------------------------------------------------------

// The rows these counts place are checked by the control's random test.
TEST(TreeNode, CountsNodesAndShownRows) {
    SampleTree t;
    EXPECT_EQ(7, t.root.GetNumberOfNodes());
    t.a->Expand(1); // expanded, but under a collapsed root
    EXPECT_EQ(0, t.root.ComputeNumberOfExpandedNodesShowing());
    EXPECT_EQ(2, t.a->ComputeNumberOfExpandedNodesShowing());
    t.root.Expand(1);
    EXPECT_EQ(5, t.root.ComputeNumberOfExpandedNodesShowing()) << "a, a1, a2, b, c";
}

TEST(TreeNode, FindNodeAndItemDataSearchInPreOrder) {
    SampleTree t;
    EXPECT_EQ(nullptr, t.root.FindNode(8));

    // Same data deep in the first subtree and shallow in a later one: pre-order
    // finds the deep one (a breadth-first walk would find c).
    t.a2->SetItemData(777);
    t.c->SetItemData(777);
    EXPECT_EQ(t.a2, t.root.FindNodeFromItemData(777));
    t.a2->SetHandle(7);
    EXPECT_EQ(t.a2, t.root.FindNode(7));
    EXPECT_EQ(1, t.root.GetNodeIndex(t.b));
    EXPECT_EQ(-1, t.root.GetNodeIndex(t.b1)) << "children only, by pointer";
}

TEST(TreeNode, FindNoCaseChildString) {
    CTreeNode root(CString(VU_T("Drives")), 0, 0, 0, 1, nullptr);
    AddChild(&root, VU_T("Motor\tstopped"), 2);
    CTreeNode* motors = AddChild(&root, VU_T("Motors"), 3);
    AddChild(motors, VU_T("Motor"), 4);
    CTreeNode* group = AddChild(&root, VU_T("Pumps"), 5);
    AddChild(group, VU_T("PUMP_1\tBOOL"), 6);
    // "Motors" hides its child "Motor" from an exact search with
    // matchParents; a later sibling is still searched.
    CTreeNode other(CString(VU_T("root")), 0, 0, 0, 11, nullptr);
    AddChild(AddChild(&other, VU_T("Motors"), 12), VU_T("Motor"), 13);
    AddChild(&other, VU_T("motor\tINT"), 14);

    struct Row {
        const char* name;
        CTreeNode* node;
        const WCHAR* text;
        bool matchParents;
        int length;
        int exact;
        int expected;
    } rows[] = {
        {"prefix, case-blind", &root, VU_T("motor"), false, 5, 0, 2},
        {"a parent is no candidate without matchParents", &root, VU_T("MOTORS"), false, 6, 1, -1},
        {"exact parent with matchParents", &root, VU_T("MOTORS"), true, 6, 1, 3},
        {"child of a parent", &root, VU_T("pump_1"), false, 6, 1, 6},
        {"matchParents finds the root first", &root, VU_T("d"), true, 1, 0, 1},
        {"a mismatching parent ends only its subtree", &other, VU_T("Motor"), true, 5, 1, 14},
        {"no candidate parent: its child is searched", &other, VU_T("Motor"), false, 5, 1, 13},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(row.expected, row.node->FindNoCaseChildString(CString(row.text), row.matchParents,
                                                                row.length, row.exact));
    }
}

// ---- Visiting -------------------------------------------------------------------

struct RecordingVisitor : VU_ATreeNodeVisitor {
    std::vector<CTreeNodeArray*> arrays;
    int nodeVisits = 0;
    size_t stopAfter = 0; // 0: never
    void Visit(CTreeNodeArray* array) override {
        arrays.push_back(array);
        if (stopAfter != 0 && arrays.size() == stopAfter)
            SetVisitComplete(true);
    }
    void Visit(CTreeNode*) override { ++nodeVisits; }
};

TEST(TreeNodeVisitor, AcceptWalksPreOrderUntilCompletion) {
    SampleTree t;
    RecordingVisitor v;
    t.root.Accept(&v);
    EXPECT_EQ((std::vector<CTreeNodeArray*>{&t.root, t.a, t.a1, t.a2, t.b, t.b1, t.c}), v.arrays);
    EXPECT_EQ(0, v.nodeVisits) << "through the array overload";
    for (size_t stopAfter : {1, 3}) { // 1: complete in the first call, no children seen
        RecordingVisitor w;
        w.stopAfter = stopAfter;
        t.root.Accept(&w);
        EXPECT_EQ(stopAfter, w.arrays.size());
    }
}

// The array interface allows null entries: counts, searches, walks, the XML
// dump and the destructor all skip them.
TEST(TreeNode, NullChildrenAreSkippedEverywhere) {
    auto* root = new CTreeNode(CString(VU_T("root")), -1, -1, 1, 1, nullptr);
    root->Add(nullptr);
    CTreeNode* a = AddChild(root, VU_T("a"), 2, 20);
    a->Add(nullptr);
    AddChild(a, VU_T("a1"), 3, 30);
    root->Add(nullptr);
    root->Expand(1);
    a->Expand(1);
    EXPECT_EQ(3, root->GetNumberOfNodes());
    EXPECT_EQ(2, root->ComputeNumberOfExpandedNodesShowing());
    EXPECT_EQ(nullptr, root->FindNode(99));
    EXPECT_EQ(nullptr, root->FindNodeFromItemData(99));
    EXPECT_EQ(3, root->FindNoCaseChildString(CString(VU_T("A1")), false, 2, 1));
    CTreeNode::ResetXmlRowCounter(-1);
    const vu::String xml = root->XmlGetString();
    EXPECT_EQ(3, CTreeNode::GetXmlRowCounter());
    EXPECT_NE(vu::String::npos, xml.find(VU_T("<text>a1</text><parent>a</parent>")));
    RecordingVisitor v;
    root->Accept(&v);
    EXPECT_EQ(3u, v.arrays.size());
    delete root;
}

// ---- Ownership ------------------------------------------------------------------

struct CountedNode : CTreeNode {
    CountedNode(std::vector<int>* log, int id) : m_log(log), m_id(id) {}
    ~CountedNode() override { m_log->push_back(m_id); }
    std::vector<int>* m_log;
    int m_id;
};

TEST(TreeNode, DestroyingANodeDestroysItsSubtreeThroughVirtualDestructors) {
    std::vector<int> log;
    {
        CTreeNode root;
        root.Add(new CountedNode(&log, 1));
        root.GetChild(0)->Add(new CountedNode(&log, 2));
    }
    EXPECT_EQ((std::vector<int>{1, 2}), log);
}

TEST(TreeNode, DeepChainIsWalkedAndDestroyedWithoutRecursion) {
    const int depth = 200000;
    auto root = std::make_unique<CTreeNode>(CString(VU_T("0")), -1, -1, 0, 0, nullptr);
    CTreeNode* tip = root.get();
    for (int i = 1; i < depth; ++i) {
        tip = AddChild(tip, VU_T("x"), i, static_cast<unsigned long>(i));
        tip->GetParent()->Expand(1);
    }
    EXPECT_EQ(depth, root->GetNumberOfNodes());
    EXPECT_EQ(depth - 1, root->ComputeNumberOfExpandedNodesShowing());
    EXPECT_EQ(tip, root->FindNode(depth - 1));
    EXPECT_EQ(-1, root->FindNoCaseChildString(CString(VU_T("y")), true, 1, 0));
    root.reset(); // must not overflow the stack
}

} // namespace

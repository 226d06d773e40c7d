#include "tree/CheckRules.h"

#include "framework/Char.h"

#include <gtest/gtest.h>

#include <random>

using namespace vu::checks;

namespace {

// A forest of nodes of class Node, linked and levelled as a control does.
template <class Node = CCheckboxTreeNode> struct Forest {
    ~Forest() {
        for (CTreeNode* root : roots)
            delete root;
    }
    CTreeNode* Add(const WCHAR* text, CTreeNode* parent = nullptr, unsigned long data = 0) {
        CTreeNode* node = new Node(CString(text), -1, -1, data, 0, parent);
        node->SetLevel(parent != nullptr ? parent->GetLevel() + 1 : 0);
        if (parent == nullptr) {
            roots.Add(node);
        } else {
            parent->Add(node);
            parent->Expand(1);
        }
        return node;
    }
    CTreeNodeArray roots;
};

bool Checked(CTreeNode* node) {
    return AsCheckable(node)->IsChecked();
}

std::vector<CString> Names(const CArray<CString, CString>& names) {
    return std::vector<CString>(names.begin(), names.end());
}

// ---- Propagation ------------------------------------------------------------

TEST(CheckRules, AnUncheckedGrandchildKeepsEveryAncestorUnchecked) {
    Forest<> f;
    CTreeNode* top = f.Add(VU_T("top"));
    CTreeNode* mid = f.Add(VU_T("mid"), top);
    CTreeNode* leaf = f.Add(VU_T("leaf"), top);
    CTreeNode* grandchild = f.Add(VU_T("grandchild"), mid);
    AsCheckable(mid)->SetCheck(true);
    AsCheckable(leaf)->SetCheck(true);
    UpdateParentCheck(leaf);
    EXPECT_FALSE(Checked(top)) << "all direct children are checked, the grandchild is not";
    ToggleNode(f.roots, grandchild);
    EXPECT_TRUE(Checked(mid) && Checked(top));
}

// The walk-limited update must give what the rule gives: each ancestor
// checked exactly when every descendant is.
TEST(CheckRules, UpdateParentCheckAgreesWithTheRuleOnRandomTrees) {
    std::mt19937 random(11);
    for (int round = 0; round < 200; ++round) {
        SCOPED_TRACE(round);
        Forest<> f;
        std::vector<CTreeNode*> nodes{f.Add(VU_T("r"))};
        for (int i = 0; i < 30; ++i)
            nodes.push_back(f.Add(VU_T("n"), nodes[random() % nodes.size()]));
        for (CTreeNode* node : nodes)
            AsCheckable(node)->SetCheck(random() % 4 != 0);
        CTreeNode* changed = nodes[random() % nodes.size()];
        SetCheckWithChildren(changed, random() % 2 == 0);
        UpdateParentCheck(changed);
        for (CTreeNode* up = changed->GetParent(); up != nullptr; up = up->GetParent()) {
            bool all = false;
            AreChildrenChecked(up, all);
            EXPECT_EQ(all, Checked(up)) << "ancestor at level " << up->GetLevel();
        }
    }
}

TEST(CheckRules, SetCheckReachesTheChildrenOfAnExpandedOrForcedParentOnly) {
    struct Row {
        const char* name;
        bool expanded, withChildren, childFollows;
    } rows[] = {{"collapsed", false, false, false},
                {"collapsed, with children", false, true, true},
                {"expanded", true, false, true}};
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        Forest<> f;
        CTreeNode* parent = f.Add(VU_T("p"));
        CTreeNode* child = f.Add(VU_T("c"), parent);
        parent->Expand(r.expanded);
        SetCheck(parent, true, r.withChildren);
        EXPECT_TRUE(Checked(parent));
        EXPECT_EQ(r.childFollows, Checked(child));
    }
}

TEST(CheckRules, SameTextsFollowAtTheTopLevelOnly) {
    Forest<> f;
    CTreeNode* first = f.Add(VU_T("Motor"));
    CTreeNode* twin = f.Add(VU_T("Motor"));
    CTreeNode* otherCase = f.Add(VU_T("motor"));
    CTreeNode* group = f.Add(VU_T("group"));
    CTreeNode* nested = f.Add(VU_T("Motor"), group);
    ToggleNode(f.roots, first);
    EXPECT_TRUE(Checked(twin));
    EXPECT_FALSE(Checked(otherCase) || Checked(nested));
    ToggleNode(f.roots, nested); // a nested row drives the top-level twins too
    EXPECT_TRUE(Checked(first) && Checked(twin) && Checked(group));
}

// ---- Images and queries -----------------------------------------------------

TEST(CheckRules, CheckImageOfEachKindOfRow) {
    Forest<> f;
    CTreeNode* parent = f.Add(VU_T("p"));
    CTreeNode* leaf = f.Add(VU_T("leaf"), parent);
    CTreeNode* header = f.Add(VU_T("h"));
    header->SetHeader(true);
    CTreeNode* separator = f.Add(VU_T(""));
    CTreeNode foreign(CString(VU_T("plain")), -1, -1, 0, 0, nullptr);
    ToggleNode(f.roots, leaf);
    struct Row {
        const char* name;
        const CTreeNode* node;
        bool includeParents;
        int image;
    } rows[] = {{"checked leaf", leaf, false, VU_CHECKIMAGE_LEAF_CHECKED},
                {"full parent", parent, true, VU_CHECKIMAGE_ALL},
                {"parent without parent checks", parent, false, VU_CHECKIMAGE_NONE},
                {"header", header, true, VU_CHECKIMAGE_NONE},
                {"separator", separator, true, VU_CHECKIMAGE_NONE},
                {"node of another class", &foreign, true, VU_CHECKIMAGE_NONE}};
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        EXPECT_EQ(r.image, CheckImageOf(r.node, r.includeParents));
    }
}

TEST(CheckRules, QueriesCollectCheckedLeavesInPreOrder) {
    Forest<> f;
    EXPECT_FALSE(IsAnyLeafChecked(f.roots));
    CTreeNode* single = f.Add(VU_T("single"), nullptr, 1);
    CTreeNode* group = f.Add(VU_T("group"), nullptr, 2);
    f.Add(VU_T("g1"), group, 3);
    CTreeNode* deep = f.Add(VU_T("deep"), f.Add(VU_T("g2"), group, 4), 5);
    ToggleNode(f.roots, deep);
    EXPECT_TRUE(IsAnyLeafChecked(f.roots));
    ToggleNode(f.roots, single);
    ToggleNode(f.roots, group); // partly checked: all
    CArray<CString, CString> leaves, singles;
    CArray<unsigned long, unsigned long> data;
    GetCheckedLeafItemNames(f.roots, &leaves);
    GetCheckedSingleTopLevelItemNames(f.roots, &singles);
    GetCheckedLeafItemData(f.roots, &data);
    EXPECT_EQ((std::vector<CString>{VU_T("single"), VU_T("g1"), VU_T("deep")}), Names(leaves));
    EXPECT_EQ((std::vector<CString>{VU_T("single")}), Names(singles));
    EXPECT_EQ((std::vector<unsigned long>{1, 3, 5}),
              std::vector<unsigned long>(data.begin(), data.end()));
}

// ---- Two-state rules --------------------------------------------------------

TEST(CheckRules, TwoStateNodesAreCheckedByThemselves) {
    Forest<CTwoStateCheckboxTreeNode> f;
    CTreeNode* parent = f.Add(VU_T("p"));
    CTreeNode* a = f.Add(VU_T("a"), parent);
    CTreeNode* b = f.Add(VU_T("b"), parent);
    SetOwnCheck(parent, true, false);
    EXPECT_FALSE(AsOwnCheckable(a)->IsChecked());
    SetOwnCheck(parent, false, true);
    ToggleOwnChecks({b, a, a});
    CArray<CString, CString> leaves, parents;
    GetOwnCheckedNames(f.roots, CheckedKind::Leaves, &leaves);
    GetOwnCheckedNames(f.roots, CheckedKind::Parents, &parents);
    EXPECT_EQ((std::vector<CString>{VU_T("b")}), Names(leaves));
    EXPECT_TRUE(Names(parents).empty());
}

} // namespace

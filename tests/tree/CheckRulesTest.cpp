#include "tree/CheckRules.h"

#include "framework/Char.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <vector>

using namespace vu::checks;

namespace {

// A forest of nodes of class Node, built as a control builds them.
template <class Node = CCheckboxTreeNode> struct Forest {
    ~Forest() {
        for (CTreeNode* root : roots)
            delete root;
    }
    CTreeNode* Add(const WCHAR* text, CTreeNode* parent = nullptr, unsigned long data = 0) {
        CTreeNode* node = new Node(CString(text), -1, -1, data, ++handles, parent);
        node->SetLevel(parent != nullptr ? parent->GetLevel() + 1 : 0);
        if (parent != nullptr) {
            parent->Add(node);
            parent->Expand(1);
        } else {
            roots.Add(node);
        }
        return node;
    }
    CTreeNodeArray roots;
    int handles = 0;
};

bool Checked(CTreeNode* node) {
    return AsCheckable(node)->IsChecked();
}

std::vector<CString> Names(const CArray<CString, CString>& names) {
    return std::vector<CString>(names.begin(), names.end());
}

// ---- Propagation ------------------------------------------------------------

TEST(CheckRules, ChildrenDecideTheParentAndTheParentDecidesTheChildren) {
    Forest<> f;
    CTreeNode* root = f.Add(VU_T("root"));
    CTreeNode* a = f.Add(VU_T("a"), root);
    CTreeNode* b = f.Add(VU_T("b"), root);
    ToggleNode(f.roots, a);
    EXPECT_FALSE(Checked(root));
    EXPECT_EQ(VU_CHECKIMAGE_SOME, CheckImageOf(root, true));
    ToggleNode(f.roots, b);
    EXPECT_TRUE(Checked(root));
    EXPECT_EQ(VU_CHECKIMAGE_ALL, CheckImageOf(root, true));
    ToggleNode(f.roots, root);
    EXPECT_FALSE(Checked(a) || Checked(b) || Checked(root));
    EXPECT_EQ(VU_CHECKIMAGE_UNCHECKED, CheckImageOf(root, true));
}

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
    bool all = false;
    EXPECT_TRUE(AreChildrenChecked(top, all));
    EXPECT_TRUE(all);
    EXPECT_FALSE(AreChildrenChecked(leaf, all)) << "a leaf has no descendants";
    EXPECT_FALSE(all);
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

TEST(CheckRules, SetCheckTouchesTheChildrenOfAnExpandedOrForcedParentOnly) {
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

TEST(CheckRules, SameTopLevelTextsFollowOnASingleToggleOnly) {
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
    ToggleSelectedNodes({first});
    EXPECT_FALSE(Checked(first));
    EXPECT_TRUE(Checked(twin)) << "no same-text pass with multiple selection";
}

TEST(CheckRules, SelectedNodesFlipInTurnSoASelectedChildFlipsBack) {
    Forest<> f;
    CTreeNode* parent = f.Add(VU_T("p"));
    CTreeNode* a = f.Add(VU_T("a"), parent);
    CTreeNode* b = f.Add(VU_T("b"), parent);
    ToggleSelectedNodes({parent, a});
    EXPECT_FALSE(Checked(a));
    EXPECT_TRUE(Checked(b));
    EXPECT_FALSE(Checked(parent));
}

// ---- Images and queries -----------------------------------------------------

TEST(CheckRules, CheckImageOfEachKindOfRow) {
    Forest<> f;
    CTreeNode* parent = f.Add(VU_T("p"));
    CTreeNode* leaf = f.Add(VU_T("leaf"), parent);
    CTreeNode* header = f.Add(VU_T("h"));
    header->SetHeader(true);
    CTreeNode* separator = f.Add(VU_T(""));
    CTreeNode foreign(CString(VU_T("plain")), -1, -1, 0, 99, nullptr);
    ToggleNode(f.roots, leaf);
    SetCheckWithChildren(header, true);
    struct Row {
        const char* name;
        const CTreeNode* node;
        bool includeParents;
        int image;
    } rows[] = {{"checked leaf", leaf, true, VU_CHECKIMAGE_LEAF_CHECKED},
                {"full parent", parent, true, VU_CHECKIMAGE_ALL},
                {"parent without parent checks", parent, false, VU_CHECKIMAGE_NONE},
                {"leaf without parent checks", leaf, false, VU_CHECKIMAGE_LEAF_CHECKED},
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
    CTreeNode* g2 = f.Add(VU_T("g2"), group, 4);
    CTreeNode* deep = f.Add(VU_T("deep"), g2, 5);
    f.Add(VU_T("unchecked"), nullptr, 6);
    EXPECT_FALSE(IsAnyLeafChecked(f.roots));
    ToggleNode(f.roots, deep);
    EXPECT_TRUE(IsAnyLeafChecked(f.roots));
    ToggleNode(f.roots, group);
    ToggleNode(f.roots, group); // partial -> all -> none
    ToggleNode(f.roots, single);
    ToggleNode(f.roots, group);
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

TEST(CheckRules, FindingNodesByTextAndAncestorsByLevel) {
    Forest<> f;
    CTreeNode* a = f.Add(VU_T("a"));
    CTreeNode* b = f.Add(VU_T("b"), a);
    CTreeNode* c = f.Add(VU_T("a"), b);
    a->Expand(0); // hidden rows are found as well
    CArray<CString, CString> texts;
    EXPECT_TRUE(FindNodesWithTexts(f.roots, texts).empty());
    texts.Add(CString(VU_T("a")));
    texts.Add(CString(VU_T("a")));
    EXPECT_EQ((std::vector<CTreeNode*>{a, c}), FindNodesWithTexts(f.roots, texts));
    EXPECT_EQ(a, GetAncestorAtLevel(c, 0));
    EXPECT_EQ(c, GetAncestorAtLevel(c, 2));
    EXPECT_EQ(nullptr, GetAncestorAtLevel(c, 3));
    EXPECT_EQ(nullptr, GetAncestorAtLevel(c, -1));
}

// ---- Two-state rules --------------------------------------------------------

TEST(CheckRules, TwoStateNodesAreCheckedByThemselves) {
    Forest<CTwoStateCheckboxTreeNode> f;
    CTreeNode* parent = f.Add(VU_T("p"), nullptr, 1);
    CTreeNode* a = f.Add(VU_T("a"), parent, 2);
    CTreeNode* b = f.Add(VU_T("b"), parent, 3);
    ToggleOwnChecks({a, b});
    EXPECT_FALSE(AsOwnCheckable(parent)->IsChecked());
    EXPECT_EQ(nullptr, AsCheckable(a)) << "not a node of the propagating rules";
    SetOwnCheck(parent, true, false);
    EXPECT_TRUE(AsOwnCheckable(a)->IsChecked());
    SetOwnCheck(parent, false, true);
    EXPECT_FALSE(AsOwnCheckable(b)->IsChecked());
    ToggleOwnChecks({parent, b});
    CArray<CString, CString> leaves, parents;
    GetOwnCheckedNames(f.roots, CheckedKind::Leaves, &leaves);
    GetOwnCheckedNames(f.roots, CheckedKind::Parents, &parents);
    EXPECT_EQ((std::vector<CString>{VU_T("b")}), Names(leaves));
    EXPECT_EQ((std::vector<CString>{VU_T("p")}), Names(parents));
}

} // namespace

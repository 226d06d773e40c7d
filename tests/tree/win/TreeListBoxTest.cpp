// Building, expanding, collapsing and deleting on a real list box window:
// the rows the list box holds after each operation.
#include "TreeFixture.h"

#include "tree/TreeNodeVisitor.h"

namespace treetest {
namespace {

TEST_F(TreeListTest, AddItemRowRulesIncludingTheirQuirks) {
    int a = 0, a1 = 0, b = 0;
    EXPECT_EQ(0, list->AddItem(S(L"A"), 0, 1, 1, -1, &a));
    EXPECT_EQ(1, list->AddItem(S(L"B"), 0, 1, 2, -1, &b));
    EXPECT_EQ(2, b);

    SCOPED_TRACE("first child, parent expanded: the row after the parent");
    EXPECT_EQ(1, list->AddItem(S(L"A1"), 0, 1, 3, a, &a1, true));
    EXPECT_EQ((RowList{L"A", L"A1", L"B"}), Rows());
    EXPECT_NE(0, list->FindNode(a)->IsExpanded());

    SCOPED_TRACE("second child: after the shown descendants");
    EXPECT_EQ(2, list->AddItem(S(L"A2"), 0, 1, 4, a, nullptr, true));
    EXPECT_EQ((RowList{L"A", L"A1", L"A2", L"B"}), Rows());

    SCOPED_TRACE("without expandParent: no row, the result is the prior child count");
    EXPECT_EQ(0, list->AddItem(S(L"A1a"), 0, 1, 5, a1, nullptr, false));
    EXPECT_EQ(1, list->AddItem(S(L"A1b"), 0, 1, 6, a1, nullptr, false));
    EXPECT_EQ(0, list->FindNode(a1)->IsExpanded());

    SCOPED_TRACE("collapsed parent with children: the row lands prior rows below it");
    EXPECT_EQ(4, list->AddItem(S(L"A1c"), 0, 1, 7, a1, nullptr, true));
    EXPECT_EQ((RowList{L"A", L"A1", L"A2", L"B", L"A1c"}), Rows());
    EXPECT_NE(0, list->FindNode(a1)->IsExpanded()) << "flagged although A1a and A1b do not show";

    SCOPED_TRACE("a parent that does not show: node added, no row");
    int hidden = 0;
    const int a1a = list->FindNodeFromItemData(5)->GetTreeNodeItemHandle();
    EXPECT_EQ(-1, list->AddItem(S(L"deep"), 0, 1, 8, a1a, &hidden, true));
    EXPECT_EQ(8, hidden);
    EXPECT_EQ(list->FindNode(8), list->FindNodeFromItemData(8));

    SCOPED_TRACE("an unknown parent: nothing added, no handle used");
    EXPECT_EQ(-1, list->AddItem(S(L"lost"), 0, 1, 9, 999));
    int next = 0;
    list->AddItem(S(L"D"), 0, 1, 10, -1, &next);
    EXPECT_EQ(9, next);

    SCOPED_TRACE("a shown, expanded parent without expandParent: flag cleared, rows stay");
    EXPECT_EQ(0, list->AddItem(S(L"A3"), 0, 1, 11, a, nullptr, false));
    EXPECT_EQ(0, list->FindNode(a)->IsExpanded());
    EXPECT_EQ((RowList{L"A", L"A1", L"A2", L"B", L"A1c", L"D"}), Rows());
}

TEST_F(TreeListTest, AddItemByIndexNamesTheParentByRow) {
    BuildSample();
    EXPECT_EQ(3, list->AddItemByIndex(S(L"B2"), 6, 6, 220, 1, nullptr, true))
        << "B at row 1, collapsed with one child: the quirk puts the row one below";
    EXPECT_EQ(-1, list->AddItemByIndex(S(L"x"), 6, 6, 0, 42)) << "a row without node";
    EXPECT_EQ(4, list->AddItemByIndex(S(L"D"), 6, 6, 400, -1)) << "row -1: a new root";
    EXPECT_EQ(L"D", Rows().back());
}

TEST_F(TreeListTest, InsertItemAmongRootsCountsOnlyThePrecedingRoot) {
    BuildSample();
    list->Expand(0); // A, A1, A2, B, C
    EXPECT_EQ(2, list->InsertItem(S(L"R"), 6, 6, 0, -1, 2))
        << "root 0's shown rows are not counted";
    EXPECT_EQ((RowList{L"A", L"A1", L"R", L"A2", L"B", L"C"}), Rows());
    const int nodes = list->GetNodeCount();
    EXPECT_EQ(-1, list->InsertItem(S(L"far"), 6, 6, 2, -1, 99));
    EXPECT_EQ(-1, list->InsertItem(S(L"neg"), 6, 6, 2, -1, -1));
    EXPECT_EQ(nodes, list->GetNodeCount());
}

TEST_F(TreeListTest, InsertItemUnderAParentUsesTheParentsRowPlusIndex) {
    BuildSample();
    list->Expand(0); // A, A1, A2, B, C
    int x = 0;
    EXPECT_EQ(1, list->InsertItem(S(L"X"), 6, 6, 0, 1, 1, &x));
    EXPECT_EQ((RowList{L"A", L"X", L"A1", L"A2", L"B", L"C"}), Rows());
    EXPECT_EQ(1, list->FindNode(1)->GetNodeIndex(list->FindNode(x))) << "the model keeps index 1";
    EXPECT_EQ(1, list->FindNode(x)->GetLevel());

    SCOPED_TRACE("expandParent on a collapsed parent expands it first");
    EXPECT_EQ(4, list->InsertItem(S(L"Y"), 6, 6, 0, 6, 0, nullptr, true));
    EXPECT_EQ((RowList{L"A", L"X", L"A1", L"A2", L"Y", L"B", L"B1", L"C"}), Rows())
        << "B expanded to show B1, then Y went to B's row plus 0, above B";

    SCOPED_TRACE("a collapsed parent without expandParent: model only");
    const auto before = Rows();
    EXPECT_EQ(-1, list->InsertItem(S(L"Z"), 6, 6, 0, 2, 0));
    EXPECT_EQ(before, Rows());
    EXPECT_EQ(3, list->FindNode(2)->GetNumberOfChildren());

    SCOPED_TRACE("an index past the children");
    EXPECT_EQ(-1, list->InsertItem(S(L"W"), 6, 6, 0, 2, 4));
}

TEST_F(TreeListTest, CollapseMovesASelectionStrictlyInsideTheBranchToTheNode) {
    BuildSample();
    list->Expand(0);
    list->Expand(1); // A, A1, A1a, A1b, A2, B, C
    struct Case {
        const char* name;
        int selected;
        int expected;
    } cases[] = {{"inside", 3, 0},
                 {"last removed row: deleted with its row", 4, -1},
                 {"the node itself", 0, 0},
                 {"below the branch", 6, 2}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        list->ExpandThisAndParent(list->FindNode(3));
        ASSERT_EQ(7, list->GetRowCount());
        Select(c.selected);
        list->Collapse(0);
        EXPECT_EQ(c.expected, Selected());
    }
}

// Which rows deletions and expansions leave is checked by the random test.
TEST_F(TreeListTest, DeletionGoesByRowAndResetStartsHandlesAgain) {
    BuildSample();
    EXPECT_FALSE(list->DeleteItemByIndex(3));
    EXPECT_FALSE(list->DeleteItem(6)) << "deletion goes by row";
    list->Expand(-1);
    list->Expand(50);
    EXPECT_EQ((RowList{L"A", L"B", L"C"}), Rows()) << "rows that cannot change are ignored";
    EXPECT_TRUE(list->ResetTreeContents());
    EXPECT_EQ(0, list->GetNodeCount());
    int handle = 0;
    list->AddItem(S(L"new"), 0, 0, 0, -1, &handle);
    EXPECT_EQ(1, handle) << "handles start again";
}

TEST_F(TreeListTest, AddHeaderAndSeparator) {
    list->AddItem(S(L"item"), 0, 0, 0);
    EXPECT_EQ(1, list->AddHeader(S(L"Tags")));
    EXPECT_EQ(2, list->AddSeparator());
    const CTreeNode* header = list->GetNode(1);
    EXPECT_TRUE(header->IsHeader());
    EXPECT_FALSE(header->DrawLines());
    EXPECT_EQ(-1, header->GetImageIndex(0));
    EXPECT_TRUE(list->GetNode(2)->IsSeparator());
    EXPECT_FALSE(list->GetNode(0)->IsHeader());

    SCOPED_TRACE(
        "with hidden children, handles and rows part ways: the flags land on handle row + 1");
    list->ResetTreeContents();
    BuildSample();                             // 8 nodes, rows A, B, C
    EXPECT_EQ(3, list->AddHeader(S(L"Late"))); // handle 9 at row 3
    EXPECT_FALSE(list->GetNode(3)->IsHeader());
    EXPECT_TRUE(list->FindNode(4)->IsHeader()) << "A1b";
    EXPECT_FALSE(list->FindNode(4)->DrawLines());
}

TEST_F(TreeListTest, QueriesByRow) {
    BuildSample();
    list->Expand(0);
    EXPECT_EQ(2, list->GetListboxIndex(5));  // A2
    EXPECT_EQ(-1, list->GetListboxIndex(3)); // A1a does not show
    EXPECT_FALSE(list->IsChildNode(1)) << "A1 has children";
    EXPECT_TRUE(list->IsChildNode(2));
    Select(2);
    EXPECT_TRUE(list->IsChildNodeSelected());
    EXPECT_EQ(120u, list->GetCurSelItemData());
}

TEST_F(TreeListTest, SelectionByItemDataOrTextShowsTheNodeAndNotifies) {
    BuildSample();
    EXPECT_EQ(3, list->SelectItemFromItemData(112, true)); // A1b, hidden
    EXPECT_EQ(3, Selected());
    EXPECT_EQ((RowList{L"A", L"A1", L"A1a", L"A1b", L"A2", L"B", L"C"}), Rows());
    ASSERT_EQ(1, parent->CountCommands(LBN_SELCHANGE));
    EXPECT_EQ(kControlId, parent->commands.back().id);
    EXPECT_EQ(Hwnd(), parent->commands.back().from);

    EXPECT_EQ(6, list->SelectItemFromString(S(L"B1"), false));
    EXPECT_EQ(1, parent->CountCommands(LBN_SELCHANGE)) << "no notification asked";
    EXPECT_EQ(-1, list->SelectItemFromString(S(L"b1"), true)) << "the whole text, case-sensitive";
    EXPECT_EQ(6, Selected());

    list->Collapse(0); // A1 hidden again, with its children
    EXPECT_EQ(1, list->SelectItemFromItemData(110, false));
    EXPECT_EQ((RowList{L"A", L"A1", L"A2", L"B", L"B1", L"C"}), Rows()) << "A1 itself stays closed";
}

TEST_F(TreeListTest, ScrollingAndTheScrollbar) {
    for (int i = 0; i < 40; ++i)
        list->AddItem(S(L"row"), -1, -1, static_cast<unsigned long>(i));
    EXPECT_TRUE(list->IsVerticalScrollbarVisible());
    list->ScrollItemIntoView(15); // the arithmetic is the geometry's
    EXPECT_EQ(1, SendMessageW(Hwnd(), LB_GETTOPINDEX, 0, 0));
}

// A control that makes nodes of its own class.
struct TaggedNode : CTreeNode {
    using CTreeNode::CTreeNode;
};

struct FactoryList : VU_CTreeListBox {
    int made = 0;
    CTreeNode* CreateTreeNode(const CString& text, const VU_CImageIndexArray& images,
                              unsigned long itemData, int handle, CTreeNode* parent) override {
        ++made;
        return new TaggedNode(text, images, itemData, handle, parent);
    }
};

TEST(TreeListFactory, EveryInsertionGoesThroughTheNodeFactory) {
    ParentWindow parent;
    FactoryList list;
    ASSERT_TRUE(CreateList(list, parent));
    int root = 0;
    list.AddItem(S(L"root"), 0, 0, 0, -1, &root);
    list.AddItem(S(L"child"), 0, 0, 0, root, nullptr, true);
    list.InsertItem(S(L"inserted"), 0, 0, 0, root, 0);
    EXPECT_EQ(3, list.made);
    for (int handle = 1; handle <= 3; ++handle)
        EXPECT_NE(nullptr, dynamic_cast<TaggedNode*>(list.FindNode(handle))) << handle;
}

} // namespace
} // namespace treetest

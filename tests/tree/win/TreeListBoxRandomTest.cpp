// A long random mix of insertions, expansions, collapses, deletions, keys and
// clicks: after every step the rows must be exactly the shown nodes in
// pre-order, and the model's invariants must hold.
#include "TreeFixture.h"

#include <random>

namespace treetest {
namespace {

void CollectShown(CTreeNode* node, std::vector<CTreeNode*>& out) {
    out.push_back(node);
    if (node->IsExpanded())
        for (int i = 0; i < node->GetNumberOfChildren(); ++i)
            CollectShown(node->GetChild(i), out);
}

void CheckInvariants(CTreeNode* node, int level, CTreeNode* parent, int& count) {
    ++count;
    ASSERT_EQ(level, node->GetLevel());
    ASSERT_EQ(parent, node->GetParent());
    if (node->GetNumberOfChildren() == 0) {
        ASSERT_EQ(0, node->IsExpanded()) << "a leaf is never expanded";
    }
    for (int i = 0; i < node->GetNumberOfChildren(); ++i)
        CheckInvariants(node->GetChild(i), level + 1, node, count);
}

class RandomTreeTest : public TreeListTest {
protected:
    void ExpectRowsArePreOrder(int step) {
        std::vector<CTreeNode*> shown;
        for (CTreeNode* root : list->GetRoots())
            CollectShown(root, shown);
        const int rows = list->GetRowCount();
        ASSERT_EQ(static_cast<int>(shown.size()), rows) << "step " << step;
        for (int r = 0; r < rows; ++r)
            ASSERT_EQ(shown[static_cast<size_t>(r)], list->GetNode(r))
                << "step " << step << " row " << r;
        int count = 0;
        for (CTreeNode* root : list->GetRoots())
            CheckInvariants(root, 0, nullptr, count);
        ASSERT_EQ(m_nodes, count) << "step " << step;
    }

    // Whether a root inserted at index gets a row in the right place: the row
    // rule counts only the preceding root's shown rows.
    bool RootInsertionKeepsOrder(int index) const {
        for (int j = 0; j + 1 < index; ++j)
            if (list->GetRoots().GetAt(j)->ComputeNumberOfExpandedNodesShowing() != 0)
                return false;
        return true;
    }

    CTreeNode* RandomNode(std::mt19937& rng) {
        const int handle = 1 + static_cast<int>(rng() % static_cast<unsigned>(m_lastHandle + 1));
        return list->FindNode(handle);
    }

    int m_nodes = 0;
    int m_lastHandle = 0;
};

TEST_F(RandomTreeTest, RowsStayThePreOrderOfTheShownNodes) {
    std::mt19937 rng(20240611);
    unsigned long data = 1;
    for (int step = 0; step < 3000; ++step) {
        const int rows = list->GetRowCount();
        const int row = rows > 0 ? static_cast<int>(rng() % static_cast<unsigned>(rows)) : -1;
        const unsigned op = rng() % 100;
        int handle = -1;
        if (op < 12 || list->GetRoots().IsEmpty()) {
            list->AddItem(S(L"root"), 0, 1, data++, -1, &handle);
        } else if (op < 20) {
            const int index =
                static_cast<int>(rng() % static_cast<unsigned>(list->GetRoots().GetSize() + 1));
            if (!RootInsertionKeepsOrder(index))
                continue;
            list->InsertItem(S(L"inserted root"), 0, 1, data++, -1, index, &handle);
        } else if (op < 45) {
            // Under a shown parent that is expanded or childless the new row
            // follows the parent's shown rows; under a collapsed parent,
            // without expandParent, no row is made.
            CTreeNode* parent = RandomNode(rng);
            if (parent == nullptr)
                continue;
            const bool shows = list->GetListboxIndex(parent) >= 0;
            if (shows && (parent->IsExpanded() || parent->GetNumberOfChildren() == 0))
                list->AddItem(S(L"child"), 6, 6, data++, parent->GetTreeNodeItemHandle(), &handle,
                              true);
            else if (!parent->IsExpanded())
                list->AddItem(S(L"hidden child"), 6, 6, data++, parent->GetTreeNodeItemHandle(),
                              &handle, false);
            else
                continue;
        } else if (op < 60) {
            list->Expand(row);
        } else if (op < 70) {
            list->Collapse(row);
        } else if (op < 77) {
            if (row >= 0) {
                m_nodes -= list->GetNode(row)->GetNumberOfNodes();
                EXPECT_TRUE(list->DeleteItemByIndex(row));
            }
        } else if (op < 85) {
            Select(row);
            static const UINT keys[] = {VK_LEFT, VK_RIGHT, VK_ADD, VK_SUBTRACT, VK_DOWN, VK_UP};
            Key(Hwnd(), keys[rng() % std::size(keys)]);
        } else if (op < 92) {
            if (row >= 0 && row < 10 && SendMessageW(Hwnd(), LB_GETTOPINDEX, 0, 0) == 0) {
                const int level = list->GetItemLevel(row);
                Click(Hwnd(), level * 16 + 8, MidY(row));
            }
        } else if (op < 96) {
            if (CTreeNode* node = RandomNode(rng))
                list->SelectItemFromItemData(node->GetItemData(), false);
        } else if (op < 98) {
            list->CollapseAllBranches();
        } else {
            if (CTreeNode* node = RandomNode(rng))
                list->ExpandThisAndParent(node);
        }
        if (handle != -1) {
            ++m_nodes;
            m_lastHandle = std::max(m_lastHandle, handle);
        }
        ExpectRowsArePreOrder(step);
        if (HasFatalFailure())
            return;
    }
    EXPECT_GT(m_nodes, 50) << "the mix should grow a tree of some size";
    EXPECT_EQ(m_nodes, list->GetNodeCount());
}

} // namespace
} // namespace treetest

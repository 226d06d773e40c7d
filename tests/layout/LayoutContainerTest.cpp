// Measuring and arranging rules of rows, columns, collections, grids and
// quadrant containers, and ownership of their children.
#include "LayoutFakes.h"

#include "layout/LayoutCell.h"
#include "layout/LayoutCollection.h"
#include "layout/LayoutGrid.h"
#include "layout/LayoutQuadContainer.h"
#include "layout/OrderedLayoutContainer.h"

#include <gtest/gtest.h>

using namespace layouttest;
using D = VU_LayoutDefs;

namespace {

Leaf* Fixed(int cx, int cy) {
    auto* leaf = new Leaf(cx, cy);
    leaf->SetFlexible(0, 0);
    return leaf;
}

VU_CLayoutCell* WeightedCell(int cx, int cy, float weight) {
    return new VU_CLayoutCell(new Leaf(cx, cy),
                              VU_CELLLAYOUT(0, CRect(), weight, weight, D::INTERNAL));
}

// Lays the container out in a rectangle of the given size at (10, 20).
void LayOut(VU_CLayoutElementContainer& c, int cx, int cy) {
    c.RecalcSize();
    c.SetLayoutRect(CRect(10, 20, 10 + cx, 20 + cy));
    c.RepositionChildren();
}

CRect RectOf(VU_CLayoutElement* e) {
    if (auto* leaf = dynamic_cast<VU_CConcreteElement*>(e))
        return leaf->GetObjectRect();
    return static_cast<VU_CLayoutElementContainer*>(e)->GetLayoutRect();
}

TEST(OrderedLayoutContainer, RowMeasuresAndSharesSpareByWeight) {
    VU_COrderedLayoutContainer row(D::HORIZONTAL, 4);
    Leaf* fixed = Fixed(10, 5);
    Leaf* hidden = Fixed(50, 50);
    hidden->SetVisibility(D::HIDDEN); // reports (0, 0): no room, no spacing
    row.Add(fixed);
    row.Add(hidden);
    row.Add(WeightedCell(20, 8, 1));
    row.Add(WeightedCell(20, 12, 3));
    EXPECT_EQ(CSize(10 + 4 + 20 + 4 + 20, 12), row.RecalcSize());

    LayOut(row, 58 + 40, 30);
    EXPECT_EQ(CRect(10, 20, 20, 25), RectOf(row.GetAt(0))) << "fixed: own size at the top";
    EXPECT_EQ(CRect(24, 20, 54, 50), RectOf(row.GetAt(2))) << "weight 1 of 4 of 40 spare";
    EXPECT_EQ(CRect(58, 20, 108, 50), RectOf(row.GetAt(3))) << "weight 3 of 4";

    // Too small: nothing shrinks, the children stick out at the end.
    LayOut(row, 30, 5);
    EXPECT_EQ(CRect(48, 20, 68, 32), RectOf(row.GetAt(3)));
}

TEST(OrderedLayoutContainer, ColumnPacksFixedChildrenAndStretchesAcross) {
    VU_COrderedLayoutContainer column(D::VERTICAL);
    column.Add(Fixed(10, 5));
    column.Add(new Leaf(6, 7)); // flexible
    EXPECT_EQ(CSize(10, 12), column.RecalcSize());
    LayOut(column, 40, 12);
    EXPECT_EQ(CRect(10, 20, 20, 25), RectOf(column.GetAt(0)));
    EXPECT_EQ(CRect(10, 25, 50, 32), RectOf(column.GetAt(1)));

    // Only fixed children: the spare room stays at the end.
    VU_COrderedLayoutContainer packed(D::VERTICAL);
    packed.Add(Fixed(3, 3));
    packed.Add(Fixed(3, 3));
    LayOut(packed, 3, 100);
    EXPECT_EQ(CRect(10, 23, 13, 26), RectOf(packed.GetAt(1)));
    // ... unless the container resizes its children.
    packed.SetResizeChild(D::RESIZE_CHILD);
    LayOut(packed, 5, 100);
    EXPECT_EQ(CRect(10, 70, 15, 120), RectOf(packed.GetAt(1)));
}

TEST(LayoutCollection, LayersShareTheRectangle) {
    VU_CLayoutCollection layers;
    layers.Add(new Leaf(30, 10));
    layers.Add(Fixed(10, 40));
    EXPECT_EQ(CSize(30, 40), layers.RecalcSize());
    LayOut(layers, 50, 50);
    EXPECT_EQ(CRect(10, 20, 60, 70), RectOf(layers.GetAt(0)));
    EXPECT_EQ(CRect(10, 20, 20, 60), RectOf(layers.GetAt(1)));
}

TEST(LayoutGrid, ColumnsAndRowsLineUp) {
    // 2 x 3, spacing 2 x 1; (0, 2) is empty; (1, 1) does not align on the
    // horizontal grid and is wider than its column.
    VU_CLayoutGrid grid;
    grid.SetSpacing(2, 1);
    auto* narrow = new VU_CLayoutCell(Fixed(5, 5));
    narrow->SetFlexible(0, 0);
    grid.SetAt(narrow, 0, 0);
    grid.SetAt(new VU_CLayoutCell(new Leaf(8, 3)), 0, 1);
    grid.SetAt(new VU_CLayoutCell(new Leaf(12, 9)), 1, 0);
    auto* spanning = new VU_CLayoutCell(new Leaf(30, 4));
    spanning->SetAllowHGridAlign(D::NO_HGRID_ALIGN);
    grid.SetAt(spanning, 1, 1);
    grid.SetAt(new VU_CLayoutCell(Fixed(6, 2)), 1, 2);

    EXPECT_EQ(CSize(2, 3), grid.GetGridSize());
    EXPECT_EQ(CSize(12 + 2 + 8 + 2 + 6, 5 + 1 + 9), grid.RecalcSize());
    LayOut(grid, 30 + 9, 15 + 10);
    // Spare 9 x 10 goes equally to the three columns and two rows (all hold
    // a flexible cell).
    EXPECT_EQ((std::vector<int>{15, 11, 9}), grid.GetTracks().widths);
    EXPECT_EQ((std::vector<int>{10, 14}), grid.GetTracks().heights);
    EXPECT_EQ(CRect(10, 20, 15, 25), RectOf(narrow)) << "not flexible: own size";
    EXPECT_EQ(CRect(10 + 15 + 2, 20, 38, 30), RectOf(grid.GetAt(0, 1)));
    EXPECT_EQ(CRect(27, 31, 57, 45), RectOf(spanning)) << "own width from the column's left";
    EXPECT_EQ(CRect(40, 31, 49, 45), RectOf(grid.GetAt(1, 2)));

    grid.SetVisibility(D::HIDDEN);
    EXPECT_EQ(CSize(), grid.RecalcSize());
}

TEST(LayoutQuadContainer, QuadrantsAsTwoByTwo) {
    VU_CLayoutQuadContainer quad;
    quad.SetElement(D::TOP_LEFT, Fixed(10, 4));
    quad.SetElement(D::BOTTOM_RIGHT, new Leaf(6, 8));
    Leaf outside(1, 1);
    EXPECT_FALSE(quad.SetElement(static_cast<D::QUADRANT>(4), &outside));
    EXPECT_EQ(nullptr, quad.GetElement(static_cast<D::QUADRANT>(-1)));
    EXPECT_EQ(CSize(16, 12), quad.RecalcSize());
    LayOut(quad, 20, 12);
    EXPECT_EQ(CRect(10, 20, 20, 24), RectOf(quad.GetElement(D::TOP_LEFT)));
    EXPECT_EQ(CRect(20, 24, 30, 32), RectOf(quad.GetElement(D::BOTTOM_RIGHT)))
        << "only the right column may grow";
}

TEST(LayoutContainers, RecalcLayoutGrowsMovesAndReposition) {
    VU_COrderedLayoutContainer row;
    Leaf* a = Fixed(10, 10);
    row.Add(a);
    row.Add(new VU_CLayoutCell(Fixed(4, 4), D::ALIGN_HCENTER | D::ALIGN_VCENTER));
    row.SetLayoutRect(CRect(5, 5, 6, 100));
    row.RecalcLayout(nullptr);
    EXPECT_EQ(1, a->measured) << "leaves measure with the device context first";
    EXPECT_EQ(CRect(5, 5, 19, 100), row.GetLayoutRect()) << "grown to the width it needs";

    auto* cell = static_cast<VU_CLayoutCell*>(row.GetAt(1));
    const CRect inCell = RectOf(cell->GetElement());
    row.MoveBy(CSize(3, -2));
    EXPECT_EQ(CRect(8, 3, 22, 98), row.GetLayoutRect());
    EXPECT_EQ(inCell + CSize(3, -2), RectOf(cell->GetElement()));
    row.Reposition(CPoint(0, 0));
    EXPECT_EQ(CRect(0, 0, 14, 95), row.GetLayoutRect());
    EXPECT_EQ(CRect(0, 0, 10, 10), a->GetObjectRect());
}

TEST(LayoutContainers, DeletionModeDecidesWhoDeletes) {
    Log log;
    struct Row {
        const char* name;
        D::DELETION_MODE mode;
        Log expected;
    } rows[] = {
        {"delete", D::DELETE_CHILDREN, Expect({"~removed", "~a", "~b", "~end"})},
        {"keep", D::KEEP_CHILDREN, Expect({})},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        log.clear();
        std::vector<Leaf*> leaves;
        for (const char* name : {"removed", "a", "b", "end"})
            leaves.push_back(new Leaf(1, 1, name, &log));
        {
            VU_CLayoutCollection list(nullptr, D::INTERNAL, r.mode);
            VU_CLayoutGrid grid(nullptr, D::INTERNAL, r.mode);
            auto* entry = new VU_CLayoutCell(leaves[3], 0, nullptr, r.mode);
            grid.SetAt(entry, 0, 0);
            for (int i = 0; i < 3; ++i)
                list.Add(leaves[i]);
            EXPECT_TRUE(list.Remove(leaves[0]));
            EXPECT_FALSE(list.Remove(leaves[0]));
            list.RemoveAll();
            EXPECT_EQ(0, list.GetCount());
            if (r.mode == D::KEEP_CHILDREN)
                delete entry;
        }
        EXPECT_EQ(r.expected, log);
        if (r.mode == D::KEEP_CHILDREN)
            for (Leaf* leaf : leaves)
                delete leaf;
    }
}

TEST(LayoutContainers, ListRefusesBadInsertions) {
    VU_COrderedLayoutContainer row(D::VERTICAL, -3);
    EXPECT_EQ(0, row.GetSpacing());
    EXPECT_FALSE(row.Add(nullptr));
    EXPECT_FALSE(row.Add(&row));
    Leaf* leaf = new Leaf(1, 1);
    EXPECT_FALSE(row.InsertAt(1, leaf));
    EXPECT_TRUE(row.InsertAt(0, leaf));
    EXPECT_EQ(nullptr, row.GetAt(1));
    EXPECT_EQ(nullptr, row.GetAt(-1));
}

} // namespace

// Containers: cells aligning their element, the measuring and arranging
// rules of rows, columns, grids and quadrants, ownership of children, and
// the grid's storage.
#include "LayoutFakes.h"

#include "layout/LayoutCell.h"
#include "layout/LayoutCollection.h"
#include "layout/LayoutGrid.h"
#include "layout/LayoutQuadContainer.h"
#include "layout/Matrix.h"
#include "layout/MatrixIterator.h"
#include "layout/OrderedLayoutContainer.h"

#include <gtest/gtest.h>

using namespace layouttest;
using D = VU_LayoutDefs;

namespace {

CRect Aligned(UINT alignment, CRect margins, CRect layout, CSize size) {
    VU_CLayoutCell cell(nullptr, VU_CELLLAYOUT(alignment, margins, 0, 0, D::INTERNAL));
    cell.SetLayoutRect(layout);
    return cell.CalculateAlignedRect(size);
}

TEST(LayoutCell, CalculateAlignedRect) {
    const UINT L = D::ALIGN_LEFT, HC = D::ALIGN_HCENTER, R = D::ALIGN_RIGHT;
    const UINT T = D::ALIGN_TOP, VC = D::ALIGN_VCENTER, B = D::ALIGN_BOTTOM;
    struct Row {
        const char* name;
        UINT alignment;
        CRect margins, layout;
        CSize size;
        CRect expected;
    } rows[] = {
        {"left top", L | T, {}, {10, 20, 110, 70}, {30, 10}, {10, 20, 40, 30}},
        {"centre, odd width sits one pixel left",
         HC | VC,
         {},
         {0, 0, 11, 11},
         {4, 4},
         {3, 3, 7, 7}},
        {"centre, negative coordinates truncate towards zero",
         HC | VC,
         {},
         {-11, -11, 0, 0},
         {3, 3},
         {-6, -6, -3, -3}},
        {"margins push a left box right",
         L | T,
         {5, 6, 0, 0},
         {0, 0, 100, 100},
         {10, 10},
         {5, 6, 15, 16}},
        {"margins push a right box left",
         R | B,
         {0, 0, 7, 8},
         {0, 0, 100, 100},
         {10, 10},
         {83, 82, 93, 92}},
        {"centre ignores margins that leave room",
         HC,
         {20, 0, 0, 0},
         {0, 0, 100, 10},
         {10, 10},
         {45, 0, 55, 10}},
        {"too wide: ends at the right margin, sticks out left",
         L | T,
         {5, 5, 5, 5},
         {0, 0, 20, 20},
         {30, 30},
         {-15, -15, 15, 15}},
        {"invalid alignments 3 and 12 act as left and top",
         3 | 12,
         {},
         {10, 10, 50, 50},
         {4, 4},
         {10, 10, 14, 14}},
        // Flipped: y grows upwards, top is the larger value.
        {"flipped top", T, {}, {0, 0, 10, -50}, {10, 10}, {0, 0, 10, -10}},
        {"flipped bottom", B, {}, {0, 0, 10, -50}, {10, 10}, {0, -40, 10, -50}},
        {"flipped centre, odd height", VC, {}, {0, 0, 10, -51}, {10, 10}, {0, -20, 10, -30}},
        {"flipped margins", T, {0, 4, 0, 0}, {0, 0, 10, -50}, {10, 10}, {0, -4, 10, -14}},
        {"flipped too high: bottom margin wins",
         T,
         {0, 5, 0, 5},
         {0, 0, 10, -20},
         {10, 30},
         {0, 15, 10, -15}},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        EXPECT_EQ(r.expected, Aligned(r.alignment, r.margins, r.layout, r.size));
    }
}

TEST(LayoutCell, RecordRoundTripAndByteMargins) {
    VU_CELLLAYOUT in(D::ALIGN_RIGHT | D::ALIGN_VCENTER, CRect(1, 255, 256, 300), 0.25f, 3.5f,
                     D::EXTERNAL);
    VU_CLayoutCell cell(nullptr, in);
    VU_CELLLAYOUT out;
    cell.GetCellLayout(out);
    EXPECT_EQ(in.m_nAlignment, out.m_nAlignment);
    EXPECT_EQ(CRect(1, 255, 0, 44), out.m_rectMargins) << "cut to the low byte";
    EXPECT_EQ(0.25f, out.m_fHorizontalWeight);
    EXPECT_EQ(3.5f, out.m_fVerticalWeight);
    EXPECT_EQ(D::EXTERNAL, out.m_placement);
    EXPECT_TRUE(cell.IsExternal());
}

TEST(LayoutCell, MeasuresWithMarginsAndPlacesByAlignmentOrFills) {
    auto* leaf = new Leaf(10, 6);
    VU_CLayoutCell cell(leaf, VU_CELLLAYOUT(D::ALIGN_HCENTER | D::ALIGN_BOTTOM, CRect(2, 3, 4, 5),
                                            0, 0, D::INTERNAL));
    EXPECT_EQ(CSize(16, 14), cell.RecalcSize());
    cell.SetLayoutRect(CRect(100, 100, 140, 130));
    cell.RepositionChildren();
    EXPECT_EQ(CRect(115, 119, 125, 125), leaf->GetObjectRect()) << "own size, aligned";

    cell.SetResizeChild(D::RESIZE_CHILD);
    cell.RepositionChildren();
    EXPECT_EQ(CRect(102, 103, 136, 125), leaf->GetObjectRect()) << "fills inside the margins";

    cell.SetVisibility(D::HIDDEN);
    EXPECT_EQ(CSize(), cell.RecalcSize());
    EXPECT_EQ(D::HIDDEN, leaf->GetVisibility());
}

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
    // Only fixed children: the spare room stays at the end.
    VU_COrderedLayoutContainer packed(D::VERTICAL);
    packed.Add(Fixed(3, 3));
    packed.Add(new Leaf(2, 3)); // flexible: as wide as the column
    packed.GetAt(1)->SetFlexible(1, 0);
    EXPECT_EQ(CSize(3, 6), packed.RecalcSize());
    LayOut(packed, 7, 100);
    EXPECT_EQ(CRect(10, 23, 17, 26), RectOf(packed.GetAt(1)));
    // ... unless the container resizes its children.
    packed.SetResizeChild(D::RESIZE_CHILD);
    LayOut(packed, 5, 100);
    EXPECT_EQ(CRect(10, 20, 15, 70), RectOf(packed.GetAt(0)));
    EXPECT_EQ(CRect(10, 70, 15, 120), RectOf(packed.GetAt(1)));
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
    grid.SetLayoutRect(CRect(10, 20, 20, 30)); // smaller: back to the measured tracks
    grid.RepositionChildren();
    EXPECT_EQ((std::vector<int>{12, 8, 6}), grid.GetTracks().widths);
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
    std::vector<Leaf*> leaves;
    for (const char* name : {"removed", "a", "b", "end", "replaced"})
        leaves.push_back(new Leaf(1, 1, name, &log));
    {
        VU_CLayoutCollection list;
        VU_CLayoutGrid grid;
        auto* entry = new VU_CLayoutCell(leaves[4]);
        entry->SetElement(leaves[3]);
        grid.SetAt(entry, 0, 0);
        for (int i = 0; i < 3; ++i)
            list.Add(leaves[i]);
        EXPECT_TRUE(list.Remove(leaves[0]));
        list.RemoveAll();
        EXPECT_EQ(0, list.GetCount());
    }
    EXPECT_EQ(Expect({"~replaced", "~removed", "~a", "~b", "~end"}), log);

    log.clear();
    auto* kept = new Leaf(1, 1, "kept", &log);
    {
        VU_CLayoutQuadContainer quad(nullptr, D::INTERNAL, D::KEEP_CHILDREN);
        quad.SetElement(D::TOP_RIGHT, kept);
        EXPECT_TRUE(quad.Remove(kept));
        quad.SetElement(D::TOP_RIGHT, kept);
    }
    EXPECT_EQ(Expect({}), log);
    delete kept;
}

// ---- The grid's storage ----------------------------------------------------

struct Item {
    explicit Item(int v, int* deaths = nullptr) : value(v), deaths(deaths) {}
    ~Item() {
        if (deaths != nullptr)
            ++*deaths;
    }
    int value;
    int* deaths;
};

TEST(Matrix, GrowsToHoldAndShrinksToLastObject) {
    VU_CMatrix<Item> m;
    Item a(1), b(2), c(3);
    EXPECT_EQ(CSize(0, 0), m.GetSize());
    EXPECT_TRUE(m.SetAt(&a, 2, 1));
    EXPECT_EQ(CSize(3, 2), m.GetSize()) << "cx counts rows, cy columns";
    EXPECT_TRUE(m.SetAt(&b, 0, 4));
    EXPECT_EQ(CSize(3, 5), m.GetSize());
    EXPECT_EQ(&a, m.GetAt(2, 1)) << "kept when the columns grew";
    EXPECT_EQ(nullptr, m.GetAt(3, 0));
    EXPECT_FALSE(m.SetAt(&c, -1, 0));
    EXPECT_FALSE(m.SetAt(&c, 1 << 14, 1 << 14)) << "past the largest table";

    EXPECT_TRUE(m.RemoveAt(0, 4, false));
    EXPECT_EQ(CSize(3, 2), m.GetSize()) << "trailing empty columns dropped";
    m.SetAt(&c, 0, 0);
    EXPECT_TRUE(m.Remove(&a));
    EXPECT_EQ(CSize(1, 1), m.GetSize()) << "trailing empty rows dropped";
    EXPECT_TRUE(m.SetAt(nullptr, 0, 0));
    EXPECT_EQ(CSize(0, 0), m.GetSize());
}

TEST(Matrix, RemovalDeletesEachObjectOnceWhenAsked) {
    int deaths = 0;
    VU_CMatrix<Item> m;
    Item* twice = new Item(1, &deaths);
    m.SetAt(twice, 0, 0);
    m.SetAt(twice, 1, 1);
    m.SetAt(new Item(2, &deaths), 0, 1);
    std::vector<Item*> objects;
    m.GetObjects(objects);
    EXPECT_EQ(3u, objects.size());
    m.RemoveAt(0, 1, true);
    EXPECT_EQ(1, deaths);
    m.RemoveAll(true);
    EXPECT_EQ(2, deaths);
    EXPECT_EQ(CSize(0, 0), m.GetSize());
}

TEST(MatrixIterator, WalksStoredObjectsRowByRowBothWays) {
    VU_CMatrix<Item> m;
    Item i0(0), i1(1), i2(2), i3(3);
    m.SetAt(&i2, 1, 0);
    m.SetAt(&i0, 0, 1);
    m.SetAt(&i3, 2, 2);
    m.SetAt(&i1, 0, 2);
    VU_CMatrixIterator<Item> it(m);
    std::vector<int> forward, backward;
    for (Item* p = it.First(); p != nullptr; p = it.Next())
        forward.push_back(p->value);
    EXPECT_EQ(nullptr, it.Next()) << "stays past the end";
    for (Item* p = it.Prev(); p != nullptr; p = it.Prev())
        backward.push_back(p->value);
    EXPECT_EQ((std::vector<int>{0, 1, 2, 3}), forward);
    EXPECT_EQ((std::vector<int>{3, 2, 1, 0}), backward);
    EXPECT_EQ(&i0, it.Next()) << "steps back onto the table from before the start";
    EXPECT_EQ(&i3, it.Last());
}

} // namespace

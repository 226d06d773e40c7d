// The element model (flags, visibility, decorators), visitor dispatch and
// the walk, then the bounding, hit-test, region and invert visitors on a
// laid-out tree.
#include "LayoutFakes.h"

#include "layout/BoundingRectVisitor.h"
#include "layout/HitTestVisitor.h"
#include "layout/InvertVisitor.h"
#include "layout/LayoutCell.h"
#include "layout/LayoutCollection.h"
#include "layout/LayoutGrid.h"
#include "layout/LayoutQuadContainer.h"
#include "layout/OrderedLayoutContainer.h"
#include "layout/RegionVisitor.h"

#include <gtest/gtest.h>

using namespace layouttest;
using D = VU_LayoutDefs;

namespace {

TEST(LayoutElement, FlagByteAndItsReaders) {
    VU_COrderedLayoutContainer internal;
    VU_COrderedLayoutContainer external(D::HORIZONTAL, 0, nullptr, D::EXTERNAL);
    Leaf leaf(1, 1);
    EXPECT_EQ(203, internal.GetFlags());
    EXPECT_EQ(207, external.GetFlags());
    EXPECT_EQ(203, leaf.GetFlags());
    EXPECT_TRUE(leaf.IsFlexible(D::HORIZONTAL) && leaf.IsFlexible(D::VERTICAL) &&
                leaf.GetVisibility() && leaf.AllowHGridAlign() && leaf.AllowVGridAlign());
    EXPECT_FALSE(leaf.IsExternal() || leaf.IsRegionContributor() || leaf.ResizeChild());
    EXPECT_TRUE(external.IsExternal() && external.GetPlacement() == D::EXTERNAL);

    // Each setter touches its own bit only; any non-zero value means on.
    struct Row {
        const char* name;
        void (*set)(Leaf&);
        int flags;
    } rows[] = {
        {"flexible 0, 7", [](Leaf& e) { e.SetFlexible(0, 7); }, 203 & ~1},
        {"resize child 2", [](Leaf& e) { e.SetResizeChild(static_cast<D::CHILD_RESIZE>(2)); },
         203 | 32},
        {"region modifier", [](Leaf& e) { e.SetRegionModifier(D::REGION_MODIFIER_ON); }, 203 | 16},
        {"no h grid", [](Leaf& e) { e.SetAllowHGridAlign(D::NO_HGRID_ALIGN); }, 203 & ~64},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        Leaf e(1, 1);
        r.set(e);
        EXPECT_EQ(r.flags, e.GetFlags());
        EXPECT_EQ(e.IsRegionContributor() != 0, e.GetRegionModifier() != 0);
        EXPECT_EQ(e.IsExternal() != 0, e.GetPlacement() != 0);
    }
    EXPECT_FALSE(leaf.IsFlexible(static_cast<D::HV_DIRECTION>(2)) ||
                 leaf.IsFlexible(static_cast<D::HV_DIRECTION>(-1)));

    leaf.SetFlexible(0, 0);
    Leaf copy(leaf), assigned(2, 2);
    assigned = copy;
    EXPECT_EQ(200, assigned.GetFlags()) << "copied with the flag byte";
}

TEST(LayoutElement, LeafReportsOnlyRealVisibilityChangesContainerAlwaysPassesOn) {
    Leaf leaf(1, 1);
    leaf.SetVisibility(static_cast<D::VISIBILITY>(5)); // still "visible"
    EXPECT_EQ(0, leaf.visibilityChanges);
    leaf.SetVisibility(D::HIDDEN);
    leaf.SetVisibility(D::HIDDEN);
    EXPECT_EQ(1, leaf.visibilityChanges);

    // A container passes even an unchanged value on, so showing a row shows
    // a child hidden on its own.
    Leaf* a = new Leaf(1, 1);
    Leaf* b = new Leaf(1, 1);
    VU_COrderedLayoutContainer row;
    row.Add(a);
    row.Add(b);
    b->SetVisibility(D::HIDDEN);
    row.SetVisibility(D::VISIBLE);
    EXPECT_EQ(D::VISIBLE, b->GetVisibility());
    EXPECT_EQ(2, b->visibilityChanges);
    EXPECT_EQ(0, a->visibilityChanges);
}

TEST(LayoutElement, ContainerOwnsItsDecorator) {
    Log log;
    {
        VU_CLayoutCell cell(nullptr, 0, new Decorator("first", &log));
        cell.SetDecorator(new Decorator("second", &log));
        EXPECT_EQ(Expect({"~first"}), log);
        cell.SetDecorator(nullptr);
        EXPECT_EQ(Expect({"~first", "~second"}), log);
        EXPECT_EQ(nullptr, cell.GetDecorator());
        cell.SetDecorator(new Decorator("third", &log));
    }
    EXPECT_EQ(Expect({"~first", "~second", "~third"}), log);
}

TEST(LayoutElement, DrawWrapsContentInDecoratorHooksDepthFirst) {
    Log log;
    VU_COrderedLayoutContainer row(D::HORIZONTAL, 0, new Decorator("row", &log));
    row.Add(new Leaf(1, 1, "a", &log));
    auto* cell = new VU_CLayoutCell(new Leaf(1, 1, "b", &log), 0, new Decorator("cell", &log));
    row.Add(cell);
    row.Add(new Leaf(1, 1, "c", &log));
    row.Draw(nullptr);
    EXPECT_EQ(Expect({"row before", "draw a", "cell before", "draw b", "cell after", "draw c",
                      "row after"}),
              log);
}

// Records the kind and order of what it visits, and walks on.
class Recorder : public VU_CLayoutElementVisitor {
public:
    void Visit(VU_CConcreteElement* leaf) override {
        order.push_back(static_cast<Leaf*>(leaf)->GetObjectRect().left);
    }
    void Visit(VU_CLayoutGrid* grid) override {
        order.push_back(-1);
        VU_CLayoutElementVisitor::Visit(grid);
    }
    std::vector<int> order;
};

// Handles leaves only.
class LeafCounter : public DwIVisitor, public DwIVisit<VU_CConcreteElement> {
public:
    void Visit(VU_CConcreteElement*) override { ++count; }
    int count = 0;
};

Leaf* Tagged(int tag) {
    auto* leaf = new Leaf(1, 1);
    leaf->SetObjectRect(CRect(tag, 0, tag, 0));
    return leaf;
}

TEST(LayoutElement, VisitorsWalkDepthFirstInEachContainersOrder) {
    // A row of: leaf 1, a grid 2x2 filled out of order, a quad with
    // quadrants 3 and 0, a collection of 8 and 9, an empty cell.
    VU_COrderedLayoutContainer row;
    row.Add(Tagged(1));
    auto* grid = new VU_CLayoutGrid;
    grid->SetAt(new VU_CLayoutCell(Tagged(5)), 1, 1);
    grid->SetAt(new VU_CLayoutCell(Tagged(2)), 0, 0);
    grid->SetAt(new VU_CLayoutCell(Tagged(4)), 1, 0);
    grid->SetAt(new VU_CLayoutCell(Tagged(3)), 0, 1);
    row.Add(grid);
    auto* quad = new VU_CLayoutQuadContainer;
    quad->SetElement(D::BOTTOM_RIGHT, Tagged(7));
    quad->SetElement(D::TOP_LEFT, Tagged(6));
    row.Add(quad);
    auto* collection = new VU_CLayoutCollection;
    collection->Add(Tagged(8));
    collection->Add(Tagged(9));
    row.Add(collection);
    row.Add(new VU_CLayoutCell);

    Recorder recorder;
    row.Accept(&recorder);
    EXPECT_EQ((std::vector<int>{1, -1, 2, 3, 4, 5, 6, 7, 8, 9}), recorder.order);

    LeafCounter leaves;
    row.Accept(&leaves);
    EXPECT_EQ(0, leaves.count) << "a leaf-only visitor does not enter containers";
    row.GetAt(0)->Accept(&leaves);
    EXPECT_EQ(1, leaves.count);
}

// A column of: a grid of 2 x 2 cells (icon-sized leaves centred, one
// bottom-right), then a layer of a wide leaf under a small one.
struct Diagram {
    Diagram() : column(D::VERTICAL, 3) {
        for (int r = 0; r < 2; ++r)
            for (int c = 0; c < 2; ++c) {
                leaves[r * 2 + c] = new Leaf(8 + 4 * c, 6 + 2 * r);
                leaves[r * 2 + c]->SetFlexible(0, 0);
                const UINT align = r + c == 2 ? D::ALIGN_RIGHT | D::ALIGN_BOTTOM
                                              : D::ALIGN_HCENTER | D::ALIGN_VCENTER;
                grid->SetAt(
                    new VU_CLayoutCell(leaves[r * 2 + c],
                                       VU_CELLLAYOUT(align, CRect(1, 1, 1, 1), 0, 0, D::INTERNAL)),
                    r, c);
            }
        grid->SetSpacing(2, 2);
        column.Add(grid);
        under = new Leaf(40, 10);
        over = new Leaf(5, 5);
        over->SetFlexible(0, 0);
        layers->Add(under);
        layers->Add(over);
        column.Add(layers);
        column.SetLayoutRect(CRect(0, 0, 60, 50));
        column.RecalcLayout(nullptr);
    }
    VU_COrderedLayoutContainer column;
    VU_CLayoutGrid* grid = new VU_CLayoutGrid;
    VU_CLayoutCollection* layers = new VU_CLayoutCollection;
    Leaf* leaves[4];
    Leaf* under;
    Leaf* over;
};

std::vector<CRect> Snapshot(Diagram& d) {
    std::vector<CRect> rects{d.column.GetLayoutRect(), d.grid->GetLayoutRect(),
                             d.layers->GetLayoutRect(), d.under->GetObjectRect(),
                             d.over->GetObjectRect()};
    for (Leaf* leaf : d.leaves)
        rects.push_back(leaf->GetObjectRect());
    return rects;
}

VU_CConcreteElement* HitAt(VU_CLayoutElement& root, int x, int y) {
    VU_CHitTestVisitor hit(CPoint(x, y));
    root.Accept(&hit);
    return hit.GetHit();
}

TEST(LayoutVisitors, HitTestFindsTopmostVisibleLeaf) {
    Diagram d;
    const CRect layer = d.layers->GetLayoutRect();
    EXPECT_EQ(layer, d.under->GetObjectRect()) << "a flexible layer fills the collection";
    EXPECT_EQ(CRect(layer.TopLeft(), CSize(5, 5)), d.over->GetObjectRect());
    const CRect r3 = d.leaves[3]->GetObjectRect();
    struct Row {
        const char* name;
        CPoint point;
        VU_CConcreteElement* expected;
    } rows[] = {
        {"inside a centred leaf", d.leaves[0]->GetObjectRect().CenterPoint(), d.leaves[0]},
        {"bottom-right leaf, last pixel", CPoint(r3.right - 1, r3.bottom - 1), d.leaves[3]},
        {"just past it", CPoint(r3.right, r3.bottom - 1), nullptr},
        {"the layer on top wins", d.over->GetObjectRect().TopLeft(), d.over},
        {"the layer below elsewhere", CPoint(30, d.under->GetObjectRect().top), d.under},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        EXPECT_EQ(r.expected, HitAt(d.column, r.point.x, r.point.y));
    }
    d.over->SetVisibility(D::HIDDEN);
    EXPECT_EQ(d.under, HitAt(d.column, d.over->GetObjectRect().left, d.over->GetObjectRect().top));
    d.grid->SetVisibility(D::HIDDEN);
    EXPECT_EQ(nullptr, HitAt(d.column, r3.left, r3.top));
}

TEST(LayoutVisitors, BoundingRectCoversVisibleLeavesAndDecoratedContainers) {
    Log log; // outlives the decorator
    Diagram d;
    d.layers->SetVisibility(D::HIDDEN);
    VU_CBoundingRectVisitor bounds;
    d.column.Accept(&bounds);
    EXPECT_EQ(d.leaves[0]->GetObjectRect() | d.leaves[3]->GetObjectRect(),
              bounds.GetBoundingRect());

    d.column.SetDecorator(new Decorator("frame", &log));
    VU_CBoundingRectVisitor decorated;
    d.column.Accept(&decorated);
    EXPECT_EQ(CRect(0, 0, 60, 50), decorated.GetBoundingRect());
}

TEST(LayoutVisitors, RegionCollectsVisibleContributorsInWalkOrder) {
    Diagram d;
    const std::vector<VU_CLayoutElement*> contributors{d.over, d.leaves[2], d.leaves[1], d.layers};
    for (VU_CLayoutElement* e : contributors)
        e->SetRegionModifier(D::REGION_MODIFIER_ON);
    d.leaves[2]->SetVisibility(D::HIDDEN);
    VU_CRegionVisitor region;
    d.column.Accept(&region);
    const CRect leaf = d.leaves[1]->GetObjectRect(), layer = d.layers->GetLayoutRect();
    EXPECT_EQ((std::vector<CRect>{leaf, layer, d.over->GetObjectRect()}), region.GetRects());
    EXPECT_EQ(leaf | layer, region.GetBounds());
}

TEST(LayoutVisitors, InvertMirrorsAndRelayoutAgrees) {
    Diagram d;
    const std::vector<CRect> before = Snapshot(d);
    VU_CInvertVisitor invert(0);
    d.column.Accept(&invert);
    const std::vector<CRect> inverted = Snapshot(d);
    for (size_t i = 0; i < before.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(CRect(before[i].left, -before[i].top, before[i].right, -before[i].bottom),
                  inverted[i]);
    }
    // Laying the flipped tree out again puts everything where it is.
    d.column.RecalcLayout(nullptr);
    EXPECT_EQ(inverted, Snapshot(d));
    // Hits in the mirrored tree at the mirrored point.
    const CRect r3 = before[5 + 3];
    EXPECT_EQ(d.leaves[3], HitAt(d.column, r3.left, -r3.top - 1));

    d.column.Accept(&invert);
    EXPECT_EQ(before, Snapshot(d));
}

} // namespace

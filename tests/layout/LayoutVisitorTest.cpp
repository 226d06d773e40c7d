// The bounding, hit-test and invert visitors on a laid-out tree.
#include "LayoutFakes.h"

#include "layout/BoundingRectVisitor.h"
#include "layout/HitTestVisitor.h"
#include "layout/InvertVisitor.h"
#include "layout/LayoutCell.h"
#include "layout/LayoutCollection.h"
#include "layout/LayoutGrid.h"
#include "layout/OrderedLayoutContainer.h"

#include <gtest/gtest.h>

using namespace layouttest;
using D = VU_LayoutDefs;

namespace {

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
        {"outside everything", CPoint(-1, -1), nullptr},
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
    Diagram d;
    VU_CBoundingRectVisitor bounds;
    d.column.Accept(&bounds);
    CRect expected = d.under->GetObjectRect();
    for (Leaf* leaf : d.leaves)
        expected |= leaf->GetObjectRect();
    EXPECT_EQ(expected, bounds.GetBoundingRect());

    Log log;
    d.layers->SetVisibility(D::HIDDEN);
    d.column.SetDecorator(new Decorator("frame", &log));
    VU_CBoundingRectVisitor decorated;
    d.column.Accept(&decorated);
    EXPECT_EQ(CRect(0, 0, 60, 50), decorated.GetBoundingRect());
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

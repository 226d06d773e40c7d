// The element model: flags, visibility rules, decorators and visitor dispatch.
#include "LayoutFakes.h"

#include "layout/LayoutCell.h"
#include "layout/LayoutCollection.h"
#include "layout/LayoutElementVisitor.h"
#include "layout/LayoutGrid.h"
#include "layout/LayoutQuadContainer.h"
#include "layout/OrderedLayoutContainer.h"

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
    EXPECT_TRUE(leaf.IsFlexible(D::HORIZONTAL) && leaf.IsFlexible(D::VERTICAL));
    EXPECT_EQ(D::VISIBLE, leaf.GetVisibility());
    EXPECT_FALSE(leaf.IsExternal() || leaf.IsRegionContributor() || leaf.ResizeChild());
    EXPECT_TRUE(leaf.AllowHGridAlign() && leaf.AllowVGridAlign());
    EXPECT_TRUE(external.IsExternal());
    EXPECT_EQ(D::EXTERNAL, external.GetPlacement());

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
        {"no v grid", [](Leaf& e) { e.SetAllowVGridAlign(D::NO_VGRID_ALIGN); }, 203 & ~128},
        {"hidden", [](Leaf& e) { e.SetVisibility(D::HIDDEN); }, 203 & ~8},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        Leaf e(1, 1);
        r.set(e);
        EXPECT_EQ(r.flags, e.GetFlags());
        EXPECT_EQ(e.IsRegionContributor() != 0, e.GetRegionModifier() != 0);
        EXPECT_EQ(e.IsExternal() != 0, e.GetPlacement() != 0);
    }
    EXPECT_FALSE(leaf.IsFlexible(static_cast<D::HV_DIRECTION>(2)));
    EXPECT_FALSE(leaf.IsFlexible(static_cast<D::HV_DIRECTION>(-1)));

    Leaf copy(leaf);
    leaf.SetFlexible(0, 0);
    Leaf assigned(2, 2);
    assigned = leaf;
    EXPECT_EQ(203, copy.GetFlags());
    EXPECT_EQ(200, assigned.GetFlags());
}

TEST(LayoutElement, LeafReportsOnlyRealVisibilityChangesContainerAlwaysPassesOn) {
    Leaf leaf(1, 1);
    leaf.SetVisibility(D::VISIBLE);
    EXPECT_EQ(0, leaf.visibilityChanges);
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

} // namespace

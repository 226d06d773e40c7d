#include "layout/BoundingRectVisitor.h"

#include "layout/ConcreteElement.h"
#include "layout/LayoutCell.h"
#include "layout/LayoutCollection.h"
#include "layout/LayoutGrid.h"
#include "layout/LayoutQuadContainer.h"
#include "layout/OrderedLayoutContainer.h"

void VU_CBoundingRectVisitor::Visit(VU_CConcreteElement* leaf) {
    if (leaf->GetVisibility() != VU_LayoutDefs::HIDDEN)
        Add(leaf->GetObjectRect());
}

void VU_CBoundingRectVisitor::Visit(VU_CLayoutCell* cell) {
    if (Enter(cell))
        VU_CLayoutElementVisitor::Visit(cell);
}
void VU_CBoundingRectVisitor::Visit(VU_COrderedLayoutContainer* container) {
    if (Enter(container))
        VU_CLayoutElementVisitor::Visit(container);
}
void VU_CBoundingRectVisitor::Visit(VU_CLayoutQuadContainer* container) {
    if (Enter(container))
        VU_CLayoutElementVisitor::Visit(container);
}
void VU_CBoundingRectVisitor::Visit(VU_CLayoutCollection* collection) {
    if (Enter(collection))
        VU_CLayoutElementVisitor::Visit(collection);
}
void VU_CBoundingRectVisitor::Visit(VU_CLayoutGrid* grid) {
    if (Enter(grid))
        VU_CLayoutElementVisitor::Visit(grid);
}

bool VU_CBoundingRectVisitor::Enter(VU_CLayoutElementContainer* container) {
    if (container->GetVisibility() == VU_LayoutDefs::HIDDEN)
        return false;
    if (container->GetDecorator() != nullptr)
        Add(container->GetLayoutRect());
    return true;
}

void VU_CBoundingRectVisitor::Add(CRect rect) {
    rect.NormalizeRect();
    m_rectBounds.UnionRect(m_rectBounds, rect);
}

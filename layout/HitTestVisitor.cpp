#include "layout/HitTestVisitor.h"

#include "layout/ConcreteElement.h"
#include "layout/LayoutCell.h"
#include "layout/LayoutCollection.h"
#include "layout/LayoutGrid.h"
#include "layout/LayoutQuadContainer.h"
#include "layout/OrderedLayoutContainer.h"

void VU_CHitTestVisitor::Visit(VU_CConcreteElement* leaf) {
    if (leaf->GetVisibility() != VU_LayoutDefs::HIDDEN && Contains(leaf->GetObjectRect()))
        m_pHit = leaf;
}

void VU_CHitTestVisitor::Visit(VU_CLayoutCell* cell) {
    if (Enter(cell))
        VU_CLayoutElementVisitor::Visit(cell);
}
void VU_CHitTestVisitor::Visit(VU_COrderedLayoutContainer* container) {
    if (Enter(container))
        VU_CLayoutElementVisitor::Visit(container);
}
void VU_CHitTestVisitor::Visit(VU_CLayoutQuadContainer* container) {
    if (Enter(container))
        VU_CLayoutElementVisitor::Visit(container);
}
void VU_CHitTestVisitor::Visit(VU_CLayoutCollection* collection) {
    if (Enter(collection))
        VU_CLayoutElementVisitor::Visit(collection);
}
void VU_CHitTestVisitor::Visit(VU_CLayoutGrid* grid) {
    if (Enter(grid))
        VU_CLayoutElementVisitor::Visit(grid);
}

bool VU_CHitTestVisitor::Contains(CRect rect) const {
    rect.NormalizeRect();
    return rect.PtInRect(m_point);
}

bool VU_CHitTestVisitor::Enter(const VU_CLayoutElementContainer* container) const {
    return container->GetVisibility() != VU_LayoutDefs::HIDDEN &&
           Contains(container->GetLayoutRect());
}

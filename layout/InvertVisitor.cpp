#include "layout/InvertVisitor.h"

#include "layout/ConcreteElement.h"
#include "layout/LayoutCell.h"
#include "layout/LayoutCollection.h"
#include "layout/LayoutGrid.h"
#include "layout/LayoutQuadContainer.h"
#include "layout/OrderedLayoutContainer.h"

void VU_CInvertVisitor::Visit(VU_CConcreteElement* leaf) {
    leaf->SetObjectRect(Mirror(leaf->GetObjectRect()));
}

void VU_CInvertVisitor::Visit(VU_CLayoutCell* cell) {
    Invert(cell);
    VU_CLayoutElementVisitor::Visit(cell);
}
void VU_CInvertVisitor::Visit(VU_COrderedLayoutContainer* container) {
    Invert(container);
    VU_CLayoutElementVisitor::Visit(container);
}
void VU_CInvertVisitor::Visit(VU_CLayoutQuadContainer* container) {
    Invert(container);
    VU_CLayoutElementVisitor::Visit(container);
}
void VU_CInvertVisitor::Visit(VU_CLayoutCollection* collection) {
    Invert(collection);
    VU_CLayoutElementVisitor::Visit(collection);
}
void VU_CInvertVisitor::Visit(VU_CLayoutGrid* grid) {
    Invert(grid);
    VU_CLayoutElementVisitor::Visit(grid);
}

CRect VU_CInvertVisitor::Mirror(const CRect& rect) const {
    return CRect(rect.left, m_nAxis - rect.top, rect.right, m_nAxis - rect.bottom);
}

void VU_CInvertVisitor::Invert(VU_CLayoutElementContainer* container) const {
    container->SetLayoutRect(Mirror(container->GetLayoutRect()));
}

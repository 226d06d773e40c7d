#include "layout/LayoutElementVisitor.h"

#include "layout/ConcreteElement.h"
#include "layout/LayoutCell.h"
#include "layout/LayoutCollection.h"
#include "layout/LayoutGrid.h"
#include "layout/LayoutQuadContainer.h"
#include "layout/OrderedLayoutContainer.h"

namespace {
void VisitList(DwIVisitor* visitor, const VU_CLayoutListContainer& list) {
    VU_CLayoutIterator it = list.CreateIterator();
    for (it.First(); !it.IsDone(); it.Next())
        it.CurrentItem()->Accept(visitor);
}
} // namespace

void VU_CLayoutElementVisitor::Visit(VU_CConcreteElement*) {}

void VU_CLayoutElementVisitor::Visit(VU_CLayoutCell* cell) {
    if (!OnEnterContainer(cell))
        return;
    if (VU_CLayoutElement* element = cell->GetElement())
        element->Accept(this);
}

void VU_CLayoutElementVisitor::Visit(VU_COrderedLayoutContainer* container) {
    if (OnEnterContainer(container))
        VisitList(this, *container);
}

void VU_CLayoutElementVisitor::Visit(VU_CLayoutQuadContainer* container) {
    if (!OnEnterContainer(container))
        return;
    for (int q = 0; q < 4; ++q)
        if (VU_CLayoutElement* element =
                container->GetElement(static_cast<VU_LayoutDefs::QUADRANT>(q)))
            element->Accept(this);
}

void VU_CLayoutElementVisitor::Visit(VU_CLayoutCollection* collection) {
    if (OnEnterContainer(collection))
        VisitList(this, *collection);
}

void VU_CLayoutElementVisitor::Visit(VU_CLayoutGrid* grid) {
    if (!OnEnterContainer(grid))
        return;
    const VU_CMatrix<VU_CLayoutElementContainer>& matrix = grid->GetMatrix();
    const CSize size = matrix.GetSize();
    for (int first = 0; first < size.cx; ++first)
        for (int second = 0; second < size.cy; ++second)
            if (VU_CLayoutElementContainer* entry = matrix.GetAt(first, second))
                entry->Accept(this);
}

bool VU_CLayoutElementVisitor::OnEnterContainer(VU_CLayoutElementContainer*) {
    return true;
}

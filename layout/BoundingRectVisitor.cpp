#include "layout/BoundingRectVisitor.h"

#include "layout/ConcreteElement.h"
#include "layout/LayoutElementContainer.h"

void VU_CBoundingRectVisitor::Visit(VU_CConcreteElement* leaf) {
    if (leaf->GetVisibility() != VU_LayoutDefs::HIDDEN)
        Add(leaf->GetObjectRect());
}

bool VU_CBoundingRectVisitor::OnEnterContainer(VU_CLayoutElementContainer* container) {
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

#include "layout/HitTestVisitor.h"

#include "layout/ConcreteElement.h"
#include "layout/LayoutElementContainer.h"

void VU_CHitTestVisitor::Visit(VU_CConcreteElement* leaf) {
    if (leaf->GetVisibility() != VU_LayoutDefs::HIDDEN && Contains(leaf->GetObjectRect()))
        m_pHit = leaf;
}

bool VU_CHitTestVisitor::Contains(CRect rect) const {
    rect.NormalizeRect();
    return rect.PtInRect(m_point);
}

bool VU_CHitTestVisitor::OnEnterContainer(VU_CLayoutElementContainer* container) {
    return container->GetVisibility() != VU_LayoutDefs::HIDDEN &&
           Contains(container->GetLayoutRect());
}

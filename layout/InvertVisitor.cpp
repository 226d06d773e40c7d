#include "layout/InvertVisitor.h"

#include "layout/ConcreteElement.h"
#include "layout/LayoutElementContainer.h"

void VU_CInvertVisitor::Visit(VU_CConcreteElement* leaf) {
    leaf->SetObjectRect(Mirror(leaf->GetObjectRect()));
}

CRect VU_CInvertVisitor::Mirror(const CRect& rect) const {
    return CRect(rect.left, m_nAxis - rect.top, rect.right, m_nAxis - rect.bottom);
}

bool VU_CInvertVisitor::OnEnterContainer(VU_CLayoutElementContainer* container) {
    container->SetLayoutRect(Mirror(container->GetLayoutRect()));
    return true;
}

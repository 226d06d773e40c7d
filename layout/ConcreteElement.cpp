#include "layout/ConcreteElement.h"

#include "layout/Visitor.h"

void VU_CConcreteElement::Accept(DwIVisitor* visitor) {
    DwDispatchVisit<VU_CConcreteElement>(visitor, this);
}

void VU_CConcreteElement::Reposition(CPoint point) {
    const CRect rect = GetObjectRect();
    SetObjectRect(CRect(point, rect.Size()));
}

void VU_CConcreteElement::MoveBy(CSize size) {
    CRect rect = GetObjectRect();
    rect.OffsetRect(size);
    SetObjectRect(rect);
}

void VU_CConcreteElement::SetVisibility(VU_LayoutDefs::VISIBILITY visibility) {
    if (GetVisibility() == (visibility != 0 ? VU_LayoutDefs::VISIBLE : VU_LayoutDefs::HIDDEN))
        return;
    VU_CLayoutElement::SetVisibility(visibility);
    OnLayoutVisibilityChanged(visibility);
}

void VU_CConcreteElement::RecalcLayout(CDC*) {}

void VU_CConcreteElement::OnLayoutVisibilityChanged(VU_LayoutDefs::VISIBILITY) {}

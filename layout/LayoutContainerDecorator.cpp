#include "layout/LayoutContainerDecorator.h"

#include "layout/Visitor.h"

void VU_CLayoutContainerDecorator::Accept(DwIVisitor* visitor) {
    DwDispatchVisit<VU_CLayoutContainerDecorator>(visitor, this);
}

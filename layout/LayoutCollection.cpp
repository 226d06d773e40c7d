#include "layout/LayoutCollection.h"

#include "layout/Visitor.h"

#include <algorithm>

void VU_CLayoutCollection::Accept(DwIVisitor* visitor) {
    DwDispatchVisit<VU_CLayoutCollection>(visitor, this);
}

CSize VU_CLayoutCollection::RecalcSize() {
    MeasureChildren();
    if (GetVisibility() == VU_LayoutDefs::HIDDEN)
        return CSize();
    CSize need;
    for (const Child& child : m_children) {
        need.cx = std::max(need.cx, child.size.cx);
        need.cy = std::max(need.cy, child.size.cy);
    }
    return need;
}

void VU_CLayoutCollection::RepositionChildren() {
    const CSize room = LayoutExtent();
    for (const Child& child : m_children) {
        const int cx =
            ChildExtent(child.element, VU_LayoutDefs::HORIZONTAL, child.size.cx, room.cx);
        const int cy = ChildExtent(child.element, VU_LayoutDefs::VERTICAL, child.size.cy, room.cy);
        child.Place(SlotRect(0, 0, cx, cy));
    }
}

#include "layout/OrderedLayoutContainer.h"

#include "layout/LayoutTracks.h"
#include "layout/Visitor.h"

#include <algorithm>

namespace {
bool TakesRoom(const CSize& size) {
    return size.cx != 0 || size.cy != 0;
}
} // namespace

VU_COrderedLayoutContainer::VU_COrderedLayoutContainer(VU_LayoutDefs::HV_DIRECTION direction,
                                                       int spacing,
                                                       VU_CLayoutContainerDecorator* decorator,
                                                       VU_LayoutDefs::PLACEMENT placement,
                                                       VU_LayoutDefs::DELETION_MODE mode)
    : VU_CLayoutListContainer(decorator, placement, mode),
      m_direction(direction == VU_LayoutDefs::VERTICAL ? VU_LayoutDefs::VERTICAL
                                                       : VU_LayoutDefs::HORIZONTAL) {
    SetSpacing(spacing);
}

void VU_COrderedLayoutContainer::Accept(DwIVisitor* visitor) {
    DwDispatchVisit<VU_COrderedLayoutContainer>(visitor, this);
}

CSize VU_COrderedLayoutContainer::RecalcSize() {
    MeasureChildren();
    if (GetVisibility() == VU_LayoutDefs::HIDDEN)
        return CSize();
    int along = 0, across = 0, placed = 0;
    for (const Child& child : m_children) {
        if (!TakesRoom(child.size))
            continue;
        along += Along(child.size) + (placed++ > 0 ? m_nSpacing : 0);
        across = std::max(across, Across(child.size));
    }
    return m_direction == VU_LayoutDefs::HORIZONTAL ? CSize(along, across) : CSize(across, along);
}

void VU_COrderedLayoutContainer::RepositionChildren() {
    const VU_LayoutDefs::HV_DIRECTION crossDirection = m_direction == VU_LayoutDefs::HORIZONTAL
                                                           ? VU_LayoutDefs::VERTICAL
                                                           : VU_LayoutDefs::HORIZONTAL;
    const CSize room = LayoutExtent();

    std::vector<int> lengths(m_children.size());
    std::vector<float> weights(m_children.size());
    int required = 0, placed = 0;
    for (size_t i = 0; i < m_children.size(); ++i) {
        const Child& child = m_children[i];
        if (!TakesRoom(child.size))
            continue;
        lengths[i] = Along(child.size);
        weights[i] = GrowWeight(child, m_direction);
        required += lengths[i] + (placed++ > 0 ? m_nSpacing : 0);
    }
    vu::layout::ShareSpare(lengths, weights, Along(room) - required);

    int offset = 0;
    placed = 0;
    for (size_t i = 0; i < m_children.size(); ++i) {
        const Child& child = m_children[i];
        if (TakesRoom(child.size) && placed++ > 0)
            offset += m_nSpacing;
        const int across =
            ChildExtent(child.element, crossDirection, Across(child.size), Across(room));
        if (m_direction == VU_LayoutDefs::HORIZONTAL)
            child.Place(SlotRect(offset, 0, lengths[i], across));
        else
            child.Place(SlotRect(0, offset, across, lengths[i]));
        offset += lengths[i];
    }
}

int VU_COrderedLayoutContainer::Along(const CSize& size) const {
    return m_direction == VU_LayoutDefs::HORIZONTAL ? size.cx : size.cy;
}
int VU_COrderedLayoutContainer::Across(const CSize& size) const {
    return m_direction == VU_LayoutDefs::HORIZONTAL ? size.cy : size.cx;
}

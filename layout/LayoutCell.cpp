#include "layout/LayoutCell.h"

#include "layout/Visitor.h"

#include <algorithm>

VU_CLayoutCell::VU_CLayoutCell(VU_CLayoutElement* element, UINT alignment,
                               VU_CLayoutContainerDecorator* decorator,
                               VU_LayoutDefs::DELETION_MODE mode)
    : VU_CLayoutCell(element, VU_CELLLAYOUT(alignment, CRect(), 0, 0, VU_LayoutDefs::INTERNAL),
                     decorator, mode) {}

VU_CLayoutCell::VU_CLayoutCell(VU_CLayoutElement* element, const VU_CELLLAYOUT& layout,
                               VU_CLayoutContainerDecorator* decorator,
                               VU_LayoutDefs::DELETION_MODE mode)
    : VU_CLayoutElementContainer(decorator, layout.m_placement, mode) {
    SetElement(element);
    TakeLayout(layout);
}

VU_CLayoutCell::~VU_CLayoutCell() {
    Discard(m_element.element);
}

void VU_CLayoutCell::Accept(DwIVisitor* visitor) {
    DwDispatchVisit<VU_CLayoutCell>(visitor, this);
}

CSize VU_CLayoutCell::RecalcSize() {
    const CSize element = m_element.Measure();
    if (GetVisibility() == VU_LayoutDefs::HIDDEN)
        return CSize();
    return CSize(element.cx + m_nMarginLeft + m_nMarginRight,
                 element.cy + m_nMarginTop + m_nMarginBottom);
}

void VU_CLayoutCell::MoveBy(CSize size) {
    VU_CLayoutElementContainer::MoveBy(size);
    if (m_element.element != nullptr)
        m_element.element->MoveBy(size);
}

void VU_CLayoutCell::OnDraw(CDC* pDC) {
    m_element.Draw(pDC);
}

void VU_CLayoutCell::RemoveAll() {
    SetElement(nullptr);
}

BOOL VU_CLayoutCell::Remove(VU_CLayoutElement* element) {
    if (element == nullptr || element != m_element.element)
        return FALSE;
    SetElement(nullptr);
    return TRUE;
}

void VU_CLayoutCell::RepositionChildren() {
    if (m_element.element == nullptr)
        return;
    CSize size = m_element.size;
    if (ResizeChild()) {
        const CSize room = LayoutExtent();
        size.cx = std::max<int>(size.cx, room.cx - m_nMarginLeft - m_nMarginRight);
        size.cy = std::max<int>(size.cy, room.cy - m_nMarginTop - m_nMarginBottom);
    }
    m_element.Place(CalculateAlignedRect(size));
}

void VU_CLayoutCell::SetChildVisibility(VU_LayoutDefs::VISIBILITY visibility) {
    if (m_element.element != nullptr)
        m_element.element->SetVisibility(visibility);
}

VU_CLayoutElement* VU_CLayoutCell::GetElement() const {
    return m_element.element;
}

void VU_CLayoutCell::SetElement(VU_CLayoutElement* element) {
    if (element == this)
        return;
    VU_CLayoutElement* previous = m_element.element;
    m_element = Child(element);
    if (previous != element)
        Discard(previous);
}

void VU_CLayoutCell::GetCellLayout(VU_CELLLAYOUT& layout) const {
    layout.m_nAlignment = m_nAlignment;
    layout.m_rectMargins = GetMargins();
    layout.m_fHorizontalWeight = m_fHorizontalWeight;
    layout.m_fVerticalWeight = m_fVerticalWeight;
    layout.m_placement = GetPlacement();
}

void VU_CLayoutCell::SetCellLayout(const VU_CELLLAYOUT& layout) {
    TakeLayout(layout);
    SetPlacement(layout.m_placement);
}

CRect VU_CLayoutCell::CalculateAlignedRect(CSize size) const {
    const CRect& r = m_rectLayout;
    const bool flipped = IsFlipped();

    int x = r.left;
    switch (m_nAlignment & VU_LayoutDefs::ALIGN_HMASK) {
    case VU_LayoutDefs::ALIGN_HCENTER:
        x = (r.left + r.right) / 2 - size.cx / 2;
        break;
    case VU_LayoutDefs::ALIGN_RIGHT:
        x = r.right - size.cx;
        break;
    }
    // The right margin wins when the box does not fit.
    if (x < r.left + m_nMarginLeft)
        x = r.left + m_nMarginLeft;
    if (x + size.cx > r.right - m_nMarginRight)
        x = r.right - m_nMarginRight - size.cx;

    // In a flipped rectangle y grows upwards: the box runs from y down to
    // y - cy, and the margins count downwards from the top.
    const int sign = flipped ? -1 : 1;
    int y = r.top;
    switch (m_nAlignment & VU_LayoutDefs::ALIGN_VMASK) {
    case VU_LayoutDefs::ALIGN_VCENTER:
        y = (r.top + r.bottom) / 2 - sign * (size.cy / 2);
        break;
    case VU_LayoutDefs::ALIGN_BOTTOM:
        y = r.bottom - sign * size.cy;
        break;
    }
    const int topLimit = r.top + sign * m_nMarginTop;
    const int bottomLimit = r.bottom - sign * m_nMarginBottom;
    if (sign * (y - topLimit) < 0)
        y = topLimit;
    if (sign * (y + sign * size.cy - bottomLimit) > 0)
        y = bottomLimit - sign * size.cy;

    return CRect(x, y, x + size.cx, y + sign * size.cy);
}

CRect VU_CLayoutCell::GetMargins() const {
    return CRect(m_nMarginLeft, m_nMarginTop, m_nMarginRight, m_nMarginBottom);
}

float VU_CLayoutCell::GetWeight(VU_LayoutDefs::HV_DIRECTION direction) const {
    return direction == VU_LayoutDefs::VERTICAL ? m_fVerticalWeight : m_fHorizontalWeight;
}

void VU_CLayoutCell::TakeLayout(const VU_CELLLAYOUT& layout) {
    m_nAlignment = layout.m_nAlignment;
    // One byte per margin: larger values keep their low byte.
    m_nMarginLeft = static_cast<BYTE>(layout.m_rectMargins.left);
    m_nMarginTop = static_cast<BYTE>(layout.m_rectMargins.top);
    m_nMarginRight = static_cast<BYTE>(layout.m_rectMargins.right);
    m_nMarginBottom = static_cast<BYTE>(layout.m_rectMargins.bottom);
    m_fHorizontalWeight = layout.m_fHorizontalWeight;
    m_fVerticalWeight = layout.m_fVerticalWeight;
}

#include "layout/LayoutQuadContainer.h"

#include "layout/Visitor.h"

VU_CLayoutQuadContainer::VU_CLayoutQuadContainer(VU_CLayoutContainerDecorator* decorator,
                                                 VU_LayoutDefs::PLACEMENT placement,
                                                 VU_LayoutDefs::DELETION_MODE mode)
    : VU_CLayoutElementContainer(decorator, placement, mode) {}

VU_CLayoutQuadContainer::~VU_CLayoutQuadContainer() {
    RemoveAll();
}

void VU_CLayoutQuadContainer::Accept(DwIVisitor* visitor) {
    DwDispatchVisit<VU_CLayoutQuadContainer>(visitor, this);
}

CSize VU_CLayoutQuadContainer::RecalcSize() {
    m_measured.Measure(2, 2, ResizeChild(), [&](int r, int c, CSize& size) {
        Child& child = m_quadrants[r * 2 + c];
        size = child.Measure();
        return child.element;
    });
    if (GetVisibility() == VU_LayoutDefs::HIDDEN)
        return CSize();
    return m_measured.Required();
}

void VU_CLayoutQuadContainer::RepositionChildren() {
    if (m_measured.widths.size() != 2)
        return; // never measured
    m_tracks = m_measured;
    m_tracks.Arrange(LayoutExtent());
    for (int q = 0; q < 4; ++q) {
        const Child& child = m_quadrants[q];
        if (child.element == nullptr)
            continue;
        const int r = q / 2, c = q % 2;
        const int cx = child.element->AllowHGridAlign()
                           ? ChildExtent(child.element, VU_LayoutDefs::HORIZONTAL, child.size.cx,
                                         m_tracks.widths[c])
                           : child.size.cx;
        const int cy = child.element->AllowVGridAlign()
                           ? ChildExtent(child.element, VU_LayoutDefs::VERTICAL, child.size.cy,
                                         m_tracks.heights[r])
                           : child.size.cy;
        child.Place(SlotRect(m_tracks.lefts[c], m_tracks.tops[r], cx, cy));
    }
}

void VU_CLayoutQuadContainer::MoveBy(CSize size) {
    VU_CLayoutElementContainer::MoveBy(size);
    for (const Child& child : m_quadrants)
        if (child.element != nullptr)
            child.element->MoveBy(size);
}

void VU_CLayoutQuadContainer::OnDraw(CDC* pDC) {
    for (const Child& child : m_quadrants)
        child.Draw(pDC);
}

void VU_CLayoutQuadContainer::RemoveAll() {
    for (int q = 0; q < 4; ++q)
        SetElement(static_cast<VU_LayoutDefs::QUADRANT>(q), nullptr);
}

BOOL VU_CLayoutQuadContainer::Remove(VU_CLayoutElement* element) {
    for (int q = 0; q < 4; ++q)
        if (element != nullptr && m_quadrants[q].element == element)
            return SetElement(static_cast<VU_LayoutDefs::QUADRANT>(q), nullptr);
    return FALSE;
}

void VU_CLayoutQuadContainer::SetChildVisibility(VU_LayoutDefs::VISIBILITY visibility) {
    for (const Child& child : m_quadrants)
        if (child.element != nullptr)
            child.element->SetVisibility(visibility);
}

VU_CLayoutElement* VU_CLayoutQuadContainer::GetElement(VU_LayoutDefs::QUADRANT quadrant) const {
    return IsQuadrant(quadrant) ? m_quadrants[quadrant].element : nullptr;
}

BOOL VU_CLayoutQuadContainer::SetElement(VU_LayoutDefs::QUADRANT quadrant,
                                         VU_CLayoutElement* element) {
    if (!IsQuadrant(quadrant) || element == this)
        return FALSE;
    VU_CLayoutElement* previous = m_quadrants[quadrant].element;
    m_quadrants[quadrant] = Child(element);
    if (previous != element)
        Discard(previous);
    return TRUE;
}

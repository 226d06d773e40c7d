#include "layout/LayoutGrid.h"

#include "layout/Visitor.h"

VU_CLayoutGrid::VU_CLayoutGrid(VU_CLayoutContainerDecorator* decorator,
                               VU_LayoutDefs::PLACEMENT placement,
                               VU_LayoutDefs::DELETION_MODE mode)
    : VU_CLayoutElementContainer(decorator, placement, mode) {}

VU_CLayoutGrid::~VU_CLayoutGrid() {
    RemoveAll();
}

void VU_CLayoutGrid::Accept(DwIVisitor* visitor) {
    DwDispatchVisit<VU_CLayoutGrid>(visitor, this);
}

template <class Fn> void VU_CLayoutGrid::ForEachEntry(Fn fn) const {
    const CSize size = m_matrix.GetSize();
    for (int r = 0; r < size.cx; ++r)
        for (int c = 0; c < size.cy; ++c)
            if (VU_CLayoutElementContainer* entry = m_matrix.GetAt(r, c))
                fn(entry, r, c);
}

CSize VU_CLayoutGrid::RecalcSize() {
    const CSize size = m_matrix.GetSize();
    m_sizes.assign(size_t(size.cx) * size_t(size.cy), CSize());
    m_measured.Measure(size.cx, size.cy, ResizeChild(), [&](int r, int c, CSize& entrySize) {
        VU_CLayoutElementContainer* entry = m_matrix.GetAt(r, c);
        if (entry != nullptr)
            m_sizes[size_t(r) * size.cy + c] = entrySize = MeasureElement(entry);
        return entry;
    });
    if (GetVisibility() == VU_LayoutDefs::HIDDEN)
        return CSize();
    return m_measured.Required();
}

void VU_CLayoutGrid::RepositionChildren() {
    const CSize size = m_matrix.GetSize();
    if (m_sizes.size() != size_t(size.cx) * size_t(size.cy) ||
        m_measured.widths.size() != size_t(size.cy))
        return; // changed since it was measured: RecalcSize first
    m_tracks = m_measured;
    m_tracks.Arrange(LayoutExtent());
    ForEachEntry([&](VU_CLayoutElementContainer* entry, int r, int c) {
        const CSize own = m_sizes[size_t(r) * size.cy + c];
        const int cx = entry->AllowHGridAlign() ? ChildExtent(entry, VU_LayoutDefs::HORIZONTAL,
                                                              own.cx, m_tracks.widths[c])
                                                : own.cx;
        const int cy = entry->AllowVGridAlign() ? ChildExtent(entry, VU_LayoutDefs::VERTICAL,
                                                              own.cy, m_tracks.heights[r])
                                                : own.cy;
        entry->SetLayoutRect(SlotRect(m_tracks.lefts[c], m_tracks.tops[r], cx, cy));
        entry->RepositionChildren();
    });
}

void VU_CLayoutGrid::MoveBy(CSize size) {
    VU_CLayoutElementContainer::MoveBy(size);
    ForEachEntry([&](VU_CLayoutElementContainer* entry, int, int) { entry->MoveBy(size); });
}

void VU_CLayoutGrid::OnDraw(CDC* pDC) {
    ForEachEntry([&](VU_CLayoutElementContainer* entry, int, int) { entry->Draw(pDC); });
}

void VU_CLayoutGrid::RemoveAll() {
    m_matrix.RemoveAll(GetChildDeletionMode() == VU_LayoutDefs::DELETE_CHILDREN);
}

BOOL VU_CLayoutGrid::Remove(VU_CLayoutElement* element) {
    auto* entry = dynamic_cast<VU_CLayoutElementContainer*>(element);
    if (entry == nullptr || !m_matrix.Remove(entry))
        return FALSE;
    Discard(entry);
    return TRUE;
}

void VU_CLayoutGrid::SetChildVisibility(VU_LayoutDefs::VISIBILITY visibility) {
    ForEachEntry(
        [&](VU_CLayoutElementContainer* entry, int, int) { entry->SetVisibility(visibility); });
}

BOOL VU_CLayoutGrid::SetAt(VU_CLayoutElementContainer* entry, int row, int col) {
    if (entry == nullptr || entry == this)
        return FALSE;
    VU_CLayoutElementContainer* previous = m_matrix.GetAt(row, col);
    if (!m_matrix.SetAt(entry, row, col))
        return FALSE;
    if (previous != nullptr && previous != entry)
        Discard(previous);
    return TRUE;
}

VU_CLayoutElementContainer* VU_CLayoutGrid::GetAt(int row, int col) const {
    return m_matrix.GetAt(row, col);
}

BOOL VU_CLayoutGrid::RemoveAt(int row, int col) {
    return m_matrix.RemoveAt(row, col, GetChildDeletionMode() == VU_LayoutDefs::DELETE_CHILDREN);
}

CSize VU_CLayoutGrid::GetGridSize() const {
    return m_matrix.GetSize();
}

void VU_CLayoutGrid::SetSpacing(int horizontal, int vertical) {
    m_measured.spacingX = horizontal > 0 ? horizontal : 0;
    m_measured.spacingY = vertical > 0 ? vertical : 0;
}

#include "layout/LayoutListContainer.h"

#include "layout/LayoutCell.h"
#include "layout/LayoutTracks.h"

#include <algorithm>

VU_CLayoutListContainer::~VU_CLayoutListContainer() {
    for (const Child& child : m_children)
        Discard(child.element);
}

void VU_CLayoutListContainer::MoveBy(CSize size) {
    VU_CLayoutElementContainer::MoveBy(size);
    for (const Child& child : m_children)
        child.element->MoveBy(size);
}

void VU_CLayoutListContainer::OnDraw(CDC* pDC) {
    for (const Child& child : m_children)
        child.Draw(pDC);
}

void VU_CLayoutListContainer::RemoveAll() {
    std::vector<Child> children;
    children.swap(m_children);
    for (const Child& child : children)
        Discard(child.element);
}

BOOL VU_CLayoutListContainer::Remove(VU_CLayoutElement* element) {
    const auto it = std::find_if(m_children.begin(), m_children.end(),
                                 [&](const Child& child) { return child.element == element; });
    if (element == nullptr || it == m_children.end())
        return FALSE;
    m_children.erase(it);
    Discard(element);
    return TRUE;
}

void VU_CLayoutListContainer::SetChildVisibility(VU_LayoutDefs::VISIBILITY visibility) {
    for (const Child& child : m_children)
        child.element->SetVisibility(visibility);
}

BOOL VU_CLayoutListContainer::Add(VU_CLayoutElement* element) {
    return InsertAt(GetCount(), element);
}

BOOL VU_CLayoutListContainer::InsertAt(int index, VU_CLayoutElement* element) {
    if (element == nullptr || element == this || index < 0 || index > GetCount())
        return FALSE;
    m_children.insert(m_children.begin() + index, Child(element));
    return TRUE;
}

VU_CLayoutIterator VU_CLayoutListContainer::CreateIterator() const {
    return VU_CLayoutIterator(m_children);
}

VU_CLayoutElement* VU_CLayoutListContainer::GetAt(int index) const {
    return index >= 0 && index < GetCount() ? m_children[index].element : nullptr;
}

void VU_CLayoutListContainer::MeasureChildren() {
    for (Child& child : m_children)
        child.Measure();
}

float VU_CLayoutListContainer::GrowWeight(const Child& child,
                                          VU_LayoutDefs::HV_DIRECTION direction) const {
    if (!ResizeChild() && !child.element->IsFlexible(direction))
        return 0.0f;
    const auto* cell = dynamic_cast<const VU_CLayoutCell*>(child.element);
    return vu::layout::EffectiveWeight(cell != nullptr ? cell->GetWeight(direction) : 0.0f);
}

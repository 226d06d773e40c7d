#include "layout/RegionVisitor.h"

#include "layout/ConcreteElement.h"
#include "layout/LayoutElementContainer.h"

void VU_CRegionVisitor::Visit(VU_CConcreteElement* leaf) {
    if (leaf->GetVisibility() != VU_LayoutDefs::HIDDEN && leaf->IsRegionContributor())
        Add(leaf->GetObjectRect());
}

bool VU_CRegionVisitor::OnEnterContainer(VU_CLayoutElementContainer* container) {
    if (container->GetVisibility() == VU_LayoutDefs::HIDDEN)
        return false;
    if (container->IsRegionContributor())
        Add(container->GetLayoutRect());
    return true;
}

void VU_CRegionVisitor::Add(CRect rect) {
    rect.NormalizeRect();
    if (rect.IsRectEmpty())
        return;
    m_rects.push_back(rect);
    m_rectBounds.UnionRect(m_rectBounds, rect);
}

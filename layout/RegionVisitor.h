#pragma once
// VU_CRegionVisitor: the region a tree contributes, as the rectangles of
// its visible elements whose region-contributor flag is set (a leaf's
// object rectangle, a container's layout rectangle), normalised, in walking
// order. A host turns them into a window region or an update region (the
// union of the rectangles); the bounds are their union. Hidden containers
// are not entered; a contributing container's children are still walked,
// so they may add rectangles of their own.
#include "framework/Rect.h"
#include "layout/LayoutElementVisitor.h"

#include <vector>

class VU_CLayoutElementContainer;

class VU_CRegionVisitor : public VU_CLayoutElementVisitor {
public:
    void Visit(VU_CConcreteElement* leaf) override;

    // Empty rectangles are left out.
    const std::vector<CRect>& GetRects() const { return m_rects; }
    // Empty (all zeros) when nothing contributes.
    CRect GetBounds() const { return m_rectBounds; }

protected:
    // Adds the container's rectangle if it contributes; false when hidden.
    bool OnEnterContainer(VU_CLayoutElementContainer* container) override;

private:
    void Add(CRect rect);

    std::vector<CRect> m_rects;
    CRect m_rectBounds;
};

#pragma once
// VU_CBoundingRectVisitor: the rectangle that a tree draws on, the union of
// the object rectangles of its visible leaves and of the layout rectangles
// of its visible decorated containers (a decorator draws on its container's
// rectangle). Flipped rectangles are counted normalised, and so is the
// result. Hidden containers are not entered.
#include "framework/Rect.h"
#include "layout/LayoutElementVisitor.h"

class VU_CLayoutElementContainer;

class VU_CBoundingRectVisitor : public VU_CLayoutElementVisitor {
public:
    void Visit(VU_CConcreteElement* leaf) override;
    void Visit(VU_CLayoutCell* cell) override;
    void Visit(VU_COrderedLayoutContainer* container) override;
    void Visit(VU_CLayoutQuadContainer* container) override;
    void Visit(VU_CLayoutCollection* collection) override;
    void Visit(VU_CLayoutGrid* grid) override;

    // Empty (all zeros) when nothing visible was found.
    CRect GetBoundingRect() const { return m_rectBounds; }

private:
    // Adds the container's rectangle if decorated; false when it is hidden.
    bool Enter(VU_CLayoutElementContainer* container);
    void Add(CRect rect);

    CRect m_rectBounds;
};

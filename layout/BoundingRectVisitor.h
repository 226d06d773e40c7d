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

    // Empty (all zeros) when nothing visible was found.
    CRect GetBoundingRect() const { return m_rectBounds; }

protected:
    // Adds the container's rectangle if decorated; false when it is hidden.
    bool OnEnterContainer(VU_CLayoutElementContainer* container) override;

private:
    void Add(CRect rect);

    CRect m_rectBounds;
};

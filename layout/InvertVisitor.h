#pragma once
// VU_CInvertVisitor: mirrors a laid-out tree vertically, for drawing in a
// coordinate system whose y grows upwards. Every y becomes `axis` - y (so
// axis 0 maps the tree to negative y, as a mapping mode with y up and the
// origin at the top-left corner expects; the height of the drawing maps it
// into 0..height with the origin at the bottom). Containers get their
// mirrored layout rectangle and leaves their mirrored object rectangle,
// which are flipped (bottom < top); containers arrange flipped rectangles
// mirrored, so laying out again after inverting gives the same places.
// Inverting twice with the same axis restores the tree.
#include "framework/Rect.h"
#include "layout/LayoutElementVisitor.h"

class VU_CLayoutElementContainer;

class VU_CInvertVisitor : public VU_CLayoutElementVisitor {
public:
    explicit VU_CInvertVisitor(int axis = 0) : m_nAxis(axis) {}

    void Visit(VU_CConcreteElement* leaf) override;

protected:
    // Mirrors the container's layout rectangle.
    bool OnEnterContainer(VU_CLayoutElementContainer* container) override;

private:
    CRect Mirror(const CRect& rect) const;

    int m_nAxis;
};

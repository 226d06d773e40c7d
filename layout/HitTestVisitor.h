#pragma once
// VU_CHitTestVisitor: the leaf under a point. Of the visible leaves whose
// (normalised) object rectangle holds the point, it keeps the last one in
// walking order, which is the one drawn on top. Hidden containers, and
// containers whose layout rectangle does not hold the point, are not
// entered: a leaf that sticks out of its container is found only inside it.
#include "framework/Rect.h"
#include "layout/LayoutElementVisitor.h"

class VU_CLayoutElementContainer;

class VU_CHitTestVisitor : public VU_CLayoutElementVisitor {
public:
    explicit VU_CHitTestVisitor(CPoint point) : m_point(point) {}

    void Visit(VU_CConcreteElement* leaf) override;

    // Null when no leaf lies under the point.
    VU_CConcreteElement* GetHit() const { return m_pHit; }

protected:
    // Enters visible containers whose rectangle holds the point.
    bool OnEnterContainer(VU_CLayoutElementContainer* container) override;

private:
    bool Contains(CRect rect) const;

    CPoint m_point;
    VU_CConcreteElement* m_pHit = nullptr;
};

#pragma once
// VU_CConcreteElement: the base of the leaves (icons, bitmaps, a host's own
// drawings). A leaf lies at its object rectangle; its container sets that
// rectangle, and how much of it the leaf takes is the leaf's own rule (an
// icon keeps its size and takes only the corner).
//
// Unlike a container, a leaf reacts to SetVisibility only when the value
// changes: it then calls OnLayoutVisibilityChanged.
#include "layout/LayoutElement.h"

class VU_CConcreteElement : public VU_CLayoutElement {
public:
    VU_CConcreteElement() : VU_CLayoutElement(VU_LayoutDefs::INTERNAL) {}
    VU_CConcreteElement(const VU_CConcreteElement&) = default;
    VU_CConcreteElement& operator=(const VU_CConcreteElement&) = default;

    // Operations of every element
    void Accept(DwIVisitor* visitor) override;
    // Moves the object rectangle's top-left corner to point, same size.
    void Reposition(CPoint point) override;
    // Offsets the object rectangle.
    void MoveBy(CSize size) override;
    void SetVisibility(VU_LayoutDefs::VISIBILITY visibility) override;

    // Operations of leaves
    virtual CRect GetObjectRect() const = 0;
    virtual void SetObjectRect(CRect rect) = 0;
    // A leaf that measures with the device context (text) does it here; the
    // containers' RecalcLayout calls it before measuring.
    virtual void RecalcLayout(CDC* pDC);

protected:
    // Overrideables
    virtual void OnLayoutVisibilityChanged(VU_LayoutDefs::VISIBILITY visibility);
};

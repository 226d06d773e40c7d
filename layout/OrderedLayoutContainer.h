#pragma once
// VU_COrderedLayoutContainer: a row (horizontal) or a column (vertical) of
// elements, in the order they were added, `spacing` pixels apart.
//
// Measuring: along the direction, the sum of the children's sizes plus the
// spacing between them; across it, the largest child. A child whose size is
// (0, 0) (hidden bitmaps and containers) takes no room and no spacing.
// Hidden, the container needs (0, 0).
// Arranging: the room beyond the required length is shared among the
// children flexible along the direction, in proportion to their weights (a
// cell's weight for that direction, 1 for any other element); when none is
// flexible the children stay packed at the start and the room is left at
// the end. Across the direction a flexible child takes the whole height
// (width) of the row (column), another keeps its own at the top (left).
#include "layout/LayoutListContainer.h"

class VU_COrderedLayoutContainer : public VU_CLayoutListContainer {
public:
    explicit VU_COrderedLayoutContainer(
        VU_LayoutDefs::HV_DIRECTION direction = VU_LayoutDefs::HORIZONTAL, int spacing = 0,
        VU_CLayoutContainerDecorator* decorator = nullptr,
        VU_LayoutDefs::PLACEMENT placement = VU_LayoutDefs::INTERNAL,
        VU_LayoutDefs::DELETION_MODE mode = VU_LayoutDefs::DELETE_CHILDREN);

    // Operations of every element
    void Accept(DwIVisitor* visitor) override;
    CSize RecalcSize() override;

    // Operations of containers
    void RepositionChildren() override;

    // Attributes
    VU_LayoutDefs::HV_DIRECTION GetDirection() const { return m_direction; }
    int GetSpacing() const { return m_nSpacing; }
    // Negative spacing counts as 0.
    void SetSpacing(int spacing) { m_nSpacing = spacing > 0 ? spacing : 0; }

private:
    int Along(const CSize& size) const;
    int Across(const CSize& size) const;

    VU_LayoutDefs::HV_DIRECTION m_direction;
    int m_nSpacing = 0;
};

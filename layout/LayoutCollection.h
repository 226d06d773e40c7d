#pragma once
// VU_CLayoutCollection: layers. Every child lies over the same rectangle,
// drawn in the order added (the last on top), for instance a background
// bitmap under a cell that centres an icon.
//
// Measuring: as large as the largest child in each direction; hidden,
// (0, 0).
// Arranging: a child flexible in a direction takes the collection's whole
// extent in it, another keeps its own size at the top-left corner.
#include "layout/LayoutListContainer.h"

class VU_CLayoutCollection : public VU_CLayoutListContainer {
public:
    explicit VU_CLayoutCollection(
        VU_CLayoutContainerDecorator* decorator = nullptr,
        VU_LayoutDefs::PLACEMENT placement = VU_LayoutDefs::INTERNAL,
        VU_LayoutDefs::DELETION_MODE mode = VU_LayoutDefs::DELETE_CHILDREN)
        : VU_CLayoutListContainer(decorator, placement, mode) {}

    // Operations of every element
    void Accept(DwIVisitor* visitor) override;
    CSize RecalcSize() override;

    // Operations of containers
    void RepositionChildren() override;
};

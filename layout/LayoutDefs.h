#pragma once
// The enumerations of the layout engine. Every one is passed as a 32-bit
// value; the boolean ones read 0 as off and any other value as on.
#include "framework/Types.h"

class VU_LayoutDefs {
public:
    enum HV_DIRECTION { HORIZONTAL = 0, VERTICAL = 1 };
    enum VISIBILITY { HIDDEN = 0, VISIBLE = 1 };
    enum PLACEMENT { INTERNAL = 0, EXTERNAL = 1 };
    enum REGION_MODIFIER { NO_REGION_MODIFIER = 0, REGION_MODIFIER_ON = 1 };
    enum CHILD_RESIZE { KEEP_CHILD_SIZE = 0, RESIZE_CHILD = 1 };
    enum ALIGN_ON_HGRID { NO_HGRID_ALIGN = 0, HGRID_ALIGN = 1 };
    enum ALIGN_ON_VGRID { NO_VGRID_ALIGN = 0, VGRID_ALIGN = 1 };
    // Whether a container deletes the children it holds when they are
    // removed (Remove, RemoveAll, replacing a cell's or quadrant's element)
    // and when the container itself is destroyed.
    enum DELETION_MODE { KEEP_CHILDREN = 0, DELETE_CHILDREN = 1 };
    // The four places of a quadrant container.
    enum QUADRANT { TOP_LEFT = 0, TOP_RIGHT = 1, BOTTOM_LEFT = 2, BOTTOM_RIGHT = 3 };
    // A cell's alignment word: bits 0-1 horizontal, bits 2-3 vertical.
    enum ALIGNMENT : UINT {
        ALIGN_LEFT = 0,
        ALIGN_HCENTER = 1,
        ALIGN_RIGHT = 2,
        ALIGN_HMASK = 3,
        ALIGN_TOP = 0,
        ALIGN_VCENTER = 4,
        ALIGN_BOTTOM = 8,
        ALIGN_VMASK = 12,
    };
};

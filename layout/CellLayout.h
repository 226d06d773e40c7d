#pragma once
// VU_CELLLAYOUT: how a cell holds its element, as a plain record that a
// cell is built from and hands back (VU_CLayoutCell::GetCellLayout).
//
// The cell keeps each margin in one byte (0 to 255 pixels; larger values
// are cut to their low byte) and uses the two floats as its stretch weights:
// when a row or column shares spare space among its flexible children, a
// cell's share is in proportion to its weight in that direction (a weight
// that is not positive counts as 1).
#include "framework/Rect.h"
#include "layout/LayoutDefs.h"

class VU_CELLLAYOUT {
public:
    VU_CELLLAYOUT() = default;
    VU_CELLLAYOUT(UINT alignment, const CRect& margins, float horizontalWeight,
                  float verticalWeight, VU_LayoutDefs::PLACEMENT placement);
    VU_CELLLAYOUT(const VU_CELLLAYOUT& other) = default;
    // A null pointer gives the default record.
    explicit VU_CELLLAYOUT(const VU_CELLLAYOUT* other);
    VU_CELLLAYOUT& operator=(const VU_CELLLAYOUT& other) = default;
    VU_CELLLAYOUT& operator=(const VU_CELLLAYOUT* other);
    virtual ~VU_CELLLAYOUT() = default;

    UINT m_nAlignment = 0;         // VU_LayoutDefs::ALIGN_* bits
    CRect m_rectMargins;           // left, top, right, bottom
    float m_fHorizontalWeight = 0; // share of spare width
    float m_fVerticalWeight = 0;   // share of spare height
    VU_LayoutDefs::PLACEMENT m_placement = VU_LayoutDefs::INTERNAL;
};

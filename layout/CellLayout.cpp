#include "layout/CellLayout.h"

VU_CELLLAYOUT::VU_CELLLAYOUT(UINT alignment, const CRect& margins, float horizontalWeight,
                             float verticalWeight, VU_LayoutDefs::PLACEMENT placement)
    : m_nAlignment(alignment), m_rectMargins(margins), m_fHorizontalWeight(horizontalWeight),
      m_fVerticalWeight(verticalWeight), m_placement(placement) {}

VU_CELLLAYOUT::VU_CELLLAYOUT(const VU_CELLLAYOUT* other) {
    if (other != nullptr)
        *this = *other;
}

VU_CELLLAYOUT& VU_CELLLAYOUT::operator=(const VU_CELLLAYOUT* other) {
    if (other != nullptr)
        *this = *other;
    return *this;
}

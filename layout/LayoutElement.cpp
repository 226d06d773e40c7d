#include "layout/LayoutElement.h"

#include "layout/Visitor.h"

namespace {
constexpr BYTE kDefaultFlags = VU_CLayoutElement::FLAG_HFLEXIBLE |
                               VU_CLayoutElement::FLAG_VFLEXIBLE | VU_CLayoutElement::FLAG_VISIBLE |
                               VU_CLayoutElement::FLAG_HGRID | VU_CLayoutElement::FLAG_VGRID;
} // namespace

VU_CLayoutElement::VU_CLayoutElement(VU_LayoutDefs::PLACEMENT placement) : m_flags(kDefaultFlags) {
    SetPlacement(placement);
}

void VU_CLayoutElement::Accept(DwIVisitor* visitor) {
    DwDispatchVisit<VU_CLayoutElement>(visitor, this);
}

void VU_CLayoutElement::Draw(CDC*) {}

void VU_CLayoutElement::SetFlexible(int horizontal, int vertical) {
    SetFlag(FLAG_HFLEXIBLE, horizontal != 0);
    SetFlag(FLAG_VFLEXIBLE, vertical != 0);
}

BOOL VU_CLayoutElement::IsFlexible(VU_LayoutDefs::HV_DIRECTION direction) const {
    switch (direction) {
    case VU_LayoutDefs::HORIZONTAL:
        return HasFlag(FLAG_HFLEXIBLE);
    case VU_LayoutDefs::VERTICAL:
        return HasFlag(FLAG_VFLEXIBLE);
    }
    return FALSE;
}

void VU_CLayoutElement::SetResizeChild(VU_LayoutDefs::CHILD_RESIZE resize) {
    SetFlag(FLAG_RESIZE_CHILD, resize != 0);
}
BOOL VU_CLayoutElement::ResizeChild() const {
    return HasFlag(FLAG_RESIZE_CHILD);
}
BOOL VU_CLayoutElement::AllowHGridAlign() const {
    return HasFlag(FLAG_HGRID);
}
BOOL VU_CLayoutElement::AllowVGridAlign() const {
    return HasFlag(FLAG_VGRID);
}
BOOL VU_CLayoutElement::IsExternal() const {
    return HasFlag(FLAG_EXTERNAL);
}

void VU_CLayoutElement::SetVisibility(VU_LayoutDefs::VISIBILITY visibility) {
    SetFlag(FLAG_VISIBLE, visibility != 0);
}
VU_LayoutDefs::VISIBILITY VU_CLayoutElement::GetVisibility() const {
    return HasFlag(FLAG_VISIBLE) ? VU_LayoutDefs::VISIBLE : VU_LayoutDefs::HIDDEN;
}

VU_LayoutDefs::PLACEMENT VU_CLayoutElement::GetPlacement() const {
    return HasFlag(FLAG_EXTERNAL) ? VU_LayoutDefs::EXTERNAL : VU_LayoutDefs::INTERNAL;
}
void VU_CLayoutElement::SetPlacement(VU_LayoutDefs::PLACEMENT placement) {
    SetFlag(FLAG_EXTERNAL, placement != 0);
}

void VU_CLayoutElement::SetRegionModifier(VU_LayoutDefs::REGION_MODIFIER modifier) {
    SetFlag(FLAG_REGION, modifier != 0);
}
VU_LayoutDefs::REGION_MODIFIER VU_CLayoutElement::GetRegionModifier() const {
    return HasFlag(FLAG_REGION) ? VU_LayoutDefs::REGION_MODIFIER_ON
                                : VU_LayoutDefs::NO_REGION_MODIFIER;
}
BOOL VU_CLayoutElement::IsRegionContributor() const {
    return HasFlag(FLAG_REGION);
}

void VU_CLayoutElement::SetAllowHGridAlign(VU_LayoutDefs::ALIGN_ON_HGRID allow) {
    SetFlag(FLAG_HGRID, allow != 0);
}
void VU_CLayoutElement::SetAllowVGridAlign(VU_LayoutDefs::ALIGN_ON_VGRID allow) {
    SetFlag(FLAG_VGRID, allow != 0);
}

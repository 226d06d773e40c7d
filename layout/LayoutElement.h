#pragma once
// VU_CLayoutElement: the common interface of everything the layout engine
// arranges, leaves and containers alike.
//
// An element keeps its properties in one flag byte:
//   bit 0  flexible horizontally          (default 1)
//   bit 1  flexible vertically            (default 1)
//   bit 2  placement external             (from the constructor)
//   bit 3  visible                        (default 1)
//   bit 4  region modifier / contributor  (default 0)
//   bit 5  resize child                   (default 0)
//   bit 6  may align on the horizontal grid (default 1)
//   bit 7  may align on the vertical grid   (default 1)
// so a new element holds 203 (internal) or 207 (external).
//
// Sizes and positions: RecalcSize reports the size the element needs; its
// container then gives it a place (a container's layout rectangle, a leaf's
// object rectangle). See LayoutElementContainer.h for how containers use the
// flags.
#include "framework/Point.h"
#include "framework/Rect.h"
#include "framework/Size.h"
#include "layout/Accept.h"
#include "layout/DictionaryEntry.h"
#include "layout/LayoutDefs.h"

class CDC;

class VU_CLayoutElement : public DwIAccept, public VU_CDictionaryEntry {
public:
    enum : BYTE {
        FLAG_HFLEXIBLE = 0x01,
        FLAG_VFLEXIBLE = 0x02,
        FLAG_EXTERNAL = 0x04,
        FLAG_VISIBLE = 0x08,
        FLAG_REGION = 0x10,
        FLAG_RESIZE_CHILD = 0x20,
        FLAG_HGRID = 0x40,
        FLAG_VGRID = 0x80,
    };

    explicit VU_CLayoutElement(VU_LayoutDefs::PLACEMENT placement = VU_LayoutDefs::INTERNAL);
    VU_CLayoutElement(const VU_CLayoutElement&) = default;
    VU_CLayoutElement& operator=(const VU_CLayoutElement&) = default;
    ~VU_CLayoutElement() override = default;

    // Operations (in this order in every element's table)
    void Accept(DwIVisitor* visitor) override;
    virtual CSize RecalcSize() = 0;
    virtual void Reposition(CPoint point) = 0;
    virtual void MoveBy(CSize size) = 0;
    virtual void Draw(CDC* pDC);
    virtual void SetFlexible(int horizontal, int vertical);
    virtual BOOL IsFlexible(VU_LayoutDefs::HV_DIRECTION direction) const;
    virtual void SetResizeChild(VU_LayoutDefs::CHILD_RESIZE resize);
    virtual BOOL ResizeChild() const;
    virtual BOOL AllowHGridAlign() const;
    virtual BOOL AllowVGridAlign() const;
    virtual BOOL IsExternal() const;
    virtual void SetVisibility(VU_LayoutDefs::VISIBILITY visibility);
    virtual VU_LayoutDefs::VISIBILITY GetVisibility() const;
    virtual VU_LayoutDefs::PLACEMENT GetPlacement() const;
    virtual void SetRegionModifier(VU_LayoutDefs::REGION_MODIFIER modifier);
    virtual VU_LayoutDefs::REGION_MODIFIER GetRegionModifier() const;
    virtual BOOL IsRegionContributor() const;
    virtual void OnDraw(CDC* pDC) = 0;

    void SetAllowHGridAlign(VU_LayoutDefs::ALIGN_ON_HGRID allow);
    void SetAllowVGridAlign(VU_LayoutDefs::ALIGN_ON_VGRID allow);

    // The whole flag byte, for diagnostics and tests.
    BYTE GetFlags() const { return m_flags; }

protected:
    void SetPlacement(VU_LayoutDefs::PLACEMENT placement);
    // Sets or clears the given bits.
    void SetFlag(BYTE bits, bool on) { m_flags = on ? (m_flags | bits) : (m_flags & ~bits); }
    bool HasFlag(BYTE bits) const { return (m_flags & bits) != 0; }

private:
    BYTE m_flags;
};

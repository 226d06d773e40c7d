#pragma once
// VU_CLayoutCell: a container of one element that aligns it.
//
// Measuring: the cell needs its element's size plus its margins (left +
// right, top + bottom); without an element, the margins alone; hidden,
// (0, 0).
// Arranging: the element keeps its own size and is placed by the cell's
// alignment with CalculateAlignedRect. With the cell's ResizeChild flag set
// the element instead takes the whole rectangle inside the margins (never
// less than its own size). A cell is thus the way to centre or right-align
// something inside the slot a row or grid gives it.
// The cell's two weights (see VU_CELLLAYOUT) are its share of spare space
// in a row or column; its placement is the record's.
#include "layout/CellLayout.h"
#include "layout/LayoutElementContainer.h"

class VU_CLayoutCell : public VU_CLayoutElementContainer {
public:
    explicit VU_CLayoutCell(VU_CLayoutElement* element = nullptr,
                            UINT alignment = VU_LayoutDefs::ALIGN_LEFT | VU_LayoutDefs::ALIGN_TOP,
                            VU_CLayoutContainerDecorator* decorator = nullptr,
                            VU_LayoutDefs::DELETION_MODE mode = VU_LayoutDefs::DELETE_CHILDREN);
    VU_CLayoutCell(VU_CLayoutElement* element, const VU_CELLLAYOUT& layout,
                   VU_CLayoutContainerDecorator* decorator = nullptr,
                   VU_LayoutDefs::DELETION_MODE mode = VU_LayoutDefs::DELETE_CHILDREN);
    ~VU_CLayoutCell() override;

    // Operations of every element
    void Accept(DwIVisitor* visitor) override;
    CSize RecalcSize() override;
    void MoveBy(CSize size) override;
    void OnDraw(CDC* pDC) override;

    // Operations of containers
    void RemoveAll() override;
    BOOL Remove(VU_CLayoutElement* element) override;
    void RepositionChildren() override;
    void SetChildVisibility(VU_LayoutDefs::VISIBILITY visibility) override;

    // Operations of the cell
    virtual VU_CLayoutElement* GetElement() const;
    // Replaces the element; the previous one is deleted by the deletion mode.
    // The cell itself is refused (ignored).
    virtual void SetElement(VU_CLayoutElement* element);
    virtual void GetCellLayout(VU_CELLLAYOUT& layout) const;
    virtual void SetCellLayout(const VU_CELLLAYOUT& layout);
    // The box of exactly `size` that the alignment and margins give inside
    // the layout rectangle (flipped when the rectangle is). A box too large
    // for the margins ends at the right (bottom) margin and sticks out on
    // the left (top).
    virtual CRect CalculateAlignedRect(CSize size) const;

    // Attributes
    UINT GetAlignment() const { return m_nAlignment; }
    void SetAlignment(UINT alignment) { m_nAlignment = alignment; }
    CRect GetMargins() const;
    float GetWeight(VU_LayoutDefs::HV_DIRECTION direction) const;

private:
    void TakeLayout(const VU_CELLLAYOUT& layout);

    Child m_element;
    UINT m_nAlignment = 0;
    BYTE m_nMarginLeft = 0, m_nMarginTop = 0, m_nMarginRight = 0, m_nMarginBottom = 0;
    float m_fHorizontalWeight = 0, m_fVerticalWeight = 0;
};

#pragma once
// VU_CLayoutQuadContainer: up to four elements in the quadrants top-left,
// top-right, bottom-left and bottom-right, measured and arranged as a grid
// of two rows and two columns (see LayoutGrid.h): the left column is as
// wide as the wider of the two left elements, the top row as high as the
// higher of the two top elements, and so on; spare room goes equally to the
// columns (rows) holding a flexible element.
#include "layout/LayoutElementContainer.h"
#include "layout/LayoutTracks.h"

class VU_CLayoutQuadContainer : public VU_CLayoutElementContainer {
public:
    explicit VU_CLayoutQuadContainer(
        VU_CLayoutContainerDecorator* decorator = nullptr,
        VU_LayoutDefs::PLACEMENT placement = VU_LayoutDefs::INTERNAL,
        VU_LayoutDefs::DELETION_MODE mode = VU_LayoutDefs::DELETE_CHILDREN);
    // Deletes the elements by the deletion mode.
    ~VU_CLayoutQuadContainer() override;

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

    // Operations of the quadrant container
    // Null for an empty quadrant or a value outside 0 to 3.
    virtual VU_CLayoutElement* GetElement(VU_LayoutDefs::QUADRANT quadrant) const;
    // Replaces the quadrant's element (the previous one is deleted by the
    // deletion mode); FALSE for a value outside 0 to 3.
    virtual BOOL SetElement(VU_LayoutDefs::QUADRANT quadrant, VU_CLayoutElement* element);

private:
    static bool IsQuadrant(int quadrant) { return quadrant >= 0 && quadrant < 4; }

    Child m_quadrants[4];
    vu::layout::Tracks m_measured; // the tracks as measured
    vu::layout::Tracks m_tracks;   // the tracks as last arranged
};

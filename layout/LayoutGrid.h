#pragma once
// VU_CLayoutGrid: containers (usually cells) on a table of rows and columns
// that line up, `spacing` pixels apart.
//
// Measuring: a column is as wide as its widest entry, a row as high as its
// highest; an entry whose "may align on the horizontal grid" flag is off
// does not widen its column (it keeps its own width from the column's left
// edge and may reach into the next column), and likewise for the vertical
// grid flag and its row. Empty rows and columns take no room but their
// spacing. The grid needs the sum of its tracks plus the spacing; hidden,
// (0, 0).
// Arranging: room beyond the required size is shared equally among the
// columns (rows) that hold an aligning entry flexible in that direction; the
// others keep their size. An aligning entry flexible in a direction fills
// its column (row), another keeps its own size at the track's start.
#include "layout/LayoutElementContainer.h"
#include "layout/LayoutTracks.h"
#include "layout/Matrix.h"

class VU_CLayoutGrid : public VU_CLayoutElementContainer {
public:
    explicit VU_CLayoutGrid(VU_CLayoutContainerDecorator* decorator = nullptr,
                            VU_LayoutDefs::PLACEMENT placement = VU_LayoutDefs::INTERNAL,
                            VU_LayoutDefs::DELETION_MODE mode = VU_LayoutDefs::DELETE_CHILDREN);
    // Deletes the entries by the deletion mode.
    ~VU_CLayoutGrid() override;

    // Operations of every element
    void Accept(DwIVisitor* visitor) override;
    CSize RecalcSize() override;
    void MoveBy(CSize size) override;
    void OnDraw(CDC* pDC) override;

    // Operations of containers
    void RemoveAll() override;
    // Empties every place holding the element; FALSE when it was nowhere.
    BOOL Remove(VU_CLayoutElement* element) override;
    void RepositionChildren() override;
    void SetChildVisibility(VU_LayoutDefs::VISIBILITY visibility) override;

    // Operations of the grid
    // Puts the entry at (row, col); an entry already there is deleted by
    // the deletion mode. FALSE for a negative index or a null entry.
    virtual BOOL SetAt(VU_CLayoutElementContainer* entry, int row, int col);
    // Null when the place is empty or outside the grid.
    virtual VU_CLayoutElementContainer* GetAt(int row, int col) const;
    virtual BOOL RemoveAt(int row, int col);
    // (rows, columns).
    virtual CSize GetGridSize() const;
    const VU_CMatrix<VU_CLayoutElementContainer>& GetMatrix() const { return m_matrix; }

    // Attributes
    void SetSpacing(int horizontal, int vertical);
    CSize GetSpacing() const { return CSize(m_measured.spacingX, m_measured.spacingY); }
    // Column offsets and widths, row offsets and heights of the last
    // arrangement, measured from the layout rectangle's corner.
    const vu::layout::Tracks& GetTracks() const { return m_tracks; }

private:
    template <class Fn> void ForEachEntry(Fn fn) const;

    VU_CMatrix<VU_CLayoutElementContainer> m_matrix;
    std::vector<CSize> m_sizes;    // each entry's size at the last measuring, row-major
    vu::layout::Tracks m_measured; // the tracks as measured
    vu::layout::Tracks m_tracks;   // the tracks as last arranged
};

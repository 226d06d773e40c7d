#pragma once
// The arithmetic shared by the containers: sharing spare space among
// flexible children and sizing the rows and columns of a table.
#include "framework/Size.h"
#include "layout/LayoutElement.h"

#include <algorithm>
#include <vector>

namespace vu::layout {

// The weight a share is computed with: a weight that is not positive (or
// not a number) counts as 1.
float EffectiveWeight(float weight);

// Adds `spare` pixels (when positive) to the extents whose weight is
// positive, in proportion to the weights. The shares are whole pixels and
// add up to exactly `spare`; when no weight is positive nothing changes.
void ShareSpare(std::vector<int>& extents, const std::vector<float>& weights, int spare);

// Start offsets of consecutive tracks `spacing` apart; returns the total.
int TrackStarts(const std::vector<int>& extents, int spacing, std::vector<int>& starts);

// Rows and columns of a table whose entries may align on its grid.
struct Tracks {
    std::vector<int> widths, heights;       // per column, per row
    std::vector<int> lefts, tops;           // offsets from the table's corner
    std::vector<float> columnFlex, rowFlex; // 1 when a track may grow, else 0
    int spacingX = 0, spacingY = 0;

    // Sizes the tracks from the entries: a column is as wide as its widest
    // entry that may align on the horizontal grid (entries that may not do
    // not widen it), a row as high as its highest entry that may align on
    // the vertical grid. A track may grow when one of its aligning entries
    // is flexible in its direction (or `resizeAll`). `entry(row, col)`
    // returns the element (or null) and stores its size.
    template <class EntryFn> void Measure(int rows, int cols, bool resizeAll, EntryFn entry) {
        widths.assign(cols, 0);
        heights.assign(rows, 0);
        columnFlex.assign(cols, 0.0f);
        rowFlex.assign(rows, 0.0f);
        for (int r = 0; r < rows; ++r) {
            for (int c = 0; c < cols; ++c) {
                CSize size;
                const VU_CLayoutElement* element = entry(r, c, size);
                if (element == nullptr)
                    continue;
                if (element->AllowHGridAlign()) {
                    widths[c] = std::max(widths[c], static_cast<int>(size.cx));
                    if (resizeAll || element->IsFlexible(VU_LayoutDefs::HORIZONTAL))
                        columnFlex[c] = 1.0f;
                }
                if (element->AllowVGridAlign()) {
                    heights[r] = std::max(heights[r], static_cast<int>(size.cy));
                    if (resizeAll || element->IsFlexible(VU_LayoutDefs::VERTICAL))
                        rowFlex[r] = 1.0f;
                }
            }
        }
    }
    // The size the tracks need, spacing included.
    CSize Required() const;
    // Shares the room beyond the required size among the tracks that may
    // grow and computes the offsets.
    void Arrange(CSize room);
};

} // namespace vu::layout

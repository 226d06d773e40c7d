#pragma once
// The arithmetic of the tab window (Vu_CTabWnd), kept apart from its windows:
// the inside rectangle where the panes live, and the strip along the bottom
// with the beam, the divider and the horizontal scroll bar, the vertical
// scroll bar at the right and the box in the corner between the two.
//
// The strip is the beam's height + 1 high; the vertical scroll bar, when
// there is one, is as wide as the strip is high, so that the corner box is
// square. The divider is a 5-pixel column between the beam and the
// horizontal scroll bar that the user drags; its position is the beam's
// right edge, kept in the window's client coordinates.
#include "framework/Rect.h"

namespace vu::tabwnd {

constexpr int kDividerWidth = 5;

// The panes' rectangle: the client less the strip at the bottom and, with a
// vertical scroll bar, less the same amount at the right.
CRect InsideRect(const CRect& client, int beamHeight, bool hasVScroll);

struct Layout {
    CRect inside;
    CRect beam;
    CRect divider; // empty without a horizontal scroll bar
    CRect hScroll; // empty without a horizontal scroll bar
    CRect vScroll; // empty without a vertical scroll bar
    CRect sizeBox; // the corner; empty without a vertical scroll bar
};

// Everything laid out for a divider position. A negative position means
// "not set": the beam takes half of the strip. The beam and the horizontal
// scroll bar each keep at least minPane pixels when the strip has room for
// both; in a narrower strip the beam keeps what there is.
Layout Arrange(const CRect& client, int beamHeight, bool hasHScroll, bool hasVScroll,
               int dividerPos, int minPane);

// The divider position once dragged dx pixels from startPos, kept so that
// both sides keep minPane in a strip `stripWidth` wide (from x = 0).
int DraggedDividerPos(int startPos, int dx, int stripWidth, int minPane);

// The divider is painted as one-pixel columns, left to right.
enum class DividerColumn { Black, Highlight, Face, Shadow };
constexpr DividerColumn kDividerColumns[kDividerWidth] = {
    DividerColumn::Black, DividerColumn::Highlight, DividerColumn::Face, DividerColumn::Shadow,
    DividerColumn::Black};

} // namespace vu::tabwnd

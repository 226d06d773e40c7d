#pragma once
// The arithmetic of the tab beam bar, kept apart from its windows so that it
// can be tested without a window system: where the beam, the splitter and
// the scroll bar lie for a given bar width and stored splitter position, how
// a splitter drag moves the position, and the bar's size in the frame's
// layout. System metrics come in as arguments.
//
// Coordinates are the bar's client coordinates. The splitter position is the
// x of the beam's right edge (the splitter's left edge).
#include "framework/Rect.h"
#include "framework/Size.h"

namespace vu::beambar {

constexpr int kSplitterWidth = 10; // the splitter window's width
constexpr int kScrollBarGap = 2;   // between the splitter and the scroll bar
constexpr int kDefaultBarHeight = 20;

// The narrowest either side of the splitter may become: room for the beam's
// (or the scroll bar's) arrows and thumb. cxHThumb is SM_CXHTHUMB.
constexpr int MinPaneWidth(int cxHThumb) {
    return 4 * cxHThumb + 20;
}

// The position used before the profile holds one: half the client width.
inline int DefaultSplitterPos(const CRect& client) {
    return client.right / 2;
}

// The x at which the children are laid out for a stored position. A negative
// position means "not set yet" and puts the splitter one minimum pane from the
// left; a position that leaves less than the minimum on the right is pulled
// back (in a bar narrower than two minimum panes the right side wins). The
// stored position is not changed by this.
int SplitterLayoutX(int storedPos, const CRect& client, int minPane);

struct Children {
    CRect beam;
    CRect splitter;
    CRect scrollBar;
};

// The three children for a client rectangle and a stored position. The
// scroll bar stops short of the right edge by a vertical scroll bar's width
// less 2 (cxVScroll is SM_CXVSCROLL), since the bar itself is 2 pixels wider
// than the frame's client area. Every child spans the full client height.
Children ArrangeChildren(const CRect& client, int storedPos, int minPane, int cxVScroll);

// The splitter position after the mouse moved dx pixels from where the drag
// grabbed it, with the splitter's left edge at splitterLeft: at least one
// minimum pane from the left, and at most client right - minPane once the
// splitter would reach into the right minimum pane.
int DraggedSplitterPos(int splitterLeft, int dx, const CRect& client, int minPane);

// The bar's size in its frame's layout: the base size with the bar's own
// height, and for a horizontal bar one pixel wider than the parent's client.
CSize FixedSize(CSize base, int barHeight, bool horizontal, int parentClientWidth);

} // namespace vu::beambar

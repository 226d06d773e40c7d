#include "tabs/TabWndLayout.h"

#include <algorithm>

namespace vu::tabwnd {

namespace {

// Keeps minPane on both sides of the divider where the strip allows it; the
// left side wins in a strip too narrow for two panes.
int ClampDivider(int pos, int stripWidth, int minPane) {
    pos = std::min(pos, stripWidth - kDividerWidth - minPane);
    pos = std::max(pos, std::min(minPane, stripWidth - kDividerWidth));
    return std::max(pos, 0);
}

} // namespace

CRect InsideRect(const CRect& client, int beamHeight, bool hasVScroll) {
    CRect inside = client;
    inside.bottom = std::max(client.top, client.bottom - (beamHeight + 1));
    if (hasVScroll)
        inside.right = std::max(client.left, client.right - (beamHeight + 1));
    return inside;
}

Layout Arrange(const CRect& client, int beamHeight, bool hasHScroll, bool hasVScroll,
               int dividerPos, int minPane) {
    Layout l;
    l.inside = InsideRect(client, beamHeight, hasVScroll);
    const int stripTop = l.inside.bottom + 1; // one pixel row parts panes and beam
    const int stripLeft = client.left;
    const int stripRight = l.inside.right;
    if (hasVScroll) {
        l.vScroll = CRect(l.inside.right, client.top, client.right, l.inside.bottom);
        l.sizeBox = CRect(l.inside.right, l.inside.bottom, client.right, client.bottom);
    }
    if (!hasHScroll) {
        l.beam = CRect(stripLeft, stripTop, stripRight, client.bottom);
        return l;
    }
    const int width = stripRight - stripLeft;
    const int pos =
        ClampDivider(dividerPos < 0 ? width / 2 : dividerPos - stripLeft, width, minPane);
    const int x = stripLeft + pos;
    l.beam = CRect(stripLeft, stripTop, x, client.bottom);
    l.divider = CRect(x, l.inside.bottom, std::min(x + kDividerWidth, stripRight), client.bottom);
    l.hScroll = CRect(l.divider.right, stripTop, stripRight, client.bottom);
    return l;
}

int DraggedDividerPos(int startPos, int dx, int stripWidth, int minPane) {
    return ClampDivider(startPos + dx, stripWidth, minPane);
}

} // namespace vu::tabwnd

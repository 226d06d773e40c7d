#include "tabs/BeamBarLayout.h"

namespace vu::beambar {

int SplitterLayoutX(int storedPos, const CRect& client, int minPane) {
    int x = storedPos;
    if (x < 0)
        x = client.left + minPane;
    if (x > client.right - minPane)
        x = client.right - minPane;
    return x;
}

Children ArrangeChildren(const CRect& client, int storedPos, int minPane, int cxVScroll) {
    const int x = SplitterLayoutX(storedPos, client, minPane);
    Children c;
    c.beam = CRect(client.left, client.top, x, client.bottom);
    c.splitter = CRect(x, client.top, x + kSplitterWidth, client.bottom);
    c.scrollBar = CRect(x + kSplitterWidth + kScrollBarGap, client.top,
                        client.right + 2 - cxVScroll, client.bottom);
    return c;
}

int DraggedSplitterPos(int splitterLeft, int dx, const CRect& client, int minPane) {
    int pos = splitterLeft + dx;
    if (pos < minPane)
        pos = minPane;
    if (pos + kSplitterWidth > client.right - minPane)
        pos = client.right - minPane;
    return pos;
}

CSize FixedSize(CSize base, int barHeight, bool horizontal, int parentClientWidth) {
    CSize size = base;
    size.cy = barHeight;
    if (horizontal)
        size.cx = parentClientWidth + 1;
    return size;
}

} // namespace vu::beambar

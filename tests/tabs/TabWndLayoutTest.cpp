#include "tabs/TabWndLayout.h"
#include "tabs/BeamBarLayout.h"

#include <gtest/gtest.h>

namespace {

// SM_CXHTHUMB 16 gives the usual minimum pane of 84 pixels.
const int kMin = vu::beambar::MinPaneWidth(16);

void ExpectRect(const CRect& expected, const CRect& actual, const char* what) {
    SCOPED_TRACE(what);
    EXPECT_EQ(expected.left, actual.left);
    EXPECT_EQ(expected.top, actual.top);
    EXPECT_EQ(expected.right, actual.right);
    EXPECT_EQ(expected.bottom, actual.bottom);
}

TEST(TabWndLayout, StripAndScrollBarsForEachScrollBarSet) {
    const CRect client(0, 0, 400, 300); // beam height 16: strip 17 high
    struct Row {
        const char* name;
        bool h, v;
        int divider;
        CRect inside, beam, dividerRect, hScroll, vScroll, sizeBox;
    } rows[] = {
        {"no scroll bars", false, false, 200, CRect(0, 0, 400, 283), CRect(0, 284, 400, 300),
         CRect(), CRect(), CRect(), CRect()},
        {"vertical only", false, true, 200, CRect(0, 0, 383, 283), CRect(0, 284, 383, 300), CRect(),
         CRect(), CRect(383, 0, 400, 283), CRect(383, 283, 400, 300)},
        {"horizontal, divider unset", true, false, -1, CRect(0, 0, 400, 283),
         CRect(0, 284, 200, 300), CRect(200, 283, 205, 300), CRect(205, 284, 400, 300), CRect(),
         CRect()},
        {"both, divider set", true, true, 120, CRect(0, 0, 383, 283), CRect(0, 284, 120, 300),
         CRect(120, 283, 125, 300), CRect(125, 284, 383, 300), CRect(383, 0, 400, 283),
         CRect(383, 283, 400, 300)},
        {"divider past the right pane", true, false, 390, CRect(0, 0, 400, 283),
         CRect(0, 284, 311, 300), CRect(311, 283, 316, 300), CRect(316, 284, 400, 300), CRect(),
         CRect()},
        {"divider inside the left pane", true, false, 3, CRect(0, 0, 400, 283),
         CRect(0, 284, 84, 300), CRect(84, 283, 89, 300), CRect(89, 284, 400, 300), CRect(),
         CRect()},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        const auto l = vu::tabwnd::Arrange(client, 16, r.h, r.v, r.divider, kMin);
        ExpectRect(r.inside, l.inside, "inside");
        ExpectRect(r.beam, l.beam, "beam");
        ExpectRect(r.dividerRect, l.divider, "divider");
        ExpectRect(r.hScroll, l.hScroll, "horizontal scroll bar");
        ExpectRect(r.vScroll, l.vScroll, "vertical scroll bar");
        ExpectRect(r.sizeBox, l.sizeBox, "corner");
    }
}

TEST(TabWndLayout, NarrowAndTinyWindowsStayOrdered) {
    // Too narrow for two panes: the beam keeps its minimum, the scroll bar what is left.
    const auto narrow = vu::tabwnd::Arrange(CRect(0, 0, 120, 100), 16, true, false, 60, kMin);
    EXPECT_EQ(84, narrow.beam.right);
    EXPECT_EQ(120, narrow.hScroll.right);
    EXPECT_LE(narrow.hScroll.left, narrow.hScroll.right);
    // Smaller than the strip: nothing inverted, nothing outside the client.
    const auto tiny = vu::tabwnd::Arrange(CRect(0, 0, 3, 10), 16, true, true, -1, kMin);
    for (const CRect& r : {tiny.inside, tiny.beam, tiny.divider, tiny.hScroll}) {
        EXPECT_LE(r.left, r.right);
        EXPECT_GE(r.left, 0);
        EXPECT_LE(r.right, 3);
    }
    EXPECT_EQ(0, vu::tabwnd::DraggedDividerPos(2, -10, 3, kMin));
    EXPECT_EQ(84, vu::tabwnd::DraggedDividerPos(150, -100, 400, kMin));
    EXPECT_EQ(311, vu::tabwnd::DraggedDividerPos(150, 400, 400, kMin));
}

} // namespace

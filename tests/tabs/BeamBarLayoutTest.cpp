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

TEST(BeamBarLayout, ChildrenForStoredPositionsAndWidths) {
    ASSERT_EQ(84, kMin);
    struct Row {
        const char* name;
        int clientRight, stored, splitterX;
    } rows[] = {
        {"stored position kept", 600, 250, 250},
        {"-1 puts the splitter one pane from the left", 600, -1, 84},
        {"any negative counts as unset", 600, -500, 84},
        {"a small non-negative position is kept", 600, 10, 10},
        {"exactly right - m is kept", 600, 516, 516},
        {"one past right - m is pulled back", 600, 517, 516},
        {"far right pulled back", 600, 5000, 516},
        {"narrower than two panes: right side wins", 150, 75, 66},
        {"narrower than two panes, unset", 150, -1, 66},
        {"narrower than one pane goes negative", 50, 25, -34},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        const CRect client(0, 0, r.clientRight, 20);
        EXPECT_EQ(r.splitterX, vu::beambar::SplitterLayoutX(r.stored, client, kMin));
        const auto c = vu::beambar::ArrangeChildren(client, r.stored, kMin, 17);
        const int x = r.splitterX;
        ExpectRect(CRect(0, 0, x, 20), c.beam, "beam");
        ExpectRect(CRect(x, 0, x + 10, 20), c.splitter, "splitter");
        ExpectRect(CRect(x + 12, 0, r.clientRight + 2 - 17, 20), c.scrollBar, "scroll bar");
    }
}

TEST(BeamBarLayout, DragClampsToBothPanes) {
    const CRect client(0, 0, 600, 20); // right - m = 516
    struct Row {
        const char* name;
        int left, dx, expected;
    } rows[] = {
        {"free move right", 300, 40, 340},
        {"free move left", 300, -40, 260},
        {"stops at the left pane", 100, -50, 84},
        {"exactly at the left pane", 100, -16, 84},
        {"last position whose splitter fits", 300, 206, 506},
        {"one more jumps to right - m", 300, 207, 516},
        {"far right", 300, 1000, 516},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        EXPECT_EQ(r.expected, vu::beambar::DraggedSplitterPos(r.left, r.dx, client, kMin));
    }
    SCOPED_TRACE("bar narrower than two panes");
    EXPECT_EQ(66, vu::beambar::DraggedSplitterPos(70, -30, CRect(0, 0, 150, 20), kMin));
}

TEST(BeamBarLayout, FixedSizeTakesBarHeightAndParentWidth) {
    const CSize horizontal = vu::beambar::FixedSize(CSize(32767, 4), 23, true, 640);
    EXPECT_EQ(641, horizontal.cx);
    EXPECT_EQ(23, horizontal.cy);
    const CSize vertical = vu::beambar::FixedSize(CSize(6, 32767), 23, false, 640);
    EXPECT_EQ(6, vertical.cx);
    EXPECT_EQ(23, vertical.cy);
}

} // namespace

#include "tabs/BeamBarLayout.h"
#include "tabs/TabWndLayout.h"

#include <gtest/gtest.h>

namespace {

const int kMin = vu::beambar::MinPaneWidth(16); // 84, with the usual SM_CXHTHUMB

// The exact boundaries of the right pane, which the window tests pass only
// from afar: a drag that would bring the splitter into it jumps to right - m,
// and a stored position one past right - m is laid out at right - m.
TEST(BeamBarLayout, SplitterAndDividerStopAtThePanes) {
    const CRect client(0, 0, 600, 20);
    EXPECT_EQ(506, vu::beambar::DraggedSplitterPos(300, 206, client, kMin));
    EXPECT_EQ(516, vu::beambar::DraggedSplitterPos(300, 207, client, kMin));
    EXPECT_EQ(516, vu::beambar::SplitterLayoutX(516, client, kMin));
    EXPECT_EQ(516, vu::beambar::SplitterLayoutX(517, client, kMin));
    EXPECT_EQ(0, vu::beambar::SplitterLayoutX(0, client, kMin)) << "only negatives mean unset";
    // A tab window too narrow for two panes keeps the beam's minimum.
    const auto narrow = vu::tabwnd::Arrange(CRect(0, 0, 120, 100), 16, true, false, 60, kMin);
    EXPECT_EQ(CRect(89, 84, 120, 100), narrow.hScroll);
}

} // namespace

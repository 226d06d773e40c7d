// The beam's geometry, scrolling, activation, marks, insertion, deletion
// and drops. Tabs start at x = 21 (a 20-pixel scroll area) and overlap by 7.
#include "FakeTabView.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using vutest::FakeBeam;

namespace {

std::string Marks(const FakeBeam& beam) {
    std::string marks;
    for (int i = 0; i < beam.GetCount(); ++i)
        marks += beam.IsTabMarked(i) ? '1' : '0';
    return marks;
}

TEST(TabBeamGeometry, OffsetsVisibleRangeAndHitTesting) {
    FakeBeam beam;
    beam.AddWidths({50, 60, 70, 80});
    EXPECT_EQ(222, beam.CalcTabOffset(3));
    EXPECT_EQ(180, beam.CalcTabMidpoint(2));
    EXPECT_EQ(288, beam.CalcTotalTabWidth());
    EXPECT_EQ(3, beam.CalcLastVisibleTab());
    EXPECT_EQ(0, beam.CalcFirstVisibleTab(3));
    struct Row {
        int x, tab;
    } hits[] = {{10, 0}, {28, 0}, {30, 0}, {85, 1}, {100, 1}, {151, 1}, {315, 3}, {316, -1}};
    for (const Row& r : hits) {
        SCOPED_TRACE(r.x);
        EXPECT_EQ(r.tab, beam.CalcTabFromOffset(r.x));
    }
    beam.view.client.right = 200; // tab 2 cut off, tab 3 out of view
    EXPECT_EQ(2, beam.CalcLastVisibleTab());
    EXPECT_EQ(2, beam.CalcFirstVisibleTab(3));
    beam.m_nFirstVisible = 1;
    EXPECT_EQ(-36, beam.CalcTabOffset(0));
    EXPECT_EQ(165, beam.CalcTabOffset(3));
    EXPECT_FALSE(beam.DropTab(1, CPoint(390, 5))); // right of the last visible tab
    beam.SwitchToTab(CPoint(22, 5));               // the slant left of tab 1 reveals tab 0
    EXPECT_EQ(0, beam.GetFirstVisible());
    EXPECT_EQ(0, beam.GetCurSel());
}

TEST(TabBeamGeometry, NoTabsReadNoTab) {
    FakeBeam beam;
    beam.view.client.right = 10; // narrower than the scroll area
    EXPECT_EQ(-1, beam.CalcLastVisibleTab());
    EXPECT_EQ(-1, beam.CalcTabFromOffset(40));
    EXPECT_EQ(0, beam.CalcFirstVisibleTab(0));
    EXPECT_EQ(0, beam.FindLongestTab());
    EXPECT_EQ(0, beam.Scroll(VU_CTabBeamModel::ScrollLast));
    beam.ScrollActiveTabIntoView();
    beam.SwitchToTab(CPoint(22, 5)); // on the slant: would reveal tab -1
    beam.DetermineTextForTabs();
    EXPECT_EQ(-1, beam.GetCurSel());
    EXPECT_FALSE(beam.IsTruncated());
    EXPECT_FALSE(beam.DropTab(1, CPoint(40, 5)));
}

TEST(TabBeamGeometry, ScrollClampsAtBothEnds) {
    FakeBeam beam;
    beam.AddWidths({100, 100, 100, 100, 100, 100});
    beam.view.client.right = 300; // the last two tabs fill the area
    struct Row {
        int code, dx, first;
    } rows[] = {{VU_CTabBeamModel::ScrollLast, -428, 4}, {VU_CTabBeamModel::ScrollRight, 0, 4},
                {VU_CTabBeamModel::ScrollLeft, 107, 3},  {7, 0, 3},
                {VU_CTabBeamModel::ScrollFirst, 321, 0}, {VU_CTabBeamModel::ScrollLeft, 0, 0}};
    for (const Row& r : rows) {
        SCOPED_TRACE(r.code);
        EXPECT_EQ(r.dx, beam.Scroll(r.code));
        EXPECT_EQ(r.first, beam.GetFirstVisible());
    }
    beam.view.client.right = 800; // everything fits: no scrolling at all
    EXPECT_EQ(0, beam.Scroll(VU_CTabBeamModel::ScrollRight));
}

// Tab 1 fits the client but ends 10 pixels past its right edge even as
// the first visible tab, where Scroll cannot move any further.
TEST(TabBeamGeometry, ActiveTabCutOffWhileScrollIsClampedEnds) {
    for (bool bySwitch : {true, false}) {
        SCOPED_TRACE(bySwitch ? "SwitchToTab" : "ScrollActiveTabIntoView");
        FakeBeam beam;
        beam.AddWidths({50, 170});
        beam.view.client.right = 195;
        if (bySwitch) {
            beam.SwitchToTab(CPoint(100, 5));
            EXPECT_EQ(std::vector<int>{1}, beam.view.selChanged);
        } else {
            beam.SetCurSel(1);
            beam.ScrollActiveTabIntoView();
        }
        EXPECT_EQ(1, beam.GetCurSel());
        EXPECT_EQ(1, beam.GetFirstVisible());
        EXPECT_EQ(std::vector<int>{-57}, beam.view.scrolls);
    }
}

TEST(TabBeamSelection, SetCurSelMarksAndStaysQuiet) {
    FakeBeam beam;
    beam.AddWidths({50, 50, 50});
    beam.Click(CPoint(150, 5), false, true, false); // marks tabs 1 and 2
    beam.SetCurSel(2);                              // marked: marks stay
    EXPECT_EQ("011", Marks(beam));
    beam.SetCurSel(0); // unmarked: marks cleared, then tab 0 marked
    EXPECT_EQ("100", Marks(beam));
    EXPECT_EQ(2, beam.GetPrevSel());
    beam.SetCurSel(3);
    EXPECT_EQ(0, beam.GetCurSel());
    EXPECT_THROW(beam.SetCurSel(-1), CInvalidArgException);
    EXPECT_TRUE(beam.view.selChanged.empty());
    beam.m_nFirstVisible = 1; // the active tab scrolled out: double clicks say nothing
    EXPECT_EQ(-1, beam.DoubleClickTarget(CPoint(100, 5)));
}

TEST(TabBeamTabs, InsertAndDeleteBookkeeping) {
    FakeBeam beam;
    beam.AddWidths({50, 50, 50});
    EXPECT_EQ(0, beam.GetCurSel());
    EXPECT_EQ(0, beam.GetPrevSel());
    beam.SetCurSel(1);
    beam.InsertTab(TRUE, VU_T("at 1"), nullptr, 0, -1); // outside a drag
    EXPECT_EQ(3, beam.GetCount());
    EXPECT_EQ(CString(VU_T("at 1")), beam.GetTabText(1));
    EXPECT_EQ(45, beam.GetTabRecord(1)->m_nWidth); // bold: 4 * 7 + 17
    beam.SetDragging(true);
    beam.InsertTab(TRUE, VU_T("x"), nullptr, 0, 50);
    EXPECT_EQ(4, beam.GetCount());

    struct Row {
        const char* name;
        int tabs, active, previous, deleted;
        int current, first, newPrevious;
    } rows[] = {
        {"active last tab: tab 0 active", 4, 3, 1, 3, 0, 0, 1},
        {"active tab: the index after it", 5, 1, 3, 1, 2, 2, 2},
        {"left of the active tab", 5, 3, 0, 1, 2, 0, 0},
        {"the previous tab: previous := current", 5, 3, 1, 1, 2, 0, 2},
        {"last but one active: one past the end", 3, 1, 0, 1, 2, 2, 0},
        {"the only tab", 1, 0, 0, 0, -1, 0, -1},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        FakeBeam b;
        for (int i = 0; i < r.tabs; ++i)
            b.AddWidths({50});
        b.SetCurSel(r.previous);
        b.SetCurSel(r.active);
        b.DeleteTab(r.deleted);
        EXPECT_EQ(r.tabs - 1, b.GetCount());
        EXPECT_EQ(r.current, b.GetCurSel());
        EXPECT_EQ(r.first, b.GetFirstVisible());
        EXPECT_EQ(r.newPrevious, b.GetPrevSel());
    }
    EXPECT_THROW(beam.DeleteTab(9), CInvalidArgException);
}

} // namespace

// The frame substrate on real windows: bars and the pane laid out through
// WM_SIZEPARENT, layout queries and idle updates (the active view is
// exercised by the tab window's panes).
#include <gtest/gtest.h>

#include <vector>

#include "framework/win/ControlBar.h"
#include "framework/win/FrameWnd.h"
#include "framework/win/View.h"
#include "framework/win/WindowClasses.h"
#include "support/TestWindow.h"

namespace {

// A bar of a fixed thickness on one side; counts its idle updates.
struct FixedBar : CControlBar {
    FixedBar(CWnd* parent, UINT id, DWORD align, int thickness, bool visible = true)
        : m_thickness(thickness) {
        SetBarStyle(align);
        CreateEx(0, AFX_WNDCONTROLBAR, L"bar", WS_CHILD | (visible ? WS_VISIBLE : 0),
                 CRect(0, 0, 10, 10), parent, id);
    }
    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override {
        CSize size = CControlBar::CalcFixedLayout(bStretch, bHorz);
        (bHorz ? size.cy : size.cx) = m_thickness;
        return size;
    }
    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL) override { updatedFor.push_back(pTarget); }
    std::vector<CFrameWnd*> updatedFor;
    int m_thickness;
};

CRect RectIn(const CWnd& parent, const CWnd& child) {
    CRect r;
    child.GetWindowRect(&r);
    parent.ScreenToClient(&r);
    return r;
}

void CreateFrame(CFrameWnd& frame, int width, int height) {
    frame.Create(nullptr, L"frame", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN,
                 CRect(0, 0, width, height), CWnd::FromHandle(vutest::Stage()));
}

TEST(FrameLayoutTest, BarsTakeTheirSidesAndThePaneGetsTheRest) {
    CFrameWnd frame;
    CreateFrame(frame, 400, 300);
    FixedBar top(&frame, 0xE801, CBRS_ALIGN_TOP, 24), bottom(&frame, 0xE802, CBRS_ALIGN_BOTTOM, 20);
    FixedBar left(&frame, 0xE803, CBRS_ALIGN_LEFT, 30);
    FixedBar hidden(&frame, 0xE804, CBRS_ALIGN_BOTTOM, 50, false), floating(&frame, 0xE805, 0, 9);
    CView pane;
    ASSERT_TRUE(pane.Create(nullptr, L"pane", WS_CHILD | WS_VISIBLE, CRect(0, 0, 5, 5), &frame,
                            AFX_IDW_PANE_FIRST));

    // Children are offered the room in creation order: top, bottom, left, the pane.
    for (CSize s : {CSize(640, 200), CSize(400, 300), CSize(90, 80)}) {
        SCOPED_TRACE(testing::Message() << s.cx << " x " << s.cy);
        frame.SetWindowPos(static_cast<HWND>(nullptr), 0, 0, s.cx, s.cy,
                           SWP_NOZORDER | SWP_NOMOVE | SWP_NOACTIVATE); // WM_SIZE lays out
        EXPECT_EQ(CRect(0, 0, s.cx, 24), RectIn(frame, top));
        EXPECT_EQ(CRect(0, s.cy - 20, s.cx, s.cy), RectIn(frame, bottom));
        EXPECT_EQ(CRect(0, 24, 30, s.cy - 20), RectIn(frame, left));
        EXPECT_EQ(CRect(30, 24, s.cx, s.cy - 20), RectIn(frame, pane));
        EXPECT_EQ(CRect(0, 0, 10, 10), RectIn(frame, floating)) << "a floating bar stays put";
    }

    RECT query{};
    const RECT client{0, 0, 200, 100};
    frame.RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST, CFrameWnd::reposQuery, &query, &client);
    EXPECT_EQ(CRect(30, 24, 200, 80), CRect(query));
    EXPECT_EQ(CRect(30, 24, 90, 60), RectIn(frame, pane)) << "a query moves nothing";

    frame.UpdateControlBars();
    EXPECT_EQ(std::vector<CFrameWnd*>{&frame}, top.updatedFor);
    EXPECT_TRUE(hidden.updatedFor.empty()) << "hidden bars are not updated";
}

} // namespace

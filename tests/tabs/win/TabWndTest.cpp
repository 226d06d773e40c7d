// The tab window in a frame: panes switched with their messages in order, what
// it passes on to the shown pane and its parent, and the divider.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "framework/win/FrameWnd.h"
#include "framework/win/View.h"
#include "support/TestWindow.h"
#include "tabs/win/TabWnd.h"

namespace {

using Log = std::vector<std::string>;

// Logs "a+" / "a-" for view activation, "a attached 0", "a shown 2",
// "a hidden 0" for the tab window's messages and "a scroll" for scrolling.
struct Pane : CView {
    Pane(const char* name, Log* log) : m_name(name), m_log(log) {}
    void OnActivateView(BOOL bActivate, CView* pActivate, CView* pDeactive) override {
        m_log->push_back(m_name + (bActivate ? "+" : "-"));
        CView::OnActivateView(bActivate, pActivate, pDeactive);
    }
    MSG lastScroll{};
    std::string m_name;
    Log* m_log;

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        const char* what = message == WM_VU_TABWND_ATTACHED      ? " attached "
                           : message == WM_VU_TABWND_ACTIVATED   ? " shown "
                           : message == WM_VU_TABWND_DEACTIVATED ? " hidden "
                                                                 : nullptr;
        if (what != nullptr) {
            m_log->push_back(m_name + what + std::to_string(wParam));
            return 0;
        }
        if (message == WM_HSCROLL || message == WM_VSCROLL) {
            m_log->push_back(m_name + " scroll");
            lastScroll = MSG{m_hWnd, message, wParam, lParam, 0, {}};
            return 0;
        }
        return CView::WindowProc(message, wParam, lParam);
    }
};

struct TabFrame {
    CFrameWnd frame;
    Vu_CTabWnd tabs;
    Log log;
    Pane a{"a", &log}, b{"b", &log}, c{"c", &log};

    TabFrame() {
        frame.Create(nullptr, L"tab frame", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN,
                     CRect(0, 0, 500, 300), CWnd::FromHandle(vutest::Stage()));
        tabs.Create(&frame, WS_CHILD | WS_VISIBLE | WS_HSCROLL | WS_VSCROLL);
        frame.RecalcLayout();
        int id = 1;
        for (Pane* pane : {&a, &b, &c})
            pane->Create(nullptr, L"pane", WS_CHILD | WS_VISIBLE | WS_HSCROLL, CRect(0, 0, 9, 9),
                         &tabs, id++);
        tabs.AttachWnd(&a, L"MainRoutine");
        tabs.AttachWnd(&b, L"Fill");
        tabs.AttachWnd(&c, L"Palletize");
    }
    Log Take() {
        vutest::PumpPending();
        return std::exchange(log, Log{});
    }
    CRect Child(int id) const {
        CRect r;
        ::GetWindowRect(::GetDlgItem(tabs.m_hWnd, id), r);
        tabs.ScreenToClient(&r);
        return r;
    }
};

TEST(TabWndTest, PanesSwitchInOrderAndGetTheirScrollingFocusAndClicks) {
    TabFrame f;
    wchar_t className[64] = {};
    GetClassNameW(f.tabs.m_hWnd, className, 64);
    EXPECT_STREQ(L"AfxMDIFrame70u", className);
    EXPECT_EQ(0u, f.tabs.GetStyle() & (WS_HSCROLL | WS_VSCROLL)) << "children instead";
    const int strip = f.Child(59905).Height() + 1;
    CRect inside;
    f.tabs.GetInsideRect(inside);
    EXPECT_EQ(CRect(0, 0, 500 - strip, 300 - strip), inside);
    EXPECT_EQ(CRect(500 - strip, 0, 500, 300 - strip), f.Child(59920));
    EXPECT_EQ(f.Child(59905).right + 5, f.Child(59904).left);

    EXPECT_EQ((Log{"a+", "a attached 0", "b attached 1", "c attached 2"}), f.Take());
    EXPECT_EQ(inside, f.Child(2)) << "panes fill the inside";
    EXPECT_EQ(0u, f.b.GetStyle() & WS_HSCROLL) << "pane scroll bars hidden";
    EXPECT_TRUE(f.a.IsWindowVisible());
    EXPECT_FALSE(f.b.IsWindowVisible());

    // A click on the third tab.
    Vu_CTabBeam* beam = f.tabs.GetTabBeam();
    beam->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON,
                      MAKELPARAM(beam->CalcTabMidpoint(2) + beam->GetOverlap(), 8));
    beam->SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(beam->CalcTabMidpoint(2), 8));
    EXPECT_EQ((Log{"a-", "c+", "a hidden 0", "c shown 2"}), f.Take());
    EXPECT_FALSE(f.a.IsWindowVisible());
    EXPECT_TRUE(f.c.IsWindowVisible());
    EXPECT_EQ(&f.c, f.frame.GetActiveView());
    EXPECT_EQ(f.c.m_hWnd, ::GetFocus());

    // The active tab again: only the focus comes back.
    f.a.SetFocus();
    f.tabs.SendMessage(WM_VU_TAB_SELCHANGED, 2);
    EXPECT_EQ(Log{}, f.Take());
    EXPECT_EQ(f.c.m_hWnd, ::GetFocus());

    // A program switch moves the beam along; unknown tabs change nothing.
    f.tabs.SwitchTab(&f.b);
    f.tabs.SendMessage(WM_VU_TAB_SELCHANGED, 7);
    EXPECT_EQ((Log{"c-", "b+", "c hidden 2", "b shown 1"}), f.Take());
    EXPECT_EQ(1, f.tabs.GetTabBeam()->GetCurSel());

    // Scroll bars, focus and the right button, with the second pane shown.
    const HWND vScroll = f.tabs.GetScrollBarCtrl(SB_VERT)->m_hWnd;
    f.tabs.GetScrollBarCtrl(SB_HORZ)->SetScrollRange(0, 10);
    f.tabs.GetScrollBarCtrl(SB_VERT)->SetScrollRange(0, 10);
    ::SendMessageW(f.tabs.GetScrollBarCtrl(SB_HORZ)->m_hWnd, WM_KEYDOWN, VK_RIGHT, 0);
    ::SendMessageW(vScroll, WM_KEYDOWN, VK_DOWN, 0);
    EXPECT_EQ((Log{"b scroll", "b scroll"}), f.Take());
    EXPECT_EQ(static_cast<UINT>(WM_VSCROLL), f.b.lastScroll.message);
    EXPECT_EQ(static_cast<WPARAM>(SB_LINEDOWN), LOWORD(f.b.lastScroll.wParam));
    EXPECT_EQ(reinterpret_cast<LPARAM>(vScroll), f.b.lastScroll.lParam) << "passed on unchanged";

    f.frame.SetFocus();
    f.tabs.SetFocus();
    EXPECT_EQ(f.b.m_hWnd, ::GetFocus());

    vutest::PumpPending();
    f.tabs.SendMessage(WM_RBUTTONUP, 0, MAKELPARAM(10, 20));
    MSG posted{};
    ASSERT_TRUE(PeekMessageW(&posted, f.frame.m_hWnd, WM_RBUTTONUP, WM_RBUTTONUP, PM_REMOVE));
    CPoint expected(10, 20);
    f.tabs.ClientToScreen(&expected);
    f.frame.ScreenToClient(&expected);
    EXPECT_EQ(MAKELPARAM(expected.x, expected.y), posted.lParam) << "in the parent's coordinates";
}

TEST(TabWndTest, DividerIsPaintedInFiveColumnsAndDragged) {
    TabFrame f;
    f.tabs.UpdateWindow();
    const int x = f.Child(59905).right;
    const int y = f.Child(59905).CenterPoint().y;
    HDC dc = ::GetDC(f.tabs.m_hWnd);
    const COLORREF expected[5] = {RGB(0, 0, 0), GetSysColor(COLOR_BTNHIGHLIGHT),
                                  GetSysColor(COLOR_3DFACE), GetSysColor(COLOR_BTNSHADOW),
                                  RGB(0, 0, 0)};
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(expected[i], ::GetPixel(dc, x + i, y)) << "column " << i;
    ::ReleaseDC(f.tabs.m_hWnd, dc);

    const int m = 4 * GetSystemMetrics(SM_CXHTHUMB) + 20;
    const int stripRight = f.Child(59904).right;
    struct Step {
        const char* name;
        int grab, dx, beamRight;
    } steps[] = {{"right 30", 2, 30, x + 30},
                 {"far left", 2, -1000, m},
                 {"far right", 2, 1000, stripRight - 5 - m},
                 {"a press beside the divider moves nothing", -20, -100, stripRight - 5 - m}};
    for (const Step& s : steps) {
        SCOPED_TRACE(s.name);
        const int from = f.Child(59905).right + s.grab;
        f.tabs.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(from, y));
        f.tabs.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(from + s.dx, y));
        f.tabs.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(from + s.dx, y));
        EXPECT_EQ(s.beamRight, f.Child(59905).right);
        EXPECT_EQ(s.beamRight + 5, f.Child(59904).left);
    }
    EXPECT_EQ(nullptr, ::GetCapture());
}

} // namespace

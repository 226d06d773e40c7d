// The frame substrate on real windows: bars and the pane laid out through
// WM_SIZEPARENT at several frame sizes, layout queries, idle updates of the
// bars, the active view and its activation calls, and the framework's window
// classes.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "framework/win/ControlBar.h"
#include "framework/win/FrameWnd.h"
#include "framework/win/View.h"
#include "framework/win/WindowClasses.h"
#include "support/TestWindow.h"

namespace {

// A bar of a fixed thickness on one side.
class FixedBar : public CControlBar {
public:
    FixedBar(DWORD align, int thickness) : m_thickness(thickness) { SetBarStyle(align); }
    BOOL Create(CWnd* parent, UINT id, bool visible = true) {
        return CreateEx(0, AFX_WNDCONTROLBAR, L"bar", WS_CHILD | (visible ? WS_VISIBLE : 0),
                        CRect(0, 0, 10, 10), parent, id);
    }
    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override {
        CSize size = CControlBar::CalcFixedLayout(bStretch, bHorz);
        (bHorz ? size.cy : size.cx) = m_thickness;
        return size;
    }
    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisable) override {
        updates.push_back({pTarget, bDisable});
    }
    struct Update {
        CFrameWnd* target;
        BOOL disable;
    };
    std::vector<Update> updates;

private:
    int m_thickness;
};

// Records its activation calls as text: "+name" activated, "-name" deactivated.
class NamedView : public CView {
public:
    NamedView(const char* name, std::string* log) : m_name(name), m_log(log) {}
    void OnActivateView(BOOL bActivate, CView* pActivate, CView* pDeactive) override {
        *m_log += (bActivate ? "+" : "-") + m_name + " ";
        CView::OnActivateView(bActivate, pActivate, pDeactive);
    }

private:
    std::string m_name;
    std::string* m_log;
};

CRect RectIn(HWND parent, const CWnd& child) {
    CRect r;
    child.GetWindowRect(&r);
    ::MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&r), 2);
    return r;
}

void ExpectRect(const CRect& expected, const CRect& actual, const char* what) {
    SCOPED_TRACE(what);
    EXPECT_EQ(expected.left, actual.left);
    EXPECT_EQ(expected.top, actual.top);
    EXPECT_EQ(expected.right, actual.right);
    EXPECT_EQ(expected.bottom, actual.bottom);
}

struct Frame {
    CFrameWnd frame;
    Frame(int width, int height) {
        CWnd* stage = CWnd::FromHandle(vutest::Stage());
        frame.Create(nullptr, L"frame", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN,
                     CRect(0, 0, width, height), stage);
    }
    void Resize(int width, int height) {
        frame.SetWindowPos(static_cast<HWND>(nullptr), 0, 0, width, height,
                           SWP_NOZORDER | SWP_NOMOVE | SWP_NOACTIVATE);
    }
};

TEST(FrameLayoutTest, BarsTakeTheirSidesAndThePaneGetsTheRest) {
    Frame f(400, 300);
    ASSERT_NE(f.frame.m_hWnd, nullptr);
    FixedBar top(CBRS_ALIGN_TOP, 24), bottom(CBRS_ALIGN_BOTTOM, 20), left(CBRS_ALIGN_LEFT, 30);
    FixedBar hidden(CBRS_ALIGN_BOTTOM, 50), floating(0, 40);
    ASSERT_TRUE(top.Create(&f.frame, 0xE801));
    ASSERT_TRUE(bottom.Create(&f.frame, 0xE802));
    ASSERT_TRUE(left.Create(&f.frame, 0xE803));
    ASSERT_TRUE(hidden.Create(&f.frame, 0xE804, false));
    ASSERT_TRUE(floating.Create(&f.frame, 0xE805));
    CView pane;
    ASSERT_TRUE(pane.Create(nullptr, L"pane", WS_CHILD | WS_VISIBLE, CRect(0, 0, 5, 5), &f.frame,
                            AFX_IDW_PANE_FIRST));
    const CRect floatingBefore = RectIn(f.frame.m_hWnd, floating);

    struct Size {
        const char* name;
        int width, height;
    } sizes[] = {{"640 x 200", 640, 200}, {"400 x 300", 400, 300}, {"90 x 80", 90, 80}};
    for (const Size& s : sizes) {
        SCOPED_TRACE(s.name);
        f.Resize(s.width, s.height); // WM_SIZE lays out
        const HWND h = f.frame.m_hWnd;
        // Children are offered the room in z-order: top, bottom, left, then the pane.
        ExpectRect(CRect(0, 0, s.width, 24), RectIn(h, top), "top bar");
        ExpectRect(CRect(0, s.height - 20, s.width, s.height), RectIn(h, bottom), "bottom bar");
        ExpectRect(CRect(0, 24, 30, s.height - 20), RectIn(h, left), "left bar");
        ExpectRect(CRect(30, 24, s.width, s.height - 20), RectIn(h, pane), "pane");
        ExpectRect(floatingBefore, RectIn(h, floating), "a floating bar stays put");
    }

    RECT query{};
    const RECT client{0, 0, 200, 100};
    f.frame.RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST, CFrameWnd::reposQuery, &query, &client);
    ExpectRect(CRect(30, 24, 200, 80), CRect(query), "query");
    ExpectRect(CRect(30, 24, 90, 60), RectIn(f.frame.m_hWnd, pane), "a query moves nothing");

    f.frame.UpdateControlBars(FALSE);
    ASSERT_EQ(1u, top.updates.size());
    EXPECT_EQ(&f.frame, top.updates[0].target);
    EXPECT_FALSE(top.updates[0].disable);
    EXPECT_TRUE(hidden.updates.empty()) << "hidden bars are not updated";
}

TEST(FrameLayoutTest, ActiveViewHearsActivationInOrder) {
    Frame f(300, 200);
    std::string log;
    NamedView a("a", &log), b("b", &log);
    ASSERT_TRUE(a.Create(nullptr, L"a", WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 100), &f.frame, 1));
    ASSERT_TRUE(
        b.Create(nullptr, L"b", WS_CHILD | WS_VISIBLE, CRect(100, 0, 200, 100), &f.frame, 2));
    EXPECT_EQ(&f.frame, a.GetParentFrame());

    f.frame.SetActiveView(&a);
    f.frame.SetActiveView(&a); // no change, no calls
    f.frame.SetActiveView(&b);
    EXPECT_EQ("+a -a +b ", log);
    EXPECT_EQ(&b, f.frame.GetActiveView());
    EXPECT_EQ(b.m_hWnd, ::GetFocus()) << "an activated view takes the focus";

    log.clear();
    f.frame.SetActiveView(&a, FALSE);
    EXPECT_EQ("", log);

    // A click activates the clicked view.
    ::SendMessageW(b.m_hWnd, WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(f.frame.m_hWnd),
                   MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN));
    EXPECT_EQ(&b, f.frame.GetActiveView());
    EXPECT_EQ("-a +b ", log);

    b.DestroyWindow();
    EXPECT_EQ(nullptr, f.frame.GetActiveView()) << "a destroyed view leaves the frame";
}

TEST(FrameLayoutTest, FrameworkClassesAndGeneratedClasses) {
    ASSERT_TRUE(AfxDeferRegisterClass(AFX_WNDCONTROLBAR_REG | AFX_WNDMDIFRAME_REG |
                                      AFX_WNDFRAMEORVIEW_REG));
    struct Row {
        const wchar_t* name;
        UINT style;
    } rows[] = {{L"AfxControlBar70u", CS_DBLCLKS},
                {L"AfxMDIFrame70u", CS_DBLCLKS},
                {L"AfxFrameOrView70u", CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW}};
    const HINSTANCE module = GetModuleHandleW(L"vulib.dll"); // classes live in the library
    for (const Row& r : rows) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(r.name)));
        WNDCLASSW wc{};
        ASSERT_TRUE(GetClassInfoW(module, r.name, &wc));
        EXPECT_EQ(r.style, wc.style);
    }

    HBRUSH grey = static_cast<HBRUSH>(GetStockObject(LTGRAY_BRUSH));
    const wchar_t* first = AfxRegisterWndClass(CS_HREDRAW, nullptr, grey);
    const wchar_t* again = AfxRegisterWndClass(CS_HREDRAW, nullptr, grey);
    const wchar_t* other = AfxRegisterWndClass(CS_VREDRAW, nullptr, grey);
    ASSERT_NE(first, nullptr);
    ASSERT_NE(other, nullptr);
    EXPECT_EQ(std::wstring(first), std::wstring(again));
    EXPECT_NE(std::wstring(first), std::wstring(other));
    WNDCLASSW wc{};
    ASSERT_TRUE(GetClassInfoW(module, first, &wc));
    EXPECT_EQ(grey, wc.hbrBackground);
}

} // namespace

// CWnd on real windows: the permanent and temporary handle maps, attaching,
// subclassing and its undoing, creation through the creation hook, the
// destruction path, and the exception barrier of the window procedure.
#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <thread>
#include <vector>

#include "foundation/win/MessageFilter.h"
#include "framework/win/ThreadState.h"
#include "framework/win/Wnd.h"
#include "support/TestWindow.h"

namespace {

const UINT kProbe = WM_APP + 11;

// Records what reaches the object and can answer or throw.
class ProbeWnd : public CWnd {
public:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        seen.push_back(message);
        if (message == kProbe && wParam == 1)
            return 100 + Default(); // the previous procedure's answer, through Default
        if (message == kProbe && wParam == 2)
            throw std::runtime_error("handler failed");
        return CWnd::WindowProc(message, wParam, lParam);
    }
    void PostNcDestroy() override { ++postNcDestroyCalls; }
    int Count(UINT message) const {
        return static_cast<int>(std::count(seen.begin(), seen.end(), message));
    }
    std::vector<UINT> seen;
    int postNcDestroyCalls = 0;
};

WNDPROC ProcedureOf(HWND hwnd) {
    return reinterpret_cast<WNDPROC>(GetWindowLongPtrW(hwnd, GWLP_WNDPROC));
}

TEST(WndMapTest, AttachIsPermanentAndOneToOneTemporaryWrappersArePerThread) {
    vutest::PlainWindow window;
    CWnd* temp = CWnd::FromHandle(window.hwnd);
    ASSERT_NE(temp, nullptr);
    EXPECT_EQ(CWnd::FromHandle(window.hwnd), temp); // reused
    EXPECT_EQ(CWnd::FromHandlePermanent(window.hwnd), nullptr);
    CWnd::DeleteTempMap();
    EXPECT_TRUE(IsWindow(window.hwnd)); // deleting a wrapper leaves the window

    CWnd wnd, other;
    ASSERT_TRUE(wnd.Attach(window.hwnd));
    EXPECT_EQ(CWnd::FromHandle(window.hwnd), &wnd);
    EXPECT_EQ(ProcedureOf(window.hwnd), vutest::PlainWindow::OwnProcedure()); // not subclassed
    EXPECT_FALSE(other.Attach(window.hwnd)); // one object per handle
    EXPECT_FALSE(wnd.Attach(window.hwnd));   // one handle per object
    CWnd* seenByWorker = &wnd;               // another thread has maps of its own
    std::thread([&] { seenByWorker = CWnd::FromHandlePermanent(window.hwnd); }).join();
    EXPECT_EQ(seenByWorker, nullptr);

    EXPECT_EQ(wnd.Detach(), window.hwnd);
    EXPECT_EQ(CWnd::FromHandlePermanent(window.hwnd), nullptr);
    EXPECT_TRUE(IsWindow(window.hwnd));
}

TEST(WndSubclassTest, MessagesReachWindowProcAndUnsubclassingUnderAFilterKeepsTheChain) {
    vutest::PlainWindow window;
    window.Answer(kProbe, 5);
    ProbeWnd wnd, second;
    EXPECT_FALSE(wnd.SubclassWindow(nullptr));
    ASSERT_TRUE(wnd.SubclassWindow(window.hwnd));
    EXPECT_FALSE(second.SubclassWindow(window.hwnd));

    // A throwing handler stops at the window procedure; the window stays routed.
    EXPECT_EQ(SendMessageW(window.hwnd, kProbe, 2, 0), 0);
    EXPECT_EQ(SendMessageW(window.hwnd, kProbe, 1, 0), 105);
    EXPECT_EQ(SendMessageW(window.hwnd, kProbe, 0, 0), 5); // base WindowProc: the old procedure
    EXPECT_EQ(wnd.Count(kProbe), 3);
    EXPECT_EQ(window.Count(kProbe), 2);

    struct Filter : VU_CMessageFilter {
        LRESULT OnMessage(UINT message, WPARAM, LPARAM) override {
            seen += message == kProbe ? 1 : 0;
            return 0;
        }
        int seen = 0;
    } filter;
    filter.ListenTo(window.hwnd);
    EXPECT_EQ(wnd.UnsubclassWindow(), window.hwnd); // not on top: it must keep forwarding
    EXPECT_EQ(CWnd::FromHandlePermanent(window.hwnd), nullptr);
    EXPECT_EQ(SendMessageW(window.hwnd, kProbe, 0, 0), 5);
    EXPECT_EQ(filter.seen, 1);
    EXPECT_EQ(wnd.Count(kProbe), 3);
    filter.StopListening();
    EXPECT_EQ(SendMessageW(window.hwnd, kProbe, 0, 0), 5);
    EXPECT_EQ(window.Count(kProbe), 4);
}

TEST(WndSubclassTest, DestructionDetachesAndCallsPostNcDestroy) {
    auto* window = new vutest::PlainWindow;
    HWND hwnd = window->hwnd;
    ProbeWnd wnd;
    ASSERT_TRUE(wnd.SubclassWindow(hwnd));
    delete window;
    EXPECT_EQ(wnd.Count(WM_NCDESTROY), 1);
    EXPECT_EQ(wnd.postNcDestroyCalls, 1);
    EXPECT_EQ(wnd.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(hwnd), nullptr);
}

TEST(WndCreateTest, CreateExSeesTheWindowFromItsFirstMessagesAndFailureLeavesNoHook) {
    vutest::PlainWindow parent;
    ProbeWnd wnd;
    ASSERT_TRUE(wnd.CreateEx(0, L"STATIC", L"caption", WS_CHILD, CRect(0, 0, 50, 20),
                             CWnd::FromHandle(parent.hwnd), 77));
    EXPECT_EQ(CWnd::FromHandlePermanent(wnd.m_hWnd), &wnd);
    EXPECT_EQ(wnd.GetDlgCtrlID(), 77);
    EXPECT_EQ(wnd.Count(WM_NCCREATE), 1);
    EXPECT_EQ(AfxGetThreadState()->m_pWndInit, nullptr);
    EXPECT_TRUE(wnd.DestroyWindow());
    EXPECT_EQ(wnd.m_hWnd, nullptr);

    EXPECT_FALSE(
        wnd.CreateEx(0, L"NoSuchWindowClass", nullptr, WS_POPUP, 0, 0, 10, 10, nullptr, nullptr));
    vutest::PlainWindow window; // not taken by a hook left behind
    EXPECT_EQ(CWnd::FromHandlePermanent(window.hwnd), nullptr);
}

} // namespace

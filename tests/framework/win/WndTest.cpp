// CWnd on real windows: the permanent and temporary handle maps, attaching,
// subclassing and its undoing, creation through the creation hook, the
// destruction path, and the exception barrier of the window procedure.
#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <thread>
#include <vector>

#include "foundation/win/MessageFilter.h"
#include "framework/win/ListBox.h"
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

// ---- handle maps --------------------------------------------------------------

TEST(WndMapTest, AttachMapsPermanentlyUntilDetach) {
    vutest::PlainWindow window;
    CWnd wnd;
    EXPECT_EQ(CWnd::FromHandlePermanent(window.hwnd), nullptr);
    ASSERT_TRUE(wnd.Attach(window.hwnd));
    EXPECT_EQ(CWnd::FromHandlePermanent(window.hwnd), &wnd);
    EXPECT_EQ(CWnd::FromHandle(window.hwnd), &wnd);
    EXPECT_EQ(ProcedureOf(window.hwnd), vutest::PlainWindow::OwnProcedure()); // not subclassed

    CWnd other;
    EXPECT_FALSE(other.Attach(window.hwnd)); // one object per handle
    EXPECT_FALSE(wnd.Attach(window.hwnd));   // one handle per object
    EXPECT_FALSE(other.Attach(nullptr));

    EXPECT_EQ(wnd.Detach(), window.hwnd);
    EXPECT_EQ(wnd.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(window.hwnd), nullptr);
    EXPECT_TRUE(IsWindow(window.hwnd));
}

TEST(WndMapTest, TemporaryWrappersAreReusedPerThreadAndNeverPermanent) {
    vutest::PlainWindow window;
    CWnd* temp = CWnd::FromHandle(window.hwnd);
    ASSERT_NE(temp, nullptr);
    EXPECT_EQ(temp->m_hWnd, window.hwnd);
    EXPECT_EQ(CWnd::FromHandle(window.hwnd), temp); // reused
    EXPECT_EQ(CWnd::FromHandlePermanent(window.hwnd), nullptr);
    EXPECT_EQ(CWnd::FromHandle(nullptr), nullptr);
    CWnd::DeleteTempMap();
    EXPECT_TRUE(IsWindow(window.hwnd)); // deleting a wrapper leaves the window

    CWnd wnd;
    ASSERT_TRUE(wnd.Attach(window.hwnd));
    CWnd* seenByWorker = &wnd;
    bool workerTempIsWrapper = false;
    std::thread worker([&] {
        // Another thread has its own maps: no permanent object, a wrapper of
        // its own, freed when the thread ends.
        seenByWorker = CWnd::FromHandlePermanent(window.hwnd);
        CWnd* temp = CWnd::FromHandle(window.hwnd);
        workerTempIsWrapper = temp != nullptr && temp != &wnd && temp->m_hWnd == window.hwnd;
    });
    worker.join();
    EXPECT_EQ(seenByWorker, nullptr);
    EXPECT_TRUE(workerTempIsWrapper);
    EXPECT_EQ(CWnd::FromHandlePermanent(window.hwnd), &wnd);
    wnd.Detach();
}

// ---- subclassing ----------------------------------------------------------------

TEST(WndSubclassTest, MessagesReachWindowProcAndDefaultReachesTheOldProcedure) {
    vutest::PlainWindow window;
    window.Answer(kProbe, 5);
    ProbeWnd wnd;
    ASSERT_TRUE(wnd.SubclassWindow(window.hwnd));
    EXPECT_NE(ProcedureOf(window.hwnd), vutest::PlainWindow::OwnProcedure());
    EXPECT_TRUE(wnd.IsSubclassed());

    // A throwing handler stops at the window procedure; the window stays routed.
    EXPECT_EQ(SendMessageW(window.hwnd, kProbe, 2, 0), 0);
    EXPECT_EQ(SendMessageW(window.hwnd, kProbe, 1, 0), 105);
    EXPECT_EQ(SendMessageW(window.hwnd, kProbe, 0, 0), 5); // base WindowProc: the old procedure
    EXPECT_EQ(wnd.Count(kProbe), 3);
    EXPECT_EQ(window.Count(kProbe), 2);

    EXPECT_EQ(wnd.UnsubclassWindow(), window.hwnd);
    EXPECT_EQ(ProcedureOf(window.hwnd), vutest::PlainWindow::OwnProcedure());
    EXPECT_EQ(CWnd::FromHandlePermanent(window.hwnd), nullptr);
    SendMessageW(window.hwnd, kProbe, 0, 0);
    EXPECT_EQ(wnd.Count(kProbe), 3);
    EXPECT_EQ(window.Count(kProbe), 3);
}

TEST(WndSubclassTest, SubclassFailsForBadOrTakenHandles) {
    vutest::PlainWindow window;
    ProbeWnd first, second;
    EXPECT_FALSE(first.SubclassWindow(nullptr));
    EXPECT_FALSE(first.SubclassWindow(reinterpret_cast<HWND>(static_cast<UINT_PTR>(0xDEAD0))));
    ASSERT_TRUE(first.SubclassWindow(window.hwnd));
    EXPECT_FALSE(second.SubclassWindow(window.hwnd));
    EXPECT_EQ(CWnd::FromHandlePermanent(window.hwnd), &first);
    first.UnsubclassWindow();
    EXPECT_EQ(first.UnsubclassWindow(), nullptr); // not subclassed any more
}

TEST(WndSubclassTest, UnsubclassUnderAFilterKeepsTheWindowWorking) {
    vutest::PlainWindow window;
    window.Answer(kProbe, 8);
    ProbeWnd wnd;
    ASSERT_TRUE(wnd.SubclassWindow(window.hwnd));
    struct Filter : VU_CMessageFilter {
        LRESULT OnMessage(UINT message, WPARAM, LPARAM) override {
            seen += message == kProbe ? 1 : 0;
            return 0;
        }
        int seen = 0;
    } filter;
    filter.ListenTo(window.hwnd);

    wnd.UnsubclassWindow(); // our procedure is not on top: it must keep forwarding
    EXPECT_EQ(SendMessageW(window.hwnd, kProbe, 0, 0), 8);
    EXPECT_EQ(filter.seen, 1);
    EXPECT_EQ(wnd.Count(kProbe), 0);
    filter.StopListening();
    EXPECT_EQ(SendMessageW(window.hwnd, kProbe, 0, 0), 8);
}

TEST(WndSubclassTest, DestructionDetachesAndCallsPostNcDestroy) {
    auto* window = new vutest::PlainWindow;
    HWND hwnd = window->hwnd;
    ProbeWnd wnd;
    ASSERT_TRUE(wnd.SubclassWindow(hwnd));
    delete window;
    EXPECT_EQ(wnd.Count(WM_DESTROY), 1);
    EXPECT_EQ(wnd.Count(WM_NCDESTROY), 1);
    EXPECT_EQ(wnd.postNcDestroyCalls, 1);
    EXPECT_EQ(wnd.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(hwnd), nullptr);
}

// ---- creation -----------------------------------------------------------------

TEST(WndCreateTest, CreateExSeesTheWindowFromItsFirstMessages) {
    vutest::PlainWindow parent;
    ProbeWnd wnd;
    ASSERT_TRUE(wnd.CreateEx(0, L"STATIC", L"caption", WS_CHILD, CRect(0, 0, 50, 20),
                             CWnd::FromHandle(parent.hwnd), 77));
    EXPECT_EQ(CWnd::FromHandlePermanent(wnd.m_hWnd), &wnd);
    EXPECT_EQ(wnd.GetDlgCtrlID(), 77);
    EXPECT_EQ(wnd.GetParent()->m_hWnd, parent.hwnd);
    EXPECT_EQ(wnd.Count(WM_NCCREATE), 1);
    EXPECT_EQ(wnd.Count(WM_CREATE), 1);
    CString text;
    wnd.GetWindowText(text);
    EXPECT_EQ(std::wstring(text.GetString()), L"caption");
    EXPECT_EQ(AfxGetThreadState()->m_pWndInit, nullptr);

    HWND hwnd = wnd.m_hWnd;
    EXPECT_TRUE(wnd.DestroyWindow());
    EXPECT_FALSE(IsWindow(hwnd));
    EXPECT_EQ(wnd.m_hWnd, nullptr);
}

TEST(WndCreateTest, FailedCreationLeavesTheObjectFree) {
    ProbeWnd wnd;
    EXPECT_FALSE(
        wnd.CreateEx(0, L"NoSuchWindowClass", nullptr, WS_POPUP, 0, 0, 10, 10, nullptr, nullptr));
    EXPECT_EQ(wnd.m_hWnd, nullptr);
    // The hook is gone: a later plain window is not taken by anyone.
    vutest::PlainWindow window;
    EXPECT_EQ(CWnd::FromHandlePermanent(window.hwnd), nullptr);
    EXPECT_EQ(ProcedureOf(window.hwnd), vutest::PlainWindow::OwnProcedure());
}

TEST(WndCreateTest, ObjectThatDiesDestroysItsWindowCreatedOrAttached) {
    vutest::PlainWindow parent, attached;
    HWND created = nullptr, attachedHwnd = attached.hwnd; // the helper forgets it when destroyed
    {
        CListBox list;
        ASSERT_TRUE(list.Create(WS_VISIBLE | LBS_NOTIFY, CRect(0, 0, 100, 80), parent.hwnd, 5));
        created = list.m_hWnd;
        list.AddString(L"one");
        EXPECT_EQ(list.GetCount(), 1);
        CWnd wnd;
        ASSERT_TRUE(wnd.Attach(attachedHwnd));
    }
    for (HWND hwnd : {created, attachedHwnd}) {
        EXPECT_FALSE(IsWindow(hwnd));
        EXPECT_EQ(CWnd::FromHandlePermanent(hwnd), nullptr);
    }
    EXPECT_TRUE(IsWindow(parent.hwnd));
}

} // namespace

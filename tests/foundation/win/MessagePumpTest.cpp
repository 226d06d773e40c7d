// The library's own pump: quit handling, WM_KICKIDLE, the pause and audit
// entry before the control notification, the trace description, and
// waiting for one message.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "foundation/win/HostServices.h"
#include "foundation/win/MessagePump.h"
#include "framework/win/ThreadState.h"
#include "framework/win/WinThread.h"
#include "framework/win/Wnd.h"
#include "support/TestWindow.h"

namespace {

struct AuditEntry {
    DWORD type;
    std::wstring function;
    std::wstring text;
    double atMs;
};

// Records audit entries and wait-cursor calls instead of showing them.
class RecordingServices : public VU_CHostServices {
public:
    void LogAuditTrail(DWORD type, const wchar_t* function, const wchar_t* text) override {
        entries.push_back({type, function, text, vutest::NowMs()});
    }
    void BeginWaitCursor() override { ++begins; }
    void EndWaitCursor() override { ++ends; }

    std::vector<AuditEntry> entries;
    int begins = 0;
    int ends = 0;
};

// A framework window over a plain one, counting what it is offered.
class CountingWnd : public CWnd {
public:
    BOOL PreTranslateMessage(MSG* pMsg) override {
        preTranslated.push_back(pMsg->message);
        return pMsg->message == consume ? TRUE : FALSE;
    }
    std::vector<UINT> preTranslated;
    UINT consume = 0;
};

class MessagePumpTest : public ::testing::Test {
protected:
    void SetUp() override {
        vutest::DrainQueue();
        previous = VuSetHostServices(&services);
        ASSERT_TRUE(wnd.SubclassWindow(window.hwnd));
    }
    void TearDown() override {
        wnd.UnsubclassWindow();
        EXPECT_EQ(VuSetHostServices(previous), &services); // the installed set is handed back
        vutest::DrainQueue();
    }

    vutest::PlainWindow window;
    CountingWnd wnd;
    RecordingServices services;
    VU_CHostServices* previous = nullptr;
};

std::wstring S(const CString& s) {
    return s.GetString();
}

// ---- draining the queue -------------------------------------------------------

TEST_F(MessagePumpTest, DrainTranslatesDispatchesAndHonoursPreTranslate) {
    for (int i = 0; i < 3; ++i)
        PostMessageW(window.hwnd, WM_APP + 2, i, 0);
    PostMessageW(window.hwnd, WM_KEYDOWN, 'A', 1);
    wnd.consume = WM_APP + 5;
    PostMessageW(window.hwnd, WM_APP + 5, 0, 0);
    EXPECT_TRUE(VuWaitForMessageQueue());
    EXPECT_EQ(window.Count(WM_APP + 2), 3);
    EXPECT_EQ(window.Count(WM_KEYDOWN), 1);
    EXPECT_EQ(window.Count(WM_CHAR), 1);    // translated into a character
    EXPECT_EQ(window.Count(WM_APP + 5), 0); // pre-translated: not dispatched
    EXPECT_TRUE(services.entries.empty());  // ordinary messages write no audit entry
    MSG msg;
    EXPECT_FALSE(PeekMessageW(&msg, nullptr, 0, 0, PM_NOREMOVE));
}

TEST_F(MessagePumpTest, QuitEndsThePumpAndIsPostedAgain) {
    PostMessageW(window.hwnd, WM_APP + 3, 0, 0);
    PostQuitMessage(7);
    EXPECT_FALSE(VuWaitForMessageQueue());
    EXPECT_EQ(window.Count(WM_APP + 3), 1); // messages before the quit were handled
    MSG msg{};
    ASSERT_TRUE(PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(msg.message, static_cast<UINT>(WM_QUIT));
    EXPECT_EQ(msg.wParam, 7u);

    // Waiting for the quit itself succeeds, and the quit is posted again.
    PostQuitMessage(9);
    EXPECT_TRUE(VuWaitForMessage(nullptr, WM_QUIT, WM_QUIT, 1));
    ASSERT_TRUE(PeekMessageW(&msg, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(msg.wParam, 9u);
}

TEST_F(MessagePumpTest, KickIdleIsNeitherTranslatedNorDispatched) {
    VuResetMessageTrace();
    PostMessageW(window.hwnd, WM_KICKIDLE, 0, 0);
    EXPECT_TRUE(VuInternalPumpMessage());
    EXPECT_EQ(AfxGetThreadState()->m_msgCur.message, static_cast<UINT>(WM_KICKIDLE));
    EXPECT_TRUE(wnd.preTranslated.empty());
    EXPECT_EQ(window.Count(WM_KICKIDLE), 0);
    // The pump keeps the latest trace.
    EXPECT_NE(S(VuGetLastPumpTrace()).find(L"0x0000036a - WM_KICKIDLE"), std::wstring::npos);
}

TEST_F(MessagePumpTest, ControlNotificationIsAuditedAndDelayed) {
    double dispatchedAt = 0;
    window.onMessage = [&](UINT message, WPARAM, LPARAM, LRESULT*) {
        if (message == VU_WM_CONTROL_NOTIFICATION)
            dispatchedAt = vutest::NowMs();
        return false;
    };
    PostMessageW(window.hwnd, VU_WM_CONTROL_NOTIFICATION, 0, 0);
    const double start = vutest::NowMs();
    EXPECT_TRUE(VuWaitForMessageQueue());
    ASSERT_EQ(services.entries.size(), 1u);
    const AuditEntry& entry = services.entries[0];
    EXPECT_EQ(entry.type, 132u);
    EXPECT_EQ(entry.function, L"VuInternalPumpMessage()");
    EXPECT_EQ(entry.text, L"Sleep(150) before Dispatch...");
    ASSERT_GT(dispatchedAt, 0);
    // The entry is written before the pause; the pause comes before dispatch.
    EXPECT_GE(dispatchedAt - entry.atMs, 140.0);
    EXPECT_LT(entry.atMs - start, 100.0);
}

// ---- waiting for one message -------------------------------------------------

TEST_F(MessagePumpTest, WaitForMessageSucceedsWhenTheMessageComesAndTimesOutOtherwise) {
    SetTimer(window.hwnd, 1, 200, nullptr);
    double start = vutest::NowMs();
    EXPECT_TRUE(VuWaitForMessage(window.hwnd, WM_TIMER, WM_TIMER, 5));
    const double waited = vutest::NowMs() - start;
    KillTimer(window.hwnd, 1);
    EXPECT_GE(waited, 150.0);
    EXPECT_LT(waited, 3000.0);
    EXPECT_EQ(window.Count(WM_TIMER), 1);

    vutest::PlainWindow other;
    PostMessageW(other.hwnd, WM_APP + 8, 0, 0); // another window's message does not count
    start = vutest::NowMs();
    EXPECT_FALSE(VuWaitForMessage(window.hwnd, WM_APP + 8, WM_APP + 8, 1));
    EXPECT_GE(vutest::NowMs() - start, 990.0);
    EXPECT_EQ(other.Count(WM_APP + 8), 0); // and is left in the queue
    EXPECT_EQ(services.begins, 2);
    EXPECT_EQ(services.ends, 2);
}

// ---- trace description ---------------------------------------------------------

TEST(MessageTraceTest, FullDescriptionSameAndWindowText) {
    VuResetMessageTrace();
    MSG msg{};
    msg.hwnd = reinterpret_cast<HWND>(static_cast<UINT_PTR>(0x1234));
    msg.message = 275;
    msg.wParam = 0xABCD;
    msg.lParam = 0x10;
    msg.time = 0x99;
    msg.pt.x = 12;
    msg.pt.y = -1;
    CString expected;
    expected.Format(
        L"\n\t\tThreadID = 0x%08x\n\t\tText     = Unavailable\n\t\thwnd     = 0x00001234"
        L"\n\t\tmessage  = 0x00000113 - WM_TIMER\n\t\twParam   = 0x0000abcd"
        L"\n\t\tlParam   = 0x00000010\n\t\ttime     = 0x00000099"
        L"\n\t\tpt.x     = 0x0000000c\n\t\tpt.y     = 0xffffffff\n\t\t",
        static_cast<unsigned>(GetCurrentThreadId()));
    EXPECT_EQ(S(VuDescribeMessage(msg)), S(expected));
    EXPECT_EQ(S(VuDescribeMessage(msg)), L"same");

    // A window the framework knows shows its text; a new hwnd makes the message new.
    vutest::PlainWindow window;
    SetWindowTextW(window.hwnd, L"Rung 12");
    CWnd wnd;
    ASSERT_TRUE(wnd.Attach(window.hwnd));
    msg.hwnd = window.hwnd;
    EXPECT_NE(S(VuDescribeMessage(msg)).find(L"Text     = Rung 12\n"), std::wstring::npos);
    wnd.Detach();
}

} // namespace

// Message filters on real windows: order, swallowing, removal in any order,
// AfterMessage results and filters that leave while the window is destroyed.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "foundation/win/MessageFilter.h"
#include "support/TestWindow.h"

namespace {

const UINT kProbe = WM_APP + 1;

// Appends "<name>.on" / "<name>.after" to a shared log and answers as told.
class RecordingFilter : public VU_CMessageFilter {
public:
    RecordingFilter(std::string name, std::vector<std::string>* log)
        : m_name(std::move(name)), m_log(log) {}

    LRESULT OnMessage(UINT message, WPARAM, LPARAM) override {
        if (message == kProbe)
            m_log->push_back(m_name + ".on");
        if (onMessage)
            return onMessage(message);
        return message == kProbe ? onResult : 0;
    }
    LRESULT AfterMessage(UINT message, WPARAM, LPARAM) override {
        if (message == kProbe)
            m_log->push_back(m_name + ".after");
        if (afterMessage)
            return afterMessage(message);
        return message == kProbe ? afterResult : 0;
    }

    LRESULT onResult = 0;
    LRESULT afterResult = 0;
    std::function<LRESULT(UINT)> onMessage;
    std::function<LRESULT(UINT)> afterMessage;

private:
    std::string m_name;
    std::vector<std::string>* m_log;
};

class MessageFilterTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_NE(window.hwnd, nullptr);
        window.onMessage = [this](UINT message, WPARAM, LPARAM, LRESULT* result) {
            if (message != kProbe)
                return false;
            log.push_back("window");
            *result = windowResult;
            return true;
        };
    }

    WNDPROC CurrentProcedure() const {
        return reinterpret_cast<WNDPROC>(GetWindowLongPtrW(window.hwnd, GWLP_WNDPROC));
    }
    LRESULT Probe() { return SendMessageW(window.hwnd, kProbe, 0, 0); }
    int FilterCount() const {
        VU_CMessageFilterArray* array = nullptr;
        return VU_CMessageFilter::Lookup(window.hwnd, &array) ? static_cast<int>(array->GetSize())
                                                              : 0;
    }

    vutest::PlainWindow window;
    std::vector<std::string> log;
    LRESULT windowResult = 5;
};

using Log = std::vector<std::string>;

// ---- order and swallowing ---------------------------------------------------

TEST_F(MessageFilterTest, NewestFilterIsAskedFirstAndAfterMessagesFollowTheWindow) {
    RecordingFilter older("older", &log), newer("newer", &log);
    older.ListenTo(window.hwnd);
    newer.ListenTo(window.hwnd);

    EXPECT_EQ(Probe(), 5);
    EXPECT_EQ(log, (Log{"newer.on", "older.on", "window", "newer.after", "older.after"}));
    newer.StopListening();
    older.StopListening();
}

TEST_F(MessageFilterTest, NonZeroOnMessageEndsTheMessageWithItsValue) {
    RecordingFilter older("older", &log), newer("newer", &log);
    older.ListenTo(window.hwnd);
    newer.ListenTo(window.hwnd);
    newer.onResult = 42;

    EXPECT_EQ(Probe(), 42);
    EXPECT_EQ(log, (Log{"newer.on"})); // no older filter, no window, no AfterMessage
    EXPECT_EQ(window.Count(kProbe), 0);

    log.clear();
    newer.onResult = 0;
    older.onResult = -7;
    EXPECT_EQ(Probe(), -7);
    EXPECT_EQ(log, (Log{"newer.on", "older.on"}));
    newer.StopListening();
    older.StopListening();
}

TEST_F(MessageFilterTest, NonZeroAfterMessageMakesTheResultOne) {
    struct Row {
        LRESULT windowResult;
        LRESULT newerAfter;
        LRESULT olderAfter;
        LRESULT expected;
        Log expectedLog;
    };
    const Row rows[] = {
        {77, 0, 0, 77, {"newer.on", "older.on", "window", "newer.after", "older.after"}},
        {77, 0, 9, 1, {"newer.on", "older.on", "window", "newer.after", "older.after"}},
        {0, 9, 0, 1, {"newer.on", "older.on", "window", "newer.after"}}, // walk stops
        {-5, -1, 0, 1, {"newer.on", "older.on", "window", "newer.after"}},
    };
    RecordingFilter older("older", &log), newer("newer", &log);
    older.ListenTo(window.hwnd);
    newer.ListenTo(window.hwnd);
    for (const Row& row : rows) {
        SCOPED_TRACE(::testing::Message() << "window " << row.windowResult << ", after "
                                          << row.newerAfter << "/" << row.olderAfter);
        log.clear();
        windowResult = row.windowResult;
        newer.afterResult = row.newerAfter;
        older.afterResult = row.olderAfter;
        EXPECT_EQ(Probe(), row.expected);
        EXPECT_EQ(log, row.expectedLog);
    }
    newer.StopListening();
    older.StopListening();
}

// ---- removal keeps the chain intact -----------------------------------------

TEST_F(MessageFilterTest, RemovingTheOlderFilterHandsTheWindowProcedureToTheNewer) {
    const WNDPROC own = CurrentProcedure();
    RecordingFilter older("older", &log), newer("newer", &log);
    older.ListenTo(window.hwnd);
    newer.ListenTo(window.hwnd);

    const WNDPROC filtered = CurrentProcedure();
    EXPECT_NE(filtered, own);
    older.StopListening();
    EXPECT_FALSE(older.IsHooked());
    EXPECT_EQ(CurrentProcedure(), filtered);
    EXPECT_EQ(FilterCount(), 1);
    EXPECT_EQ(Probe(), 5);
    EXPECT_EQ(log, (Log{"newer.on", "window", "newer.after"}));

    newer.StopListening();
    EXPECT_EQ(CurrentProcedure(), own);
    EXPECT_EQ(FilterCount(), 0);
}

TEST_F(MessageFilterTest, RemovingTheNewerFilterLeavesTheOlderInCharge) {
    const WNDPROC own = CurrentProcedure();
    RecordingFilter older("older", &log), newer("newer", &log);
    older.ListenTo(window.hwnd);
    newer.ListenTo(window.hwnd);

    const WNDPROC filtered = CurrentProcedure();
    newer.StopListening();
    EXPECT_EQ(CurrentProcedure(), filtered);
    EXPECT_EQ(Probe(), 5);
    EXPECT_EQ(log, (Log{"older.on", "window", "older.after"}));

    older.StopListening();
    EXPECT_EQ(CurrentProcedure(), own);
}

TEST_F(MessageFilterTest, RemovingTheMiddleOfThreeRepairsTheChain) {
    RecordingFilter first("first", &log), middle("middle", &log), last("last", &log);
    first.ListenTo(window.hwnd);
    middle.ListenTo(window.hwnd);
    last.ListenTo(window.hwnd);

    middle.StopListening();
    EXPECT_EQ(Probe(), 5);
    EXPECT_EQ(log, (Log{"last.on", "first.on", "window", "last.after", "first.after"}));

    // Removing the oldest next must still leave the window reachable.
    log.clear();
    first.StopListening();
    EXPECT_EQ(Probe(), 5);
    EXPECT_EQ(log, (Log{"last.on", "window", "last.after"}));
    last.StopListening();
}

TEST_F(MessageFilterTest, RemovingTheOnlyFilterRestoresTheProcedureAndEmptiesTheRegistry) {
    const WNDPROC own = CurrentProcedure();
    const int watchedBefore = VU_CMessageFilter::GetWatchedWindowCount();
    {
        RecordingFilter only("only", &log);
        only.ListenTo(window.hwnd);
        EXPECT_TRUE(only.IsHooked());
        EXPECT_EQ(only.GetHookedWindow(), window.hwnd);
        EXPECT_TRUE(VU_CMessageFilter::Lookup(window.hwnd, nullptr));
        EXPECT_EQ(VU_CMessageFilter::GetWatchedWindowCount(), watchedBefore + 1);
        only.StopListening();
        EXPECT_EQ(CurrentProcedure(), own);
        EXPECT_FALSE(VU_CMessageFilter::Lookup(window.hwnd, nullptr));
        EXPECT_EQ(VU_CMessageFilter::GetWatchedWindowCount(), watchedBefore);
        only.StopListening(); // a second stop changes nothing
        EXPECT_EQ(CurrentProcedure(), own);
    }
    EXPECT_EQ(Probe(), 5);
    EXPECT_EQ(log, (Log{"window"}));
}

TEST_F(MessageFilterTest, DestroyingAFilterStopsItListening) {
    const WNDPROC own = CurrentProcedure();
    {
        RecordingFilter scoped("scoped", &log);
        scoped.ListenTo(window.hwnd);
    }
    EXPECT_EQ(CurrentProcedure(), own);
    EXPECT_FALSE(VU_CMessageFilter::Lookup(window.hwnd, nullptr));
}

TEST_F(MessageFilterTest, StoppingACopyThatIsNotRegisteredOnlyClearsTheCopy) {
    RecordingFilter original("original", &log);
    original.ListenTo(window.hwnd);
    RecordingFilter copy(original); // same window and saved procedure, not in the array
    EXPECT_TRUE(copy.IsHooked());

    copy.StopListening();
    EXPECT_FALSE(copy.IsHooked());
    EXPECT_EQ(copy.GetHookedWindow(), nullptr);
    EXPECT_EQ(FilterCount(), 1);
    EXPECT_EQ(Probe(), 5);
    EXPECT_EQ(log, (Log{"original.on", "window", "original.after"}));
    original.StopListening();
}

TEST_F(MessageFilterTest, ListeningToNoWindowLeavesTheFilterIdle) {
    RecordingFilter filter("filter", &log);
    const int watchedBefore = VU_CMessageFilter::GetWatchedWindowCount();
    filter.ListenTo(nullptr);
    EXPECT_FALSE(filter.IsHooked());
    HWND dead =
        CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    DestroyWindow(dead);
    filter.ListenTo(dead);
    EXPECT_FALSE(filter.IsHooked());
    EXPECT_EQ(filter.GetHookedWindow(), nullptr);
    EXPECT_EQ(VU_CMessageFilter::GetWatchedWindowCount(), watchedBefore);
    filter.StopListening();
}

// ---- destruction -------------------------------------------------------------

TEST(MessageFilterDestroyTest, FiltersLeavingDuringTheirOwnWmDestroy) {
    std::vector<std::string> log;
    auto* window = new vutest::PlainWindow;
    HWND hwnd = window->hwnd;
    RecordingFilter older("older", &log), newer("newer", &log);
    older.ListenTo(hwnd);
    newer.ListenTo(hwnd);
    // The newer filter drops both filters when it sees WM_DESTROY, before
    // the window's own procedure runs.
    newer.onMessage = [&](UINT message) -> LRESULT {
        if (message == WM_DESTROY) {
            newer.StopListening();
            older.StopListening();
        }
        return 0;
    };

    delete window; // DestroyWindow
    EXPECT_FALSE(IsWindow(hwnd));
    EXPECT_FALSE(older.IsHooked());
    EXPECT_FALSE(newer.IsHooked());
    EXPECT_FALSE(VU_CMessageFilter::Lookup(hwnd, nullptr));
}

TEST(MessageFilterDestroyTest, WindowProcedureDropsTheFiltersWhileHandlingWmDestroy) {
    std::vector<std::string> log;
    vutest::PlainWindow window;
    HWND hwnd = window.hwnd;
    RecordingFilter older("older", &log), newer("newer", &log);
    older.ListenTo(hwnd);
    newer.ListenTo(hwnd);
    int afterDestroyCalls = 0;
    newer.afterMessage = older.afterMessage = [&](UINT message) -> LRESULT {
        afterDestroyCalls += message == WM_DESTROY ? 1 : 0;
        return 0;
    };
    bool ownProcedureSawDestroy = false;
    window.onMessage = [&](UINT message, WPARAM, LPARAM, LRESULT*) {
        if (message == WM_DESTROY) {
            ownProcedureSawDestroy = true;
            older.StopListening(); // the array vanishes under the dispatcher
            newer.StopListening();
        }
        return false;
    };

    DestroyWindow(hwnd);
    EXPECT_TRUE(ownProcedureSawDestroy);
    EXPECT_EQ(afterDestroyCalls, 0);
    EXPECT_FALSE(VU_CMessageFilter::Lookup(hwnd, nullptr));
    EXPECT_FALSE(newer.IsHooked());
}

TEST(MessageFilterDestroyTest, FilterLeavingInAfterMessageOfWmNcDestroy) {
    std::vector<std::string> log;
    vutest::PlainWindow window;
    HWND hwnd = window.hwnd;
    RecordingFilter older("older", &log), newer("newer", &log);
    older.ListenTo(hwnd);
    newer.ListenTo(hwnd);
    int olderNcDestroyAfter = 0;
    newer.afterMessage = [&](UINT message) -> LRESULT {
        if (message == WM_NCDESTROY)
            newer.StopListening();
        return 0;
    };
    older.afterMessage = [&](UINT message) -> LRESULT {
        if (message == WM_NCDESTROY) {
            ++olderNcDestroyAfter;
            older.StopListening();
        }
        return 0;
    };

    DestroyWindow(hwnd);
    EXPECT_EQ(olderNcDestroyAfter, 1); // still called after the newer one left
    EXPECT_FALSE(VU_CMessageFilter::Lookup(hwnd, nullptr));
}

} // namespace

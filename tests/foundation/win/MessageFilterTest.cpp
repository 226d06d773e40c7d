// Message filters on real windows: order, swallowing, removal in any order,
// AfterMessage results and filters that leave while the window is destroyed.
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "foundation/win/MessageFilter.h"
#include "support/TestWindow.h"

namespace {

const UINT kProbe = WM_APP + 1;
using Log = std::string; // entries joined by spaces

// Appends "<name>.on" / "<name>.after" to a shared log and answers as told.
class RecordingFilter : public VU_CMessageFilter {
public:
    RecordingFilter(std::string name, Log* log) : m_name(std::move(name)), m_log(log) {}

    LRESULT OnMessage(UINT message, WPARAM, LPARAM) override {
        return Answer(message, ".on", onMessage, onResult);
    }
    LRESULT AfterMessage(UINT message, WPARAM, LPARAM) override {
        return Answer(message, ".after", afterMessage, afterResult);
    }

    LRESULT onResult = 0;
    LRESULT afterResult = 0;
    std::function<LRESULT(UINT)> onMessage;
    std::function<LRESULT(UINT)> afterMessage;

private:
    LRESULT Answer(UINT message, const char* step, const std::function<LRESULT(UINT)>& custom,
                   LRESULT result) {
        if (message == kProbe)
            *m_log += (m_log->empty() ? "" : " ") + m_name + step;
        if (custom)
            return custom(message);
        return message == kProbe ? result : 0;
    }

    std::string m_name;
    Log* m_log;
};

// Two filters on one window, the newer asked first. A filter stops
// listening when it is destroyed.
struct FilterPair {
    explicit FilterPair(HWND hwnd, Log* log = nullptr)
        : older("older", log ? log : &own), newer("newer", log ? log : &own) {
        older.ListenTo(hwnd);
        newer.ListenTo(hwnd);
    }
    Log own;
    RecordingFilter older, newer;
};

class MessageFilterTest : public ::testing::Test {
protected:
    void SetUp() override {
        window.onMessage = [this](UINT message, WPARAM, LPARAM, LRESULT* result) {
            if (message != kProbe)
                return false;
            log += log.empty() ? "window" : " window";
            *result = windowResult;
            return true;
        };
    }

    WNDPROC CurrentProcedure() const {
        return reinterpret_cast<WNDPROC>(GetWindowLongPtrW(window.hwnd, GWLP_WNDPROC));
    }
    LRESULT Probe() {
        log.clear();
        return SendMessageW(window.hwnd, kProbe, 0, 0);
    }
    int FilterCount() const {
        VU_CMessageFilterArray* array = nullptr;
        return VU_CMessageFilter::Lookup(window.hwnd, &array) ? int(array->GetSize()) : 0;
    }

    vutest::PlainWindow window;
    Log log;
    LRESULT windowResult = 5;
};

// A non-zero OnMessage ends the message with its value; a non-zero
// AfterMessage makes the result 1 and ends the walk.
TEST_F(MessageFilterTest, OrderAndResults) {
    struct Row {
        const char* name;
        LRESULT windowResult, newerOn, olderOn, newerAfter, olderAfter, expected;
        Log log;
    };
    const Log all = "newer.on older.on window newer.after older.after";
    const Log stopsAfterNewer = "newer.on older.on window newer.after";
    const Row rows[] = {
        {"newer swallows", 5, 42, 0, 0, 0, 42, "newer.on"},
        {"older swallows", 5, 0, -7, 0, 0, -7, "newer.on older.on"},
        {"older AfterMessage", 77, 0, 0, 0, 9, 1, all},
        {"newer AfterMessage stops the walk", 0, 0, 0, 9, 0, 1, stopsAfterNewer},
        {"negative AfterMessage", -5, 0, 0, -1, 0, 1, stopsAfterNewer},
    };
    FilterPair pair(window.hwnd, &log);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        windowResult = row.windowResult;
        pair.newer.onResult = row.newerOn;
        pair.older.onResult = row.olderOn;
        pair.newer.afterResult = row.newerAfter;
        pair.older.afterResult = row.olderAfter;
        EXPECT_EQ(Probe(), row.expected);
        EXPECT_EQ(log, row.log);
    }
}

// Filters f0, f1, ... listen in turn and leave in the row's order: the rest
// still reach the window, and the last to leave restores its own procedure.
TEST_F(MessageFilterTest, RemovalInAnyOrderKeepsTheChain) {
    struct Row {
        const char* name;
        std::vector<int> stopOrder; // one entry per filter
        std::vector<Log> logs;      // after each removal
    };
    const Row rows[] = {
        {"newer first", {1, 0}, {"f0.on window f0.after", "window"}},
        {"middle, then oldest",
         {1, 0, 2},
         {"f2.on f0.on window f2.after f0.after", "f2.on window f2.after", "window"}},
    };
    const WNDPROC own = CurrentProcedure();
    const int watchedBefore = VU_CMessageFilter::GetWatchedWindowCount();
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        std::vector<std::unique_ptr<RecordingFilter>> filters;
        for (std::size_t i = 0; i < row.stopOrder.size(); ++i) {
            filters.push_back(std::make_unique<RecordingFilter>(
                std::string{'f', static_cast<char>('0' + i)}, &log));
            filters.back()->ListenTo(window.hwnd);
        }
        const WNDPROC filtered = CurrentProcedure();
        EXPECT_NE(filtered, own);
        EXPECT_EQ(VU_CMessageFilter::GetWatchedWindowCount(), watchedBefore + 1);
        for (std::size_t k = 0; k < row.stopOrder.size(); ++k) {
            filters[row.stopOrder[k]]->StopListening();
            const int left = static_cast<int>(row.stopOrder.size() - k - 1);
            EXPECT_EQ(CurrentProcedure(), left == 0 ? own : filtered);
            EXPECT_EQ(FilterCount(), left);
            EXPECT_EQ(Probe(), 5);
            EXPECT_EQ(log, row.logs[k]);
        }
        EXPECT_EQ(VU_CMessageFilter::GetWatchedWindowCount(), watchedBefore);
    }
}

// A destroyed filter stops listening; a destroyed window leaves one idle.
TEST_F(MessageFilterTest, DestroyedAndIdleFiltersLeaveNoTrace) {
    const WNDPROC own = CurrentProcedure();
    {
        RecordingFilter scoped("scoped", &log);
        scoped.ListenTo(window.hwnd);
    }
    EXPECT_EQ(CurrentProcedure(), own);
    EXPECT_FALSE(VU_CMessageFilter::Lookup(window.hwnd, nullptr));
    RecordingFilter filter("filter", &log);
    HWND dead =
        CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    DestroyWindow(dead);
    filter.ListenTo(dead);
    EXPECT_FALSE(filter.IsHooked());
}

// ---- filters that leave while the window is destroyed ------------------------

TEST(MessageFilterDestroyTest, WindowProcedureDropsTheFiltersWhileHandlingWmDestroy) {
    vutest::PlainWindow window;
    FilterPair pair(window.hwnd);
    int afterDestroyCalls = 0;
    pair.newer.afterMessage = pair.older.afterMessage = [&](UINT message) -> LRESULT {
        afterDestroyCalls += message == WM_DESTROY ? 1 : 0;
        return 0;
    };
    bool ownProcedureSawDestroy = false;
    window.onMessage = [&](UINT message, WPARAM, LPARAM, LRESULT*) {
        if (message == WM_DESTROY) {
            ownProcedureSawDestroy = true;
            pair.older.StopListening(); // the array vanishes under the dispatcher
            pair.newer.StopListening();
        }
        return false;
    };
    DestroyWindow(window.hwnd);
    EXPECT_TRUE(ownProcedureSawDestroy);
    EXPECT_EQ(afterDestroyCalls, 0);
    EXPECT_FALSE(VU_CMessageFilter::Lookup(window.hwnd, nullptr));
}

TEST(MessageFilterDestroyTest, FilterLeavingInAfterMessageOfWmNcDestroy) {
    vutest::PlainWindow window;
    FilterPair pair(window.hwnd);
    int olderNcDestroyAfter = 0;
    pair.newer.afterMessage = [&](UINT message) -> LRESULT {
        if (message == WM_NCDESTROY)
            pair.newer.StopListening();
        return 0;
    };
    pair.older.afterMessage = [&](UINT message) -> LRESULT {
        if (message == WM_NCDESTROY) {
            ++olderNcDestroyAfter;
            pair.older.StopListening();
        }
        return 0;
    };
    DestroyWindow(window.hwnd);
    EXPECT_EQ(olderNcDestroyAfter, 1); // still called after the newer one left
    EXPECT_FALSE(VU_CMessageFilter::Lookup(window.hwnd, nullptr));
}

} // namespace

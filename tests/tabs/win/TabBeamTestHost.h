#pragma once
// A tab beam on a visible top-level plain window that records what it is
// sent (kept for the whole run: Wine waits for a window manager whenever a
// visible top-level window goes away), with helpers for real messages.
#include "framework/win/ClientDC.h"
#include "support/TestWindow.h"
#include "tabs/win/TabBeam.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace tabtest {

// The beam with its protected parts reachable from the tests.
struct TestBeam : Vu_CTabBeam {
    using Vu_CTabBeam::m_dropTarget;
    using Vu_CTabBeam::m_nAutoScrollTimer;
    using Vu_CTabBeam::m_nFirstVisible;
    using Vu_CTabBeam::m_toolTip;
    int MeasureTabTextForTest(const wchar_t* text, bool bBold) {
        return MeasureTabText(vu::StringView(text), bBold);
    }
};

inline vutest::PlainWindow& Host() {
    static vutest::PlainWindow* host = [] {
        auto* window = new vutest::PlainWindow(nullptr, WS_VISIBLE);
        SetWindowPos(window->hwnd, nullptr, 0, 0, 700, 200, SWP_NOZORDER | SWP_NOACTIVATE);
        return window;
    }();
    return *host;
}

class BeamTest : public ::testing::Test {
protected:
    void SetUp() override {
        Host().received.clear();
        Host().onMessage = nullptr;
        parent.Attach(Host().hwnd);
        beam = std::make_unique<TestBeam>();
        ASSERT_TRUE(beam->Create(WS_VISIBLE, CRect(0, 0, 600, 20), &parent, 7));
    }
    void TearDown() override {
        beam.reset();
        parent.Detach();
        vutest::PumpPending();
    }
    void AddTabs(std::initializer_list<const wchar_t*> texts) {
        for (const wchar_t* text : texts)
            beam->InsertTab(FALSE, text, nullptr, 0, -1, nullptr, nullptr);
    }
    void Resize(int width) {
        SetWindowPos(beam->m_hWnd, nullptr, 0, 0, width, beam->GetHeight(),
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    // The last wParam the host was sent with message, or -1.
    long long LastSent(UINT message) const {
        long long value = -1;
        for (const vutest::ReceivedMessage& m : Host().received)
            if (m.message == message)
                value = static_cast<long long>(m.wParam);
        return value;
    }
    // A point in the middle of tab i's hit area.
    CPoint Middle(int i) const {
        return CPoint(beam->CalcTabOffset(i) + beam->GetOverlap() + beam->GetTab(i)->m_nWidth / 2,
                      beam->GetHeight() / 2);
    }

    CWnd parent;
    std::unique_ptr<TestBeam> beam;
};

// A window's pixels as it painted them.
struct Picture {
    explicit Picture(HWND hWnd) : dc(CWnd::FromHandle(hWnd)) {
        RedrawWindow(hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    }
    COLORREF At(int x, int y) const { return GetPixel(dc, x, y); }
    int Count(const RECT& r, COLORREF colour) const { // pixels of colour in r
        int n = 0;
        for (int y = r.top; y < r.bottom; ++y)
            for (int x = r.left; x < r.right; ++x)
                n += At(x, y) == colour ? 1 : 0;
        return n;
    }

    CClientDC dc;
};

} // namespace tabtest

// Fitting tab texts after a resize under Wine, with GDI measuring: the
// beam's fitting (ordered counts, running total, remembered widths) against
// the loop it replaces, written out step by step over a model that measures
// every text with GetTextExtentPoint32W in the same fonts, in the same run.
// Also the cost of painting 20 and 200 tabs (only the visible ones are
// drawn). Prints the best of several rounds.
// Run under Wine: xvfb-run -a scripts/wine-run build/<dir>/bin/bench_tabs_fit.exe
#include <windows.h>

#include "Clock.h"

#include "tabs/win/TabBeam.h"
#include "tests/support/TabLiteralFit.h"

#include <algorithm>
#include <cstdio>
#include <functional>
#include <string>

using vu::bench::Now;

namespace {

constexpr int kRounds = 5;

double BestMs(const std::function<void()>& prepare, const std::function<void()>& timed) {
    return vu::bench::BestOf(kRounds, prepare, timed) * 1000.0;
}

std::wstring TabText(int i) {
    std::wstring text;
    for (int c = 0; c < 30; ++c)
        text.push_back(static_cast<wchar_t>(L'a' + (i * 7 + c * 3) % 26));
    text[0] = L'A' + i % 26;
    if (i % 5 == 0)
        text.back() = L'*';
    return text;
}

// The loop as first written, over a model that measures with GDI each time.
struct GdiView : VU_ATabBeamView {
    GdiView() : dc(CreateCompatibleDC(nullptr)) {
        int height = -MulDiv(8, GetDeviceCaps(dc, LOGPIXELSY), 72);
        normal = CreateFontW(height, 0, 0, 0, FW_NORMAL, 0, 0, 0, 0, 0, 18, 0, FF_SWISS, L"Arial");
        bold = CreateFontW(height, 0, 0, 0, FW_BOLD, 0, 0, 0, 0, 0, 18, 0, FF_SWISS, L"Arial");
    }
    int MeasureTabText(vu::StringView text, bool bBold) override {
        HGDIOBJ old = SelectObject(dc, bBold ? bold : normal);
        SIZE size{};
        GetTextExtentPoint32W(dc, text.data(), static_cast<int>(text.size()), &size);
        SelectObject(dc, old);
        return size.cx;
    }
    CRect GetTabClientRect() const override { return client; }
    HDC dc;
    HFONT normal, bold;
    CRect client;
};

HWND MakeParent() {
    WNDCLASSW wc{};
    wc.lpfnWndProc = DefWindowProcW;
    wc.hInstance = GetModuleHandleW(nullptr);
    wc.lpszClassName = L"VuBenchTabParent";
    RegisterClassW(&wc);
    return CreateWindowExW(0, wc.lpszClassName, L"bench", WS_POPUP | WS_VISIBLE, 0, 0, 1300, 100,
                           nullptr, nullptr, wc.hInstance, nullptr);
}

void Case(CWnd& parent, int tabs, int width) {
    Vu_CTabBeam beam;
    beam.Create(WS_VISIBLE, CRect(0, 0, width, 20), &parent, 1);
    GdiView view;
    view.client = CRect(0, 0, width, beam.GetHeight());
    VU_CTabBeamModel literal(&view);
    literal.SetScrollArea(beam.GetScrollArea(), true);
    for (int i = 0; i < tabs; ++i) {
        std::wstring text = TabText(i);
        beam.InsertTab(FALSE, text.c_str(), nullptr, 0, -1, nullptr, nullptr);
        literal.InsertTab(FALSE, text.c_str(), nullptr, 0, -1);
    }
    auto resize = [&](int w) {
        SetWindowPos(beam.m_hWnd, nullptr, 0, 0, w, beam.GetHeight(), SWP_NOMOVE | SWP_NOZORDER);
        view.client.right = w;
    };
    auto literalResize = [&] {
        if (literal.CalcAvailableWidth() - literal.CalcTotalTabWidth() >= 15)
            literal.RestoreTabsToOriginal();
        vu::reference::LiteralFit(literal, false);
    };
    // A refit after the beam narrows by 40 pixels, from the texts fitted
    // to the wider beam.
    auto wider = [&] {
        resize(width + 40);
        beam.DetermineTextForResizeRoutine();
        literalResize();
        resize(width);
    };
    double refit = BestMs(wider, [&] { beam.DetermineTextForResizeRoutine(); });
    double literalRefit = BestMs(wider, literalResize);
    // A fit from the full texts with nothing measured before.
    double first = BestMs(
        [&] {
            beam.RestoreTabsToOriginal();
            beam.CreateFonts(); // forgets the widths
        },
        [&] { beam.DetermineTextForTabs(); });
    double literalFirst = BestMs([&] { literal.RestoreTabsToOriginal(); },
                                 [&] { vu::reference::LiteralFit(literal, false); });
    bool same = true;
    for (int i = 0; i < tabs; ++i)
        same = same && beam.GetTab(i)->m_strLine1 == literal.GetTabRecord(i)->m_strLine1 &&
               beam.GetTab(i)->m_nWidth == literal.GetTabRecord(i)->m_nWidth;
    std::printf("%3d tabs of 30 characters in %d px (%s)\n"
                "    refit after narrowing by 40 px: %.3f ms, stepwise loop %.3f ms (%.0fx)\n"
                "    fit from full texts, nothing measured before: %.3f ms, stepwise loop %.3f ms "
                "(%.1fx)\n    same texts and widths: %s\n",
                tabs, width, beam.IsTruncated() ? "texts shortened" : "full texts, scrolled", refit,
                literalRefit, literalRefit / refit, first, literalFirst, literalFirst / first,
                same ? "yes" : "NO");
    double paint = BestMs(
        [] {},
        [&] {
            HDC screen = GetDC(nullptr);
            HDC memory = CreateCompatibleDC(screen);
            HBITMAP bitmap = CreateCompatibleBitmap(screen, width, beam.GetHeight());
            HGDIOBJ old = SelectObject(memory, bitmap);
            SendMessageW(beam.m_hWnd, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(memory), PRF_CLIENT);
            SelectObject(memory, old);
            DeleteObject(bitmap);
            DeleteDC(memory);
            ReleaseDC(nullptr, screen);
        });
    std::printf("    painting the beam: %.3f ms\n", paint);
}

} // namespace

int main() {
    HWND host = MakeParent();
    CWnd parent;
    parent.Attach(host);
    Case(parent, 20, 1280);
    Case(parent, 40, 1280);
    Case(parent, 200, 1280);
    parent.Detach();
    DestroyWindow(host);
    return 0;
}

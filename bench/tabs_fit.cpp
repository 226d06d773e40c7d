// Fitting tab texts after a resize: the beam's fitting (counts in an ordered
// set, a running total) against the loop it replaces, written out step by
// step in the same binary: sum all widths, find the longest tab by scanning,
// shorten it by one character, re-measure, repeat.
//
// Tabs have 30-character texts measured by a proportional fake font (4 to 8
// pixels a character, one more in bold), so the figures show the fitting's
// own work; bench/win/tabs_fit.cpp measures it with GDI under Wine.
// Cases: 40 tabs in 1500 pixels (the texts are shortened to fit) and 200
// tabs in 1280 pixels (they never fit: every text goes down to 3
// characters, then all are restored).
#include "tabs/TabBeamModel.h"
#include "tests/support/TabLiteralFit.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace {

struct ProportionalView : VU_ATabBeamView {
    int MeasureTabText(vu::StringView text, bool bBold) override {
        int width = 0;
        for (WCHAR ch : text)
            width += 4 + ch % 5 + (bBold ? 1 : 0);
        return width;
    }
    CRect GetTabClientRect() const override { return client; }
    CRect client;
};

struct Beam {
    Beam(int tabs, int clientWidth) : model(&view) {
        view.client = CRect(0, 0, clientWidth, 20);
        model.SetScrollArea(33, true);
        for (int i = 0; i < tabs; ++i) {
            vu::String text;
            for (int c = 0; c < 30; ++c)
                text.push_back(WCHAR(VU_T('a') + (i * 7 + c * 3) % 26));
            if (i % 5 == 0)
                text.back() = VU_T('*');
            model.InsertTab(FALSE, text.c_str(), nullptr, 0, -1);
        }
    }
    ProportionalView view;
    VU_CTabBeamModel model;
};

void BM_Fit(benchmark::State& state) {
    Beam beam(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    for (auto _ : state) {
        beam.model.RestoreTabsToOriginal();
        beam.model.DetermineTextForTabs();
        benchmark::DoNotOptimize(beam.model.CalcTotalTabWidth());
    }
}

void BM_LiteralFit(benchmark::State& state) {
    Beam beam(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    for (auto _ : state) {
        beam.model.RestoreTabsToOriginal();
        benchmark::DoNotOptimize(vu::reference::LiteralFit(beam.model, false));
    }
}

BENCHMARK(BM_Fit)->Args({40, 1500})->Args({200, 1280})->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_LiteralFit)->Args({40, 1500})->Args({200, 1280})->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();

// The layout engine at scale: a grid of cells (100,000 by default: 250 rows
// of 400), each centring a fixed-size leaf inside a one-pixel margin, the
// way a ladder diagram lays out its instructions. Measuring, arranging and
// hit testing it through the engine (cells, grid, visitors) against a
// hand-written loop that computes the same column widths and row heights
// and places the same rectangles in a plain array, then scans that array
// for a hit. The engine's rectangles are checked against the loop's once
// before timing. Each is also run at a quarter of the size so that the
// growth can be read off (it should be linear in the cells).
#include "support/Heap.h"

#include "layout/ConcreteElement.h"
#include "layout/HitTestVisitor.h"
#include "layout/LayoutCell.h"
#include "layout/LayoutGrid.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

namespace {

constexpr int kColumns = 400;
constexpr int kMargin = 1;

// A leaf of a fixed size that takes the rectangle it is given.
class Box : public VU_CConcreteElement {
public:
    explicit Box(CSize size) : m_size(size) { SetFlexible(0, 0); }
    CSize RecalcSize() override { return m_size; }
    CRect GetObjectRect() const override { return m_rect; }
    void SetObjectRect(CRect rect) override { m_rect = rect; }
    void OnDraw(CDC*) override {}

private:
    CSize m_size;
    CRect m_rect;
};

CSize BoxSize(int r, int c) {
    return CSize(8 + (r * 7 + c * 3) % 9, 6 + (r + c) % 5);
}

struct EngineGrid {
    explicit EngineGrid(int cells) : rows(cells / kColumns) {
        grid.SetSpacing(2, 2);
        const VU_CELLLAYOUT layout(VU_LayoutDefs::ALIGN_HCENTER | VU_LayoutDefs::ALIGN_VCENTER,
                                   CRect(kMargin, kMargin, kMargin, kMargin), 0, 0,
                                   VU_LayoutDefs::INTERNAL);
        for (int r = 0; r < rows; ++r)
            for (int c = 0; c < kColumns; ++c) {
                boxes.push_back(new Box(BoxSize(r, c)));
                grid.SetAt(new VU_CLayoutCell(boxes.back(), layout), r, c);
            }
        grid.SetLayoutRect(CRect(0, 0, 0, 0));
    }
    int rows;
    VU_CLayoutGrid grid;
    std::vector<Box*> boxes; // owned by the grid's cells
};

// The same layout written out by hand over plain arrays.
struct HandGrid {
    explicit HandGrid(int cells) : rows(cells / kColumns) {
        for (int r = 0; r < rows; ++r)
            for (int c = 0; c < kColumns; ++c)
                sizes.push_back(BoxSize(r, c));
        rects.resize(sizes.size());
    }
    void Measure() {
        widths.assign(kColumns, 0);
        heights.assign(rows, 0);
        for (int r = 0; r < rows; ++r)
            for (int c = 0; c < kColumns; ++c) {
                const CSize s = sizes[size_t(r) * kColumns + c];
                widths[c] = std::max(widths[c], int(s.cx) + 2 * kMargin);
                heights[r] = std::max(heights[r], int(s.cy) + 2 * kMargin);
            }
    }
    void Arrange() {
        lefts.resize(kColumns);
        tops.resize(rows);
        for (int c = 0, x = 0; c < kColumns; x += widths[c++] + 2)
            lefts[c] = x;
        for (int r = 0, y = 0; r < rows; y += heights[r++] + 2)
            tops[r] = y;
        for (int r = 0; r < rows; ++r)
            for (int c = 0; c < kColumns; ++c) {
                const CSize s = sizes[size_t(r) * kColumns + c];
                const int x = lefts[c] + widths[c] / 2 - s.cx / 2;
                const int y = tops[r] + heights[r] / 2 - s.cy / 2;
                rects[size_t(r) * kColumns + c] = CRect(x, y, x + s.cx, y + s.cy);
            }
    }
    int HitTest(CPoint p) const {
        int hit = -1;
        for (size_t i = 0; i < rects.size(); ++i)
            if (rects[i].PtInRect(p))
                hit = int(i);
        return hit;
    }
    int rows;
    std::vector<CSize> sizes;
    std::vector<int> widths, heights, lefts, tops;
    std::vector<CRect> rects;
};

// Points at the centres of cells spread over the grid.
std::vector<CPoint> Probes(const HandGrid& hand) {
    std::vector<CPoint> points;
    for (size_t i = 0; i < hand.rects.size(); i += hand.rects.size() / 61 + 1)
        points.push_back(hand.rects[i].CenterPoint());
    return points;
}

// The engine must place exactly what the hand loop places.
bool SameRectangles(int cells) {
    EngineGrid engine(cells);
    engine.grid.RecalcLayout(nullptr);
    HandGrid hand(cells);
    hand.Measure();
    hand.Arrange();
    for (size_t i = 0; i < hand.rects.size(); ++i)
        if (engine.boxes[i]->GetObjectRect() != hand.rects[i])
            return false;
    for (const CPoint& p : Probes(hand)) {
        VU_CHitTestVisitor hit(p);
        engine.grid.Accept(&hit);
        if (hit.GetHit() != engine.boxes[size_t(hand.HitTest(p))])
            return false;
    }
    return true;
}

void BM_Engine_Measure(benchmark::State& state) {
    EngineGrid engine(int(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(engine.grid.RecalcSize());
    state.SetComplexityN(state.range(0));
}
BENCHMARK(BM_Engine_Measure)->Arg(25000)->Arg(100000)->Unit(benchmark::kMicrosecond);

void BM_Hand_Measure(benchmark::State& state) {
    HandGrid hand(int(state.range(0)));
    for (auto _ : state) {
        hand.Measure();
        benchmark::DoNotOptimize(hand.widths.data());
    }
}
BENCHMARK(BM_Hand_Measure)->Arg(25000)->Arg(100000)->Unit(benchmark::kMicrosecond);

void BM_Engine_Arrange(benchmark::State& state) {
    EngineGrid engine(int(state.range(0)));
    engine.grid.RecalcLayout(nullptr);
    for (auto _ : state) {
        engine.grid.RepositionChildren();
        benchmark::DoNotOptimize(engine.boxes.back()->GetObjectRect());
    }
}
BENCHMARK(BM_Engine_Arrange)->Arg(25000)->Arg(100000)->Unit(benchmark::kMicrosecond);

void BM_Hand_Arrange(benchmark::State& state) {
    HandGrid hand(int(state.range(0)));
    hand.Measure();
    for (auto _ : state) {
        hand.Arrange();
        benchmark::DoNotOptimize(hand.rects.back());
    }
}
BENCHMARK(BM_Hand_Arrange)->Arg(25000)->Arg(100000)->Unit(benchmark::kMicrosecond);

void BM_Engine_HitTest(benchmark::State& state) {
    EngineGrid engine(int(state.range(0)));
    engine.grid.RecalcLayout(nullptr);
    HandGrid hand(int(state.range(0)));
    hand.Measure();
    hand.Arrange();
    const std::vector<CPoint> probes = Probes(hand);
    size_t i = 0;
    for (auto _ : state) {
        VU_CHitTestVisitor hit(probes[i++ % probes.size()]);
        engine.grid.Accept(&hit);
        benchmark::DoNotOptimize(hit.GetHit());
    }
}
BENCHMARK(BM_Engine_HitTest)->Arg(25000)->Arg(100000)->Unit(benchmark::kMicrosecond);

void BM_Hand_HitTest(benchmark::State& state) {
    HandGrid hand(int(state.range(0)));
    hand.Measure();
    hand.Arrange();
    const std::vector<CPoint> probes = Probes(hand);
    size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(hand.HitTest(probes[i++ % probes.size()]));
}
BENCHMARK(BM_Hand_HitTest)->Arg(25000)->Arg(100000)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv) {
    vu::bench::KeepFreedMemory();
    if (!SameRectangles(100000)) {
        std::fprintf(stderr, "the engine and the hand-written loop place different rectangles\n");
        return 1;
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}

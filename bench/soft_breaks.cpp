// Wrapping a text with soft line breaks and the round trip an editor makes
// around every search or edit: wrap, take the breaks out, put them back. On
// 0.25 Mi and 1 Mi characters of English prose (Debian's perl-doc, widened to
// UTF-16), width 80, so that the two sizes show whether the time is linear.
//
// The reference is a plain vu::String copy of the same text: the least
// any operation that rewrites the whole text can cost. Each figure is
// reported as characters per second; the pieces (wrap alone, out and back
// in alone) are timed too, so that a regression points at its step.
//
// The object is wrapped once before timing; every iteration then starts from
// the same wrapped text, as an editor re-wrapping after a change does.
#include "support/Corpus.h"
#include "text/SearchableStringWithSoftLineBreaks.h"

#include <benchmark/benchmark.h>

#include <map>
#include <string>

namespace {

constexpr int kWidth = 80;

// The first `units` characters of the corpus, loaded once.
const vu::String& Prose(std::size_t units) {
    static const vu::String corpus = vu::bench::LoadEnglishCorpus(1 << 20);
    static std::map<std::size_t, vu::String> prefixes;
    auto [it, added] = prefixes.try_emplace(units);
    if (added)
        it->second = corpus.substr(0, units);
    return it->second;
}

std::size_t Units(const benchmark::State& state) {
    return static_cast<std::size_t>(state.range(0)) * 1024;
}

void Report(benchmark::State& state, std::size_t units) {
    state.SetItemsProcessed(static_cast<int64_t>(state.iterations() * units));
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * units * 2));
}

void BM_CopyReference(benchmark::State& state) {
    const vu::String& text = Prose(Units(state));
    for (auto _ : state) {
        vu::String copy = text;
        benchmark::DoNotOptimize(copy.data());
        benchmark::ClobberMemory();
    }
    Report(state, text.size());
}

void BM_WrapRoundTrip(benchmark::State& state) {
    const vu::String& text = Prose(Units(state));
    VU_CSearchableStringWithSoftLineBreaks s{CString(text)};
    const int breaks = s.WordWrapText(kWidth);
    for (auto _ : state) {
        benchmark::DoNotOptimize(s.WordWrapText(kWidth));
        benchmark::DoNotOptimize(s.RemoveSoftLineBreaks());
        benchmark::DoNotOptimize(s.ReInsertSoftLineBreaks());
    }
    state.counters["soft_breaks"] = breaks;
    Report(state, text.size());
}

void BM_WrapOnly(benchmark::State& state) {
    const vu::String& text = Prose(Units(state));
    VU_CSearchableStringWithSoftLineBreaks s{CString(text)};
    s.WordWrapText(kWidth);
    for (auto _ : state)
        benchmark::DoNotOptimize(s.WordWrapText(kWidth));
    Report(state, text.size());
}

void BM_RemoveReInsert(benchmark::State& state) {
    const vu::String& text = Prose(Units(state));
    VU_CSearchableStringWithSoftLineBreaks s{CString(text)};
    s.WordWrapText(kWidth);
    for (auto _ : state) {
        benchmark::DoNotOptimize(s.RemoveSoftLineBreaks());
        benchmark::DoNotOptimize(s.ReInsertSoftLineBreaks());
    }
    Report(state, text.size());
}

// A search across the breaks: out, search the whole text, back in.
void BM_FindAcrossBreaks(benchmark::State& state) {
    const vu::String& text = Prose(Units(state));
    VU_CSearchableStringWithSoftLineBreaks s{CString(text)};
    s.WordWrapText(kWidth);
    for (auto _ : state)
        benchmark::DoNotOptimize(s.Find(VU_T("no such phrase in the text")));
    Report(state, text.size());
}

// Sizes in Ki characters: 0.25 Mi and 1 Mi.
#define SIZES Arg(256)->Arg(1024)->Unit(benchmark::kMillisecond)
BENCHMARK(BM_CopyReference)->SIZES;
BENCHMARK(BM_WrapRoundTrip)->SIZES;
BENCHMARK(BM_WrapOnly)->SIZES;
BENCHMARK(BM_RemoveReInsert)->SIZES;
BENCHMARK(BM_FindAcrossBreaks)->SIZES;

} // namespace

BENCHMARK_MAIN();

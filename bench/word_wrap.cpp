// Word wrapping of English prose at widths 40, 80 and 132, for 1 Mi and
// 10 Mi characters of text (the second shows whether the time is linear),
// against a naive greedy wrapper of the kind one writes in an afternoon:
// split into word strings, then fill lines.
//
// Two comparisons: wrapping alone (ours keeps each line as a place in the
// text, the naive one builds line strings), and wrapping followed by the
// joined text with soft breaks, which is what an editor asks for.
//
// The prose is generated (deterministic, English word frequencies roughly
// Zipfian, sentences and paragraphs with hard breaks) so that the benchmark
// needs no data files.
//
// As in the XML benchmark, freed memory is kept in the heap so that fresh
// page faults do not swamp the figures; VU_BENCH_COLD_MEMORY=1 turns that off.
#include "text/WordWrappedString.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>
#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace {

constexpr size_t kMi = 1 << 20;

std::u16string GenerateProse(size_t length) {
    static const char16_t* const words[] = {u"the",
                                            u"of",
                                            u"and",
                                            u"to",
                                            u"a",
                                            u"in",
                                            u"is",
                                            u"that",
                                            u"it",
                                            u"was",
                                            u"for",
                                            u"on",
                                            u"with",
                                            u"as",
                                            u"by",
                                            u"be",
                                            u"this",
                                            u"which",
                                            u"from",
                                            u"at",
                                            u"or",
                                            u"have",
                                            u"an",
                                            u"not",
                                            u"are",
                                            u"but",
                                            u"were",
                                            u"their",
                                            u"one",
                                            u"all",
                                            u"there",
                                            u"been",
                                            u"when",
                                            u"would",
                                            u"more",
                                            u"so",
                                            u"into",
                                            u"time",
                                            u"only",
                                            u"other",
                                            u"could",
                                            u"after",
                                            u"motor",
                                            u"conveyor",
                                            u"routine",
                                            u"controller",
                                            u"program",
                                            u"signal",
                                            u"pressure",
                                            u"temperature",
                                            u"between",
                                            u"afterwards",
                                            u"operator",
                                            u"sequence",
                                            u"interlocking",
                                            u"configuration",
                                            u"maintenance",
                                            u"approximately",
                                            u"responsibility",
                                            u"notwithstanding",
                                            u"characteristically",
                                            u"instrumentation"};
    std::mt19937 rng(1234);
    // Zipf-like: the k-th word with weight 1/(k+1).
    std::vector<double> weights;
    for (size_t k = 0; k < std::size(words); ++k)
        weights.push_back(1.0 / static_cast<double>(k + 1));
    std::discrete_distribution<size_t> pick(weights.begin(), weights.end());
    std::uniform_int_distribution<int> sentenceLength(4, 24), paragraphLength(2, 7);

    std::u16string text;
    text.reserve(length + 200);
    while (text.size() < length) {
        for (int s = paragraphLength(rng); s > 0; --s) {
            for (int w = sentenceLength(rng); w > 0; --w) {
                std::u16string word = words[pick(rng)];
                if (text.empty() || text.back() == u'\n' || text.ends_with(u". "))
                    word[0] = static_cast<char16_t>(word[0] - u'a' + u'A');
                text += word;
                text += w == 1 ? u". " : (rng() % 12 == 0 ? u", " : u" ");
            }
        }
        text += u"\r\n\r\n";
    }
    text.resize(length);
    return text;
}

const std::u16string& Prose(size_t length) {
    static const std::u16string small = GenerateProse(kMi), large = GenerateProse(10 * kMi);
    return length == kMi ? small : large;
}

bool IsSpace(char16_t c) {
    return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n';
}

// The naive wrapper: words and single spaces as strings, hard breaks end a
// line, a word that does not fit starts the next one.
std::vector<std::u16string> NaiveWrap(const std::u16string& text, size_t width) {
    std::vector<std::u16string> tokens;
    std::u16string word;
    for (size_t i = 0; i < text.size(); ++i) {
        if (!IsSpace(text[i])) {
            word += text[i];
            continue;
        }
        if (!word.empty())
            tokens.push_back(word);
        word.clear();
        if (text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') {
            tokens.push_back(u"\r\n");
            ++i;
        } else {
            tokens.push_back(std::u16string(1, text[i]));
        }
    }
    if (!word.empty())
        tokens.push_back(word);

    std::vector<std::u16string> lines;
    std::u16string line;
    for (const std::u16string& t : tokens) {
        if (t == u"\r\n") {
            lines.push_back(line + t);
            line.clear();
        } else if (line.size() + t.size() <= width) {
            line += t;
        } else if (t == u" ") {
            lines.push_back(line + t);
            line.clear();
        } else {
            if (!line.empty())
                lines.push_back(line);
            line = t;
            while (line.size() > width) {
                lines.push_back(line.substr(0, width));
                line.erase(0, width);
            }
        }
    }
    if (!line.empty())
        lines.push_back(line);
    return lines;
}

std::u16string NaiveJoin(const std::vector<std::u16string>& lines) {
    std::u16string out;
    for (size_t i = 0; i < lines.size(); ++i) {
        if (i > 0 && !out.ends_with(u"\r\n"))
            out += u"\r\r\n";
        out += lines[i];
    }
    return out;
}

void Report(benchmark::State& state, size_t length, size_t lines) {
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * length * sizeof(char16_t)));
    state.counters["lines"] = static_cast<double>(lines);
}

// Parsing only: the text is set once, each iteration wraps it anew.
void BM_VuWrap(benchmark::State& state) {
    const size_t length = static_cast<size_t>(state.range(0)) * kMi;
    VU_CWordWrappedString w(CString(Prose(length)), -1);
    for (auto _ : state) {
        w.SetLineLength(static_cast<int>(state.range(1)));
        benchmark::DoNotOptimize(w.GetNumLines());
    }
    Report(state, length, static_cast<size_t>(w.GetNumLines()));
}

void BM_NaiveWrap(benchmark::State& state) {
    const size_t length = static_cast<size_t>(state.range(0)) * kMi;
    const std::u16string& text = Prose(length);
    size_t lines = 0;
    for (auto _ : state) {
        const auto wrapped = NaiveWrap(text, static_cast<size_t>(state.range(1)));
        benchmark::DoNotOptimize(wrapped.data());
        lines = wrapped.size();
    }
    Report(state, length, lines);
}

void BM_VuWrapAndJoin(benchmark::State& state) {
    const size_t length = static_cast<size_t>(state.range(0)) * kMi;
    VU_CWordWrappedString w(CString(Prose(length)), -1);
    for (auto _ : state) {
        w.SetLineLength(static_cast<int>(state.range(1)));
        const CString joined = w.GetFullString(true, false);
        benchmark::DoNotOptimize(joined.GetString());
    }
    Report(state, length, static_cast<size_t>(w.GetNumLines()));
}

void BM_NaiveWrapAndJoin(benchmark::State& state) {
    const size_t length = static_cast<size_t>(state.range(0)) * kMi;
    const std::u16string& text = Prose(length);
    size_t lines = 0;
    for (auto _ : state) {
        const auto wrapped = NaiveWrap(text, static_cast<size_t>(state.range(1)));
        const std::u16string joined = NaiveJoin(wrapped);
        benchmark::DoNotOptimize(joined.data());
        lines = wrapped.size();
    }
    Report(state, length, lines);
}

void Sizes(benchmark::internal::Benchmark* b) {
    for (int width : {40, 80, 132})
        for (int mib : {1, 10})
            b->Args({mib, width});
    b->ArgNames({"MiB", "width"})->Unit(benchmark::kMillisecond);
}

// Both wrappers follow the same rules on this text, or the ratio means
// nothing.
bool SameLines() {
    const std::u16string& text = Prose(kMi);
    for (int width : {40, 80, 132}) {
        const VU_CWordWrappedString w{CString(text), width};
        const auto naive = NaiveWrap(text, static_cast<size_t>(width));
        if (naive.size() != static_cast<size_t>(w.GetNumLines()))
            return false;
        for (int i = 0; i < w.GetNumLines(); ++i) {
            if (w.GetLine(i).Str() != naive[static_cast<size_t>(i)])
                return false;
        }
    }
    return true;
}

void KeepFreedMemory() {
#if defined(__GLIBC__)
    const char* cold = std::getenv("VU_BENCH_COLD_MEMORY");
    if (cold && *cold == '1')
        return;
    mallopt(M_MMAP_MAX, 0); // large blocks from the heap too, so they are kept
    mallopt(M_TRIM_THRESHOLD, -1);
#endif
}

} // namespace

BENCHMARK(BM_VuWrap)->Apply(Sizes);
BENCHMARK(BM_NaiveWrap)->Apply(Sizes);
BENCHMARK(BM_VuWrapAndJoin)->Apply(Sizes);
BENCHMARK(BM_NaiveWrapAndJoin)->Apply(Sizes);

int main(int argc, char** argv) {
    KeepFreedMemory();
    if (!SameLines()) {
        std::fprintf(stderr, "the wrappers disagree on the prose\n");
        return 1;
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}

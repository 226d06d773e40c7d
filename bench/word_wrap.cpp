// Word wrapping of English prose at widths 40, 80 and 132, for 1 Mi and
// 10 Mi characters of text (the second shows whether the time is linear),
// against a naive greedy wrapper of the kind one writes in an afternoon:
// split into word strings, then fill lines.
//
// Two comparisons: wrapping alone (ours keeps each line as a place in the
// text, the naive one builds line strings), and wrapping followed by the
// joined text with soft breaks, which is what an editor asks for.
//
// The prose is the Perl documentation (Debian's perl-doc), see
// support/Corpus.h, reshaped into paragraphs with hard breaks between them.
//
// As in the XML benchmark, freed memory is kept in the heap so that fresh
// page faults do not swamp the figures; VU_BENCH_COLD_MEMORY=1 turns that off.
#include "support/Corpus.h"
#include "support/Heap.h"
#include "text/WordWrappedString.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

constexpr size_t kMi = 1 << 20;

// The documentation as an editor would hold it: paragraphs as single long
// lines separated by blank lines with hard breaks, tabs as spaces.
vu::String EditorText(vu::StringView source) {
    vu::String text;
    text.reserve(source.size() + source.size() / 16);
    for (size_t i = 0; i < source.size(); ++i) {
        if (source[i] == VU_T('\n') && i + 1 < source.size() && source[i + 1] == VU_T('\n')) {
            text += VU_T("\r\n\r\n");
            while (i + 1 < source.size() && source[i + 1] == VU_T('\n'))
                ++i;
        } else if (source[i] == VU_T('\n') || source[i] == VU_T('\t') || source[i] == VU_T('\r')) {
            text += VU_T(' ');
        } else {
            text += source[i];
        }
    }
    return text;
}

const vu::String& Prose(size_t length) {
    static const vu::String large =
        EditorText(vu::bench::LoadEnglishCorpus(11 * kMi)).substr(0, 10 * kMi);
    static const vu::String small = large.substr(0, kMi);
    return length == kMi ? small : large;
}

bool IsSpace(WCHAR c) {
    return c == VU_T(' ') || c == VU_T('\t') || c == VU_T('\r') || c == VU_T('\n');
}

// The naive wrapper: words and single spaces as strings, hard breaks end a
// line, a word that does not fit starts the next one.
std::vector<vu::String> NaiveWrap(const vu::String& text, size_t width) {
    std::vector<vu::String> tokens;
    vu::String word;
    for (size_t i = 0; i < text.size(); ++i) {
        if (!IsSpace(text[i])) {
            word += text[i];
            continue;
        }
        if (!word.empty())
            tokens.push_back(word);
        word.clear();
        if (text[i] == VU_T('\r') && i + 1 < text.size() && text[i + 1] == VU_T('\n')) {
            tokens.push_back(VU_T("\r\n"));
            ++i;
        } else {
            tokens.push_back(vu::String(1, text[i]));
        }
    }
    if (!word.empty())
        tokens.push_back(word);

    std::vector<vu::String> lines;
    vu::String line;
    for (const vu::String& t : tokens) {
        if (t == VU_T("\r\n")) {
            lines.push_back(line + t);
            line.clear();
        } else if (line.size() + t.size() <= width) {
            line += t;
        } else if (t == VU_T(" ")) {
            lines.push_back(line + t);
            line.clear();
        } else {
            // A word cut on an empty line leaves no full piece open.
            const size_t open = line.empty() ? width - 1 : width;
            if (!line.empty())
                lines.push_back(line);
            line = t;
            while (line.size() > open) {
                lines.push_back(line.substr(0, width));
                line.erase(0, width);
            }
        }
    }
    if (!line.empty())
        lines.push_back(line);
    return lines;
}

vu::String NaiveJoin(const std::vector<vu::String>& lines) {
    vu::String out;
    for (size_t i = 0; i < lines.size(); ++i) {
        if (i > 0 && !out.ends_with(VU_T("\r\n")))
            out += VU_T("\r\r\n");
        out += lines[i];
    }
    return out;
}

void Report(benchmark::State& state, size_t length, size_t lines) {
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * length * sizeof(WCHAR)));
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
    const vu::String& text = Prose(length);
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
    const vu::String& text = Prose(length);
    size_t lines = 0;
    for (auto _ : state) {
        const auto wrapped = NaiveWrap(text, static_cast<size_t>(state.range(1)));
        const vu::String joined = NaiveJoin(wrapped);
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
    const vu::String& text = Prose(kMi);
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

} // namespace

BENCHMARK(BM_VuWrap)->Apply(Sizes);
BENCHMARK(BM_NaiveWrap)->Apply(Sizes);
BENCHMARK(BM_VuWrapAndJoin)->Apply(Sizes);
BENCHMARK(BM_NaiveWrapAndJoin)->Apply(Sizes);

int main(int argc, char** argv) {
    vu::bench::KeepFreedMemory();
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

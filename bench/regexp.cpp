// Regular-expression search over the same UTF-16 English text (bench/support)
// with VU_CRegExpression and its peers: PCRE2-16 (interpreter and JIT), ICU's
// uregex, std::wregex (on a wchar_t copy), plus plain memory scans of the
// buffer as the physical limit. Each search counts every match, resuming
// after the previous one; the "matches" counter lets the engines be compared.
//
// Build: cmake -S . -B build/native -DCMAKE_BUILD_TYPE=Release &&
//        cmake --build build/native --target bench_regexp
#include "support/Corpus.h"
#include "text/RegExpression.h"

#include <benchmark/benchmark.h>

#define PCRE2_CODE_UNIT_WIDTH 16
#include <pcre2.h>
#include <unicode/uregex.h>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include <cstdio>
#include <regex>
#include <string>
#include <vector>

namespace {

struct Case {
    const char* name;
    const WCHAR* pattern;
};

// Whole-text searches. The absent literal occurs nowhere in the corpus, the
// rare one a few dozen times.
const Case kTextCases[] = {
    {"AbsentLiteral", VU_T("Xylophone")},
    {"RareLiteral", VU_T("Larry Wall")},
    {"Alternation", VU_T("Tom|Sawyer|Huckleberry|Finn")},
    {"LettersIng", VU_T("[a-zA-Z]+ing")},
};
// One search per line over the first 200k lines.
const Case kLineCase = {"AnchoredPerLine", VU_T("^[A-Z][a-z]+ [a-z]+")};
constexpr size_t kLines = 200'000;

const vu::String& Text() {
    static const vu::String text = vu::bench::LoadEnglishCorpus();
    return text;
}

const std::vector<vu::String>& Lines() {
    static const std::vector<vu::String> lines = vu::bench::SplitLines(Text(), kLines);
    return lines;
}

std::wstring Widen(vu::StringView s) {
    return std::wstring(s.begin(), s.end());
}

const std::wstring& WideText() {
    static const std::wstring text = Widen(Text());
    return text;
}

const std::vector<std::wstring>& WideLines() {
    static const std::vector<std::wstring> lines = [] {
        std::vector<std::wstring> out;
        for (const auto& line : Lines())
            out.push_back(Widen(line));
        return out;
    }();
    return lines;
}

size_t LineBytes() {
    size_t n = 0;
    for (const auto& line : Lines())
        n += line.size() * 2;
    return n;
}

void Finish(benchmark::State& state, size_t matches, size_t bytes) {
    state.counters["matches"] = double(matches);
    state.SetBytesProcessed(int64_t(state.iterations()) * int64_t(bytes));
}

// ---- VU_CRegExpression ------------------------------------------------------

size_t CountVu(VU_CRegExpression& re, const vu::String& text) {
    size_t count = 0;
    const WCHAR* s = text.c_str();
    for (size_t from = 0; from <= text.size();) {
        const int at = re.RegFind(s + from);
        if (at < 0)
            break;
        ++count;
        from += size_t(at) + size_t(std::max(1, re.GetFindLen()));
    }
    return count;
}

void VuText(benchmark::State& state, const Case& c) {
    VU_CRegExpression re;
    if (!re.RegComp(c.pattern)) {
        state.SkipWithError("pattern rejected");
        return;
    }
    size_t matches = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(matches = CountVu(re, Text()));
    Finish(state, matches, Text().size() * 2);
}

void VuLines(benchmark::State& state, const Case& c) {
    VU_CRegExpression re;
    re.RegComp(c.pattern);
    size_t matches = 0;
    for (auto _ : state) {
        matches = 0;
        for (const auto& line : Lines())
            matches += re.RegFind(line.c_str()) >= 0;
        benchmark::DoNotOptimize(matches);
    }
    Finish(state, matches, LineBytes());
}

// ---- PCRE2-16 -----------------------------------------------------------------

struct Pcre2 {
    pcre2_code_16* code = nullptr;
    pcre2_match_data_16* data = nullptr;
    bool jit = false;
    Pcre2(const WCHAR* pattern, bool useJit) : jit(useJit) {
        int error = 0;
        PCRE2_SIZE offset = 0;
        code = pcre2_compile_16(reinterpret_cast<PCRE2_SPTR16>(pattern), PCRE2_ZERO_TERMINATED, 0,
                                &error, &offset, nullptr);
        if (code && jit)
            jit = pcre2_jit_compile_16(code, PCRE2_JIT_COMPLETE) == 0;
        if (code)
            data = pcre2_match_data_create_from_pattern_16(code, nullptr);
    }
    ~Pcre2() {
        pcre2_match_data_free_16(data);
        pcre2_code_free_16(code);
    }
    int Match(const WCHAR* s, size_t length, size_t from) {
        const auto subject = reinterpret_cast<PCRE2_SPTR16>(s);
        // Without pcre2_jit_compile the code has no JIT and pcre2_match interprets.
        return jit ? pcre2_jit_match_16(code, subject, length, from, 0, data, nullptr)
                   : pcre2_match_16(code, subject, length, from, 0, data, nullptr);
    }
    size_t Count(const vu::String& text) {
        size_t count = 0;
        for (size_t from = 0; from <= text.size();) {
            if (Match(text.data(), text.size(), from) <= 0)
                break;
            ++count;
            const PCRE2_SIZE* ov = pcre2_get_ovector_pointer_16(data);
            from = ov[1] > ov[0] ? ov[1] : ov[0] + 1;
        }
        return count;
    }
};

void Pcre2Text(benchmark::State& state, const Case& c, bool jit) {
    Pcre2 re(c.pattern, jit);
    if (!re.code || re.jit != jit) {
        state.SkipWithError("PCRE2 compile failed");
        return;
    }
    size_t matches = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(matches = re.Count(Text()));
    Finish(state, matches, Text().size() * 2);
}

void Pcre2Lines(benchmark::State& state, const Case& c, bool jit) {
    Pcre2 re(c.pattern, jit);
    size_t matches = 0;
    for (auto _ : state) {
        matches = 0;
        for (const auto& line : Lines())
            matches += re.Match(line.data(), line.size(), 0) > 0;
        benchmark::DoNotOptimize(matches);
    }
    Finish(state, matches, LineBytes());
}

// ---- ICU ------------------------------------------------------------------------

struct Icu {
    URegularExpression* re = nullptr;
    explicit Icu(const WCHAR* pattern) {
        UErrorCode status = U_ZERO_ERROR;
        re = uregex_open(pattern, -1, 0, nullptr, &status);
        if (U_FAILURE(status))
            re = nullptr;
    }
    ~Icu() {
        if (re)
            uregex_close(re);
    }
};

void IcuText(benchmark::State& state, const Case& c) {
    Icu icu(c.pattern);
    if (!icu.re) {
        state.SkipWithError("ICU compile failed");
        return;
    }
    size_t matches = 0;
    for (auto _ : state) {
        UErrorCode status = U_ZERO_ERROR;
        uregex_setText(icu.re, Text().data(), int32_t(Text().size()), &status);
        matches = 0;
        while (uregex_findNext(icu.re, &status))
            ++matches;
        benchmark::DoNotOptimize(matches);
    }
    Finish(state, matches, Text().size() * 2);
}

void IcuLines(benchmark::State& state, const Case& c) {
    Icu icu(c.pattern);
    size_t matches = 0;
    for (auto _ : state) {
        matches = 0;
        for (const auto& line : Lines()) {
            UErrorCode status = U_ZERO_ERROR;
            uregex_setText(icu.re, line.data(), int32_t(line.size()), &status);
            matches += uregex_find(icu.re, 0, &status) ? 1 : 0;
        }
        benchmark::DoNotOptimize(matches);
    }
    Finish(state, matches, LineBytes());
}

// ---- std::wregex --------------------------------------------------------------

void StdText(benchmark::State& state, const Case& c) {
    const std::wregex re(Widen(c.pattern));
    size_t matches = 0;
    for (auto _ : state) {
        matches =
            size_t(std::distance(std::wsregex_iterator(WideText().begin(), WideText().end(), re),
                                 std::wsregex_iterator()));
        benchmark::DoNotOptimize(matches);
    }
    Finish(state, matches, Text().size() * 2);
}

void StdLines(benchmark::State& state, const Case& c) {
    const std::wregex re(Widen(c.pattern));
    size_t matches = 0;
    for (auto _ : state) {
        matches = 0;
        for (const auto& line : WideLines())
            matches += std::regex_search(line, re);
        benchmark::DoNotOptimize(matches);
    }
    Finish(state, matches, LineBytes());
}

// ---- Backtracking traps ----------------------------------------------------------

// Patterns whose plain backtracking search is polynomial or exponential in
// the subject length, on a run of 'a' of the benchmark's size argument and a
// tail that keeps the required-literal hint from ruling the search out. Each
// search fails; PCRE2's interpreter runs the same search (with its default
// match limit, so it may give up instead of answering).
struct Trap {
    const char* name;
    const WCHAR* pattern;
    const WCHAR* tail;
};
const Trap kTraps[] = {
    {"Trap/AltThenRun", VU_T("(x|a+y)"), VU_T("")},  // quadratic: a+ rescans the rest per start
    {"Trap/TwoStars", VU_T("a*a*y|zz"), VU_T("")},   // quadratic per start, cubic in all
    {"Trap/NestedPlus", VU_T("(a+)+b"), VU_T("-b")}, // exponential
};

vu::String TrapText(benchmark::State& state, const Trap& t) {
    return vu::String(size_t(state.range(0)), VU_T('a')) + t.tail;
}

void VuTrap(benchmark::State& state, const Trap& t) {
    const vu::String text = TrapText(state, t);
    VU_CRegExpression re;
    re.RegComp(t.pattern);
    int found = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(found = re.RegFind(text.c_str()));
    state.counters["found"] = found;
    state.SetBytesProcessed(int64_t(state.iterations()) * int64_t(text.size() * 2));
}

void Pcre2Trap(benchmark::State& state, const Trap& t) {
    const vu::String text = TrapText(state, t);
    Pcre2 re(t.pattern, false);
    int rc = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(rc = re.Match(text.data(), text.size(), 0));
    state.counters["found"] = rc > 0 ? 0 : -1;
    state.counters["gaveUp"] = rc == PCRE2_ERROR_MATCHLIMIT || rc == PCRE2_ERROR_DEPTHLIMIT;
    state.SetBytesProcessed(int64_t(state.iterations()) * int64_t(text.size() * 2));
}

// ---- Memory scans: the physical limit --------------------------------------------

// Looks for a unit that does not occur, reading every byte of the buffer.
const WCHAR kAbsentUnit = 0xFFFE;

void MemoryScanSse2(benchmark::State& state) {
    const vu::String& text = Text();
    for (auto _ : state) {
        const WCHAR* p = text.data();
        const WCHAR* end = p + text.size();
        const WCHAR* found = nullptr;
#if defined(__SSE2__)
        const __m128i wanted = _mm_set1_epi16(short(kAbsentUnit));
        for (; p + 32 <= end; p += 32) {
            // Four blocks per step, as an optimised memchr does.
            const __m128i* b = reinterpret_cast<const __m128i*>(p);
            const __m128i m =
                _mm_or_si128(_mm_or_si128(_mm_cmpeq_epi16(_mm_loadu_si128(b), wanted),
                                          _mm_cmpeq_epi16(_mm_loadu_si128(b + 1), wanted)),
                             _mm_or_si128(_mm_cmpeq_epi16(_mm_loadu_si128(b + 2), wanted),
                                          _mm_cmpeq_epi16(_mm_loadu_si128(b + 3), wanted)));
            if (_mm_movemask_epi8(m))
                break;
        }
#endif
        for (; p < end && !found; ++p)
            if (*p == kAbsentUnit)
                found = p;
        benchmark::DoNotOptimize(found);
    }
    Finish(state, 0, text.size() * 2);
}

void MemoryScanStringView(benchmark::State& state) {
    const vu::StringView text = Text();
    for (auto _ : state)
        benchmark::DoNotOptimize(text.find(kAbsentUnit));
    Finish(state, 0, text.size() * 2);
}

void RegisterAll() {
    benchmark::RegisterBenchmark("MemoryScan/SSE2", MemoryScanSse2);
    benchmark::RegisterBenchmark("MemoryScan/basic_string_view::find", MemoryScanStringView);
    for (const Case& c : kTextCases) {
        const std::string name = c.name;
        benchmark::RegisterBenchmark((name + "/Vu").c_str(), VuText, c);
        benchmark::RegisterBenchmark((name + "/Pcre2Interpreter").c_str(), Pcre2Text, c, false);
        benchmark::RegisterBenchmark((name + "/Pcre2Jit").c_str(), Pcre2Text, c, true);
        benchmark::RegisterBenchmark((name + "/Icu").c_str(), IcuText, c);
        benchmark::RegisterBenchmark((name + "/StdWregex").c_str(), StdText, c);
    }
    // PCRE2 runs only the sizes it finishes within a few seconds.
    const std::vector<int64_t> trapSizes[] = {{1000, 10'000, 100'000, 10'000'000},
                                              {1000, 3000, 10'000, 100'000},
                                              {16, 20, 24, 40, 10'000}};
    const int64_t pcre2Sizes[] = {100'000, 3000, 24};
    for (size_t i = 0; i < std::size(kTraps); ++i) {
        const std::string trap = kTraps[i].name;
        for (int64_t size : trapSizes[i]) {
            benchmark::RegisterBenchmark((trap + "/Vu").c_str(), VuTrap, kTraps[i])
                ->Arg(size)
                ->Unit(benchmark::kMillisecond);
            if (size <= pcre2Sizes[i])
                benchmark::RegisterBenchmark((trap + "/Pcre2Interpreter").c_str(), Pcre2Trap,
                                             kTraps[i])
                    ->Arg(size)
                    ->Unit(benchmark::kMillisecond);
        }
    }
    const std::string name = kLineCase.name;
    benchmark::RegisterBenchmark((name + "/Vu").c_str(), VuLines, kLineCase);
    benchmark::RegisterBenchmark((name + "/Pcre2Interpreter").c_str(), Pcre2Lines, kLineCase,
                                 false);
    benchmark::RegisterBenchmark((name + "/Pcre2Jit").c_str(), Pcre2Lines, kLineCase, true);
    benchmark::RegisterBenchmark((name + "/Icu").c_str(), IcuLines, kLineCase);
    benchmark::RegisterBenchmark((name + "/StdWregex").c_str(), StdLines, kLineCase);
}

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    std::fprintf(stderr, "corpus: %zu UTF-16 units, %zu lines\n", Text().size(), Lines().size());
    RegisterAll();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}

// Searchable string against the peers a user would reach for, on the same
// UTF-16 English prose:
//   Find, whole-word Find, FindNoCase and ReverseFind, each walking every
//   occurrence through the whole text, against std::basic_string_view::find /
//   rfind (with the same boundary test for whole words) and a case-blind
//   std::search over the library's case map;
//   replace-all of a frequent literal at 1 MB and 16 MB (UTF-16 bytes)
//   against pcre2_substitute_16 (PCRE2_SUBSTITUTE_GLOBAL; interpreter and
//   JIT) and ICU's uregex_replaceAll, plus the regular-expression replace-all.
// Every benchmark reports the occurrences it saw, so the peers can be seen to
// do the same work.
//
//   cmake --build build/native --target bench_searchable_string
//   build/native/bench/bench_searchable_string [--benchmark_filter=ReplaceAll]
#include "text/SearchableString.h"

#include "framework/CaseMap.h"
#include "support/Corpus.h"

#define PCRE2_CODE_UNIT_WIDTH 16
#include <benchmark/benchmark.h>
#include <pcre2.h>
#include <unicode/uregex.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace {

constexpr std::size_t kCharsPerMB = 1 << 19; // 1 MB of UTF-16

// ---- The text ---------------------------------------------------------------

// The first `chars` units of the English corpus (repeated as needed).
const vu::String& Prose(std::size_t chars) {
    static std::vector<std::unique_ptr<vu::String>> cache;
    for (const auto& t : cache)
        if (t->size() == chars)
            return *t;
    cache.push_back(std::make_unique<vu::String>(vu::bench::LoadEnglishCorpus(chars)));
    return *cache.back();
}

constexpr std::size_t kSearchChars = 8 * kCharsPerMB; // 8 MB

void Report(benchmark::State& state, std::size_t chars, long long found) {
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) *
                            static_cast<int64_t>(chars * sizeof(WCHAR)));
    state.counters["found"] = static_cast<double>(found);
}

// ---- Find ---------------------------------------------------------------------

constexpr WCHAR kWord[] = VU_T("function");
constexpr WCHAR kShortWord[] = VU_T("the");

void Find_Searchable(benchmark::State& state) {
    VU_CSearchableString s(Prose(kSearchChars).c_str());
    long long found = 0;
    for (auto _ : state) {
        found = 0;
        for (int p = s.Find(kWord, 0, FALSE); p >= 0; p = s.Find(kWord, p + 1, FALSE))
            ++found;
        benchmark::DoNotOptimize(found);
    }
    Report(state, kSearchChars, found);
}
BENCHMARK(Find_Searchable)->Unit(benchmark::kMillisecond);

void Find_StringView(benchmark::State& state) {
    const vu::StringView s = Prose(kSearchChars);
    const vu::StringView word = kWord;
    long long found = 0;
    for (auto _ : state) {
        found = 0;
        for (auto p = s.find(word); p != s.npos; p = s.find(word, p + 1))
            ++found;
        benchmark::DoNotOptimize(found);
    }
    Report(state, kSearchChars, found);
}
BENCHMARK(Find_StringView)->Unit(benchmark::kMillisecond);

// ---- Whole-word Find -------------------------------------------------------------

void FindWholeWord_Searchable(benchmark::State& state) {
    VU_CSearchableString s(Prose(kSearchChars).c_str());
    long long found = 0;
    for (auto _ : state) {
        found = 0;
        for (int p = s.Find(kShortWord, 0, TRUE); p >= 0; p = s.Find(kShortWord, p + 1, TRUE))
            ++found;
        benchmark::DoNotOptimize(found);
    }
    Report(state, kSearchChars, found);
}
BENCHMARK(FindWholeWord_Searchable)->Unit(benchmark::kMillisecond);

void FindWholeWord_StringView(benchmark::State& state) {
    const vu::StringView s = Prose(kSearchChars);
    const vu::StringView word = kShortWord;
    const vu::StringView delimiters = VU_CSearchableString::c_DEFAULT_TOKEN_DELIMITERS;
    bool isDelimiter[128] = {};
    for (WCHAR c : delimiters)
        isDelimiter[c] = true;
    auto boundary = [&](WCHAR c) { return c < 128 && isDelimiter[c]; };
    long long found = 0;
    for (auto _ : state) {
        found = 0;
        for (auto p = s.find(word); p != s.npos; p = s.find(word, p + 1)) {
            const auto end = p + word.size();
            if ((p == 0 || boundary(s[p - 1])) && (end == s.size() || boundary(s[end])))
                ++found;
        }
        benchmark::DoNotOptimize(found);
    }
    Report(state, kSearchChars, found);
}
BENCHMARK(FindWholeWord_StringView)->Unit(benchmark::kMillisecond);

// ---- FindNoCase ------------------------------------------------------------------

constexpr WCHAR kNoCaseWord[] = VU_T("RETURN");

void FindNoCase_Searchable(benchmark::State& state) {
    VU_CSearchableString s(Prose(kSearchChars).c_str());
    long long found = 0;
    for (auto _ : state) {
        found = 0;
        for (int p = s.FindNoCase(kNoCaseWord, 0, FALSE); p >= 0;
             p = s.FindNoCase(kNoCaseWord, p + 1, FALSE))
            ++found;
        benchmark::DoNotOptimize(found);
    }
    Report(state, kSearchChars, found);
}
BENCHMARK(FindNoCase_Searchable)->Unit(benchmark::kMillisecond);

void FindNoCase_StdSearch(benchmark::State& state) {
    const vu::StringView s = Prose(kSearchChars);
    const vu::StringView word = kNoCaseWord;
    auto same = [](WCHAR a, WCHAR b) { return vu::ToLower(a) == vu::ToLower(b); };
    long long found = 0;
    for (auto _ : state) {
        found = 0;
        for (auto p = std::search(s.begin(), s.end(), word.begin(), word.end(), same); p != s.end();
             p = std::search(p + 1, s.end(), word.begin(), word.end(), same))
            ++found;
        benchmark::DoNotOptimize(found);
    }
    Report(state, kSearchChars, found);
}
BENCHMARK(FindNoCase_StdSearch)->Unit(benchmark::kMillisecond);

// ---- ReverseFind -------------------------------------------------------------------

void ReverseFind_Searchable(benchmark::State& state) {
    VU_CSearchableString s(Prose(kSearchChars).c_str());
    long long found = 0;
    for (auto _ : state) {
        found = 0;
        for (int p = s.ReverseFind(kWord, -1, FALSE); p >= 0;
             p = p == 0 ? -1 : s.ReverseFind(kWord, p - 1, FALSE))
            ++found;
        benchmark::DoNotOptimize(found);
    }
    Report(state, kSearchChars, found);
}
BENCHMARK(ReverseFind_Searchable)->Unit(benchmark::kMillisecond);

void ReverseFind_StringView(benchmark::State& state) {
    const vu::StringView s = Prose(kSearchChars);
    const vu::StringView word = kWord;
    long long found = 0;
    for (auto _ : state) {
        found = 0;
        for (auto p = s.rfind(word); p != s.npos; p = p == 0 ? s.npos : s.rfind(word, p - 1))
            ++found;
        benchmark::DoNotOptimize(found);
    }
    Report(state, kSearchChars, found);
}
BENCHMARK(ReverseFind_StringView)->Unit(benchmark::kMillisecond);

// ---- Replace-all ----------------------------------------------------------------------
// "e" is about one character in eight to twelve of English text: some 0.7-1M
// replacements in 16 MB. The replacement changes the length so the text is
// really rebuilt.

constexpr WCHAR kFind[] = VU_T("e");
constexpr WCHAR kReplacement[] = VU_T("[E]");

std::size_t ReplaceChars(const benchmark::State& state) {
    return static_cast<std::size_t>(state.range(0)) * kCharsPerMB;
}

void ReplaceAll_Searchable(benchmark::State& state) {
    const std::size_t chars = ReplaceChars(state);
    const VU_CSearchableString original(Prose(chars).c_str());
    long long found = 0;
    for (auto _ : state) {
        state.PauseTiming();
        VU_CSearchableString s(original);
        state.ResumeTiming();
        found = s.FindReplace(kFind, kReplacement, TRUE, FALSE);
        benchmark::DoNotOptimize(s.GetString());
    }
    Report(state, chars, found);
}
BENCHMARK(ReplaceAll_Searchable)->Arg(1)->Arg(16)->Unit(benchmark::kMillisecond);

void ReplaceAllRegularExp_Searchable(benchmark::State& state) {
    const std::size_t chars = ReplaceChars(state);
    const VU_CSearchableString original(Prose(chars).c_str());
    long long found = 0;
    for (auto _ : state) {
        state.PauseTiming();
        VU_CSearchableString s(original);
        state.ResumeTiming();
        found = s.FindReplaceRegularExp(kFind, kReplacement, TRUE);
        benchmark::DoNotOptimize(s.GetString());
    }
    Report(state, chars, found);
}
BENCHMARK(ReplaceAllRegularExp_Searchable)->Arg(1)->Arg(16)->Unit(benchmark::kMillisecond);

void ReplaceAllPcre2(benchmark::State& state, bool jit) {
    const std::size_t chars = ReplaceChars(state);
    const vu::String& text = Prose(chars);
    int error = 0;
    PCRE2_SIZE offset = 0;
    pcre2_code* code = pcre2_compile(reinterpret_cast<PCRE2_SPTR>(kFind), PCRE2_ZERO_TERMINATED,
                                     PCRE2_LITERAL, &error, &offset, nullptr);
    if (!code) {
        state.SkipWithError("pcre2_compile failed");
        return;
    }
    if (jit && pcre2_jit_compile(code, PCRE2_JIT_COMPLETE) != 0) {
        pcre2_code_free(code);
        state.SkipWithError("PCRE2 JIT not available");
        return;
    }
    pcre2_match_data* match = pcre2_match_data_create_from_pattern(code, nullptr);
    const auto subject = reinterpret_cast<PCRE2_SPTR>(text.data());
    const auto replacement = reinterpret_cast<PCRE2_SPTR>(kReplacement);
    std::vector<WCHAR> out(text.size() * 3 + 1);
    long long found = 0;
    for (auto _ : state) {
        PCRE2_SIZE outLength = out.size();
        const int rc = pcre2_substitute(code, subject, text.size(), 0, PCRE2_SUBSTITUTE_GLOBAL,
                                        match, nullptr, replacement, PCRE2_ZERO_TERMINATED,
                                        reinterpret_cast<PCRE2_UCHAR*>(out.data()), &outLength);
        if (rc < 0) {
            state.SkipWithError("pcre2_substitute failed");
            break;
        }
        found = rc;
        benchmark::DoNotOptimize(out.data());
    }
    pcre2_match_data_free(match);
    pcre2_code_free(code);
    Report(state, chars, found);
}
BENCHMARK_CAPTURE(ReplaceAllPcre2, interpreter, false)
    ->Arg(1)
    ->Arg(16)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ReplaceAllPcre2, jit, true)->Arg(1)->Arg(16)->Unit(benchmark::kMillisecond);

void ReplaceAll_IcuRegex(benchmark::State& state) {
    const std::size_t chars = ReplaceChars(state);
    const vu::String& text = Prose(chars);
    UErrorCode status = U_ZERO_ERROR;
    URegularExpression* re = uregex_open(kFind, -1, UREGEX_LITERAL, nullptr, &status);
    uregex_setText(re, text.data(), static_cast<int32_t>(text.size()), &status);
    if (U_FAILURE(status)) {
        state.SkipWithError("uregex_open failed");
        uregex_close(re);
        return;
    }
    std::vector<WCHAR> out(text.size() * 3 + 1);
    long long found = 0;
    for (auto _ : state) {
        status = U_ZERO_ERROR;
        const int32_t length = uregex_replaceAll(re, kReplacement, -1, out.data(),
                                                 static_cast<int32_t>(out.size()), &status);
        if (U_FAILURE(status)) {
            state.SkipWithError("uregex_replaceAll failed");
            break;
        }
        found = (length - static_cast<int32_t>(text.size())) / 2; // each adds two units
        benchmark::DoNotOptimize(out.data());
    }
    uregex_close(re);
    Report(state, chars, found);
}
BENCHMARK(ReplaceAll_IcuRegex)->Arg(1)->Arg(16)->Unit(benchmark::kMillisecond);

} // namespace

// Replace-all hands back a new text, where the peers write into a buffer
// allocated once. Depending on the sizes, glibc may hand the freed blocks back
// to the system, and the next text is then faulted in page by page, which on a
// virtual machine can cost more than the replacement. VU_BENCH_KEEP_HEAP=1
// keeps freed memory in the process, as a long-running host's heap does, to
// measure the work without the kernel.
int main(int argc, char** argv) {
#if defined(__GLIBC__)
    if (std::getenv("VU_BENCH_KEEP_HEAP")) {
        mallopt(M_MMAP_THRESHOLD, 256 << 20);
        mallopt(M_TRIM_THRESHOLD, 512 << 20);
    }
#endif
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}

#include "text/RegExpScan.h"

#include <array>
#include <cstdint>
#include <utility>

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#define VU_REGEXP_SSE2 1
#else
#define VU_REGEXP_SSE2 0
#endif

// The block scans read whole aligned 16-byte blocks around the string; that
// never leaves the pages the string lies on, but address sanitisers would see
// the units outside the string, so they are told not to instrument these.
#if defined(__clang__) || defined(__GNUC__)
#define VU_NO_ASAN __attribute__((no_sanitize_address))
#else
#define VU_NO_ASAN
#endif

namespace {

// Rough frequency of a unit in English text, used to pick the rarer of a
// literal's characters as the second filter of the literal scan.
int Commonness(WCHAR c) {
    static const char kLetters[] = "etaoinshrdlcumwfgypbvkjxqz";
    if (c == VU_T(' '))
        return 100;
    if (c >= VU_T('a') && c <= VU_T('z')) {
        for (int i = 0; kLetters[i]; ++i)
            if (kLetters[i] == c)
                return 90 - 3 * i;
    }
    if (c == VU_T(',') || c == VU_T('.') || c == VU_T('\n') || c == VU_T('\r'))
        return 30;
    if (c < 0x80)
        return 10;
    return 2;
}

bool MatchesAt(const WCHAR* at, const WCHAR* literal, size_t length) {
    // A NUL in the text mismatches every literal unit, so this never reads
    // past the end of the string.
    for (size_t i = 0; i < length; ++i)
        if (at[i] != literal[i])
            return false;
    return true;
}

size_t LengthScalar(const WCHAR* s) {
    const WCHAR* p = s;
    while (*p)
        ++p;
    return size_t(p - s);
}

const WCHAR* FindUnitScalar(const WCHAR* s, WCHAR c) {
    for (; *s; ++s)
        if (*s == c)
            return s;
    return nullptr;
}

const WCHAR* FindLiteralScalar(const WCHAR* s, const WCHAR* literal, size_t length) {
    for (; *s; ++s)
        if (*s == literal[0] && MatchesAt(s, literal, length))
            return s;
    return nullptr;
}

const WCHAR* FindInRangesScalar(const WCHAR* s, const WCHAR* lo, const WCHAR* hi, int count) {
    for (; *s; ++s)
        for (int i = 0; i < count; ++i)
            if (*s >= lo[i] && *s <= hi[i])
                return s;
    return nullptr;
}

size_t RunOfScalar(const WCHAR* s, WCHAR c) {
    const WCHAR* p = s;
    while (*p == c)
        ++p;
    return size_t(p - s);
}

#if VU_REGEXP_SSE2

inline bool IsUnitAligned(const WCHAR* s) {
    return (reinterpret_cast<uintptr_t>(s) & 1) == 0;
}

inline unsigned Mask(__m128i eq) {
    return unsigned(_mm_movemask_epi8(eq));
}

// Byte mask (two bits per unit) of the four vectors of a 64-byte region.
inline uint64_t Mask64(__m128i h0, __m128i h1, __m128i h2, __m128i h3) {
    return uint64_t(Mask(h0)) | uint64_t(Mask(h1)) << 16 | uint64_t(Mask(h2)) << 32 |
           uint64_t(Mask(h3)) << 48;
}

inline bool Any(__m128i h0, __m128i h1, __m128i h2, __m128i h3) {
    return Mask(_mm_or_si128(_mm_or_si128(h0, h1), _mm_or_si128(h2, h3))) != 0;
}

// Walks the aligned 64-byte regions from the one holding `s`; a region never
// straddles a page. `hits(vector)` marks the interesting units; those before
// `s` are dropped. Returns the first interesting unit.
template <class HitFn> VU_NO_ASAN const WCHAR* FirstInRegions(const WCHAR* s, HitFn hits) {
    const uintptr_t addr = reinterpret_cast<uintptr_t>(s);
    uintptr_t region = addr & ~uintptr_t(63);
    uint64_t startMask = ~uint64_t(0) << (addr - region);
    for (;; region += 64, startMask = ~uint64_t(0)) {
        const __m128i* p = reinterpret_cast<const __m128i*>(region);
        const __m128i h0 = hits(_mm_load_si128(p)), h1 = hits(_mm_load_si128(p + 1));
        const __m128i h2 = hits(_mm_load_si128(p + 2)), h3 = hits(_mm_load_si128(p + 3));
        if (!Any(h0, h1, h2, h3))
            continue;
        const uint64_t m = Mask64(h0, h1, h2, h3) & startMask;
        if (m)
            return reinterpret_cast<const WCHAR*>(region + uint64_t(__builtin_ctzll(m)));
    }
}

#endif

} // namespace

size_t VU_CRegExpScan::Length(const WCHAR* s) {
#if VU_REGEXP_SSE2
    if (IsUnitAligned(s)) {
        const __m128i zero = _mm_setzero_si128();
        const WCHAR* end =
            FirstInRegions(s, [zero](__m128i v) { return _mm_cmpeq_epi16(v, zero); });
        return size_t(end - s);
    }
#endif
    return LengthScalar(s);
}

const WCHAR* VU_CRegExpScan::FindUnit(const WCHAR* s, WCHAR c) {
#if VU_REGEXP_SSE2
    if (IsUnitAligned(s)) {
        const __m128i zero = _mm_setzero_si128();
        const __m128i wanted = _mm_set1_epi16(short(c));
        const WCHAR* p = FirstInRegions(s, [zero, wanted](__m128i v) {
            return _mm_or_si128(_mm_cmpeq_epi16(v, wanted), _mm_cmpeq_epi16(v, zero));
        });
        return *p ? p : nullptr;
    }
#endif
    return FindUnitScalar(s, c);
}

VU_NO_ASAN const WCHAR* VU_CRegExpScan::FindLiteral(const WCHAR* s, const WCHAR* literal,
                                                    size_t length) {
    if (length == 1)
        return FindUnit(s, literal[0]);
#if VU_REGEXP_SSE2
    if (IsUnitAligned(s)) {
        // Filter on the first unit and a rarer one at most 7 units later, so
        // that the second loads stay within the next aligned region; verify
        // each candidate unit by unit.
        size_t second = 1;
        const size_t lastSecond = length - 1 < 7 ? length - 1 : 7;
        for (size_t i = 2; i <= lastSecond; ++i)
            if (Commonness(literal[i]) < Commonness(literal[second]))
                second = i;
        const __m128i zero = _mm_setzero_si128();
        const __m128i first = _mm_set1_epi16(short(literal[0]));
        const __m128i other = _mm_set1_epi16(short(literal[second]));
        const uintptr_t addr = reinterpret_cast<uintptr_t>(s);
        uintptr_t region = addr & ~uintptr_t(63);
        const uint64_t startMask = ~uint64_t(0) << (addr - region);
        {
            // The region holding s: look for the first unit, and for the
            // other one ahead of it once the region is known to hold no NUL.
            const __m128i* p = reinterpret_cast<const __m128i*>(region);
            const WCHAR* units = reinterpret_cast<const WCHAR*>(region);
            const __m128i a0 = _mm_load_si128(p), a1 = _mm_load_si128(p + 1);
            const __m128i a2 = _mm_load_si128(p + 2), a3 = _mm_load_si128(p + 3);
            const uint64_t nul = Mask64(_mm_cmpeq_epi16(a0, zero), _mm_cmpeq_epi16(a1, zero),
                                        _mm_cmpeq_epi16(a2, zero), _mm_cmpeq_epi16(a3, zero)) &
                                 startMask;
            if (nul) {
                // The string ends here: finish unit by unit.
                const WCHAR* end = units + __builtin_ctzll(nul) / 2;
                for (const WCHAR* q = s; q < end; ++q)
                    if (*q == literal[0] && MatchesAt(q, literal, length))
                        return q;
                return nullptr;
            }
            const __m128i* w = reinterpret_cast<const __m128i*>(units + second);
            uint64_t m = Mask64(_mm_and_si128(_mm_cmpeq_epi16(a0, first),
                                              _mm_cmpeq_epi16(_mm_loadu_si128(w), other)),
                                _mm_and_si128(_mm_cmpeq_epi16(a1, first),
                                              _mm_cmpeq_epi16(_mm_loadu_si128(w + 1), other)),
                                _mm_and_si128(_mm_cmpeq_epi16(a2, first),
                                              _mm_cmpeq_epi16(_mm_loadu_si128(w + 2), other)),
                                _mm_and_si128(_mm_cmpeq_epi16(a3, first),
                                              _mm_cmpeq_epi16(_mm_loadu_si128(w + 3), other))) &
                         startMask;
            for (; m; m &= m - 1, m &= m - 1) {
                const WCHAR* q = units + __builtin_ctzll(m) / 2;
                if (MatchesAt(q, literal, length))
                    return q;
            }
        }
        // Later regions: look for the literal's rarest unit alone, and only in
        // a region holding one test it together with a second unit at most 7
        // units away. The NUL is not looked for unit by unit: a running signed
        // minimum of the units shows, per page, whether a NUL (or a unit at or
        // above 0x8000) may have been passed, and only then are the regions
        // examined exactly. Loads never leave the page of a unit that belongs
        // to the string, except the partner loads, which happen only once the
        // string is known to go on past the region.
        size_t rare = 0;
        for (size_t i = 1; i < length; ++i)
            if (Commonness(literal[i]) < Commonness(literal[rare]))
                rare = i;
        size_t partner = rare == 0 ? 1 : rare - 1;
        for (size_t i = rare > 7 ? rare - 7 : 0; i < length && i <= rare + 7; ++i)
            if (i != rare && Commonness(literal[i]) < Commonness(literal[partner]))
                partner = i;
        const ptrdiff_t shift = ptrdiff_t(partner) - ptrdiff_t(rare);
        const __m128i rareUnit = _mm_set1_epi16(short(literal[rare]));
        const __m128i partnerUnit = _mm_set1_epi16(short(literal[partner]));
        const __m128i one = _mm_set1_epi16(1);
        const __m128i highest = _mm_set1_epi16(0x7FFF);

        // Examines one region exactly (no NUL before it): true when the
        // search is over, with the match or null in `found`.
        auto examine = [&](uintptr_t at, const WCHAR*& found) VU_NO_ASAN {
            const __m128i* p = reinterpret_cast<const __m128i*>(at);
            const WCHAR* units = reinterpret_cast<const WCHAR*>(at);
            const __m128i a0 = _mm_load_si128(p), a1 = _mm_load_si128(p + 1);
            const __m128i a2 = _mm_load_si128(p + 2), a3 = _mm_load_si128(p + 3);
            const __m128i r0 = _mm_cmpeq_epi16(a0, rareUnit), r1 = _mm_cmpeq_epi16(a1, rareUnit);
            const __m128i r2 = _mm_cmpeq_epi16(a2, rareUnit), r3 = _mm_cmpeq_epi16(a3, rareUnit);
            const uint64_t nul = Mask64(_mm_cmpeq_epi16(a0, zero), _mm_cmpeq_epi16(a1, zero),
                                        _mm_cmpeq_epi16(a2, zero), _mm_cmpeq_epi16(a3, zero));
            uint64_t m;
            if (nul) {
                // Only a rare unit before the NUL can belong to a match.
                m = Mask64(r0, r1, r2, r3) & ((uint64_t(1) << __builtin_ctzll(nul)) - 1);
            } else {
                const __m128i* w = reinterpret_cast<const __m128i*>(units + shift);
                m = Mask64(_mm_and_si128(r0, _mm_cmpeq_epi16(_mm_loadu_si128(w), partnerUnit)),
                           _mm_and_si128(r1, _mm_cmpeq_epi16(_mm_loadu_si128(w + 1), partnerUnit)),
                           _mm_and_si128(r2, _mm_cmpeq_epi16(_mm_loadu_si128(w + 2), partnerUnit)),
                           _mm_and_si128(r3, _mm_cmpeq_epi16(_mm_loadu_si128(w + 3), partnerUnit)));
            }
            for (; m; m &= m - 1, m &= m - 1) {
                // Candidates come in the order of their start.
                const WCHAR* hit = units + __builtin_ctzll(m) / 2;
                if (size_t(hit - s) < rare)
                    continue; // the literal would start before s
                if (MatchesAt(hit - rare, literal, length)) {
                    found = hit - rare;
                    return true;
                }
            }
            found = nullptr;
            return nul != 0;
        };
        auto mayHoldNul = [one](__m128i low) { return Mask(_mm_cmplt_epi16(low, one)) != 0; };

        const WCHAR* found = nullptr;
        for (region += 64;;) {
            const uintptr_t pageEnd = (region & ~uintptr_t(4095)) + 4096;
            uintptr_t unchecked = region; // first region not known to be NUL-free
            __m128i low = highest;        // signed minimum of the units from there
            for (; region < pageEnd; region += 64) {
                const __m128i* p = reinterpret_cast<const __m128i*>(region);
                const __m128i a0 = _mm_load_si128(p), a1 = _mm_load_si128(p + 1);
                const __m128i a2 = _mm_load_si128(p + 2), a3 = _mm_load_si128(p + 3);
                low =
                    _mm_min_epi16(low, _mm_min_epi16(_mm_min_epi16(a0, a1), _mm_min_epi16(a2, a3)));
                if (!Any(_mm_cmpeq_epi16(a0, rareUnit), _mm_cmpeq_epi16(a1, rareUnit),
                         _mm_cmpeq_epi16(a2, rareUnit), _mm_cmpeq_epi16(a3, rareUnit)))
                    continue;
                for (uintptr_t at = mayHoldNul(low) ? unchecked : region; at <= region; at += 64)
                    if (examine(at, found))
                        return found;
                unchecked = region + 64;
                low = highest;
            }
            if (mayHoldNul(low))
                for (uintptr_t at = unchecked; at < pageEnd; at += 64)
                    if (examine(at, found))
                        return found;
        }
    }
#endif
    return FindLiteralScalar(s, literal, length);
}

#if VU_REGEXP_SSE2
namespace {

// FindInRanges for exactly N ranges; with Units every range is one unit and
// a comparison suffices. Otherwise c is in lo..hi exactly when (c - lo) wraps
// to at most hi - lo, which a saturating subtraction of (hi - lo) turns into
// a test for zero.
template <int N, bool Units>
const WCHAR* FindInRangesOf(const WCHAR* s, const WCHAR* lo, const WCHAR* hi) {
    __m128i los[N], spans[N];
    for (int i = 0; i < N; ++i) {
        los[i] = _mm_set1_epi16(short(lo[i]));
        spans[i] = _mm_set1_epi16(short(WCHAR(hi[i] - lo[i])));
    }
    const __m128i zero = _mm_setzero_si128();
    const WCHAR* p = FirstInRegions(s, [&](__m128i v) {
        __m128i hit = _mm_cmpeq_epi16(v, zero);
        for (int i = 0; i < N; ++i) {
            if constexpr (Units)
                hit = _mm_or_si128(hit, _mm_cmpeq_epi16(v, los[i]));
            else
                hit = _mm_or_si128(
                    hit, _mm_cmpeq_epi16(_mm_subs_epu16(_mm_sub_epi16(v, los[i]), spans[i]), zero));
        }
        return hit;
    });
    return *p ? p : nullptr;
}

using RangeScan = const WCHAR* (*)(const WCHAR*, const WCHAR*, const WCHAR*);

template <bool Units, int... N>
constexpr std::array<RangeScan, sizeof...(N)> RangeScans(std::integer_sequence<int, N...>) {
    return {&FindInRangesOf<N + 1, Units>...};
}

} // namespace
#endif

const WCHAR* VU_CRegExpScan::FindInRanges(const WCHAR* s, const WCHAR* lo, const WCHAR* hi,
                                          int count) {
#if VU_REGEXP_SSE2
    if (IsUnitAligned(s) && count > 0 && count <= kMaxRanges) {
        static constexpr auto kUnitScans =
            RangeScans<true>(std::make_integer_sequence<int, kMaxRanges>());
        static constexpr auto kRangeScans =
            RangeScans<false>(std::make_integer_sequence<int, kMaxRanges>());
        bool units = true;
        for (int i = 0; i < count; ++i)
            units = units && lo[i] == hi[i];
        return (units ? kUnitScans : kRangeScans)[size_t(count - 1)](s, lo, hi);
    }
#endif
    return FindInRangesScalar(s, lo, hi, count);
}

size_t VU_CRegExpScan::RunOf(const WCHAR* s, WCHAR c) {
#if VU_REGEXP_SSE2
    if (IsUnitAligned(s)) {
        const __m128i wanted = _mm_set1_epi16(short(c));
        const WCHAR* end = FirstInRegions(s, [wanted](__m128i v) {
            return _mm_xor_si128(_mm_cmpeq_epi16(v, wanted), _mm_set1_epi32(-1));
        });
        return size_t(end - s);
    }
#endif
    return RunOfScalar(s, c);
}

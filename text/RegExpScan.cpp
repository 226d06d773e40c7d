#include "text/RegExpScan.h"

#include <cstdint>

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
int Commonness(char16_t c) {
    static const char kLetters[] = "etaoinshrdlcumwfgypbvkjxqz";
    if (c == u' ')
        return 100;
    if (c >= u'a' && c <= u'z') {
        for (int i = 0; kLetters[i]; ++i)
            if (kLetters[i] == c)
                return 90 - 3 * i;
    }
    if (c == u',' || c == u'.' || c == u'\n' || c == u'\r')
        return 30;
    if (c < 0x80)
        return 10;
    return 2;
}

bool MatchesAt(const char16_t* at, const char16_t* literal, size_t length) {
    // A NUL in the text mismatches every literal unit, so this never reads
    // past the end of the string.
    for (size_t i = 0; i < length; ++i)
        if (at[i] != literal[i])
            return false;
    return true;
}

size_t LengthScalar(const char16_t* s) {
    const char16_t* p = s;
    while (*p)
        ++p;
    return size_t(p - s);
}

const char16_t* FindUnitScalar(const char16_t* s, char16_t c) {
    for (; *s; ++s)
        if (*s == c)
            return s;
    return nullptr;
}

const char16_t* FindLiteralScalar(const char16_t* s, const char16_t* literal, size_t length) {
    for (; *s; ++s)
        if (*s == literal[0] && MatchesAt(s, literal, length))
            return s;
    return nullptr;
}

const char16_t* FindInRangesScalar(const char16_t* s, const char16_t* lo, const char16_t* hi,
                                   int count) {
    for (; *s; ++s)
        for (int i = 0; i < count; ++i)
            if (*s >= lo[i] && *s <= hi[i])
                return s;
    return nullptr;
}

size_t RunOfScalar(const char16_t* s, char16_t c) {
    const char16_t* p = s;
    while (*p == c)
        ++p;
    return size_t(p - s);
}

#if VU_REGEXP_SSE2

inline bool IsUnitAligned(const char16_t* s) {
    return (reinterpret_cast<uintptr_t>(s) & 1) == 0;
}

inline unsigned TrailingZeros(unsigned v) {
    return unsigned(__builtin_ctz(v));
}

// Walks the aligned blocks from the one holding `s`. `mask(block)` returns the
// byte mask of interesting units (two bits per unit); the first block's mask
// drops the units before `s`. Returns the first interesting unit.
template <class MaskFn> VU_NO_ASAN const char16_t* FirstInBlocks(const char16_t* s, MaskFn mask) {
    const uintptr_t addr = reinterpret_cast<uintptr_t>(s);
    uintptr_t block = addr & ~uintptr_t(15);
    unsigned m = mask(_mm_load_si128(reinterpret_cast<const __m128i*>(block)));
    m &= ~0u << (addr - block);
    while (m == 0) {
        block += 16;
        m = mask(_mm_load_si128(reinterpret_cast<const __m128i*>(block)));
    }
    return reinterpret_cast<const char16_t*>(block + TrailingZeros(m));
}

inline unsigned Mask(__m128i eq) {
    return unsigned(_mm_movemask_epi8(eq));
}

#endif

} // namespace

size_t VU_CRegExpScan::Length(const char16_t* s) {
#if VU_REGEXP_SSE2
    if (IsUnitAligned(s)) {
        const __m128i zero = _mm_setzero_si128();
        const char16_t* end =
            FirstInBlocks(s, [zero](__m128i v) { return Mask(_mm_cmpeq_epi16(v, zero)); });
        return size_t(end - s);
    }
#endif
    return LengthScalar(s);
}

const char16_t* VU_CRegExpScan::FindUnit(const char16_t* s, char16_t c) {
#if VU_REGEXP_SSE2
    if (IsUnitAligned(s)) {
        const __m128i zero = _mm_setzero_si128();
        const __m128i wanted = _mm_set1_epi16(short(c));
        const char16_t* p = FirstInBlocks(s, [zero, wanted](__m128i v) {
            return Mask(_mm_or_si128(_mm_cmpeq_epi16(v, wanted), _mm_cmpeq_epi16(v, zero)));
        });
        return *p ? p : nullptr;
    }
#endif
    return FindUnitScalar(s, c);
}

VU_NO_ASAN const char16_t* VU_CRegExpScan::FindLiteral(const char16_t* s, const char16_t* literal,
                                                       size_t length) {
    if (length == 1)
        return FindUnit(s, literal[0]);
#if VU_REGEXP_SSE2
    if (IsUnitAligned(s)) {
        // Filter on the first unit and a rarer one at most 7 units later, so
        // that the second load stays within the next aligned block; verify
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
        uintptr_t block = addr & ~uintptr_t(15);
        unsigned startMask = ~0u << (addr - block);
        for (;; block += 16, startMask = ~0u) {
            const __m128i v = _mm_load_si128(reinterpret_cast<const __m128i*>(block));
            const char16_t* units = reinterpret_cast<const char16_t*>(block);
            const unsigned nul = Mask(_mm_cmpeq_epi16(v, zero)) & startMask;
            if (nul) {
                // The string ends in this block: finish unit by unit.
                const char16_t* end = units + TrailingZeros(nul) / 2;
                for (const char16_t* p = units + TrailingZeros(startMask) / 2; p < end; ++p)
                    if (*p == literal[0] && MatchesAt(p, literal, length))
                        return p;
                return nullptr;
            }
            // No NUL here, so the next aligned block is readable.
            const __m128i w = _mm_loadu_si128(reinterpret_cast<const __m128i*>(units + second));
            unsigned m = Mask(_mm_and_si128(_mm_cmpeq_epi16(v, first), _mm_cmpeq_epi16(w, other))) &
                         startMask;
            while (m) {
                const unsigned bit = TrailingZeros(m);
                const char16_t* p = units + bit / 2;
                if (MatchesAt(p, literal, length))
                    return p;
                m &= ~(3u << bit);
            }
        }
    }
#endif
    return FindLiteralScalar(s, literal, length);
}

const char16_t* VU_CRegExpScan::FindInRanges(const char16_t* s, const char16_t* lo,
                                             const char16_t* hi, int count) {
#if VU_REGEXP_SSE2
    if (IsUnitAligned(s) && count > 0 && count <= kMaxRanges) {
        // c is in lo..hi exactly when (c - lo) wraps to at most hi - lo, which
        // a saturating subtraction of (hi - lo) turns into a test for zero.
        __m128i los[kMaxRanges], spans[kMaxRanges];
        for (int i = 0; i < count; ++i) {
            los[i] = _mm_set1_epi16(short(lo[i]));
            spans[i] = _mm_set1_epi16(short(char16_t(hi[i] - lo[i])));
        }
        const __m128i zero = _mm_setzero_si128();
        const char16_t* p = FirstInBlocks(s, [&](__m128i v) {
            __m128i hit = _mm_cmpeq_epi16(v, zero);
            for (int i = 0; i < count; ++i) {
                const __m128i offset = _mm_sub_epi16(v, los[i]);
                hit = _mm_or_si128(hit, _mm_cmpeq_epi16(_mm_subs_epu16(offset, spans[i]), zero));
            }
            return Mask(hit);
        });
        return *p ? p : nullptr;
    }
#endif
    return FindInRangesScalar(s, lo, hi, count);
}

size_t VU_CRegExpScan::RunOf(const char16_t* s, char16_t c) {
#if VU_REGEXP_SSE2
    if (IsUnitAligned(s)) {
        const __m128i wanted = _mm_set1_epi16(short(c));
        const char16_t* end = FirstInBlocks(
            s, [wanted](__m128i v) { return Mask(_mm_cmpeq_epi16(v, wanted)) ^ 0xFFFFu; });
        return size_t(end - s);
    }
#endif
    return RunOfScalar(s, c);
}

#pragma once

// VU_CRegExpScan: the vectorised scans behind VU_CRegExpression's search
// hints, over NUL-terminated UTF-16 text whose length is not known in advance.
//
// On x86-64 they read the text in aligned 16-byte blocks with SSE2, so a read
// never crosses into a page that holds no part of the string (the unused
// units around the string are masked off); other targets use plain loops.
// Every function stops at the terminating NUL and never reports a position
// past it.

#include <cstddef>

class VU_CRegExpScan {
public:
    // Length of `s` in units (like wcslen).
    static size_t Length(const char16_t* s);
    // First occurrence of `c` (not NUL) in `s`, or null.
    static const char16_t* FindUnit(const char16_t* s, char16_t c);
    // First occurrence of `literal` (`length` >= 1 units, no NUL) in `s`, or null.
    static const char16_t* FindLiteral(const char16_t* s, const char16_t* literal, size_t length);
    // First position in `s` whose unit lies in one of the `count` inclusive
    // ranges lo[i]..hi[i] (NUL excluded), or null. count <= kMaxRanges.
    static constexpr int kMaxRanges = 8;
    static const char16_t* FindInRanges(const char16_t* s, const char16_t* lo, const char16_t* hi,
                                        int count);
    // Number of leading units of `s` equal to `c` (not NUL).
    static size_t RunOf(const char16_t* s, char16_t c);
};

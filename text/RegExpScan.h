#pragma once

// VU_CRegExpScan: the vectorised scans behind VU_CRegExpression's search
// hints, over NUL-terminated UTF-16 text whose length is not known in advance.
//
// On x86-64 they read the text in aligned 16-byte blocks with SSE2, so a read
// never crosses into a page that holds no part of the string (the unused
// units around the string are masked off); other targets use plain loops.
// Every function stops at the terminating NUL and never reports a position
// past it.

#include "framework/Char.h"
#include <cstddef>

class VU_CRegExpScan {
public:
    // Length of `s` in units (like wcslen).
    static size_t Length(const WCHAR* s);
    // First occurrence of `c` (not NUL) in `s`, or null.
    static const WCHAR* FindUnit(const WCHAR* s, WCHAR c);
    // First occurrence of `literal` (`length` >= 1 units, no NUL) in `s`, or null.
    static const WCHAR* FindLiteral(const WCHAR* s, const WCHAR* literal, size_t length);
    // First position in `s` whose unit lies in one of the `count` inclusive
    // ranges lo[i]..hi[i] (NUL excluded), or null. count <= kMaxRanges.
    static constexpr int kMaxRanges = 8;
    static const WCHAR* FindInRanges(const WCHAR* s, const WCHAR* lo, const WCHAR* hi, int count);
    // Number of leading units of `s` equal to `c` (not NUL).
    static size_t RunOf(const WCHAR* s, WCHAR c);
};

#pragma once
// The library's one case map: ASCII exactly as the C runtime in the "C"
// locale (only A-Z and a-z change), beyond ASCII the Unicode simple
// (one-to-one) case mapping of the Basic Multilingual Plane. The same on
// every platform, independent of the process locale.
#include "framework/CaseMapTable.h"
#include "framework/Char.h"

#include <string_view>

namespace vu {

inline WCHAR ToLower(WCHAR c) {
    if (c < 0x80)
        return static_cast<WCHAR>(static_cast<unsigned>(c - VU_T('A')) < 26u ? c + 32 : c);
    return static_cast<WCHAR>(c + casemap::kDelta[casemap::kLowerPage[c >> 8]][c & 0xFF]);
}

inline WCHAR ToUpper(WCHAR c) {
    if (c < 0x80)
        return static_cast<WCHAR>(static_cast<unsigned>(c - VU_T('a')) < 26u ? c - 32 : c);
    return static_cast<WCHAR>(c + casemap::kDelta[casemap::kUpperPage[c >> 8]][c & 0xFF]);
}

// Case-blind three-way comparison: both sides are lowered unit by unit and
// compared as unsigned code units (so '_' sorts before letters, as with the
// C runtime's wide case-blind compare). Returns <0, 0 or >0.
int CompareNoCase(vu::StringView a, vu::StringView b);

// Case-blind equality; cheaper than CompareNoCase when only equality matters.
bool EqualNoCase(vu::StringView a, vu::StringView b);

// Lowers or uppers a run of code units in place.
void MakeLower(WCHAR* s, std::size_t n);
void MakeUpper(WCHAR* s, std::size_t n);

} // namespace vu

#pragma once
// The library's one case map: ASCII exactly as the C runtime in the "C"
// locale (only A-Z and a-z change), beyond ASCII the Unicode simple
// (one-to-one) case mapping of the Basic Multilingual Plane. The same on
// every platform, independent of the process locale.
#include "framework/CaseMapTable.h"

#include <string_view>

namespace vu {

inline char16_t ToLower(char16_t c) {
    if (c < 0x80)
        return static_cast<char16_t>(static_cast<unsigned>(c - u'A') < 26u ? c + 32 : c);
    return static_cast<char16_t>(c + casemap::kDelta[casemap::kLowerPage[c >> 8]][c & 0xFF]);
}

inline char16_t ToUpper(char16_t c) {
    if (c < 0x80)
        return static_cast<char16_t>(static_cast<unsigned>(c - u'a') < 26u ? c - 32 : c);
    return static_cast<char16_t>(c + casemap::kDelta[casemap::kUpperPage[c >> 8]][c & 0xFF]);
}

// Case-blind three-way comparison: both sides are lowered unit by unit and
// compared as unsigned code units (so '_' sorts before letters, as with the
// C runtime's wide case-blind compare). Returns <0, 0 or >0.
int CompareNoCase(std::u16string_view a, std::u16string_view b);

// Case-blind equality; cheaper than CompareNoCase when only equality matters.
bool EqualNoCase(std::u16string_view a, std::u16string_view b);

// Lowers or uppers a run of code units in place.
void MakeLower(char16_t* s, std::size_t n);
void MakeUpper(char16_t* s, std::size_t n);

} // namespace vu

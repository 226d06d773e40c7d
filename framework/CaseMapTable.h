#pragma once
// The generated case tables behind framework/CaseMap.h. A code point c maps
// to c + kDelta[kLowerPage[c >> 8]][c & 0xFF] (modulo 2^16), likewise for
// upper case; page 0 of kDelta is the identity page.
#include <cstdint>

namespace vu::casemap {

extern const std::uint8_t kLowerPage[256];
extern const std::uint8_t kUpperPage[256];
extern const std::uint16_t kDelta[][256];
extern const int kDeltaPageCount;

} // namespace vu::casemap

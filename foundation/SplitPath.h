#pragma once
// vu::SplitPath: the library's one path splitter. It splits a path exactly
// as the C runtime's _wsplitpath does (checked against the runtime under
// Wine), on every platform:
//
//  - drive: the first two units when the second is ':' (any first unit);
//  - dir: from there up to and including the last '\' or '/';
//  - ext: from the last '.' after the dir to the end, dot included;
//  - fname: what lies between dir and ext.
//
// The runtime splits into fixed buffers (3, 256, 256 and 256 units with the
// terminator). When a requested part does not fit, it returns every
// requested part empty; SplitPath does the same and returns false. A part
// that is not requested (null pointer) is not checked. Splitting stops at
// the first 0 unit, as with a C string.
#include "framework/Char.h"
#include <cstddef>
#include <string>

namespace vu {

// The C runtime's part limits, terminator included.
inline constexpr std::size_t kMaxDrive = 3;
inline constexpr std::size_t kMaxDir = 256;
inline constexpr std::size_t kMaxFname = 256;
inline constexpr std::size_t kMaxExt = 256;

// Splits path into the parts whose pointers are not null. Returns false,
// with every requested part empty, for a null path or a part too long for
// the runtime's buffer.
bool SplitPath(const WCHAR* path, vu::String* drive, vu::String* dir, vu::String* fname,
               vu::String* ext);

} // namespace vu

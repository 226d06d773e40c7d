#pragma once
// vu::SplitPath: the library's one path splitter. It splits a path by the
// rules of the C runtime's _wsplitpath (checked against the runtime under
// Wine), on every platform:
//
//  - drive: the first two units when the second is ':' (any first unit);
//  - dir: from there up to and including the last '\' or '/';
//  - ext: from the last '.' after the dir to the end, dot included;
//  - fname: what lies between dir and ext.
//
// Parts of any length are kept whole: where the runtime's fixed buffers
// (255 units a part) would make it give up and empty every part, SplitPath
// still returns the parts, so drive + dir + fname + ext is always the path
// (up to its first 0 unit, as with a C string).
//
// Everywhere else the path classes follow Windows rules on every platform:
// only '\' ends a directory and joins add '\' (IsDirSeparator).
#include "framework/Char.h"

namespace vu {

// Splits path into the parts whose pointers are not null. Returns false,
// with every requested part empty, for a null path only.
bool SplitPath(const WCHAR* path, vu::String* drive, vu::String* dir, vu::String* fname,
               vu::String* ext);

// The separator of the path rules: '\' alone ('/' only matters to the
// splitter, as to the runtime's).
inline constexpr WCHAR kDirSeparator = VU_T('\\');
inline bool IsDirSeparator(WCHAR c) {
    return c == kDirSeparator;
}

} // namespace vu

#pragma once
// AF_CUStrNcc: AF_CUStr for interfaces that take non-const buffers. It has
// the same fields, conversion and ownership rules; its conversion operators
// return non-const pointers. The caller must not write past the converted
// length (nor into the caller's own string if that was read-only).
#include "foundation/UStr.h"
#include "framework/Char.h"

class AF_CUStrNcc : private AF_CUStr {
public:
    AF_CUStrNcc(const char* narrow) : AF_CUStr(narrow) {}
    AF_CUStrNcc(const WCHAR* wide) : AF_CUStr(wide) {}

    operator WCHAR*() const { return Wide(); }
    operator char*() const { return Narrow(); }

    using AF_CUStr::uxdup;
};

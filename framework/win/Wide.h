#pragma once
// The library keeps text as char16_t; Win32 takes wchar_t, which is the same
// 16-bit unit on Windows. These views convert at the API boundary without
// copying.
#include <cwchar>

static_assert(sizeof(wchar_t) == sizeof(char16_t), "wchar_t must be 16 bits on Windows");

namespace vu {

inline const wchar_t* W(const char16_t* s) { return reinterpret_cast<const wchar_t*>(s); }
inline wchar_t* W(char16_t* s) { return reinterpret_cast<wchar_t*>(s); }
inline const char16_t* U(const wchar_t* s) { return reinterpret_cast<const char16_t*>(s); }
inline char16_t* U(wchar_t* s) { return reinterpret_cast<char16_t*>(s); }

} // namespace vu

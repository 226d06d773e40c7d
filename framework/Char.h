#pragma once
// The library's character: one UTF-16 code unit.
//
// Windows spells that unit wchar_t, so in the Windows build WCHAR is wchar_t
// and every signature takes and yields wchar_t: a host passes L"...",
// LPCWSTR and wchar_t buffers as they are, with no cast and no copy.
// Elsewhere wchar_t is 32 bits, and the same unit is char16_t. Code that
// compiles in both builds writes WCHAR, LPCWSTR/LPWSTR, vu::String and
// vu::StringView, and VU_T("...") or VU_T('x') for literals (L"..." on
// Windows, u"..." elsewhere). Windows-only code may write wchar_t and L"...".
#include <string>
#include <string_view>

#if defined(_WIN32)
static_assert(sizeof(wchar_t) == 2, "the Windows build needs a 16-bit wchar_t");
typedef wchar_t WCHAR;
#define VU_T(literal) L##literal
#else
typedef char16_t WCHAR;
#define VU_T(literal) u##literal
#endif
typedef WCHAR* LPWSTR;
typedef const WCHAR* LPCWSTR;

namespace vu {
using String = std::basic_string<WCHAR>;
using StringView = std::basic_string_view<WCHAR>;
} // namespace vu

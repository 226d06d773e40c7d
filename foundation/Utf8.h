#pragma once
// Conversions between the library's UTF-16 text and UTF-8, for the places
// where text leaves the library as bytes: POSIX file names, files written by
// the gallery, XML handed to byte-oriented parsers.

#include "framework/Char.h"
#include <string>
#include <string_view>

namespace vu {

// UTF-16 to UTF-8; an unpaired surrogate becomes U+FFFD.
std::string Utf16ToUtf8(vu::StringView text);

// UTF-8 to UTF-16; each malformed, overlong or surrogate-encoding byte
// sequence becomes one U+FFFD and decoding resumes at the next byte.
vu::String Utf8ToUtf16(std::string_view bytes);

} // namespace vu

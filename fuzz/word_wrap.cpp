// Wraps random texts at random lengths: nothing is lost or added, lines stay
// within the limit but for a hanging space or a hard break, hard breaks only
// end lines, and indentation only prefixes.
#include "text/WordWrappedString.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

void Check(bool ok) {
    if (!ok)
        abort();
}

// The first byte picks the length; then either raw UTF-16 or characters
// from an alphabet rich in whitespace.
void Decode(const uint8_t* data, size_t size, int& length, vu::String& text) {
    static const WCHAR alphabet[] = VU_T("ab  \t\r\n\r\n\v\u3000\u00a0\u00e9x");
    length = size > 0 ? static_cast<int>(data[0]) - 2 : -1; // -2..253; -1 is no limit
    const bool raw = size > 1 && data[1] & 1;
    for (size_t i = 2; i < size; ++i) {
        if (raw && i + 1 < size) {
            text += static_cast<WCHAR>(data[i] | data[i + 1] << 8);
            ++i;
        } else {
            text += alphabet[data[i] % (std::size(alphabet) - 1)];
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    int length = -1;
    vu::String text;
    Decode(data, size, length, text);
    VU_CWordWrappedString w(CString(text), length);
    const long long max = length == -1 ? 2147483647LL : (length < 1 ? 1 : length);

    vu::String joined;
    size_t hardBreaksInside = 0;
    for (int i = 0; i < w.GetNumLines(); ++i) {
        const vu::String line = w.GetLine(i).Str();
        const long long n = static_cast<long long>(line.size());
        const bool hard = line.ends_with(VU_T("\r\n"));
        Check(n <= max || (n == max + 1 && line.back() == VU_T(' ')) || (hard && n - 2 <= max));
        const size_t inner = line.find(VU_T("\r\n"));
        hardBreaksInside += inner != vu::String::npos && inner + 2 != line.size();
        joined += line;
    }
    Check(hardBreaksInside == 0);
    Check(joined == text);
    Check(w.GetFullString(false, true).Str() == text);
    Check(w.GetLine(w.GetNumLines()) == VU_T("INVALID_LINE_NUMBER"));

    // Hard-break joining adds exactly two characters per break it inserts.
    const vu::String hard = w.GetFullString(true, true).Str();
    const vu::String soft = w.GetFullString(true, false).Str();
    Check((hard.size() - text.size()) % 2 == 0);
    Check((soft.size() - text.size()) / 3 == (hard.size() - text.size()) / 2);

    if (w.GetNumLines() > 0) {
        const vu::String first = w.GetLine(0).Str();
        Check(w.IndentText(3, w.GetNumLines() - 1) == 1);
        Check(w.GetNumLines() == 1 || w.GetLine(0).Str() == first);
        Check(w.GetLine(w.GetNumLines() - 1).Str().starts_with(VU_T("   ")));
    }
    return 0;
}

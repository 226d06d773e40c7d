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
void Decode(const uint8_t* data, size_t size, int& length, std::u16string& text) {
    static const char16_t alphabet[] = u"ab  \t\r\n\r\n\v\u3000\u00a0\u00e9x";
    length = size > 0 ? static_cast<int>(data[0]) - 2 : -1; // -2..253; -1 is no limit
    const bool raw = size > 1 && data[1] & 1;
    for (size_t i = 2; i < size; ++i) {
        if (raw && i + 1 < size) {
            text += static_cast<char16_t>(data[i] | data[i + 1] << 8);
            ++i;
        } else {
            text += alphabet[data[i] % (std::size(alphabet) - 1)];
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    int length = -1;
    std::u16string text;
    Decode(data, size, length, text);
    VU_CWordWrappedString w(CString(text), length);
    const long long max = length == -1 ? 2147483647LL : (length < 1 ? 1 : length);

    std::u16string joined;
    size_t hardBreaksInside = 0;
    for (int i = 0; i < w.GetNumLines(); ++i) {
        const std::u16string line = w.GetLine(i).Str();
        const long long n = static_cast<long long>(line.size());
        const bool hard = line.ends_with(u"\r\n");
        Check(n <= max || (n == max + 1 && line.back() == u' ') || (hard && n - 2 <= max));
        const size_t inner = line.find(u"\r\n");
        hardBreaksInside += inner != std::u16string::npos && inner + 2 != line.size();
        joined += line;
    }
    Check(hardBreaksInside == 0);
    Check(joined == text);
    Check(w.GetFullString(false, true).Str() == text);
    Check(w.GetLine(w.GetNumLines()) == u"INVALID_LINE_NUMBER");

    // Hard-break joining adds exactly two characters per break it inserts.
    const std::u16string hard = w.GetFullString(true, true).Str();
    const std::u16string soft = w.GetFullString(true, false).Str();
    Check((hard.size() - text.size()) % 2 == 0);
    Check((soft.size() - text.size()) / 3 == (hard.size() - text.size()) / 2);

    if (w.GetNumLines() > 0) {
        const std::u16string first = w.GetLine(0).Str();
        Check(w.IndentText(3, w.GetNumLines() - 1) == 1);
        Check(w.GetNumLines() == 1 || w.GetLine(0).Str() == first);
        Check(w.GetLine(w.GetNumLines() - 1).Str().starts_with(u"   "));
    }
    return 0;
}

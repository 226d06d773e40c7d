// Wraps random texts (raw UTF-16 too) at random lengths and checks the rules
// the property test checks on generated texts, and that indentation only
// prefixes.
#include "../tests/text/WordWrapInvariants.h"

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
    Check(BrokenWrapRule(w, text, length).empty());
    if (w.GetNumLines() > 0) {
        const vu::String first = w.GetLine(0).Str();
        Check(w.IndentText(3, w.GetNumLines() - 1) == 1);
        Check(w.GetNumLines() == 1 || w.GetLine(0).Str() == first);
        Check(w.GetLine(w.GetNumLines() - 1).Str().starts_with(VU_T("   ")));
    }
    return 0;
}

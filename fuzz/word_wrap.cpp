// Wraps random texts (raw UTF-16 too) at random lengths and checks the rules
// the property test checks on generated texts, and that indentation only
// prefixes.
#include "../tests/text/WordWrapInvariants.h"
#include "FuzzSupport.h"

#include <cstdint>
#include <vector>

using fuzz::Check;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzedDataProvider in(data, size);
    const int length = in.ConsumeIntegralInRange(-2, 253); // -1 is no limit
    vu::String text;
    if (in.ConsumeBool()) { // raw units, or an alphabet rich in whitespace
        const std::vector<uint8_t> bytes = in.ConsumeRemainingBytes<uint8_t>();
        for (size_t i = 0; i + 1 < bytes.size(); i += 2)
            text += static_cast<WCHAR>(bytes[i] | bytes[i + 1] << 8);
    } else {
        text = fuzz::Text(in, VU_T("ab  \t\r\n\r\n\v\u3000\u00a0\u00e9x"), 4096);
    }
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

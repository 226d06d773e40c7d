// Wraps random texts (raw UTF-16 too) at random lengths and checks the rules
// the property test checks on generated texts.
#include "../tests/text/WordWrapInvariants.h"
#include "FuzzSupport.h"

#include <cstdint>
#include <vector>

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
    fuzz::Check(BrokenWrapRule(VU_CWordWrappedString(CString(text), length), text, length).empty());
    return 0;
}

#pragma once
// Helpers shared by the fuzz targets: a check that ends the run as a finding,
// and texts drawn from an alphabet through FuzzedDataProvider.
#include "framework/Char.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <cstddef>
#include <cstdlib>

namespace fuzz {

inline void Check(bool ok) {
    if (!ok)
        std::abort();
}

// Up to maxLength units of alphabet.
inline vu::String Text(FuzzedDataProvider& in, vu::StringView alphabet, std::size_t maxLength) {
    vu::String s(in.ConsumeIntegralInRange<std::size_t>(0, maxLength), VU_T(' '));
    for (WCHAR& c : s)
        c = alphabet[in.ConsumeIntegralInRange<std::size_t>(0, alphabet.size() - 1)];
    return s;
}

} // namespace fuzz

#include "framework/CaseMap.h"

#include <gtest/gtest.h>

#include <cctype>
#include <string>

namespace {

// The mapping itself is checked against the Unicode database natively; the
// order of CompareNoCase (lowered units, '_' before letters) with CString.
TEST(CaseMap, EqualNoCaseAgreesWithCompareNoCase) {
    // Pseudo-random strings over an alphabet of both cases, so that many
    // pairs are equal ignoring case.
    const WCHAR alphabet[] = {VU_T('a'), VU_T('A'), VU_T('z'), VU_T('Z'), VU_T('_'),
                              0x00E4,    0x00C4,    0x03C3,    0x03A3,    0x03C2,
                              0x0131,    0x0130,    VU_T('i'), VU_T('I')};
    unsigned x = 7;
    auto next = [&x] {
        x = x * 1664525u + 1013904223u;
        return x >> 16;
    };
    int equal = 0;
    for (int i = 0; i < 5000; ++i) {
        vu::String a, b;
        const unsigned len = next() % 4;
        for (unsigned k = 0; k < len; ++k) {
            const unsigned pick = next() % std::size(alphabet);
            a.push_back(alphabet[pick]);
            // Same letter, case flipped half of the time.
            const WCHAR c = alphabet[pick];
            b.push_back(next() % 2 ? vu::ToUpper(c) : vu::ToLower(c));
        }
        if (next() % 3 == 0 && !b.empty())
            b.back() = alphabet[next() % std::size(alphabet)];
        const bool eq = vu::EqualNoCase(a, b);
        equal += eq;
        ASSERT_EQ(eq, vu::CompareNoCase(a, b) == 0) << i;
    }
    EXPECT_GT(equal, 1000);
}

} // namespace

#include "WordWrapInvariants.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace {

TEST(WordWrappedStringProperties, GeneratedTexts) {
    // clang-format off
    const vu::String pieces[] = {
        VU_T("a"), VU_T("word"), VU_T("supercalifragilistic"), VU_T(" "), VU_T(" "), VU_T(" "), VU_T("\t"), VU_T("\r\n"), VU_T("\r"), VU_T("\n"),
        VU_T("\u3000"), VU_T("\u00a0"), VU_T("\u00e9t\u00e9"), VU_T("\u4e2d\u6587"), VU_T("\U0001F600"), VU_T("\v")};
    // clang-format on
    std::mt19937 rng(20240611);
    for (int round = 0; round < 3000; ++round) {
        vu::String text;
        for (size_t count = rng() % 61; count > 0; --count)
            text += pieces[rng() % std::size(pieces)];
        const int length = round % 25 == 0 ? -1 : round % 23;
        const VU_CWordWrappedString w(CString(text), length);
        ASSERT_EQ(BrokenWrapRule(w, text, length), "") << "round " << round << " length " << length;
    }
}

} // namespace

#include "text/WordWrappedString.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace {

using Lines = std::vector<vu::String>;

vu::String RandomText(std::mt19937& rng) {
    // clang-format off
    static const vu::String pieces[] = {
        VU_T("a"), VU_T("word"), VU_T("supercalifragilistic"), VU_T(" "), VU_T(" "), VU_T(" "), VU_T("\t"), VU_T("\r\n"), VU_T("\r"), VU_T("\n"),
        VU_T("\u3000"), VU_T("\u00a0"), VU_T("\u00e9t\u00e9"), VU_T("\u4e2d\u6587"), VU_T("\U0001F600"), VU_T("\v")};
    // clang-format on
    std::uniform_int_distribution<size_t> pick(0, std::size(pieces) - 1);
    vu::String text;
    const size_t count = std::uniform_int_distribution<size_t>(0, 60)(rng);
    for (size_t i = 0; i < count; ++i)
        text += pieces[pick(rng)];
    return text;
}

TEST(WordWrappedStringProperties, GeneratedTexts) {
    std::mt19937 rng(20240611);
    for (int round = 0; round < 3000; ++round) {
        const vu::String text = RandomText(rng);
        const int length = round % 25 == 0 ? -1 : 1 + round % 23;
        SCOPED_TRACE(testing::Message() << "round " << round << " length " << length);
        const VU_CWordWrappedString w(CString(text), length);
        const long long max = length == -1 ? 2147483647 : length;

        Lines lines;
        vu::String joined;
        for (int i = 0; i < w.GetNumLines(); ++i) {
            lines.push_back(w.GetLine(i).Str());
            joined += lines.back();
        }
        ASSERT_EQ(joined, text) << "lines lose or add characters";

        for (const vu::String& line : lines) {
            const long long size = static_cast<long long>(line.size());
            const bool hangingSpace = size == max + 1 && line.back() == VU_T(' ');
            const bool hardBreak = line.ends_with(VU_T("\r\n")) && size - 2 <= max;
            EXPECT_TRUE(size <= max || hangingSpace || hardBreak) << "line too long";
            EXPECT_EQ(line.find(VU_T("\r\n")),
                      line.ends_with(VU_T("\r\n")) ? size - 2 : vu::String::npos)
                << "hard break inside a line";
        }

        if (text.find(VU_T("\r\r\n")) != vu::String::npos)
            continue; // the marker could not be told from the text
        vu::String soft = w.GetFullString(true, false).Str();
        for (size_t p = 0; (p = soft.find(VU_T("\r\r\n"), p)) != vu::String::npos;)
            soft.erase(p, 3);
        EXPECT_EQ(soft, text) << "soft breaks are more than markers";
    }
}

} // namespace

#include "text/WordWrappedString.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace {

using Lines = std::vector<std::u16string>;

std::u16string RandomText(std::mt19937& rng) {
    // clang-format off
    static const std::u16string pieces[] = {
        u"a", u"word", u"supercalifragilistic", u" ", u" ", u" ", u"\t", u"\r\n", u"\r", u"\n",
        u"\u3000", u"\u00a0", u"\u00e9t\u00e9", u"\u4e2d\u6587", u"\U0001F600", u"\v"};
    // clang-format on
    std::uniform_int_distribution<size_t> pick(0, std::size(pieces) - 1);
    std::u16string text;
    const size_t count = std::uniform_int_distribution<size_t>(0, 60)(rng);
    for (size_t i = 0; i < count; ++i)
        text += pieces[pick(rng)];
    return text;
}

TEST(WordWrappedStringProperties, GeneratedTexts) {
    std::mt19937 rng(20240611);
    for (int round = 0; round < 3000; ++round) {
        const std::u16string text = RandomText(rng);
        const int length = round % 25 == 0 ? -1 : 1 + round % 23;
        SCOPED_TRACE(testing::Message() << "round " << round << " length " << length);
        const VU_CWordWrappedString w(CString(text), length);
        const long long max = length == -1 ? 2147483647 : length;

        Lines lines;
        std::u16string joined;
        for (int i = 0; i < w.GetNumLines(); ++i) {
            lines.push_back(w.GetLine(i).Str());
            joined += lines.back();
        }
        ASSERT_EQ(joined, text) << "lines lose or add characters";

        for (const std::u16string& line : lines) {
            const long long size = static_cast<long long>(line.size());
            const bool hangingSpace = size == max + 1 && line.back() == u' ';
            const bool hardBreak = line.ends_with(u"\r\n") && size - 2 <= max;
            EXPECT_TRUE(size <= max || hangingSpace || hardBreak) << "line too long";
            EXPECT_EQ(line.find(u"\r\n"), line.ends_with(u"\r\n") ? size - 2 : std::u16string::npos)
                << "hard break inside a line";
        }

        if (text.find(u"\r\r\n") != std::u16string::npos)
            continue; // the marker could not be told from the text
        std::u16string soft = w.GetFullString(true, false).Str();
        for (size_t p = 0; (p = soft.find(u"\r\r\n", p)) != std::u16string::npos;)
            soft.erase(p, 3);
        EXPECT_EQ(soft, text) << "soft breaks are more than markers";
    }
}

} // namespace

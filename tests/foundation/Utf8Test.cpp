#include "foundation/Utf8.h"

#include <gtest/gtest.h>

namespace {

TEST(Utf8, RoundTripsEveryLengthOfSequence) {
    const vu::String text = VU_T("a\u00e4\u20ac\U0001F600z"); // 1-, 2-, 3- and 4-byte forms
    const std::string bytes = vu::Utf16ToUtf8(text);
    EXPECT_EQ("a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80z", bytes);
    EXPECT_EQ(text, vu::Utf8ToUtf16(bytes));
}

TEST(Utf8, ReplacesWhatCannotBeConverted) {
    struct Row {
        const char* name;
        std::string bytes;
        vu::String expected;
    } rows[] = {
        {"stray continuation byte", "a\x80z", VU_T("a\uFFFDz")},
        {"truncated sequence at the end", "a\xE2\x82", VU_T("a\uFFFD\uFFFD")},
        {"overlong slash", "\xC0\xAF", VU_T("\uFFFD\uFFFD")},
        {"encoded surrogate", "\xED\xA0\x80", VU_T("\uFFFD\uFFFD\uFFFD")},
        {"beyond U+10FFFF", "\xF4\x90\x80\x80", VU_T("\uFFFD\uFFFD\uFFFD\uFFFD")},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(row.expected, vu::Utf8ToUtf16(row.bytes));
    }
    EXPECT_EQ("\xEF\xBF\xBD"
              "a",
              vu::Utf16ToUtf8(vu::String(1, WCHAR(0xD800)) + VU_T("a")));
}

} // namespace

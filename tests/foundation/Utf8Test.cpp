#include "foundation/Utf8.h"

#include <gtest/gtest.h>

namespace {

TEST(Utf8, RoundTripsEveryLengthOfSequence) {
    const std::u16string text = u"a\u00e4\u20ac\U0001F600z"; // 1-, 2-, 3- and 4-byte forms
    const std::string bytes = vu::Utf16ToUtf8(text);
    EXPECT_EQ("a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80z", bytes);
    EXPECT_EQ(text, vu::Utf8ToUtf16(bytes));
}

TEST(Utf8, ReplacesWhatCannotBeConverted) {
    struct Row {
        const char* name;
        std::string bytes;
        std::u16string expected;
    } rows[] = {
        {"stray continuation byte", "a\x80z", u"a\uFFFDz"},
        {"truncated sequence at the end", "a\xE2\x82", u"a\uFFFD\uFFFD"},
        {"overlong slash", "\xC0\xAF", u"\uFFFD\uFFFD"},
        {"encoded surrogate", "\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"},
        {"beyond U+10FFFF", "\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(row.expected, vu::Utf8ToUtf16(row.bytes));
    }
    EXPECT_EQ("\xEF\xBF\xBD"
              "a",
              vu::Utf16ToUtf8(std::u16string(1, char16_t(0xD800)) + u"a"));
}

} // namespace

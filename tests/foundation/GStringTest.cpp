#include "foundation/GString.h"
#include "framework/CString.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <string>

namespace {

std::string Utf8(const std::u16string& s) {
    std::string out;
    for (char16_t c : s)
        out += c < 0x80 ? static_cast<char>(c) : '?';
    return out;
}

struct EditRow {
    const char* name;
    std::u16string input;
    std::function<void(AF_GString&)> edit;
    std::u16string expected;
};

void RunEdits(const std::vector<EditRow>& rows) {
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        AF_GString s(row.input);
        row.edit(s);
        EXPECT_EQ(Utf8(s), Utf8(row.expected));
    }
}

TEST(GString, SetEditsWorkInPlaceFromPos) {
    RunEdits({
        {"convert replaces a run as long as the set", u"x-y-z",
         [](AF_GString& s) { s.convert(u"-+", u"="); }, u"x=="},
        {"convert searches on after the inserted text", u"a.b",
         [](AF_GString& s) { s.convert(u".", u".."); }, u"a..b"},
        {"convert from pos", u"a.b.c", [](AF_GString& s) { s.convert(u".", u"-", 2); }, u"a.b-c"},
        {"filter keeps the set", u"a1b2c3", [](AF_GString& s) { s.filter(u"0123456789"); }, u"123"},
        {"filter from pos", u"a1b2c3", [](AF_GString& s) { s.filter(u"0123456789", 2); }, u"a123"},
        {"filter with an empty set erases the rest", u"abc",
         [](AF_GString& s) { s.filter(u"", 1); }, u"a"},
        {"remove erases the set", u"a-b_c", [](AF_GString& s) { s.remove(u"-_"); }, u"abc"},
        {"remove_substr erases whole occurrences", u"abcabcab",
         [](AF_GString& s) { s.remove_substr(u"abc"); }, u"ab"},
        {"remove_substr of an empty string does nothing", u"abc",
         [](AF_GString& s) { s.remove_substr(u""); }, u"abc"},
        {"reduce_repeat", u"a,,,b", [](AF_GString& s) { s.reduce_repeat(u","); }, u"a,b"},
        {"reduce_repeat of a longer string", u"abab-ababab",
         [](AF_GString& s) { s.reduce_repeat(u"ab"); }, u"ab-ab"},
        {"reduce_repeat does not merge overlapping halves", u"a:::b",
         [](AF_GString& s) { s.reduce_repeat(u"::"); }, u"a:::b"},
        {"reduce_repeat from pos", u",,a,,", [](AF_GString& s) { s.reduce_repeat(u",", 2); },
         u",,a,"},
        {"trim", u"--ab-c--", [](AF_GString& s) { s.trim(u"-"); }, u"ab-c"},
        {"trim of set units only", u"---", [](AF_GString& s) { s.trim(u"-"); }, u""},
    });
}

// The limit pos+n is fixed before erasing: units pulled in by an erasure
// are still inside it.
TEST(GString, RangedEditsKeepTheirLimitFixed) {
    RunEdits({
        {"filter pulls later units below the limit", u"abcdef12",
         [](AF_GString& s) { s.filter(u"0123456789", 0, 3); }, u"12"},
        {"remove pulls later units below the limit", u"--a--",
         [](AF_GString& s) { s.remove(u"-", 0, 2); }, u"a"},
        {"remove stops at the limit", u"a-b-c-d", [](AF_GString& s) { s.remove(u"-", 0, 3); },
         u"abc-d"},
        {"remove_substr stops at a match at the limit", u"xxabxxab",
         [](AF_GString& s) { s.remove_substr(u"ab", 0, 4); }, u"xxxxab"},
        {"convert stops at the limit", u"a.b.c.d",
         [](AF_GString& s) { s.convert(u".", u"-", 0, 4); }, u"a-b-c.d"},
        {"a count of npos does not wrap", u"a.b.c",
         [](AF_GString& s) { s.remove(u".", 2, AF_GString::npos); }, u"a.bc"},
    });
}

TEST(GString, CountCountsMatchesBelowTheLimit) {
    const AF_GString s(u"a,b;c,d");
    EXPECT_EQ(s.count(u",;"), 3u);
    EXPECT_EQ(s.count(u",;", 2), 2u);
    EXPECT_EQ(s.count(u",;", 0, 3), 1u);
    EXPECT_EQ(s.count(u",;", 1, AF_GString::npos), 3u);
    EXPECT_EQ(s.count(u",;", 99), 0u);
}

TEST(GString, MnemonicAbbreviatesWords) {
    RunEdits({
        {"example", u"Main Task Routine", [](AF_GString& s) { s.mnemonic(u" ", 3); }, u"MaiTasRou"},
        {"no separators cuts to n", u"Routine", [](AF_GString& s) { s.mnemonic(u" ", 3); }, u"Rou"},
        {"short words stay whole", u"A Bc D", [](AF_GString& s) { s.mnemonic(u" ", 3); }, u"ABcD"},
        {"leading, doubled and trailing separators", u"  Ab  Cd ",
         [](AF_GString& s) { s.mnemonic(u" ", 3); }, u"AbCd"},
        {"several separators", u"Main_Task-X", [](AF_GString& s) { s.mnemonic(u"_-", 2); },
         u"MaTaX"},
        {"only separators", u" - ", [](AF_GString& s) { s.mnemonic(u" -", 2); }, u""},
    });
}

TEST(GString, SubstrBetweenOpenAndClose) {
    struct Row {
        std::u16string input, open, close, expected;
    } rows[] = {
        {u"f(a,b)", u"(", u")", u"a,b"},
        {u"f[a](b)", u"([", u")]", u"a"},
        {u"no opening", u"(", u")", u""},
        {u"f(ab", u"(", u")", u"ab"},
        // A unit in both sets closes at once: a count of -1 reads "to the end".
        {u"x|y|z", u"|", u"|", u"y|z"},
        {u"f()", u"(", u")", u""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(Utf8(row.input));
        EXPECT_EQ(Utf8(AF_GString(row.input).substr(AF_GString(row.open), row.close)),
                  Utf8(row.expected));
    }
    const AF_GString s(u"abcdef");
    EXPECT_EQ(Utf8(s.substr(2, 3)), "cde");
    EXPECT_EQ(Utf8(s.substr(9)), "");
}

TEST(GString, CaseConversionFromPos) {
    RunEdits({
        {"tolower from pos", u"ABC DEF", [](AF_GString& s) { s.tolower(4); }, u"ABC def"},
        {"ranged tolower still runs to the end", u"ABC DEF", [](AF_GString& s) { s.tolower(4, 1); },
         u"ABC def"},
        {"pos beyond the end", u"ABC", [](AF_GString& s) { s.toupper(7); }, u"ABC"},
        {"toupper beyond ASCII", u"\u00e9t\u00e9", [](AF_GString& s) { s.toupper(); },
         u"\u00c9T\u00c9"},
        {"tolower beyond ASCII", u"\u0391\u0392", [](AF_GString& s) { s.tolower(1); },
         u"\u0391\u03b2"},
    });
}

TEST(GString, ConstructionAndOrdering) {
    EXPECT_TRUE(AF_GString(static_cast<const char16_t*>(nullptr)).empty());
    // A framework string is read through its pointer: it ends at a 0 unit.
    EXPECT_EQ(Utf8(AF_GString(CString(u"ab\0cd", 5))), "ab");

    const AF_GString a(u"a"), upperB(u"B"), b(u"b");
    std::set<const AF_GString*, AF_GString_Sort> ordered{&b, &a, &upperB};
    std::string joined;
    for (const auto* s : ordered)
        joined += Utf8(*s);
    EXPECT_EQ(joined, "Bab");
    EXPECT_FALSE(AF_GString_Sort()(&a, &a));
}

} // namespace

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

using S = AF_GString;

// A row's edit: a call on the string under test.
#define EDIT(call) [](S& s) { s.call; }

struct EditRow {
    const char* name;
    std::u16string input;
    std::function<void(S&)> edit;
    std::u16string expected;
};

// In-place edits from pos. A ranged edit fixes its limit pos+n before
// erasing: units pulled in by an erasure are still inside it.
TEST(GString, EditsInPlace) {
    const EditRow rows[] = {
        {"convert: a run as long as the set", u"x-y-z", EDIT(convert(u"-+", u"=")), u"x=="},
        {"convert: on after the insertion", u"a.b", EDIT(convert(u".", u"..")), u"a..b"},
        {"convert from pos", u"a.b.c", EDIT(convert(u".", u"-", 2)), u"a.b-c"},
        {"convert up to the limit", u"a.b.c.d", EDIT(convert(u".", u"-", 0, 4)), u"a-b-c.d"},
        {"filter keeps the set", u"a1b2c3", EDIT(filter(u"0123456789")), u"123"},
        {"filter from pos", u"a1b2c3", EDIT(filter(u"0123456789", 2)), u"a123"},
        {"filter, empty set", u"abc", EDIT(filter(u"", 1)), u"a"},
        {"filter pulls units in", u"abcdef12", EDIT(filter(u"0123456789", 0, 3)), u"12"},
        {"remove erases the set", u"a-b_c", EDIT(remove(u"-_")), u"abc"},
        {"remove pulls units under the limit", u"--a--", EDIT(remove(u"-", 0, 2)), u"a"},
        {"remove up to the limit", u"a-b-c-d", EDIT(remove(u"-", 0, 3)), u"abc-d"},
        {"remove, count npos", u"a.b.c", EDIT(remove(u".", 2, S::npos)), u"a.bc"},
        {"remove_substr", u"abcabcab", EDIT(remove_substr(u"abc")), u"ab"},
        {"remove_substr, empty", u"abc", EDIT(remove_substr(u"")), u"abc"},
        {"remove_substr, match at limit", u"xxabxxab", EDIT(remove_substr(u"ab", 0, 4)), u"xxxxab"},
        {"reduce_repeat", u"abab-ababab", EDIT(reduce_repeat(u"ab")), u"ab-ab"},
        {"reduce_repeat, overlapping halves", u"a:::b", EDIT(reduce_repeat(u"::")), u"a:::b"},
        {"reduce_repeat from pos", u",,a,,", EDIT(reduce_repeat(u",", 2)), u",,a,"},
        {"trim", u"--ab-c--", EDIT(trim(u"-")), u"ab-c"},
        {"trim of set units only", u"---", EDIT(trim(u"-")), u""},
        {"ranged tolower runs to the end", u"ABC DEF", EDIT(tolower(4, 1)), u"ABC def"},
        {"toupper, pos beyond the end", u"ABC", EDIT(toupper(7)), u"ABC"},
        {"toupper beyond ASCII", u"\u00e9t\u00e9", EDIT(toupper()), u"\u00c9T\u00c9"},
        {"tolower beyond ASCII", u"\u0391\u0392", EDIT(tolower(1)), u"\u0391\u03b2"},
        {"mnemonic", u"Main Task Routine", EDIT(mnemonic(u" ", 3)), u"MaiTasRou"},
        {"mnemonic, no separators", u"Routine", EDIT(mnemonic(u" ", 3)), u"Rou"},
        {"mnemonic, short words", u"A Bc D", EDIT(mnemonic(u" ", 3)), u"ABcD"},
        {"mnemonic, odd separators", u"  Ab  Cd ", EDIT(mnemonic(u" ", 3)), u"AbCd"},
        {"mnemonic, several separators", u"Main_Task-X", EDIT(mnemonic(u"_-", 2)), u"MaTaX"},
        {"mnemonic, only separators", u" - ", EDIT(mnemonic(u" -", 2)), u""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        S s(row.input);
        row.edit(s);
        EXPECT_EQ(Utf8(s), Utf8(row.expected));
    }
}

TEST(GString, CountCountsMatchesBelowTheLimit) {
    const AF_GString s(u"a,b;c,d");
    EXPECT_EQ(s.count(u",;"), 3u);
    EXPECT_EQ(s.count(u",;", 2), 2u);
    EXPECT_EQ(s.count(u",;", 0, 3), 1u);
    EXPECT_EQ(s.count(u",;", 1, S::npos), 3u);
    EXPECT_EQ(s.count(u",;", 99), 0u);
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
        EXPECT_EQ(Utf8(S(row.input).substr(S(row.open), row.close)), Utf8(row.expected));
    }
    const AF_GString s(u"abcdef");
    EXPECT_EQ(Utf8(s.substr(2, 3)), "cde");
    EXPECT_EQ(Utf8(s.substr(9)), "");
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

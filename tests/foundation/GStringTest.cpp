#include "foundation/GString.h"
#include "framework/CString.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <string>

namespace {

std::string Utf8(const vu::String& s) {
    std::string out;
    for (WCHAR c : s)
        out += c < 0x80 ? static_cast<char>(c) : '?';
    return out;
}

using S = AF_GString;

// A row's edit: a call on the string under test.
#define EDIT(call) [](S& s) { s.call; }

struct EditRow {
    const char* name;
    vu::String input;
    std::function<void(S&)> edit;
    vu::String expected;
};

// In-place edits from pos. A ranged edit fixes its limit pos+n before
// erasing: units pulled in by an erasure are still inside it.
TEST(GString, EditsInPlace) {
    const EditRow rows[] = {
        {"convert: a run as long as the set", VU_T("x-y-z"), EDIT(convert(VU_T("-+"), VU_T("="))),
         VU_T("x==")},
        {"convert: on after the insertion", VU_T("a.b"), EDIT(convert(VU_T("."), VU_T(".."))),
         VU_T("a..b")},
        {"filter, empty set", VU_T("abc"), EDIT(filter(VU_T(""), 1)), VU_T("a")},
        {"filter pulls units in", VU_T("abcdef12"), EDIT(filter(VU_T("0123456789"), 0, 3)),
         VU_T("12")},
        {"remove pulls units under the limit", VU_T("--a--"), EDIT(remove(VU_T("-"), 0, 2)),
         VU_T("a")},
        {"remove, count npos", VU_T("a.b.c"), EDIT(remove(VU_T("."), 2, S::npos)), VU_T("a.bc")},
        {"remove_substr, match at limit", VU_T("xxabxxab"), EDIT(remove_substr(VU_T("ab"), 0, 4)),
         VU_T("xxxxab")},
        {"reduce_repeat", VU_T("abab-ababab"), EDIT(reduce_repeat(VU_T("ab"))), VU_T("ab-ab")},
        {"reduce_repeat, overlapping halves", VU_T("a:::b"), EDIT(reduce_repeat(VU_T("::"))),
         VU_T("a:::b")},
        {"trim of set units only", VU_T("---"), EDIT(trim(VU_T("-"))), VU_T("")},
        {"ranged tolower runs to the end", VU_T("ABC DEF"), EDIT(tolower(4, 1)), VU_T("ABC def")},
        {"toupper beyond ASCII", VU_T("\u00e9t\u00e9"), EDIT(toupper()), VU_T("\u00c9T\u00c9")},
        {"tolower beyond ASCII", VU_T("\u0391\u0392"), EDIT(tolower(1)), VU_T("\u0391\u03b2")},
        {"mnemonic", VU_T("Main Task Routine"), EDIT(mnemonic(VU_T(" "), 3)), VU_T("MaiTasRou")},
        {"mnemonic, several separators", VU_T("Main_Task-X"), EDIT(mnemonic(VU_T("_-"), 2)),
         VU_T("MaTaX")},
        {"mnemonic, only separators", VU_T(" - "), EDIT(mnemonic(VU_T(" -"), 2)), VU_T("")},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        S s(row.input);
        row.edit(s);
        EXPECT_EQ(Utf8(s), Utf8(row.expected));
    }
}

TEST(GString, CountCountsMatchesBelowTheLimit) {
    const AF_GString s(VU_T("a,b;c,d"));
    EXPECT_EQ(s.count(VU_T(",;"), 2), 2u);
    EXPECT_EQ(s.count(VU_T(",;"), 0, 3), 1u);
    EXPECT_EQ(s.count(VU_T(",;"), 99), 0u);
}

TEST(GString, SubstrBetweenOpenAndClose) {
    struct Row {
        vu::String input, open, close, expected;
    } rows[] = {
        {VU_T("f[a](b)"), VU_T("(["), VU_T(")]"), VU_T("a")},
        {VU_T("no opening"), VU_T("("), VU_T(")"), VU_T("")},
        {VU_T("f(ab"), VU_T("("), VU_T(")"), VU_T("ab")},
        // A unit in both sets closes at once: a count of -1 reads "to the end".
        {VU_T("x|y|z"), VU_T("|"), VU_T("|"), VU_T("y|z")},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(Utf8(row.input));
        EXPECT_EQ(Utf8(S(row.input).substr(S(row.open), row.close)), Utf8(row.expected));
    }
    EXPECT_EQ(Utf8(AF_GString(VU_T("abcdef")).substr(9)), "");
}

TEST(GString, ConstructionAndOrdering) {
    EXPECT_TRUE(AF_GString(static_cast<const WCHAR*>(nullptr)).empty());
    // A framework string is read through its pointer: it ends at a 0 unit.
    EXPECT_EQ(Utf8(AF_GString(CString(VU_T("ab\0cd"), 5))), "ab");

    const AF_GString a(VU_T("a")), upperB(VU_T("B")), b(VU_T("b"));
    std::set<const AF_GString*, AF_GString_Sort> ordered{&b, &a, &upperB};
    std::string joined;
    for (const auto* s : ordered)
        joined += Utf8(*s);
    EXPECT_EQ(joined, "Bab");
    EXPECT_FALSE(AF_GString_Sort()(&a, &a));
}

} // namespace

#include "foundation/UStr.h"
#include "foundation/UStrNcc.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <string>

namespace {

std::u16string Wide(const char16_t* s) {
    return s == nullptr ? u"<null>" : std::u16string(s);
}
std::string Narrow(const char* s) {
    return s == nullptr ? "<null>" : std::string(s);
}

TEST(UStr, ConvertsLazilyAndKeepsTheCallersString) {
    const char* narrow = "Tag_1 ok";
    AF_CUStr fromNarrow(narrow);
    EXPECT_EQ(static_cast<const char*>(fromNarrow), narrow); // the caller's, not a copy
    const char16_t* wide = fromNarrow;
    EXPECT_EQ(Wide(wide), u"Tag_1 ok");
    EXPECT_EQ(static_cast<const char16_t*>(fromNarrow), wide); // converted once, kept

    const char16_t* source = u"Routine";
    AF_CUStr fromWide(source);
    EXPECT_EQ(static_cast<const char16_t*>(fromWide), source);
    EXPECT_EQ(Narrow(fromWide), "Routine");
}

// Only 0-127 exist in the "C" locale: the conversion stops at anything else.
TEST(UStr, StopsAtUnitsOutsideTheCLocale) {
    struct Row {
        const char* name;
        const char* narrow;
        std::u16string wide;
    } rows[] = {
        {"ASCII", "abc ~\x7f", u"abc ~\x7f"},
        {"byte above 127", "ab\xc3\xa9z", u"ab"},
        {"leading byte above 127", "\xff", u""},
        {"empty", "", u""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        char16_t* w = AF_CUStr::uxdup(row.narrow);
        EXPECT_EQ(Wide(w), row.wide);
        std::free(w);
    }
    for (const char16_t* wide : {u"ab\u00e9cd", u"ab\u4e2d"}) {
        char* n = AF_CUStr::uxdup(wide);
        EXPECT_EQ(Narrow(n), "ab");
        std::free(n);
    }
    EXPECT_EQ(AF_CUStr::uxdup(static_cast<const char*>(nullptr)), nullptr);
    EXPECT_EQ(AF_CUStr::uxdup(static_cast<const char16_t*>(nullptr)), nullptr);
    EXPECT_EQ(static_cast<const char16_t*>(AF_CUStr(static_cast<const char*>(nullptr))), nullptr);
}

// Copies duplicate a converted copy instead of sharing it, so each object
// frees only its own and a copy outlives its source.
TEST(UStr, CopiesOwnTheirConvertedCopy) {
    std::string source = "Main";
    auto* original = new AF_CUStr(u"Main");
    (void)static_cast<const char*>(*original); // make the narrow copy
    AF_CUStr copy(*original);
    AF_CUStr assigned(source.c_str());
    (void)static_cast<const char16_t*>(assigned); // an own copy to free on assignment
    assigned = *original;
    delete original;
    EXPECT_EQ(Narrow(copy), "Main");
    EXPECT_EQ(Narrow(assigned), "Main");
    EXPECT_EQ(Wide(assigned), u"Main");

    AF_CUStr moved(std::move(copy));
    EXPECT_EQ(Narrow(moved), "Main");
    assigned = assigned; // self-assignment keeps the text
    EXPECT_EQ(Narrow(assigned), "Main");
}

TEST(UStr, NccGivesWritableCopies) {
    AF_CUStrNcc ncc("abc");
    char16_t* w = ncc;
    ASSERT_NE(w, nullptr);
    w[0] = u'X'; // the converted copy is ours to write
    EXPECT_EQ(Wide(static_cast<char16_t*>(ncc)), u"Xbc");

    char16_t text[] = u"def";
    AF_CUStrNcc fromWide(text);
    EXPECT_EQ(static_cast<char16_t*>(fromWide), text);
    EXPECT_EQ(Narrow(static_cast<char*>(fromWide)), "def");
}

} // namespace

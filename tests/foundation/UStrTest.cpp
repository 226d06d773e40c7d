#include "foundation/UStr.h"
#include "foundation/UStrNcc.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <string>

namespace {

vu::String Wide(const WCHAR* s) {
    return s == nullptr ? VU_T("<null>") : vu::String(s);
}
std::string Narrow(const char* s) {
    return s == nullptr ? "<null>" : std::string(s);
}

TEST(UStr, ConvertsLazilyAndKeepsTheCallersString) {
    const char* narrow = "Tag_1 ok";
    AF_CUStr fromNarrow(narrow);
    EXPECT_EQ(static_cast<const char*>(fromNarrow), narrow); // the caller's, not a copy
    const WCHAR* wide = fromNarrow;
    EXPECT_EQ(Wide(wide), VU_T("Tag_1 ok"));
    EXPECT_EQ(static_cast<const WCHAR*>(fromNarrow), wide); // converted once, kept

    const WCHAR* source = VU_T("Routine");
    AF_CUStr fromWide(source);
    EXPECT_EQ(static_cast<const WCHAR*>(fromWide), source);
    EXPECT_EQ(Narrow(fromWide), "Routine");
}

// Only 0-127 exist in the "C" locale: the conversion stops at anything else.
TEST(UStr, StopsAtUnitsOutsideTheCLocale) {
    struct Row {
        const char* name;
        const char* narrow;
        vu::String wide;
    } rows[] = {
        {"ASCII", "abc ~\x7f", VU_T("abc ~\x7f")},
        {"byte above 127", "ab\xc3\xa9z", VU_T("ab")},
        {"leading byte above 127", "\xff", VU_T("")},
        {"empty", "", VU_T("")},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        WCHAR* w = AF_CUStr::uxdup(row.narrow);
        EXPECT_EQ(Wide(w), row.wide);
        std::free(w);
    }
    for (const WCHAR* wide : {VU_T("ab\u00e9cd"), VU_T("ab\u4e2d")}) {
        char* n = AF_CUStr::uxdup(wide);
        EXPECT_EQ(Narrow(n), "ab");
        std::free(n);
    }
    EXPECT_EQ(AF_CUStr::uxdup(static_cast<const char*>(nullptr)), nullptr);
    EXPECT_EQ(AF_CUStr::uxdup(static_cast<const WCHAR*>(nullptr)), nullptr);
    EXPECT_EQ(static_cast<const WCHAR*>(AF_CUStr(static_cast<const char*>(nullptr))), nullptr);
}

// Copies duplicate a converted copy instead of sharing it, so each object
// frees only its own and a copy outlives its source.
TEST(UStr, CopiesOwnTheirConvertedCopy) {
    std::string source = "Main";
    auto* original = new AF_CUStr(VU_T("Main"));
    (void)static_cast<const char*>(*original); // make the narrow copy
    AF_CUStr copy(*original);
    AF_CUStr assigned(source.c_str());
    (void)static_cast<const WCHAR*>(assigned); // an own copy to free on assignment
    assigned = *original;
    delete original;
    EXPECT_EQ(Narrow(copy), "Main");
    EXPECT_EQ(Narrow(assigned), "Main");
    EXPECT_EQ(Wide(assigned), VU_T("Main"));

    AF_CUStr moved(std::move(copy));
    EXPECT_EQ(Narrow(moved), "Main");
    assigned = assigned; // self-assignment keeps the text
    EXPECT_EQ(Narrow(assigned), "Main");
}

TEST(UStr, NccGivesWritableCopies) {
    AF_CUStrNcc ncc("abc");
    WCHAR* w = ncc;
    ASSERT_NE(w, nullptr);
    w[0] = VU_T('X'); // the converted copy is ours to write
    EXPECT_EQ(Wide(static_cast<WCHAR*>(ncc)), VU_T("Xbc"));

    WCHAR text[] = VU_T("def");
    AF_CUStrNcc fromWide(text);
    EXPECT_EQ(static_cast<WCHAR*>(fromWide), text);
    EXPECT_EQ(Narrow(static_cast<char*>(fromWide)), "def");
}

} // namespace

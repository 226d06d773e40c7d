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

    EXPECT_EQ(Narrow(AF_CUStr(VU_T("Routine"))), "Routine");
}

// The Windows runtime's "C" locale: bytes and units 0-255 map to each other,
// a unit above 0xFF ends the narrow text; the Windows suite compares every
// value with the runtime, this pins the rule in the native build.
TEST(UStr, ConvertsAsTheWindowsRuntimeInItsDefaultLocale) {
    WCHAR* w = AF_CUStr::uxdup("caf\xe9!\x80\xff");
    EXPECT_EQ(Wide(w), VU_T("caf\u00e9!\u0080\u00ff"));
    std::free(w);
    char* n = AF_CUStr::uxdup(VU_T("ab\u00e9\u0100cd"));
    EXPECT_EQ(Narrow(n), "ab\xe9");
    std::free(n);
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
}

TEST(UStr, NccGivesWritableCopies) {
    AF_CUStrNcc ncc("abc");
    WCHAR* w = ncc;
    ASSERT_NE(w, nullptr);
    w[0] = VU_T('X'); // the converted copy is ours to write
    EXPECT_EQ(Wide(static_cast<WCHAR*>(ncc)), VU_T("Xbc"));
}

} // namespace

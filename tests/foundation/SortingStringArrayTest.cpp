#include "foundation/SortingStringArray.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::string Joined(const CStringArray& a) {
    std::string out;
    for (INT_PTR i = 0; i < a.GetSize(); ++i) {
        for (WCHAR c : a[i].View())
            out += static_cast<char>(c);
        out += ' ';
    }
    return out;
}

int CompareNoCase(const CString* a, const CString* b) {
    return a->CompareNoCase(*b);
}

TEST(SortingStringArray, SortsInPlaceWithTheGivenOrder) {
    AF_CSortingStringArray a, b, empty;
    for (const WCHAR* s : {VU_T("b"), VU_T("A"), VU_T("B"), VU_T("a")}) {
        a.Add(s);
        b.Add(s);
    }
    a.Add(VU_T("_"));
    a.Sort(&AF_CSortingStringArray::Compare);
    EXPECT_EQ(Joined(a), "A B _ a b ");
    b.Sort(&CompareNoCase); // equal elements keep their order
    EXPECT_EQ(Joined(b), "A a b B ");
    empty.Sort(nullptr);
    EXPECT_EQ(empty.GetSize(), 0);
}

} // namespace

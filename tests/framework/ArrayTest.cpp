#include "framework/Array.h"
#include "framework/StringArray.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

namespace {

using IntArray = CArray<int, int>;

template <class A> std::vector<int> Items(const A& a) {
    std::vector<int> v;
    for (INT_PTR i = 0; i < a.GetSize(); ++i)
        v.push_back(static_cast<int>(a.GetAt(i)));
    return v;
}

IntArray Make(const std::vector<int>& values) {
    IntArray a;
    for (int v : values)
        a.Add(v);
    return a;
}

// ---- index checking ----------------------------------------------------------

TEST(CArray, EveryAccessorRejectsIndicesOutsideTheArray) {
    IntArray a = Make({10, 20, 30});
    const IntArray& c = a;
    struct Row {
        const char* name;
        std::function<void(INT_PTR)> access;
    } rows[] = {
        {"GetAt", [&](INT_PTR i) { (void)c.GetAt(i); }},
        {"SetAt", [&](INT_PTR i) { a.SetAt(i, 1); }},
        {"operator[]", [&](INT_PTR i) { (void)a[i]; }},
        {"RemoveAt", [&](INT_PTR i) { a.RemoveAt(i); }},
    };
    for (const Row& r : rows) {
        for (INT_PTR bad : {INT_PTR(-1), INT_PTR(3), INT_PTR(1000)}) {
            SCOPED_TRACE(std::string(r.name) + " at " + std::to_string(bad));
            EXPECT_THROW(r.access(bad), CInvalidArgException);
        }
    }
    EXPECT_EQ(Items(a), (std::vector<int>{10, 20, 30})); // nothing was changed
    EXPECT_THROW(CArray<int>().GetAt(0), CInvalidArgException);
}

TEST(CArray, GrowingOperationsRejectNegativeIndicesAndCounts) {
    IntArray a = Make({1, 2});
    EXPECT_THROW(a.SetSize(-1), CInvalidArgException);
    EXPECT_THROW(a.InsertAt(0, 0, 0), CInvalidArgException);
    EXPECT_THROW(a.InsertAt(0, static_cast<const IntArray*>(nullptr)), CInvalidArgException);
    EXPECT_THROW(a.RemoveAt(0, -1), CInvalidArgException);
    EXPECT_THROW(a.RemoveAt(1, 2), CInvalidArgException); // range runs past the end
    a.RemoveAt(2, 0);                                     // an empty range at the end is fine
    EXPECT_EQ(Items(a), (std::vector<int>{1, 2}));
}

// ---- moving elements ---------------------------------------------------------

const IntArray kEightNine = Make({8, 9});
const IntArray kEmpty;

TEST(CArray, EditsShiftTheTailAndGrowWithZeroes) {
    using A = IntArray;
    struct Row {
        const char* name;
        std::vector<int> start;
        void (*edit)(A&);
        std::vector<int> want;
    } rows[] = {
        {"insert beyond the end", {1}, [](A& a) { a.InsertAt(3, 7); }, {1, 0, 0, 7}},
        {"insert several into empty", {}, [](A& a) { a.InsertAt(2, 5, 2); }, {0, 0, 5, 5}},
        {"array past end", {1, 2}, [](A& a) { a.InsertAt(4, &kEightNine); }, {1, 2, 0, 0, 8, 9}},
        {"insert itself", {1, 2}, [](A& a) { a.InsertAt(1, &a); }, {1, 1, 2, 2}},
        {"nothing past end: no growth", {1, 2}, [](A& a) { a.InsertAt(100, &kEmpty); }, {1, 2}},
        {"regrown are zero", {0, 5, 7}, [](A& a) { a.SetSize(2), a.SetSize(4); }, {0, 5, 0, 0}},
        {"set at grow", {4}, [](A& a) { a.SetAtGrow(3, 3); }, {4, 0, 0, 3}},
        {"append itself", {1, 2}, [](A& a) { EXPECT_EQ(a.Append(a), 2); }, {1, 2, 1, 2}},
        {"copy itself", {4, 5}, [](A& a) { a.Copy(a); }, {4, 5}},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        IntArray a = Make(r.start);
        r.edit(a);
        EXPECT_EQ(Items(a), r.want);
        EXPECT_EQ(a.GetUpperBound(), static_cast<INT_PTR>(r.want.size()) - 1);
        EXPECT_EQ(a.IsEmpty() != FALSE, r.want.empty());
    }
}

TEST(CArray, AddingAnElementOfTheArrayItselfSurvivesReallocation) {
    const CString text(VU_T("first element, long enough to live on the heap"));
    CStringArray a;
    a.Add(text);
    for (int i = 0; i < 100; ++i)
        a.Add(a[0]);
    a.SetAtGrow(150, a[0]);
    a.InsertAt(0, a[1], 3);
    ASSERT_EQ(a.GetSize(), 154);
    for (INT_PTR i = 0; i < a.GetSize(); ++i) // 104..152: the gap SetAtGrow left empty
        ASSERT_EQ(a[i], i >= 104 && i <= 152 ? CString() : text) << i;
}

} // namespace

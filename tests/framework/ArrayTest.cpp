#include "framework/Array.h"
#include "framework/StringArray.h"
#include "framework/TypedArrays.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

namespace {

template <class A> std::vector<int> Items(const A& a) {
    std::vector<int> v;
    for (INT_PTR i = 0; i < a.GetSize(); ++i)
        v.push_back(static_cast<int>(a.GetAt(i)));
    return v;
}

CArray<int, int> Make(std::initializer_list<int> values) {
    CArray<int, int> a;
    for (int v : values)
        a.Add(v);
    return a;
}

// ---- index checking ----------------------------------------------------------

TEST(CArray, EveryAccessorRejectsIndicesOutsideTheArray) {
    CArray<int, int> a = Make({10, 20, 30});
    const CArray<int, int>& c = a;
    struct Row {
        const char* name;
        std::function<void(INT_PTR)> access;
    } rows[] = {
        {"GetAt", [&](INT_PTR i) { (void)c.GetAt(i); }},
        {"SetAt", [&](INT_PTR i) { a.SetAt(i, 1); }},
        {"ElementAt", [&](INT_PTR i) { (void)a.ElementAt(i); }},
        {"operator[]", [&](INT_PTR i) { (void)a[i]; }},
        {"const operator[]", [&](INT_PTR i) { (void)c[i]; }},
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

TEST(CArray, TheExceptionIsAFrameworkExceptionWithAMessage) {
    CArray<int, int> a;
    try {
        a.ElementAt(0) = 1;
        FAIL() << "no exception";
    } catch (const CException& e) {
        char16_t buf[64] = {};
        EXPECT_TRUE(e.GetErrorMessage(buf, 64));
        EXPECT_NE(buf[0], 0);
        char16_t tiny[1] = {u'x'};
        e.GetErrorMessage(tiny, 1);
        EXPECT_EQ(tiny[0], 0); // truncated to the terminator alone
    }
}

TEST(CArray, GrowingOperationsRejectNegativeIndicesAndCounts) {
    CArray<int, int> a = Make({1, 2});
    EXPECT_THROW(a.SetSize(-1), CInvalidArgException);
    EXPECT_THROW(a.SetAtGrow(-1, 0), CInvalidArgException);
    EXPECT_THROW(a.InsertAt(-1, 0), CInvalidArgException);
    EXPECT_THROW(a.InsertAt(0, 0, 0), CInvalidArgException);
    EXPECT_THROW(a.InsertAt(0, static_cast<const CArray<int, int>*>(nullptr)),
                 CInvalidArgException);
    EXPECT_THROW(a.RemoveAt(0, -1), CInvalidArgException);
    EXPECT_THROW(a.RemoveAt(1, 2), CInvalidArgException); // range runs past the end
    EXPECT_EQ(Items(a), (std::vector<int>{1, 2}));
    a.RemoveAt(2, 0); // an empty range at the end is fine
    EXPECT_EQ(a.GetSize(), 2);
}

// ---- moving elements ---------------------------------------------------------

TEST(CArray, InsertAtAndRemoveAtShiftTheTail) {
    CArray<int, int> a = Make({0, 1, 2});
    a.InsertAt(1, 9, 2);
    EXPECT_EQ(Items(a), (std::vector<int>{0, 9, 9, 1, 2}));
    a.InsertAt(5, 7); // at the end: appends
    EXPECT_EQ(Items(a), (std::vector<int>{0, 9, 9, 1, 2, 7}));
    a.RemoveAt(1, 2);
    EXPECT_EQ(Items(a), (std::vector<int>{0, 1, 2, 7}));
    a.RemoveAt(0);
    EXPECT_EQ(Items(a), (std::vector<int>{1, 2, 7}));
    EXPECT_EQ(a.GetUpperBound(), 2);
}

TEST(CArray, InsertAtBeyondTheEndGrowsWithZeroes) {
    CArray<int, int> a = Make({1});
    a.InsertAt(3, 7);
    EXPECT_EQ(Items(a), (std::vector<int>{1, 0, 0, 7}));
    CArray<int, int> b;
    b.InsertAt(2, 5, 2);
    EXPECT_EQ(Items(b), (std::vector<int>{0, 0, 5, 5}));
}

TEST(CArray, InsertingAnArrayIncludingItself) {
    CArray<int, int> a = Make({1, 2});
    const CArray<int, int> b = Make({8, 9});
    a.InsertAt(1, &b);
    EXPECT_EQ(Items(a), (std::vector<int>{1, 8, 9, 2}));
    a.InsertAt(6, &b);
    EXPECT_EQ(Items(a), (std::vector<int>{1, 8, 9, 2, 0, 0, 8, 9}));
    CArray<int, int> c = Make({1, 2});
    c.InsertAt(1, &c);
    EXPECT_EQ(Items(c), (std::vector<int>{1, 1, 2, 2}));
    const CArray<int, int> empty;
    c.InsertAt(100, &empty); // nothing to insert: no growth either
    EXPECT_EQ(c.GetSize(), 4);
}

TEST(CArray, SizeAppendAndCopy) {
    CArray<int, int> a;
    a.SetSize(3, 16);
    EXPECT_EQ(Items(a), (std::vector<int>{0, 0, 0}));
    a[1] = 5;
    a.SetSize(2);
    a.SetSize(4);
    EXPECT_EQ(Items(a), (std::vector<int>{0, 5, 0, 0})); // regrown slots are zero again
    a.SetAtGrow(6, 3);
    EXPECT_EQ(Items(a), (std::vector<int>{0, 5, 0, 0, 0, 0, 3}));

    CArray<int, int> b = Make({1, 2});
    EXPECT_EQ(b.Append(Make({3})), 2);
    EXPECT_EQ(b.Append(b), 3); // appending itself doubles it
    EXPECT_EQ(Items(b), (std::vector<int>{1, 2, 3, 1, 2, 3}));
    b.Copy(Make({4}));
    EXPECT_EQ(Items(b), (std::vector<int>{4}));
    b.Copy(b);
    EXPECT_EQ(Items(b), (std::vector<int>{4}));
    b.RemoveAll();
    EXPECT_TRUE(b.IsEmpty());
    EXPECT_EQ(b.GetUpperBound(), -1);
}

TEST(CArray, AddingAnElementOfTheArrayItselfSurvivesReallocation) {
    CStringArray a;
    a.Add(u"first element, long enough to live on the heap");
    for (int i = 0; i < 100; ++i)
        a.Add(a[0]);
    a.SetAtGrow(150, a[0]);
    a.InsertAt(0, a[1], 3);
    EXPECT_EQ(a.GetSize(), 154);
    for (INT_PTR i = 0; i < a.GetSize(); ++i) {
        if (i >= 104 && i <= 152)
            continue; // the gap that SetAtGrow filled with empty strings
        ASSERT_EQ(a[i], u"first element, long enough to live on the heap") << i;
    }
    EXPECT_TRUE(a[120].IsEmpty());
}

// ---- the typed arrays --------------------------------------------------------

TEST(TypedArrays, StringArrayTakesLiteralsAndKeepsValues) {
    CStringArray a;
    a.Add(u"b");
    a.Add(CString(u"c"));
    a.InsertAt(0, CString(u"a"));
    a.SetAt(2, u"C");
    a.SetAtGrow(4, u"e");
    std::u16string joined;
    for (const CString& s : a)
        joined += std::u16string(s.View()) + u",";
    EXPECT_EQ(joined, u"a,b,C,,e,");
    EXPECT_THROW(a.SetAt(5, u"x"), CInvalidArgException);
    CStringArray copy(a);
    copy[0] = u"z";
    EXPECT_EQ(a[0], u"a"); // copies are independent
}

struct Counted : CObject {
    explicit Counted(int& live) : m_live(live) { ++m_live; }
    ~Counted() override { --m_live; }
    int& m_live;
};

TEST(TypedArrays, ObArrayDoesNotOwnItsObjects) {
    int live = 0;
    Counted one(live), two(live);
    {
        CObArray a;
        a.Add(&one);
        a.Add(&two);
        a.RemoveAt(0);
        EXPECT_EQ(a[0], &two);
    }
    EXPECT_EQ(live, 2);

    // The arrays delete correctly through a CObject pointer.
    CObject* owned = new CStringArray;
    static_cast<CStringArray*>(owned)->Add(u"x");
    delete owned;
}

} // namespace

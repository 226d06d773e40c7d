// The grid's storage: growth, shrinking, removal and iteration order.
#include "layout/Matrix.h"
#include "layout/MatrixIterator.h"

#include <gtest/gtest.h>

namespace {

struct Item {
    explicit Item(int v, int* deaths = nullptr) : value(v), deaths(deaths) {}
    ~Item() {
        if (deaths != nullptr)
            ++*deaths;
    }
    int value;
    int* deaths;
};

TEST(Matrix, GrowsToHoldAndShrinksToLastObject) {
    VU_CMatrix<Item> m;
    Item a(1), b(2), c(3);
    EXPECT_EQ(CSize(0, 0), m.GetSize());
    EXPECT_TRUE(m.SetAt(&a, 2, 1));
    EXPECT_EQ(CSize(3, 2), m.GetSize()) << "cx counts rows, cy columns";
    EXPECT_TRUE(m.SetAt(&b, 0, 4));
    EXPECT_EQ(CSize(3, 5), m.GetSize());
    EXPECT_EQ(&a, m.GetAt(2, 1)) << "kept when the columns grew";
    EXPECT_EQ(nullptr, m.GetAt(1, 1));
    EXPECT_EQ(nullptr, m.GetAt(3, 0));
    EXPECT_EQ(nullptr, m.GetAt(-1, 0));
    EXPECT_FALSE(m.SetAt(&c, -1, 0));
    EXPECT_FALSE(m.SetAt(&c, 1 << 14, 1 << 14)) << "past the largest table";
    EXPECT_TRUE(m.SetAt(nullptr, 50, 50)) << "emptying outside is a no-op";
    EXPECT_EQ(CSize(3, 5), m.GetSize());

    EXPECT_TRUE(m.RemoveAt(0, 4, false));
    EXPECT_EQ(CSize(3, 2), m.GetSize()) << "trailing empty columns dropped";
    EXPECT_FALSE(m.RemoveAt(0, 4, false));
    m.SetAt(&c, 0, 0);
    EXPECT_TRUE(m.Remove(&a));
    EXPECT_EQ(CSize(1, 1), m.GetSize()) << "trailing empty rows dropped";
    EXPECT_FALSE(m.Remove(&a));
    EXPECT_TRUE(m.SetAt(nullptr, 0, 0));
    EXPECT_EQ(CSize(0, 0), m.GetSize());
}

TEST(Matrix, RemovalDeletesEachObjectOnceWhenAsked) {
    int deaths = 0;
    VU_CMatrix<Item> m;
    Item* twice = new Item(1, &deaths);
    m.SetAt(twice, 0, 0);
    m.SetAt(twice, 1, 1);
    m.SetAt(new Item(2, &deaths), 0, 1);
    std::vector<Item*> objects{nullptr};
    m.GetObjects(objects);
    EXPECT_EQ(3u, objects.size());
    m.RemoveAt(0, 1, true);
    EXPECT_EQ(1, deaths);
    m.RemoveAll(true);
    EXPECT_EQ(2, deaths);
    EXPECT_EQ(CSize(0, 0), m.GetSize());
}

TEST(MatrixIterator, WalksStoredObjectsRowByRowBothWays) {
    VU_CMatrix<Item> m;
    Item i0(0), i1(1), i2(2), i3(3);
    m.SetAt(&i2, 1, 0);
    m.SetAt(&i0, 0, 1);
    m.SetAt(&i3, 2, 2);
    m.SetAt(&i1, 0, 2);
    VU_CMatrixIterator<Item> it(m);
    std::vector<int> forward, backward;
    for (Item* p = it.First(); p != nullptr; p = it.Next())
        forward.push_back(p->value);
    EXPECT_EQ(nullptr, it.Next()) << "stays past the end";
    for (Item* p = it.Prev(); p != nullptr; p = it.Prev())
        backward.push_back(p->value);
    EXPECT_EQ((std::vector<int>{0, 1, 2, 3}), forward);
    EXPECT_EQ((std::vector<int>{3, 2, 1, 0}), backward);
    EXPECT_EQ(&i0, it.Next()) << "steps back onto the table from before the start";
    EXPECT_EQ(&i3, it.Last());

    VU_CMatrix<Item> empty;
    VU_CMatrixIterator<Item> none(empty);
    EXPECT_EQ(nullptr, none.First());
    EXPECT_EQ(nullptr, none.Prev());
}

} // namespace

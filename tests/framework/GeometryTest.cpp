#include "framework/Point.h"
#include "framework/Rect.h"
#include "framework/Size.h"

#include <gtest/gtest.h>

#include <ostream>

// Printers so that failures show coordinates.
void PrintTo(const CRect& r, std::ostream* os) {
    *os << "(" << r.left << "," << r.top << "," << r.right << "," << r.bottom << ")";
}

namespace {

TEST(CRect, IntersectAndUnionStoreEmptyResultsAsZeros) {
    struct Row {
        const char* name;
        CRect a, b;
        bool intersects;
        CRect overlap, bounds;
    } rows[] = {
        {"overlap", {0, 0, 10, 10}, {5, 5, 15, 15}, true, {5, 5, 10, 10}, {0, 0, 15, 15}},
        {"touching edges", {0, 0, 10, 10}, {10, 0, 20, 10}, false, {}, {0, 0, 20, 10}},
        {"disjoint", {0, 0, 1, 1}, {5, 5, 6, 6}, false, {}, {0, 0, 6, 6}},
        {"one empty", {0, 0, 10, 10}, {3, 3, 3, 8}, false, {}, {0, 0, 10, 10}},
        {"both empty", {4, 4, 4, 4}, {7, 7, 2, 2}, false, {}, {}},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        CRect out(-1, -1, -1, -1);
        EXPECT_EQ(out.IntersectRect(r.a, r.b), r.intersects);
        EXPECT_EQ(out, r.overlap);
        EXPECT_EQ(r.a & r.b, r.overlap);
        CRect u(-1, -1, -1, -1);
        EXPECT_EQ(u.UnionRect(r.a, r.b), !r.bounds.IsRectEmpty());
        EXPECT_EQ(u, r.bounds);
        EXPECT_EQ(r.a | r.b, r.bounds);
    }
}

TEST(CRect, SubtractRectCutsOnlyWholeSides) {
    const CRect base(0, 0, 10, 10);
    struct Row {
        const char* name;
        CRect cut;
        bool left;
        CRect want;
    } rows[] = {
        {"left strip", {-5, -5, 4, 20}, true, {4, 0, 10, 10}},
        {"bottom strip", {-1, 7, 11, 12}, true, {0, 0, 10, 7}},
        {"hole in the middle", {3, 3, 6, 6}, true, {0, 0, 10, 10}},
        {"corner", {5, 5, 20, 20}, true, {0, 0, 10, 10}},
        {"everything", {-1, -1, 11, 11}, false, {}},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        CRect out;
        EXPECT_EQ(out.SubtractRect(base, r.cut), r.left);
        EXPECT_EQ(out, r.want);
    }
}

TEST(CPointAndCSize, DifferencesAndPackedCoordinates) {
    EXPECT_EQ(CPoint(3, 4) - CPoint(1, 1), CSize(2, 3)); // two points differ by an extent
    EXPECT_EQ(CPoint(3, 4) - CSize(1, 1), CPoint(2, 3));
    EXPECT_EQ(CSize(1, 1) + CPoint(2, 2), CPoint(3, 3));
    // Packed coordinates (as in mouse messages) are signed 16-bit words.
    EXPECT_EQ(CPoint(static_cast<DWORD>(0xFFFF0001u)), CPoint(1, -1));
    EXPECT_EQ(CSize(static_cast<DWORD>(0x0002FFFEu)), CSize(-2, 2));
}

} // namespace

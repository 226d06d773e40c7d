// Cells: aligning a box, margins kept in bytes, the record handed back.
#include "LayoutFakes.h"

#include "layout/LayoutCell.h"

#include <gtest/gtest.h>

using namespace layouttest;
using D = VU_LayoutDefs;

namespace {

CRect Aligned(UINT alignment, CRect margins, CRect layout, CSize size) {
    VU_CLayoutCell cell(nullptr, VU_CELLLAYOUT(alignment, margins, 0, 0, D::INTERNAL));
    cell.SetLayoutRect(layout);
    return cell.CalculateAlignedRect(size);
}

TEST(LayoutCell, CalculateAlignedRect) {
    const UINT L = D::ALIGN_LEFT, HC = D::ALIGN_HCENTER, R = D::ALIGN_RIGHT;
    const UINT T = D::ALIGN_TOP, VC = D::ALIGN_VCENTER, B = D::ALIGN_BOTTOM;
    struct Row {
        const char* name;
        UINT alignment;
        CRect margins, layout;
        CSize size;
        CRect expected;
    } rows[] = {
        {"left top", L | T, {}, {10, 20, 110, 70}, {30, 10}, {10, 20, 40, 30}},
        {"right bottom", R | B, {}, {10, 20, 110, 70}, {30, 10}, {80, 60, 110, 70}},
        {"centre, odd width sits one pixel left",
         HC | VC,
         {},
         {0, 0, 11, 11},
         {4, 4},
         {3, 3, 7, 7}},
        {"centre, negative coordinates truncate towards zero",
         HC | VC,
         {},
         {-11, -11, 0, 0},
         {3, 3},
         {-6, -6, -3, -3}},
        {"margins push a left box right",
         L | T,
         {5, 6, 0, 0},
         {0, 0, 100, 100},
         {10, 10},
         {5, 6, 15, 16}},
        {"margins push a right box left",
         R | B,
         {0, 0, 7, 8},
         {0, 0, 100, 100},
         {10, 10},
         {83, 82, 93, 92}},
        {"centre ignores margins that leave room",
         HC,
         {20, 0, 0, 0},
         {0, 0, 100, 10},
         {10, 10},
         {45, 0, 55, 10}},
        {"too wide: ends at the right margin, sticks out left",
         L | T,
         {5, 5, 5, 5},
         {0, 0, 20, 20},
         {30, 30},
         {-15, -15, 15, 15}},
        {"invalid alignments 3 and 12 act as left and top",
         3 | 12,
         {},
         {10, 10, 50, 50},
         {4, 4},
         {10, 10, 14, 14}},
        // Flipped: y grows upwards, top is the larger value.
        {"flipped top", T, {}, {0, 0, 10, -50}, {10, 10}, {0, 0, 10, -10}},
        {"flipped bottom", B, {}, {0, 0, 10, -50}, {10, 10}, {0, -40, 10, -50}},
        {"flipped centre, odd height", VC, {}, {0, 0, 10, -51}, {10, 10}, {0, -20, 10, -30}},
        {"flipped margins", T, {0, 4, 0, 0}, {0, 0, 10, -50}, {10, 10}, {0, -4, 10, -14}},
        {"flipped too high: bottom margin wins",
         T,
         {0, 5, 0, 5},
         {0, 0, 10, -20},
         {10, 30},
         {0, 15, 10, -15}},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        EXPECT_EQ(r.expected, Aligned(r.alignment, r.margins, r.layout, r.size));
    }
}

TEST(LayoutCell, RecordRoundTripAndByteMargins) {
    VU_CELLLAYOUT in(D::ALIGN_RIGHT | D::ALIGN_VCENTER, CRect(1, 255, 256, 300), 0.25f, 3.5f,
                     D::EXTERNAL);
    VU_CLayoutCell cell(nullptr, in);
    VU_CELLLAYOUT out;
    cell.GetCellLayout(out);
    EXPECT_EQ(in.m_nAlignment, out.m_nAlignment);
    EXPECT_EQ(CRect(1, 255, 0, 44), out.m_rectMargins) << "cut to the low byte";
    EXPECT_EQ(0.25f, out.m_fHorizontalWeight);
    EXPECT_EQ(3.5f, out.m_fVerticalWeight);
    EXPECT_EQ(D::EXTERNAL, out.m_placement);
    EXPECT_TRUE(cell.IsExternal());

    VU_CELLLAYOUT fromPointer(&in), fromNull(static_cast<const VU_CELLLAYOUT*>(nullptr));
    EXPECT_EQ(3.5f, fromPointer.m_fVerticalWeight);
    EXPECT_EQ(CRect(), fromNull.m_rectMargins);
}

TEST(LayoutCell, MeasuresWithMarginsAndPlacesByAlignmentOrFills) {
    auto* leaf = new Leaf(10, 6);
    VU_CLayoutCell cell(leaf, VU_CELLLAYOUT(D::ALIGN_HCENTER | D::ALIGN_BOTTOM, CRect(2, 3, 4, 5),
                                            0, 0, D::INTERNAL));
    EXPECT_EQ(CSize(16, 14), cell.RecalcSize());
    cell.SetLayoutRect(CRect(100, 100, 140, 130));
    cell.RepositionChildren();
    EXPECT_EQ(CRect(115, 119, 125, 125), leaf->GetObjectRect()) << "own size, aligned";

    cell.SetResizeChild(D::RESIZE_CHILD);
    cell.RepositionChildren();
    EXPECT_EQ(CRect(102, 103, 136, 125), leaf->GetObjectRect()) << "fills inside the margins";

    cell.MoveBy(CSize(-100, 10));
    EXPECT_EQ(CRect(0, 110, 40, 140), cell.GetLayoutRect());
    EXPECT_EQ(CRect(2, 113, 36, 135), leaf->GetObjectRect());

    cell.SetVisibility(D::HIDDEN);
    EXPECT_EQ(CSize(), cell.RecalcSize());
    EXPECT_EQ(D::HIDDEN, leaf->GetVisibility());
}

TEST(LayoutCell, ElementReplacementFollowsDeletionMode) {
    Log log;
    auto* kept = new Leaf(1, 1, "kept", &log);
    {
        VU_CLayoutCell owning(new Leaf(1, 1, "a", &log));
        owning.SetElement(new Leaf(1, 1, "b", &log));
        EXPECT_EQ(Expect({"~a"}), log);
        EXPECT_FALSE(owning.Remove(kept));
        VU_CLayoutCell keeping(kept, 0, nullptr, D::KEEP_CHILDREN);
        EXPECT_TRUE(keeping.Remove(kept));
        EXPECT_EQ(nullptr, keeping.GetElement());
        keeping.SetElement(kept);
    }
    EXPECT_EQ(Expect({"~a", "~b"}), log);
    delete kept;
}

} // namespace

// The icon and bitmap leaves with real GDI: sizes, pictures read back from
// a memory DC, the shared maps' lifetime and missing resources.
#include "framework/win/DC.h"
#include "layout/win/LayoutBitmap.h"
#include "layout/win/LayoutIcon.h"
#include "layout/win/LayoutWithSharedBitmap.h"
#include "layout/win/LayoutWithSharedIcon.h"
#include "resources/resource.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

constexpr COLORREF kWhite = RGB(255, 255, 255), kRed = RGB(255, 0, 0), kBlue = RGB(0, 0, 255);
constexpr COLORREF kGreen = RGB(0, 255, 0), kMagenta = RGB(255, 0, 255);
constexpr COLORREF kContactBar = RGB(30, 70, 170), kLamp = RGB(250, 210, 60);
constexpr UINT kMissing = 4699;

// A 64 x 64 white 32-bit picture to draw into and read back.
struct Canvas {
    Canvas() : bitmap(CreateBitmap(64, 64, 1, 32, nullptr)) {
        dc.Attach(CreateCompatibleDC(nullptr));
        old = SelectObject(dc.GetSafeHdc(), bitmap);
        Clear();
    }
    ~Canvas() {
        SelectObject(dc.GetSafeHdc(), old);
        DeleteObject(bitmap);
    }
    void Clear() { dc.FillSolidRect(CRect(0, 0, 64, 64), kWhite); }
    COLORREF At(int x, int y) { return dc.GetPixel(x, y); }
    int Inked() { // pixels that are not white
        int n = 0;
        for (int i = 0; i < 64 * 64; ++i)
            n += At(i % 64, i / 64) != kWhite;
        return n;
    }
    CDC dc;
    HBITMAP bitmap;
    HGDIOBJ old;
};

CSize IconImageSize(HICON icon) {
    ICONINFO info = {};
    BITMAP bm = {};
    if (icon != nullptr && GetIconInfo(icon, &info))
        GetObjectW(info.hbmColor, sizeof(bm), &bm);
    DeleteObject(info.hbmColor);
    DeleteObject(info.hbmMask);
    return CSize(bm.bmWidth, bm.bmHeight);
}

TEST(LayoutIcon, SizeCornerAndPicture) {
    Canvas canvas;
    struct Row {
        const char* name;
        CSize size;
        CPoint bar, gap; // on a contact bar, between the bars, at this size
    } rows[] = {
        {"16", CSize(16, 16), CPoint(4, 5), CPoint(9, 10)},
        {"32", CSize(32, 32), CPoint(9, 10), CPoint(15, 5)},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        canvas.Clear();
        VU_CLayoutIcon icon(IDI_VU_LAYOUT_CONTACT, r.size);
        EXPECT_EQ(r.size, IconImageSize(icon.GetIcon())) << "loaded at the asked size";
        icon.SetObjectRect(CRect(10, 12, 90, 13));
        EXPECT_EQ(CRect(CPoint(10, 12), r.size), icon.GetObjectRect()) << "only the corner taken";
        icon.OnDraw(&canvas.dc);
        EXPECT_EQ(kContactBar, canvas.At(10 + r.bar.x, 12 + r.bar.y));
        EXPECT_EQ(kWhite, canvas.At(10 + r.gap.x, 12 + r.gap.y)) << "transparent there";

        canvas.Clear();
        icon.SetVisibility(VU_LayoutDefs::HIDDEN);
        EXPECT_EQ(r.size, icon.RecalcSize()) << "hidden icons keep their size";
        icon.OnDraw(&canvas.dc);
        EXPECT_EQ(0, canvas.Inked());
    }
    VU_CLayoutIcon missing(kMissing, CSize(16, 16));
    EXPECT_EQ(nullptr, missing.GetIcon());
    missing.OnDraw(&canvas.dc);
    EXPECT_EQ(0, canvas.Inked());
}

TEST(LayoutWithSharedIcon, OneImagePerIdUntilTheLastInstanceGoes) {
    ASSERT_EQ(0, VU_CLayoutWithSharedIcon::GetInstanceCount());
    Canvas canvas;
    auto first = std::make_unique<VU_CLayoutWithSharedIcon>(IDI_VU_LAYOUT_COIL, CSize(16, 16));
    auto second = std::make_unique<VU_CLayoutWithSharedIcon>(IDI_VU_LAYOUT_COIL, CSize(32, 32));
    auto lamp = std::make_unique<VU_CLayoutWithSharedIcon>(IDI_VU_LAYOUT_LAMP, CSize(32, 32));
    EXPECT_EQ(3, VU_CLayoutWithSharedIcon::GetInstanceCount());
    EXPECT_EQ(2, VU_CLayoutWithSharedIcon::GetSharedIconCount());
    EXPECT_EQ(CSize(16, 16),
              IconImageSize(VU_CLayoutWithSharedIcon::GetSharedIcon(IDI_VU_LAYOUT_COIL)))
        << "the first instance fixes the loaded size";

    first.reset();
    second.reset();
    EXPECT_EQ(2, VU_CLayoutWithSharedIcon::GetSharedIconCount()) << "the coil's stays too";
    lamp.reset();
    EXPECT_EQ(0, VU_CLayoutWithSharedIcon::GetInstanceCount());
    EXPECT_EQ(0, VU_CLayoutWithSharedIcon::GetSharedIconCount());

    VU_CLayoutWithSharedIcon again(IDI_VU_LAYOUT_LAMP, CSize(16, 16));
    EXPECT_EQ(CSize(16, 16),
              IconImageSize(VU_CLayoutWithSharedIcon::GetSharedIcon(IDI_VU_LAYOUT_LAMP)))
        << "loaded afresh at the new first size";
    canvas.Clear();
    again.OnDraw(&canvas.dc);
    EXPECT_EQ(kLamp, canvas.At(8, 8));
}

TEST(LayoutBitmap, SizesDrawingTransparencyAndReplacement) {
    Canvas canvas;
    VU_CLayoutBitmap bitmap(IDB_VU_LAYOUT_PROBE);
    EXPECT_EQ(200, bitmap.GetFlags()) << "never flexible";
    EXPECT_EQ(CRect(0, 0, 8, 4), bitmap.GetObjectRect());
    VU_CLayoutBitmap copy(bitmap);

    struct Row {
        const char* name;
        CRect rect;
        bool transparent;
        COLORREF bottomLeft;
    } rows[] = {
        {"opaque", CRect(10, 10, 18, 14), false, kMagenta},
        {"flipped both ways", CRect(18, 14, 10, 10), false, kMagenta},
        {"transparent", CRect(10, 10, 18, 14), true, kWhite},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        canvas.Clear();
        bitmap.SetObjectRect(r.rect);
        if (r.transparent)
            bitmap.SetTransparencyColor(kMagenta);
        bitmap.OnDraw(&canvas.dc);
        EXPECT_EQ(kRed, canvas.At(10, 10));
        EXPECT_EQ(kBlue, canvas.At(17, 12));
        EXPECT_EQ(r.bottomLeft, canvas.At(10, 13));
        EXPECT_EQ(kWhite, canvas.At(18, 10));
        EXPECT_EQ(kWhite, canvas.At(10, 14));
    }

    // The copy (opaque, with its own image) shows a 5 x 3 green image
    // stretched to the 8 x 4 rectangle it keeps.
    copy.SetObjectRect(CRect(10, 10, 18, 14));
    copy.SetBitmap(IDB_VU_LAYOUT_PROBE_ALT);
    EXPECT_EQ(CSize(8, 4), copy.RecalcSize());
    canvas.Clear();
    copy.OnDraw(&canvas.dc);
    EXPECT_EQ(kGreen, canvas.At(17, 13));
    EXPECT_EQ(kWhite, canvas.At(18, 13));
    bitmap.SetVisibility(VU_LayoutDefs::HIDDEN);
    EXPECT_EQ(CSize(0, 0), bitmap.RecalcSize());

    VU_CLayoutBitmap missing(kMissing);
    EXPECT_TRUE(missing.GetObjectRect().IsRectNull());
    missing.SetObjectRect(CRect(0, 0, 20, 20));
    canvas.Clear();
    missing.OnDraw(&canvas.dc);
    EXPECT_EQ(0, canvas.Inked());
}

TEST(LayoutWithSharedBitmap, MapLivesFromFirstToLastInstance) {
    ASSERT_EQ(0, VU_CLayoutWithSharedBitmap::GetInstanceCount());
    Canvas canvas;
    auto a = std::make_unique<VU_CLayoutWithSharedBitmap>(IDB_VU_LAYOUT_PROBE);
    auto b = std::make_unique<VU_CLayoutWithSharedBitmap>(IDB_VU_LAYOUT_PROBE);
    EXPECT_EQ(1, VU_CLayoutWithSharedBitmap::GetSharedBitmapCount());
    b->SetBitmap(IDB_VU_LAYOUT_PROBE_ALT);
    b->SetBitmap(IDB_VU_LAYOUT_PROBE);
    EXPECT_EQ(2, VU_CLayoutWithSharedBitmap::GetSharedBitmapCount()) << "earlier ids stay";

    a.reset();
    EXPECT_EQ(2, VU_CLayoutWithSharedBitmap::GetSharedBitmapCount());
    b.reset();
    EXPECT_EQ(0, VU_CLayoutWithSharedBitmap::GetSharedBitmapCount());

    VU_CLayoutWithSharedBitmap again(IDB_VU_LAYOUT_PROBE_ALT);
    EXPECT_EQ(1, VU_CLayoutWithSharedBitmap::GetSharedBitmapCount());
    EXPECT_EQ(CRect(0, 0, 5, 3), again.GetObjectRect());
    canvas.Clear();
    again.OnDraw(&canvas.dc);
    EXPECT_EQ(kGreen, canvas.At(4, 2));

    VU_CLayoutWithSharedBitmap missing(kMissing);
    missing.SetObjectRect(CRect(0, 0, 20, 20));
    canvas.Clear();
    missing.OnDraw(&canvas.dc);
    EXPECT_EQ(0, canvas.Inked());
}

} // namespace

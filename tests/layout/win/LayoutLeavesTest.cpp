// The icon and bitmap leaves with real GDI: sizes, pictures read back from
// a memory DC, the shared maps' lifetime and missing resources.
#include "framework/win/DC.h"
#include "layout/HitTestVisitor.h"
#include "layout/LayoutCell.h"
#include "layout/win/LayoutBitmap.h"
#include "layout/win/LayoutIcon.h"
#include "layout/win/LayoutWithSharedBitmap.h"
#include "layout/win/LayoutWithSharedIcon.h"
#include "resources/resource.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);
constexpr COLORREF kGreen = RGB(0, 255, 0);
constexpr COLORREF kMagenta = RGB(255, 0, 255);
constexpr COLORREF kContactBar = RGB(30, 70, 170);
constexpr UINT kMissing = 4699;

// A 64 x 64 white 32-bit picture to draw into and read back.
class Canvas {
public:
    Canvas() {
        HDC screen = GetDC(nullptr);
        dc.Attach(CreateCompatibleDC(screen));
        BITMAPINFO bi = {};
        bi.bmiHeader.biSize = sizeof(bi.bmiHeader);
        bi.bmiHeader.biWidth = 64;
        bi.bmiHeader.biHeight = -64;
        bi.bmiHeader.biPlanes = 1;
        bi.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        m_bitmap = CreateDIBSection(screen, &bi, DIB_RGB_COLORS, &bits, nullptr, 0);
        ReleaseDC(nullptr, screen);
        m_old = SelectObject(dc.GetSafeHdc(), m_bitmap);
        Clear();
    }
    ~Canvas() {
        SelectObject(dc.GetSafeHdc(), m_old);
        DeleteObject(m_bitmap);
    }
    void Clear() { dc.FillSolidRect(CRect(0, 0, 64, 64), kWhite); }
    COLORREF At(int x, int y) { return dc.GetPixel(x, y); }
    // Pixels that are not white.
    int Inked() {
        int n = 0;
        for (int y = 0; y < 64; ++y)
            for (int x = 0; x < 64; ++x)
                n += At(x, y) != kWhite ? 1 : 0;
        return n;
    }
    CDC dc;

private:
    HBITMAP m_bitmap;
    HGDIOBJ m_old;
};

CSize IconImageSize(HICON icon) {
    ICONINFO info = {};
    if (icon == nullptr || !GetIconInfo(icon, &info))
        return CSize();
    BITMAP bm = {};
    GetObjectW(info.hbmColor != nullptr ? info.hbmColor : info.hbmMask, sizeof(bm), &bm);
    DeleteObject(info.hbmColor);
    DeleteObject(info.hbmMask);
    return CSize(bm.bmWidth, bm.bmHeight);
}

TEST(LayoutIcon, SizeCornerAndPicture) {
    Canvas canvas;
    struct Row {
        const char* name;
        CSize size;
        CPoint blue;  // on a contact bar at this size
        CPoint white; // between the bars at this size
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
        EXPECT_EQ(kContactBar, canvas.At(10 + r.blue.x, 12 + r.blue.y));
        EXPECT_EQ(kWhite, canvas.At(10 + r.white.x, 12 + r.white.y)) << "transparent there";
        EXPECT_EQ(kWhite, canvas.At(9, 12 + r.size.cy / 2)) << "nothing left of the corner";

        canvas.Clear();
        icon.SetVisibility(VU_LayoutDefs::HIDDEN);
        EXPECT_EQ(r.size, icon.RecalcSize()) << "hidden icons keep their size";
        icon.OnDraw(&canvas.dc);
        EXPECT_EQ(0, canvas.Inked());
    }

    VU_CLayoutIcon missing(kMissing, CSize(16, 16));
    EXPECT_EQ(nullptr, missing.GetIcon());
    EXPECT_EQ(CSize(16, 16), missing.RecalcSize());
    missing.OnDraw(&canvas.dc);
    EXPECT_EQ(0, canvas.Inked());
}

TEST(LayoutWithSharedIcon, OneImagePerIdUntilTheLastInstanceGoes) {
    ASSERT_EQ(0, VU_CLayoutWithSharedIcon::GetInstanceCount());
    Canvas canvas;
    auto first = std::make_unique<VU_CLayoutWithSharedIcon>(IDI_VU_LAYOUT_COIL, CSize(16, 16));
    auto second = std::make_unique<VU_CLayoutWithSharedIcon>(IDI_VU_LAYOUT_COIL, CSize(32, 32));
    auto other = std::make_unique<VU_CLayoutWithSharedIcon>(IDI_VU_LAYOUT_LAMP, CSize(32, 32));
    auto copy = std::make_unique<VU_CLayoutWithSharedIcon>(*other);
    EXPECT_EQ(4, VU_CLayoutWithSharedIcon::GetInstanceCount());
    EXPECT_EQ(2, VU_CLayoutWithSharedIcon::GetSharedIconCount());
    EXPECT_EQ(CSize(16, 16),
              IconImageSize(VU_CLayoutWithSharedIcon::GetSharedIcon(IDI_VU_LAYOUT_COIL)))
        << "the first instance fixes the loaded size";

    // The lamp is a yellow disc: its centre is inked at 32 x 32.
    other->SetObjectRect(CRect(20, 20, 0, 0));
    other->OnDraw(&canvas.dc);
    EXPECT_EQ(RGB(250, 210, 60), canvas.At(36, 36));

    other.reset();
    first.reset();
    second.reset();
    EXPECT_EQ(2, VU_CLayoutWithSharedIcon::GetSharedIconCount())
        << "a copy keeps them alive, the coil's too";
    copy.reset();
    EXPECT_EQ(0, VU_CLayoutWithSharedIcon::GetInstanceCount());
    EXPECT_EQ(0, VU_CLayoutWithSharedIcon::GetSharedIconCount());

    VU_CLayoutWithSharedIcon again(IDI_VU_LAYOUT_LAMP, CSize(16, 16));
    EXPECT_EQ(CSize(16, 16),
              IconImageSize(VU_CLayoutWithSharedIcon::GetSharedIcon(IDI_VU_LAYOUT_LAMP)))
        << "loaded afresh at the new first size";
    canvas.Clear();
    again.OnDraw(&canvas.dc);
    EXPECT_EQ(RGB(250, 210, 60), canvas.At(8, 8));

    VU_CLayoutWithSharedIcon missing(kMissing, CSize(16, 16));
    canvas.Clear();
    missing.OnDraw(&canvas.dc);
    EXPECT_EQ(0, canvas.Inked());
}

TEST(LayoutBitmap, SizesDrawingTransparencyAndReplacement) {
    Canvas canvas;
    VU_CLayoutBitmap bitmap(IDB_VU_LAYOUT_PROBE);
    EXPECT_EQ(200, bitmap.GetFlags()) << "never flexible";
    EXPECT_EQ(CRect(0, 0, 8, 4), bitmap.GetObjectRect());
    EXPECT_EQ(CSize(8, 4), bitmap.RecalcSize());
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

    // Another image in the same rectangle: 5 x 3 green stretched to 8 x 4,
    // in a copy taken before transparency was switched on.
    copy.SetObjectRect(CRect(10, 10, 18, 14));
    copy.SetBitmap(IDB_VU_LAYOUT_PROBE_ALT);
    EXPECT_EQ(IDB_VU_LAYOUT_PROBE_ALT, copy.GetBitmapID());
    EXPECT_EQ(CSize(8, 4), copy.RecalcSize());
    canvas.Clear();
    copy.OnDraw(&canvas.dc);
    EXPECT_EQ(kGreen, canvas.At(17, 13));
    EXPECT_EQ(kWhite, canvas.At(18, 13));
    canvas.Clear();
    bitmap.OnDraw(&canvas.dc);
    EXPECT_EQ(kRed, canvas.At(10, 10)) << "the original keeps its own image";

    bitmap.SetVisibility(VU_LayoutDefs::HIDDEN);
    EXPECT_EQ(CSize(0, 0), bitmap.RecalcSize());
    canvas.Clear();
    bitmap.OnDraw(&canvas.dc);
    EXPECT_EQ(0, canvas.Inked());

    VU_CLayoutBitmap missing(kMissing);
    EXPECT_TRUE(missing.GetObjectRect().IsRectNull());
    EXPECT_EQ(CSize(0, 0), missing.RecalcSize());
    missing.SetObjectRect(CRect(0, 0, 20, 20));
    missing.OnDraw(&canvas.dc);
    EXPECT_EQ(0, canvas.Inked());
}

TEST(LayoutWithSharedBitmap, MapLivesFromFirstToLastInstance) {
    ASSERT_EQ(0, VU_CLayoutWithSharedBitmap::GetInstanceCount());
    Canvas canvas;
    auto a = std::make_unique<VU_CLayoutWithSharedBitmap>(IDB_VU_LAYOUT_PROBE);
    auto b = std::make_unique<VU_CLayoutWithSharedBitmap>(IDB_VU_LAYOUT_PROBE);
    EXPECT_EQ(1, VU_CLayoutWithSharedBitmap::GetSharedBitmapCount());
    EXPECT_EQ(CRect(0, 0, 8, 4), b->GetObjectRect());
    b->SetBitmap(IDB_VU_LAYOUT_PROBE_ALT);
    EXPECT_EQ(2, VU_CLayoutWithSharedBitmap::GetSharedBitmapCount());
    b->SetBitmap(IDB_VU_LAYOUT_PROBE);
    EXPECT_EQ(2, VU_CLayoutWithSharedBitmap::GetSharedBitmapCount()) << "earlier ids stay";

    a->SetObjectRect(CRect(30, 30, 38, 34));
    a->SetTransparencyColor(kMagenta);
    a->OnDraw(&canvas.dc);
    EXPECT_EQ(kBlue, canvas.At(37, 30));
    EXPECT_EQ(kWhite, canvas.At(37, 33));

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
    EXPECT_EQ(CSize(0, 0), missing.RecalcSize());
    missing.SetObjectRect(CRect(0, 0, 20, 20));
    canvas.Clear();
    missing.OnDraw(&canvas.dc);
    EXPECT_EQ(0, canvas.Inked());
}

// Counts the bitmaps it is handed as bitmaps.
class BitmapCounter : public VU_CLayoutElementVisitor, public DwIVisit<VU_CLayoutBitmap> {
public:
    using VU_CLayoutElementVisitor::Visit;
    void Visit(VU_CLayoutBitmap*) override { ++bitmaps; }
    int bitmaps = 0;
};

TEST(LayoutLeaves, CellCentresAndDrawsThemAndVisitorsReachThem) {
    Canvas canvas;
    auto* bitmap = new VU_CLayoutBitmap(IDB_VU_LAYOUT_PROBE);
    VU_CLayoutCell cell(bitmap, VU_LayoutDefs::ALIGN_HCENTER | VU_LayoutDefs::ALIGN_VCENTER);
    cell.SetLayoutRect(CRect(0, 0, 40, 20));
    cell.RecalcLayout(&canvas.dc);
    EXPECT_EQ(CRect(16, 8, 24, 12), bitmap->GetObjectRect());
    cell.Draw(&canvas.dc);
    EXPECT_EQ(kRed, canvas.At(16, 8));
    EXPECT_EQ(32, canvas.Inked());

    VU_CHitTestVisitor hit(CPoint(20, 9));
    cell.Accept(&hit);
    EXPECT_EQ(bitmap, hit.GetHit()) << "a leaf visitor still reaches a bitmap";
    BitmapCounter counter;
    cell.Accept(&counter);
    EXPECT_EQ(1, counter.bitmaps);
}

} // namespace

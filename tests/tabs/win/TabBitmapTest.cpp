// The library's bitmap object, and a tab's bitmap drawn with its key
// colour (0xC0C0C0) left out.
#include "TabBeamTestHost.h"

#include "foundation/win/Bitmap.h"
#include "framework/win/DC.h"

using namespace tabtest;

namespace {

const COLORREF kKey = RGB(0xC0, 0xC0, 0xC0);
const COLORREF kRed = RGB(255, 0, 0);

// w x h pixels of the key colour with a red square of side 4 in the middle.
HBITMAP KeyedBitmap(int w, int h) {
    HDC screen = GetDC(nullptr);
    HDC dc = CreateCompatibleDC(screen);
    HBITMAP bitmap = CreateCompatibleBitmap(screen, w, h);
    ReleaseDC(nullptr, screen);
    HGDIOBJ old = SelectObject(dc, bitmap);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            bool inner = x >= w / 2 - 2 && x < w / 2 + 2 && y >= h / 2 - 2 && y < h / 2 + 2;
            SetPixel(dc, x, y, inner ? kRed : kKey);
        }
    SelectObject(dc, old);
    DeleteDC(dc);
    return bitmap;
}

TEST(VuBitmap, LoadsDrawsStretchedAndGivesUpItsHandle) {
    VU_CBitmap bitmap;
    EXPECT_FALSE(bitmap.LoadBitmap(60999)); // no such resource: stays empty
    EXPECT_EQ(nullptr, bitmap.GetHandle());
    ASSERT_TRUE(bitmap.LoadBitmap(2336)); // the library's tree images
    EXPECT_GT(bitmap.GetSize().cx, 0);
    bitmap.SetHandle(KeyedBitmap(8, 8));
    EXPECT_EQ(8, bitmap.GetSize().cx);

    CDC dc;
    ASSERT_TRUE(dc.CreateCompatibleDC(CDC::FromHandle(GetDC(nullptr))));
    HBITMAP target = CreateCompatibleBitmap(GetDC(nullptr), 40, 40);
    HGDIOBJ old = SelectObject(dc, target);
    dc.FillSolidRect(0, 0, 40, 40, RGB(0, 0, 255));
    EXPECT_TRUE(bitmap.Draw(&dc, CRect(0, 0, 16, 16))); // stretched twice
    EXPECT_EQ(kRed, dc.GetPixel(6, 6));
    EXPECT_EQ(kKey, dc.GetPixel(1, 1));
    EXPECT_FALSE(bitmap.Draw(&dc, CRect(5, 5, 5, 20))); // empty rectangle
    EXPECT_TRUE(bitmap.DrawTransparent(&dc, CPoint(20, 20), kKey));
    EXPECT_EQ(kRed, dc.GetPixel(24, 24));
    EXPECT_EQ(RGB(0, 0, 255), dc.GetPixel(21, 21)); // the key colour let the blue through
    SelectObject(dc, old);
    DeleteObject(target);

    HBITMAP handle = bitmap.GetHandle();
    EXPECT_EQ(handle, bitmap.Detach());
    EXPECT_EQ(nullptr, bitmap.GetHandle());
    EXPECT_FALSE(bitmap.DrawTransparent(&dc, CPoint(0, 0), kKey));
    EXPECT_NE(0, GetObjectType(handle)); // not deleted by Detach
    DeleteObject(handle);
}

TEST_F(BeamTest, TabBitmapSitsLeftOfTheTextWithoutItsKeyColour) {
    AddTabs({L"Main"});
    beam->InsertTab(FALSE, L"Routine", nullptr, 0, -1, nullptr, KeyedBitmap(12, 12));
    EXPECT_EQ(beam->MeasureTabTextForTest(L"Routine", false) + 12 + beam->GetOverlap() + 10,
              beam->GetTab(1)->m_nWidth);
    Picture picture(beam->m_hWnd);
    int x = beam->CalcTabOffset(1) + beam->GetOverlap();
    RECT image{x, 0, x + 12, beam->GetHeight()};
    EXPECT_EQ(16, picture.Count(image, kRed));
    EXPECT_EQ(0, picture.Count(image, kKey));
}

} // namespace

// Device context and GDI wrappers: ownership, temporary wrappers, and
// selection returning what was selected before.
#include <gtest/gtest.h>

#include "framework/win/Bitmap.h"
#include "framework/win/Brush.h"
#include "framework/win/ClientDC.h"
#include "framework/win/DC.h"
#include "framework/win/Font.h"
#include "framework/win/ImageList.h"
#include "framework/win/Menu.h"
#include "framework/win/Pen.h"
#include "framework/win/ToolTipCtrl.h"
#include "support/TestWindow.h"

namespace {

TEST(GdiTest, OwnedObjectsAreDeletedAndDetachedOnesAreNot) {
    HGDIOBJ kept = nullptr;
    HGDIOBJ deleted = nullptr;
    {
        CPen pen(PS_SOLID, 1, RGB(1, 2, 3));
        CBrush brush(RGB(4, 5, 6));
        ASSERT_NE(pen.m_hObject, nullptr);
        deleted = pen.m_hObject;
        kept = brush.Detach();
        EXPECT_FALSE(brush.Attach(nullptr));
    }
    EXPECT_EQ(GetObjectType(deleted), 0u);
    EXPECT_EQ(GetObjectType(kept), static_cast<DWORD>(OBJ_BRUSH));
    DeleteObject(kept);
}

TEST(GdiTest, SelectionReturnsThePreviousObjectAndTemporariesAreStable) {
    CDC memory;
    ASSERT_TRUE(memory.CreateCompatibleDC(nullptr));
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(90, L"Arial"));
    LOGFONTW lf{};
    ASSERT_GT(font.GetLogFont(&lf), 0);
    EXPECT_LT(lf.lfHeight, 0);

    HGDIOBJ original = GetCurrentObject(memory.m_hDC, OBJ_FONT);
    CFont* previous = memory.SelectObject(&font);
    ASSERT_NE(previous, nullptr);
    EXPECT_EQ(previous->m_hObject, original);
    EXPECT_EQ(memory.GetCurrentFont()->m_hObject, font.m_hObject);
    EXPECT_EQ(CFont::FromHandle(static_cast<HFONT>(original)), previous);
    EXPECT_EQ(memory.SelectObject(previous), CFont::FromHandle(font));
    EXPECT_EQ(CDC::FromHandle(memory.m_hDC), CDC::FromHandle(memory.m_hDC));
}

TEST(GdiTest, FillAndTextMeasureOnARealBitmap) {
    CClientDC screen(nullptr);
    CDC memory;
    ASSERT_TRUE(memory.CreateCompatibleDC(&screen));
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateCompatibleBitmap(&screen, 20, 10));
    EXPECT_EQ(bitmap.GetBitmapDimension().cx, 20);
    CBitmap* old = memory.SelectObject(&bitmap);
    memory.FillSolidRect(CRect(0, 0, 20, 10), RGB(0, 0, 255));
    memory.FillSolidRect(2, 2, 3, 3, RGB(255, 0, 0));
    EXPECT_EQ(memory.GetPixel(0, 0), RGB(0, 0, 255));
    EXPECT_EQ(memory.GetPixel(3, 3), RGB(255, 0, 0));
    EXPECT_GT(memory.GetTextExtent(L"Rung", 4).cx, memory.GetTextExtent(L"R", 1).cx);
    EXPECT_EQ(memory.GetTextExtent(nullptr, 3).cx, 0);
    memory.SelectObject(old);
}

TEST(GdiTest, ImageListFromBitmap) {
    CClientDC screen(nullptr);
    CBitmap strip;
    ASSERT_TRUE(strip.CreateCompatibleBitmap(&screen, 48, 16));
    CImageList images;
    ASSERT_TRUE(images.Create(16, 16, ILC_COLOR24 | ILC_MASK, 0, 1));
    EXPECT_EQ(images.Add(strip, RGB(0, 0, 255)), 0);
    EXPECT_EQ(images.GetImageCount(), 3);
    int cx = 0, cy = 0;
    EXPECT_TRUE(images.GetIconSize(&cx, &cy));
    EXPECT_EQ(cx, 16);
    CImageList missing;
    EXPECT_FALSE(missing.Create(59998u, 16, 1, RGB(0, 0, 255))); // no such bitmap anywhere
    EXPECT_EQ(missing.GetImageCount(), 0);
}

TEST(GdiTest, MenuAndToolTip) {
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    menu.AppendMenu(MF_STRING, 40, L"&Expand");
    menu.AppendMenu(MF_SEPARATOR);
    EXPECT_EQ(menu.GetMenuItemCount(), 2);
    CString text;
    EXPECT_EQ(menu.GetMenuString(40, text, MF_BYCOMMAND), 7);
    EXPECT_EQ(std::wstring(text.GetString()), L"&Expand");

    vutest::PlainWindow window(vutest::Stage(), WS_VISIBLE);
    CToolTipCtrl tip;
    ASSERT_TRUE(tip.Create(CWnd::FromHandle(window.hwnd)));
    EXPECT_TRUE(tip.AddTool(CWnd::FromHandle(window.hwnd), L"tip text"));
    EXPECT_EQ(tip.GetToolCount(), 1);
    TOOLINFOW info{};
    EXPECT_TRUE(tip.GetToolInfo(&info, CWnd::FromHandle(window.hwnd)));
}

} // namespace

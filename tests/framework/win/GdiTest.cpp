// Device context and GDI wrappers: ownership, temporary wrappers, and
// selection returning what was selected before.
#include <gtest/gtest.h>

#include "framework/win/Brush.h"
#include "framework/win/DC.h"
#include "framework/win/Font.h"
#include "framework/win/Pen.h"

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

} // namespace

#include "foundation/win/Bitmap.h"

#include "framework/win/DC.h"
#include "framework/win/DynLinkLibrary.h"

BOOL VU_CBitmap::LoadBitmap(UINT nID) {
    HBITMAP hBitmap = AfxLoadBitmap(nID);
    if (hBitmap == nullptr)
        return FALSE;
    SetHandle(hBitmap);
    return TRUE;
}

void VU_CBitmap::SetHandle(HBITMAP hBitmap) {
    DeleteObject();
    if (hBitmap != nullptr)
        Attach(hBitmap);
}

BOOL VU_CBitmap::Draw(CDC* pDC, const CRect& rect, DWORD dwRop) const {
    return DrawThrough(
        pDC, rect, dwRop, [](HDC target, HDC source, const CRect& to, CSize from, UINT rop) {
            if (to.Width() == from.cx && to.Height() == from.cy)
                return ::BitBlt(target, to.left, to.top, from.cx, from.cy, source, 0, 0, rop);
            int oldMode = ::SetStretchBltMode(target, COLORONCOLOR);
            BOOL done = ::StretchBlt(target, to.left, to.top, to.Width(), to.Height(), source, 0, 0,
                                     from.cx, from.cy, rop);
            ::SetStretchBltMode(target, oldMode);
            return done;
        });
}

BOOL VU_CBitmap::DrawTransparent(CDC* pDC, CPoint point, COLORREF crKey) const {
    CSize size = GetSize();
    CRect to(point.x, point.y, point.x + size.cx, point.y + size.cy);
    return DrawThrough(pDC, to, crKey,
                       [](HDC target, HDC source, const CRect& at, CSize from, UINT key) {
                           return ::TransparentBlt(target, at.left, at.top, from.cx, from.cy,
                                                   source, 0, 0, from.cx, from.cy, key);
                       });
}

// Selects the bitmap into a memory DC compatible with the target and lets
// blit copy from it.
BOOL VU_CBitmap::DrawThrough(CDC* pDC, const CRect& to, UINT extra, Blit blit) const {
    CSize size = GetSize();
    if (pDC == nullptr || pDC->m_hDC == nullptr || size.cx <= 0 || size.cy <= 0 || to.IsRectEmpty())
        return FALSE;
    HDC memory = ::CreateCompatibleDC(pDC->m_hDC);
    if (memory == nullptr)
        return FALSE;
    HGDIOBJ old = ::SelectObject(memory, m_hObject);
    BOOL done = old != nullptr && blit(pDC->m_hDC, memory, to, size, extra);
    if (old != nullptr)
        ::SelectObject(memory, old);
    ::DeleteDC(memory);
    return done;
}

#pragma once
// VU_CBitmap: the library's bitmap object, an owned GDI bitmap that can
// load itself from a resource and draw itself.
//
// Loading goes through the resource chain (the host's executable first,
// then the library), so a host may replace any of the library's images.
// Drawing selects the bitmap into a memory DC compatible with the target;
// a bitmap that is selected into another DC at the time cannot be drawn
// (GDI allows one DC per bitmap) and the drawing fails.
#include "framework/Point.h"
#include "framework/Rect.h"
#include "framework/win/Bitmap.h"

class CDC;

class VU_CBitmap : public CBitmap {
public:
    // Attributes
    HBITMAP GetHandle() const { return static_cast<HBITMAP>(m_hObject); }
    CSize GetSize() const { return GetBitmapDimension(); } // (0, 0) when empty

    // Operations
    // Loads bitmap nID through the resource chain and takes it in place of
    // the current one (which is deleted). FALSE, keeping the current
    // bitmap, when no module has the resource.
    BOOL LoadBitmap(UINT nID);
    using CBitmap::LoadBitmap; // (hInstance, nID): from one module, into an empty object
    // Takes ownership of hBitmap in place of the current bitmap (deleted).
    // A null handle just empties the object.
    void SetHandle(HBITMAP hBitmap);
    // Detach() (inherited) hands the handle out without deleting it.

    // Draws the whole bitmap into rect with the raster operation dwRop,
    // stretched when rect's size differs from the bitmap's. Nothing is drawn
    // for an empty bitmap or an empty rectangle; FALSE then.
    BOOL Draw(CDC* pDC, const CRect& rect, DWORD dwRop = SRCCOPY) const;
    // Draws the bitmap at its own size with its top-left corner at point,
    // leaving the target unchanged wherever the bitmap has crKey.
    BOOL DrawTransparent(CDC* pDC, CPoint point, COLORREF crKey) const;

private:
    using Blit = BOOL (*)(HDC target, HDC source, const CRect& to, CSize from, UINT extra);
    BOOL DrawThrough(CDC* pDC, const CRect& to, UINT extra, Blit blit) const;
};

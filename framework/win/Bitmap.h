#pragma once
// CBitmap: an owned HBITMAP. LoadBitmap searches the resource chain (the
// host's executable first, then the library).
#include "framework/Size.h"
#include "framework/win/GdiObject.h"

class CDC;

class CBitmap : public CGdiObject {
public:
    operator HBITMAP() const { return static_cast<HBITMAP>(m_hObject); }
    static CBitmap* FromHandle(HBITMAP hBitmap);

    BOOL LoadBitmap(UINT nIDResource);
    BOOL LoadBitmap(HINSTANCE hInstance, UINT nIDResource);
    BOOL CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits);
    BOOL CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight);
    int GetBitmap(BITMAP* pBitMap) const;
    CSize GetBitmapDimension() const; // width and height in pixels
};

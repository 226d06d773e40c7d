#include "framework/win/Bitmap.h"

#include "framework/win/DC.h"
#include "framework/win/DynLinkLibrary.h"
#include "framework/win/ThreadState.h"

CBitmap* CBitmap::FromHandle(HBITMAP hBitmap) {
    if (hBitmap == nullptr)
        return nullptr;
    CHandleMap& temps =
        AfxGetThreadState()->TempMap(afxTempBitmap, AfxIsGdiObjectAlive, AfxDetachGdiObject);
    if (CObject* found = temps.Lookup(hBitmap))
        return static_cast<CBitmap*>(found);
    auto* pBitmap = new CBitmap;
    pBitmap->m_hObject = hBitmap;
    temps.Add(hBitmap, pBitmap);
    return pBitmap;
}

BOOL CBitmap::LoadBitmap(UINT nIDResource) {
    return Attach(AfxLoadBitmap(nIDResource));
}

BOOL CBitmap::LoadBitmap(HINSTANCE hInstance, UINT nIDResource) {
    return Attach(::LoadBitmapW(hInstance, MAKEINTRESOURCEW(nIDResource)));
}

BOOL CBitmap::CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount,
                           const void* lpBits) {
    return Attach(::CreateBitmap(nWidth, nHeight, nPlanes, nBitcount, lpBits));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight) {
    return pDC != nullptr && Attach(::CreateCompatibleBitmap(pDC->m_hDC, nWidth, nHeight));
}

int CBitmap::GetBitmap(BITMAP* pBitMap) const {
    return GetObject(sizeof(BITMAP), pBitMap);
}

CSize CBitmap::GetBitmapDimension() const {
    BITMAP bm{};
    if (GetBitmap(&bm) == 0)
        return CSize(0, 0);
    return CSize(bm.bmWidth, bm.bmHeight);
}

#include "framework/win/Brush.h"

#include "framework/win/ThreadState.h"

CBrush* CBrush::FromHandle(HBRUSH hBrush) {
    if (hBrush == nullptr)
        return nullptr;
    CHandleMap& temps =
        AfxGetThreadState()->TempMap(afxTempBrush, AfxIsGdiObjectAlive, AfxDetachGdiObject);
    if (CObject* found = temps.Lookup(hBrush))
        return static_cast<CBrush*>(found);
    auto* pBrush = new CBrush;
    pBrush->m_hObject = hBrush;
    temps.Add(hBrush, pBrush);
    return pBrush;
}

BOOL CBrush::CreateSolidBrush(COLORREF crColor) {
    return Attach(::CreateSolidBrush(crColor));
}

BOOL CBrush::CreateHatchBrush(int nIndex, COLORREF crColor) {
    return Attach(::CreateHatchBrush(nIndex, crColor));
}

BOOL CBrush::CreatePatternBrush(HBITMAP hBitmap) {
    return hBitmap != nullptr && Attach(::CreatePatternBrush(hBitmap));
}

BOOL CBrush::CreateSysColorBrush(int nIndex) {
    return Attach(::GetSysColorBrush(nIndex));
}

#include "framework/win/Pen.h"

#include "framework/win/ThreadState.h"

CPen* CPen::FromHandle(HPEN hPen) {
    if (hPen == nullptr)
        return nullptr;
    CHandleMap& temps =
        AfxGetThreadState()->TempMap(afxTempPen, AfxIsGdiObjectAlive, AfxDetachGdiObject);
    if (CObject* found = temps.Lookup(hPen))
        return static_cast<CPen*>(found);
    auto* pPen = new CPen;
    pPen->m_hObject = hPen;
    temps.Add(hPen, pPen);
    return pPen;
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, COLORREF crColor) {
    return Attach(::CreatePen(nPenStyle, nWidth, crColor));
}

BOOL CPen::CreatePenIndirect(const LOGPEN* lpLogPen) {
    return lpLogPen != nullptr && Attach(::CreatePenIndirect(lpLogPen));
}

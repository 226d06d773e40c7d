#pragma once
// CPen: an owned HPEN.
#include "framework/win/GdiObject.h"

class CPen : public CGdiObject {
public:
    CPen() = default;
    CPen(int nPenStyle, int nWidth, COLORREF crColor) { CreatePen(nPenStyle, nWidth, crColor); }
    operator HPEN() const { return static_cast<HPEN>(m_hObject); }
    static CPen* FromHandle(HPEN hPen);

    BOOL CreatePen(int nPenStyle, int nWidth, COLORREF crColor);
    BOOL CreatePenIndirect(const LOGPEN* lpLogPen);
};

#pragma once
// CBrush: an owned HBRUSH.
#include "framework/win/GdiObject.h"

class CBrush : public CGdiObject {
public:
    CBrush() = default;
    explicit CBrush(COLORREF crColor) { CreateSolidBrush(crColor); }
    operator HBRUSH() const { return static_cast<HBRUSH>(m_hObject); }
    static CBrush* FromHandle(HBRUSH hBrush);

    BOOL CreateSolidBrush(COLORREF crColor);
    BOOL CreateHatchBrush(int nIndex, COLORREF crColor);
    BOOL CreatePatternBrush(HBITMAP hBitmap);
    BOOL CreateSysColorBrush(int nIndex);
};

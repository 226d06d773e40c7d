#pragma once
// CFont: an owned HFONT.
#include "framework/win/GdiObject.h"

class CFont : public CGdiObject {
public:
    operator HFONT() const { return static_cast<HFONT>(m_hObject); }
    static CFont* FromHandle(HFONT hFont);

    BOOL CreateFontIndirect(const LOGFONTW* lpLogFont);
    BOOL CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight,
                    BYTE bItalic, BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet,
                    BYTE nOutPrecision, BYTE nClipPrecision, BYTE nQuality, BYTE nPitchAndFamily,
                    const wchar_t* lpszFacename);
    // Height in tenths of a point on the screen (or pDC's device).
    BOOL CreatePointFont(int nPointSize, const wchar_t* lpszFaceName, HDC hDC = nullptr);
    int GetLogFont(LOGFONTW* pLogFont) const;
};

#include "framework/win/Font.h"

#include <cwchar>

#include "framework/win/ThreadState.h"

CFont* CFont::FromHandle(HFONT hFont) {
    if (hFont == nullptr)
        return nullptr;
    CHandleMap& temps =
        AfxGetThreadState()->TempMap(afxTempFont, AfxIsGdiObjectAlive, AfxDetachGdiObject);
    if (CObject* found = temps.Lookup(hFont))
        return static_cast<CFont*>(found);
    auto* pFont = new CFont;
    pFont->m_hObject = hFont;
    temps.Add(hFont, pFont);
    return pFont;
}

BOOL CFont::CreateFontIndirect(const LOGFONTW* lpLogFont) {
    return lpLogFont != nullptr && Attach(::CreateFontIndirectW(lpLogFont));
}

BOOL CFont::CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight,
                       BYTE bItalic, BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet,
                       BYTE nOutPrecision, BYTE nClipPrecision, BYTE nQuality, BYTE nPitchAndFamily,
                       const wchar_t* lpszFacename) {
    return Attach(::CreateFontW(nHeight, nWidth, nEscapement, nOrientation, nWeight, bItalic,
                                bUnderline, cStrikeOut, nCharSet, nOutPrecision, nClipPrecision,
                                nQuality, nPitchAndFamily, lpszFacename));
}

BOOL CFont::CreatePointFont(int nPointSize, const wchar_t* lpszFaceName, HDC hDC) {
    LOGFONTW lf{};
    lf.lfCharSet = DEFAULT_CHARSET;
    if (lpszFaceName != nullptr)
        wcsncpy(lf.lfFaceName, lpszFaceName, LF_FACESIZE - 1);
    HDC hDCScreen = hDC != nullptr ? hDC : ::GetDC(nullptr);
    // Tenths of a point to device units, as a negative (character) height.
    POINT pt{0, MulDiv(GetDeviceCaps(hDCScreen, LOGPIXELSY), nPointSize, 720)};
    POINT origin{0, 0};
    DPtoLP(hDCScreen, &pt, 1);
    DPtoLP(hDCScreen, &origin, 1);
    lf.lfHeight = -std::abs(pt.y - origin.y);
    if (hDC == nullptr)
        ::ReleaseDC(nullptr, hDCScreen);
    return CreateFontIndirect(&lf);
}

int CFont::GetLogFont(LOGFONTW* pLogFont) const {
    return GetObject(sizeof(LOGFONTW), pLogFont);
}

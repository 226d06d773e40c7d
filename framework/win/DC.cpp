#include "framework/win/DC.h"

#include "framework/win/Bitmap.h"
#include "framework/win/Brush.h"
#include "framework/win/Font.h"
#include "framework/win/Geometry.h"
#include "framework/win/Pen.h"
#include "framework/win/ThreadState.h"
#include "framework/win/Wnd.h"

namespace {

bool IsDCAlive(void* hDC) {
    return ::GetObjectType(static_cast<HGDIOBJ>(hDC)) != 0;
}
void DetachTempDC(CObject* o) {
    static_cast<CDC*>(o)->m_hDC = nullptr;
}

// The wrapper of the object a selection replaced, typed by what it is.
CGdiObject* WrapSelected(HGDIOBJ hOld) {
    if (hOld == nullptr || hOld == HGDI_ERROR)
        return nullptr;
    return CGdiObject::FromHandle(hOld);
}

} // namespace

CDC::~CDC() {
    DeleteDC();
}

CDC* CDC::FromHandle(HDC hDC) {
    if (hDC == nullptr)
        return nullptr;
    CHandleMap& temps = AfxGetThreadState()->TempMap(afxTempDC, IsDCAlive, DetachTempDC);
    if (CObject* found = temps.Lookup(hDC))
        return static_cast<CDC*>(found);
    auto* pDC = new CDC;
    pDC->m_hDC = hDC;
    temps.Add(hDC, pDC);
    return pDC;
}

BOOL CDC::Attach(HDC hDC) {
    if (hDC == nullptr || m_hDC != nullptr)
        return FALSE;
    m_hDC = hDC;
    return TRUE;
}

HDC CDC::Detach() {
    HDC hDC = m_hDC;
    m_hDC = nullptr;
    return hDC;
}

BOOL CDC::CreateCompatibleDC(CDC* pDC) {
    return Attach(::CreateCompatibleDC(pDC != nullptr ? pDC->m_hDC : nullptr));
}

BOOL CDC::DeleteDC() {
    if (m_hDC == nullptr)
        return FALSE;
    return ::DeleteDC(Detach());
}

int CDC::SaveDC() {
    return ::SaveDC(m_hDC);
}
BOOL CDC::RestoreDC(int nSavedDC) {
    return ::RestoreDC(m_hDC, nSavedDC);
}
int CDC::GetDeviceCaps(int nIndex) const {
    return ::GetDeviceCaps(m_hDC, nIndex);
}
CWnd* CDC::GetWindow() const {
    return CWnd::FromHandle(::WindowFromDC(m_hDC));
}

CGdiObject* CDC::SelectObject(CGdiObject* pObject) {
    if (pObject == nullptr || pObject->m_hObject == nullptr)
        return nullptr;
    return WrapSelected(::SelectObject(m_hDC, pObject->m_hObject));
}

CFont* CDC::SelectObject(CFont* pFont) {
    if (pFont == nullptr || pFont->m_hObject == nullptr)
        return nullptr;
    return CFont::FromHandle(static_cast<HFONT>(::SelectObject(m_hDC, pFont->m_hObject)));
}

CPen* CDC::SelectObject(CPen* pPen) {
    if (pPen == nullptr || pPen->m_hObject == nullptr)
        return nullptr;
    return CPen::FromHandle(static_cast<HPEN>(::SelectObject(m_hDC, pPen->m_hObject)));
}

CBrush* CDC::SelectObject(CBrush* pBrush) {
    if (pBrush == nullptr || pBrush->m_hObject == nullptr)
        return nullptr;
    return CBrush::FromHandle(static_cast<HBRUSH>(::SelectObject(m_hDC, pBrush->m_hObject)));
}

CBitmap* CDC::SelectObject(CBitmap* pBitmap) {
    if (pBitmap == nullptr || pBitmap->m_hObject == nullptr)
        return nullptr;
    return CBitmap::FromHandle(static_cast<HBITMAP>(::SelectObject(m_hDC, pBitmap->m_hObject)));
}

HGDIOBJ CDC::SelectObject(HGDIOBJ hObject) {
    return hObject != nullptr ? ::SelectObject(m_hDC, hObject) : nullptr;
}

CGdiObject* CDC::SelectStockObject(int nIndex) {
    HGDIOBJ hStock = ::GetStockObject(nIndex);
    return hStock != nullptr ? WrapSelected(::SelectObject(m_hDC, hStock)) : nullptr;
}

CFont* CDC::GetCurrentFont() const {
    return CFont::FromHandle(static_cast<HFONT>(::GetCurrentObject(m_hDC, OBJ_FONT)));
}

COLORREF CDC::SetTextColor(COLORREF crColor) {
    return ::SetTextColor(m_hDC, crColor);
}
COLORREF CDC::GetTextColor() const {
    return ::GetTextColor(m_hDC);
}
COLORREF CDC::SetBkColor(COLORREF crColor) {
    return ::SetBkColor(m_hDC, crColor);
}
COLORREF CDC::GetBkColor() const {
    return ::GetBkColor(m_hDC);
}
int CDC::SetBkMode(int nBkMode) {
    return ::SetBkMode(m_hDC, nBkMode);
}
int CDC::GetBkMode() const {
    return ::GetBkMode(m_hDC);
}
UINT CDC::SetTextAlign(UINT nFlags) {
    return ::SetTextAlign(m_hDC, nFlags);
}
int CDC::SetROP2(int nDrawMode) {
    return ::SetROP2(m_hDC, nDrawMode);
}

int CDC::DrawText(const wchar_t* lpszString, int nCount, CRect* lpRect, UINT nFormat) {
    if (lpszString == nullptr || lpRect == nullptr)
        return 0;
    return ::DrawTextW(m_hDC, lpszString, nCount, vu::AsRECT(lpRect), nFormat);
}

int CDC::DrawText(const CString& str, CRect* lpRect, UINT nFormat) {
    return DrawText(str.GetString(), str.GetLength(), lpRect, nFormat);
}

BOOL CDC::TextOut(int x, int y, const wchar_t* lpszString, int nCount) {
    return lpszString != nullptr && ::TextOutW(m_hDC, x, y, lpszString, nCount);
}

BOOL CDC::TextOut(int x, int y, const CString& str) {
    return TextOut(x, y, str.GetString(), str.GetLength());
}

BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, const CRect* lpRect, const wchar_t* lpszString,
                     UINT nCount, const int* lpDxWidths) {
    return ::ExtTextOutW(m_hDC, x, y, nOptions, vu::AsRECT(lpRect), lpszString, nCount, lpDxWidths);
}

CSize CDC::TabbedTextOut(int x, int y, const wchar_t* lpszString, int nCount, int nTabPositions,
                         const int* lpnTabStopPositions, int nTabOrigin) {
    if (lpszString == nullptr)
        return CSize(0, 0);
    LONG extent = ::TabbedTextOutW(m_hDC, x, y, lpszString, nCount, nTabPositions,
                                   lpnTabStopPositions, nTabOrigin);
    return CSize(LOWORD(extent), HIWORD(extent));
}

CSize CDC::GetTextExtent(const wchar_t* lpszString, int nCount) const {
    SIZE size{0, 0};
    if (lpszString != nullptr)
        ::GetTextExtentPoint32W(m_hDC, lpszString, nCount, &size);
    return vu::ToCSize(size);
}

CSize CDC::GetTextExtent(const CString& str) const {
    return GetTextExtent(str.GetString(), str.GetLength());
}

CSize CDC::GetTabbedTextExtent(const wchar_t* lpszString, int nCount, int nTabPositions,
                               const int* lpnTabStopPositions) const {
    if (lpszString == nullptr)
        return CSize(0, 0);
    DWORD extent =
        ::GetTabbedTextExtentW(m_hDC, lpszString, nCount, nTabPositions, lpnTabStopPositions);
    return CSize(LOWORD(extent), HIWORD(extent));
}

BOOL CDC::GetTextMetrics(TEXTMETRICW* lpMetrics) const {
    return ::GetTextMetricsW(m_hDC, lpMetrics);
}

void CDC::FillSolidRect(const CRect& rect, COLORREF crColor) {
    ::SetBkColor(m_hDC, crColor);
    ::ExtTextOutW(m_hDC, 0, 0, ETO_OPAQUE, vu::AsRECT(&rect), nullptr, 0, nullptr);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF crColor) {
    FillSolidRect(CRect(x, y, x + cx, y + cy), crColor);
}

void CDC::FillRect(const CRect* lpRect, CBrush* pBrush) {
    if (lpRect != nullptr && pBrush != nullptr)
        ::FillRect(m_hDC, vu::AsRECT(lpRect), static_cast<HBRUSH>(pBrush->m_hObject));
}

void CDC::FrameRect(const CRect* lpRect, CBrush* pBrush) {
    if (lpRect != nullptr && pBrush != nullptr)
        ::FrameRect(m_hDC, vu::AsRECT(lpRect), static_cast<HBRUSH>(pBrush->m_hObject));
}

void CDC::InvertRect(const CRect* lpRect) {
    if (lpRect != nullptr)
        ::InvertRect(m_hDC, vu::AsRECT(lpRect));
}

void CDC::DrawFocusRect(const CRect* lpRect) {
    if (lpRect != nullptr)
        ::DrawFocusRect(m_hDC, vu::AsRECT(lpRect));
}

void CDC::Draw3dRect(const CRect& rect, COLORREF clrTopLeft, COLORREF clrBottomRight) {
    int x = rect.left, y = rect.top;
    int cx = rect.right - rect.left, cy = rect.bottom - rect.top;
    FillSolidRect(x, y, cx - 1, 1, clrTopLeft);
    FillSolidRect(x, y, 1, cy - 1, clrTopLeft);
    FillSolidRect(x + cx, y, -1, cy, clrBottomRight);
    FillSolidRect(x, y + cy, cx, -1, clrBottomRight);
}

BOOL CDC::DrawEdge(CRect* lpRect, UINT nEdge, UINT nFlags) {
    return lpRect != nullptr && ::DrawEdge(m_hDC, vu::AsRECT(lpRect), nEdge, nFlags);
}

BOOL CDC::DrawFrameControl(CRect* lpRect, UINT nType, UINT nState) {
    return lpRect != nullptr && ::DrawFrameControl(m_hDC, vu::AsRECT(lpRect), nType, nState);
}

BOOL CDC::Rectangle(int x1, int y1, int x2, int y2) {
    return ::Rectangle(m_hDC, x1, y1, x2, y2);
}

BOOL CDC::Rectangle(const CRect& rect) {
    return ::Rectangle(m_hDC, rect.left, rect.top, rect.right, rect.bottom);
}

BOOL CDC::Ellipse(const CRect& rect) {
    return ::Ellipse(m_hDC, rect.left, rect.top, rect.right, rect.bottom);
}

BOOL CDC::Polygon(const CPoint* lpPoints, int nCount) {
    return lpPoints != nullptr && ::Polygon(m_hDC, vu::AsPOINT(lpPoints), nCount);
}

CPoint CDC::MoveTo(int x, int y) {
    POINT old{0, 0};
    ::MoveToEx(m_hDC, x, y, &old);
    return vu::ToCPoint(old);
}

CPoint CDC::MoveTo(CPoint point) {
    return MoveTo(point.x, point.y);
}
BOOL CDC::LineTo(int x, int y) {
    return ::LineTo(m_hDC, x, y);
}
BOOL CDC::LineTo(CPoint point) {
    return ::LineTo(m_hDC, point.x, point.y);
}
COLORREF CDC::SetPixel(int x, int y, COLORREF crColor) {
    return ::SetPixel(m_hDC, x, y, crColor);
}
COLORREF CDC::GetPixel(int x, int y) const {
    return ::GetPixel(m_hDC, x, y);
}
BOOL CDC::DrawIcon(int x, int y, HICON hIcon) {
    return ::DrawIcon(m_hDC, x, y, hIcon);
}

BOOL CDC::BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                 DWORD dwRop) {
    return ::BitBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC != nullptr ? pSrcDC->m_hDC : nullptr, xSrc,
                    ySrc, dwRop);
}

BOOL CDC::StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                     int nSrcWidth, int nSrcHeight, DWORD dwRop) {
    return ::StretchBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC != nullptr ? pSrcDC->m_hDC : nullptr,
                        xSrc, ySrc, nSrcWidth, nSrcHeight, dwRop);
}

BOOL CDC::PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop) {
    return ::PatBlt(m_hDC, x, y, nWidth, nHeight, dwRop);
}

int CDC::IntersectClipRect(const CRect& rect) {
    return ::IntersectClipRect(m_hDC, rect.left, rect.top, rect.right, rect.bottom);
}

int CDC::ExcludeClipRect(const CRect& rect) {
    return ::ExcludeClipRect(m_hDC, rect.left, rect.top, rect.right, rect.bottom);
}

int CDC::SelectClipRgn(HRGN hRgn) {
    return ::SelectClipRgn(m_hDC, hRgn);
}
int CDC::GetClipBox(CRect* lpRect) const {
    return ::GetClipBox(m_hDC, vu::AsRECT(lpRect));
}

CPoint CDC::SetViewportOrg(int x, int y) {
    POINT old{0, 0};
    ::SetViewportOrgEx(m_hDC, x, y, &old);
    return vu::ToCPoint(old);
}

CPoint CDC::GetViewportOrg() const {
    POINT origin{0, 0};
    ::GetViewportOrgEx(m_hDC, &origin);
    return vu::ToCPoint(origin);
}

void CDC::LPtoDP(CPoint* lpPoints, int nCount) const {
    ::LPtoDP(m_hDC, vu::AsPOINT(lpPoints), nCount);
}
void CDC::DPtoLP(CPoint* lpPoints, int nCount) const {
    ::DPtoLP(m_hDC, vu::AsPOINT(lpPoints), nCount);
}

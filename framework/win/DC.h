#pragma once
// CDC: a device context. A CDC made with CreateCompatibleDC owns its DC;
// FromHandle gives a temporary wrapper that does not.
#include <windows.h>

#include "framework/CString.h"
#include "framework/Object.h"
#include "framework/Point.h"
#include "framework/Rect.h"
#include "framework/Size.h"

class CBitmap;
class CBrush;
class CFont;
class CGdiObject;
class CPen;
class CWnd;

class CDC : public CObject {
public:
    CDC() = default;
    ~CDC() override;
    CDC(const CDC&) = delete;
    CDC& operator=(const CDC&) = delete;

    // Attributes
    HDC m_hDC = nullptr;
    operator HDC() const { return m_hDC; }
    HDC GetSafeHdc() const { return m_hDC; }
    static CDC* FromHandle(HDC hDC);
    BOOL Attach(HDC hDC); // FALSE if null or already holding one
    HDC Detach();
    BOOL CreateCompatibleDC(CDC* pDC);
    BOOL DeleteDC();
    int SaveDC();
    BOOL RestoreDC(int nSavedDC);
    int GetDeviceCaps(int nIndex) const;
    CWnd* GetWindow() const;

    // Selection; each returns the object that was selected before
    CGdiObject* SelectObject(CGdiObject* pObject);
    CFont* SelectObject(CFont* pFont);
    CPen* SelectObject(CPen* pPen);
    CBrush* SelectObject(CBrush* pBrush);
    CBitmap* SelectObject(CBitmap* pBitmap);
    HGDIOBJ SelectObject(HGDIOBJ hObject);
    CGdiObject* SelectStockObject(int nIndex);
    CFont* GetCurrentFont() const;

    // Colours and modes
    COLORREF SetTextColor(COLORREF crColor);
    COLORREF GetTextColor() const;
    COLORREF SetBkColor(COLORREF crColor);
    COLORREF GetBkColor() const;
    int SetBkMode(int nBkMode);
    int GetBkMode() const;
    UINT SetTextAlign(UINT nFlags);
    int SetROP2(int nDrawMode);

    // Text
    int DrawText(const wchar_t* lpszString, int nCount, CRect* lpRect, UINT nFormat);
    int DrawText(const CString& str, CRect* lpRect, UINT nFormat);
    BOOL TextOut(int x, int y, const wchar_t* lpszString, int nCount);
    BOOL TextOut(int x, int y, const CString& str);
    BOOL ExtTextOut(int x, int y, UINT nOptions, const CRect* lpRect, const wchar_t* lpszString,
                    UINT nCount, const int* lpDxWidths = nullptr);
    CSize TabbedTextOut(int x, int y, const wchar_t* lpszString, int nCount, int nTabPositions,
                        const int* lpnTabStopPositions, int nTabOrigin);
    CSize GetTextExtent(const wchar_t* lpszString, int nCount) const;
    CSize GetTextExtent(const CString& str) const;
    CSize GetTabbedTextExtent(const wchar_t* lpszString, int nCount, int nTabPositions,
                              const int* lpnTabStopPositions) const;
    BOOL GetTextMetrics(TEXTMETRICW* lpMetrics) const;

    // Drawing
    void FillSolidRect(const CRect& rect, COLORREF crColor);
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF crColor);
    void FillRect(const CRect* lpRect, CBrush* pBrush);
    void FrameRect(const CRect* lpRect, CBrush* pBrush);
    void InvertRect(const CRect* lpRect);
    void DrawFocusRect(const CRect* lpRect);
    void Draw3dRect(const CRect& rect, COLORREF clrTopLeft, COLORREF clrBottomRight);
    BOOL DrawEdge(CRect* lpRect, UINT nEdge, UINT nFlags);
    BOOL DrawFrameControl(CRect* lpRect, UINT nType, UINT nState);
    BOOL Rectangle(int x1, int y1, int x2, int y2);
    BOOL Rectangle(const CRect& rect);
    BOOL Ellipse(const CRect& rect);
    BOOL Polygon(const CPoint* lpPoints, int nCount);
    CPoint MoveTo(int x, int y);
    CPoint MoveTo(CPoint point);
    BOOL LineTo(int x, int y);
    BOOL LineTo(CPoint point);
    COLORREF SetPixel(int x, int y, COLORREF crColor);
    COLORREF GetPixel(int x, int y) const;
    BOOL DrawIcon(int x, int y, HICON hIcon);
    BOOL BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                DWORD dwRop);
    BOOL StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                    int nSrcWidth, int nSrcHeight, DWORD dwRop);
    BOOL PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop);

    // Clipping and coordinates
    int IntersectClipRect(const CRect& rect);
    int ExcludeClipRect(const CRect& rect);
    int SelectClipRgn(HRGN hRgn);
    int GetClipBox(CRect* lpRect) const;
    CPoint SetViewportOrg(int x, int y);
    CPoint GetViewportOrg() const;
    void LPtoDP(CPoint* lpPoints, int nCount = 1) const;
    void DPtoLP(CPoint* lpPoints, int nCount = 1) const;
};

#pragma once
// AF_CTabBeamSplitter: the 10-pixel handle between the beam bar's tabs and
// its scroll bar. The user drags it to share the bar's width between the
// two; every move is stored in the bar (and so in the profile) at once.
// Drawn as a raised 3-D strip on light grey, with the library's resize cursor
// (resource 30980).
#include "framework/win/Wnd.h"

class AF_CTabBeamBar;

class AF_CTabBeamSplitter : public CWnd {
public:
    enum { kControlId = 257 };

    // Operations
    // A visible child of the bar with id 257 at rect (bar coordinates).
    BOOL Create(CRect& rect, AF_CTabBeamBar* pBar);

    // Attributes
    // The position the splitter was last put at (the beam's right edge).
    int GetSplitterPos() const { return m_nPos; }
    void SetSplitterPos(int nPos) { m_nPos = nPos; }
    BOOL IsTracking() const { return m_bButtonDown && m_bCaptured; }

    // The window class: redrawn on resize, the resize cursor, light grey.
    static const wchar_t* GetClassName();

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    // Message handlers
    void OnPaint();
    void OnLButtonDown(CPoint point);
    void OnMouseMove(CPoint point);
    void OnLButtonUp();
    void OnCaptureChanged();

    // Implementation
    void EndTracking();

    AF_CTabBeamBar* m_pBar = nullptr; // the bar this splitter divides
    CPoint m_ptStart{-1, -1};         // where the drag grabbed the splitter; -1 when idle
    bool m_bButtonDown = false;       // the left button went down on the splitter
    bool m_bCaptured = false;         // the splitter holds the mouse capture
    int m_nPos = 0;                   // current position, as in the bar
};

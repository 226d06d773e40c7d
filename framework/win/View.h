#pragma once
// CView: a pane that shows a document inside a frame. Here a view is only as
// much as a frame's "active view" needs: it draws through OnDraw, hears when
// it becomes or stops being the active view, becomes the active view when
// clicked, and leaves the frame when it is destroyed.
//
// Left out: documents, printing and print preview, scrolling views, command
// routing, splitter panes.
#include "framework/win/Wnd.h"

class CDC;
class CFrameWnd;

class CView : public CWnd {
public:
    // Creation: a child of "AfxFrameOrView70u" unless a class is named.
    BOOL Create(const wchar_t* lpszClassName, const wchar_t* lpszWindowName, DWORD dwStyle,
                const CRect& rect, CWnd* pParentWnd, UINT nID) override;

    // The first framework frame among the view's parents, or null.
    CFrameWnd* GetParentFrame() const;

    // Overridables
    // Paints the view; the base draws nothing.
    virtual void OnDraw(CDC* pDC);
    // Called on the view that stops being active (bActivate FALSE) and then
    // on the one that becomes active. The base gives an activated view the
    // focus when it is visible.
    virtual void OnActivateView(BOOL bActivate, CView* pActivateView, CView* pDeactiveView);

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};

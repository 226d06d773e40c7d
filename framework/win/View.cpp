#include "framework/win/View.h"

#include "framework/win/FrameWnd.h"
#include "framework/win/PaintDC.h"
#include "framework/win/WindowClasses.h"

BOOL CView::Create(const wchar_t* lpszClassName, const wchar_t* lpszWindowName, DWORD dwStyle,
                   const CRect& rect, CWnd* pParentWnd, UINT nID) {
    if (lpszClassName == nullptr) {
        if (!AfxDeferRegisterClass(AFX_WNDFRAMEORVIEW_REG))
            return FALSE;
        lpszClassName = AFX_WNDFRAMEORVIEW;
    }
    return CWnd::Create(lpszClassName, lpszWindowName, dwStyle, rect, pParentWnd, nID);
}

CFrameWnd* CView::GetParentFrame() const {
    return CFrameWnd::FindParentFrame(m_hWnd);
}

void CView::OnDraw(CDC*) {}

void CView::OnActivateView(BOOL bActivate, CView* pActivateView, CView*) {
    if (bActivate && pActivateView == this && IsWindowVisible())
        SetFocus();
}

LRESULT CView::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_PAINT: {
        CPaintDC dc(this);
        OnDraw(&dc);
        return 0;
    }
    case WM_MOUSEACTIVATE: {
        LRESULT result = CWnd::WindowProc(message, wParam, lParam);
        if (result == MA_NOACTIVATE || result == MA_NOACTIVATEANDEAT)
            return result;
        if (CFrameWnd* frame = GetParentFrame())
            frame->SetActiveView(this);
        return result;
    }
    case WM_DESTROY:
        if (CFrameWnd* frame = GetParentFrame(); frame != nullptr && frame->GetActiveView() == this)
            frame->SetActiveView(nullptr, FALSE);
        return CWnd::WindowProc(message, wParam, lParam);
    default:
        return CWnd::WindowProc(message, wParam, lParam);
    }
}

#include "framework/win/FrameWnd.h"

#include "framework/win/ControlBar.h"
#include "framework/win/View.h"
#include "framework/win/WindowClasses.h"

BOOL CFrameWnd::Create(const wchar_t* lpszClassName, const wchar_t* lpszWindowName, DWORD dwStyle,
                       const CRect& rect, CWnd* pParentWnd, UINT nID) {
    if (lpszClassName == nullptr) {
        if (!AfxDeferRegisterClass(AFX_WNDFRAMEORVIEW_REG))
            return FALSE;
        lpszClassName = AFX_WNDFRAMEORVIEW;
    }
    // A top-level frame takes no control id: the menu slot is a menu there.
    const UINT id = (dwStyle & WS_CHILD) != 0 ? nID : 0;
    return CreateEx(0, lpszClassName, lpszWindowName, dwStyle, rect, pParentWnd, id);
}

void CFrameWnd::RecalcLayout(BOOL) {
    if (m_bInRecalcLayout || m_hWnd == nullptr)
        return;
    m_bInRecalcLayout = true;
    RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST);
    m_bInRecalcLayout = false;
}

void CFrameWnd::RepositionBars(UINT nIDFirst, UINT nIDLast, UINT nIDLeftOver, UINT nFlag,
                               LPRECT lpRectParam, LPCRECT lpRectClient, BOOL bStretch) {
    AFX_SIZEPARENTPARAMS layout{};
    if (lpRectClient != nullptr)
        layout.rect = *lpRectClient;
    else
        ::GetClientRect(m_hWnd, &layout.rect);
    layout.bStretch = bStretch;
    const bool query = (nFlag & reposQuery) != 0;
    layout.hDWP = query ? nullptr : BeginDeferWindowPos(8);

    HWND hWndLeftOver = nullptr;
    for (HWND child = ::GetWindow(m_hWnd, GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        const UINT id = static_cast<UINT>(::GetDlgCtrlID(child));
        if (id == nIDLeftOver)
            hWndLeftOver = child;
        else if (id >= nIDFirst && id <= nIDLast)
            ::SendMessageW(child, WM_SIZEPARENT, 0, reinterpret_cast<LPARAM>(&layout));
    }
    if (query) {
        if (lpRectParam != nullptr)
            *lpRectParam = layout.rect;
        return;
    }
    const RECT& rest = layout.rect;
    if (hWndLeftOver != nullptr && layout.hDWP != nullptr)
        layout.hDWP = DeferWindowPos(layout.hDWP, hWndLeftOver, nullptr, rest.left, rest.top,
                                     rest.right - rest.left, rest.bottom - rest.top,
                                     SWP_NOZORDER | SWP_NOACTIVATE);
    if (layout.hDWP != nullptr)
        EndDeferWindowPos(layout.hDWP);
}

void CFrameWnd::SetActiveView(CView* pViewNew, BOOL bNotify) {
    CView* pViewOld = m_pViewActive;
    if (pViewNew == pViewOld)
        return;
    m_pViewActive = pViewNew;
    if (!bNotify)
        return;
    if (pViewOld != nullptr)
        pViewOld->OnActivateView(FALSE, pViewNew, pViewOld);
    if (pViewNew != nullptr && m_pViewActive == pViewNew)
        pViewNew->OnActivateView(TRUE, pViewNew, pViewOld);
}

void CFrameWnd::UpdateControlBars(BOOL bDisableIfNoHandler) {
    for (HWND child = ::GetWindow(m_hWnd, GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        if (dynamic_cast<CControlBar*>(FromHandlePermanent(child)) != nullptr)
            ::SendMessageW(child, WM_IDLEUPDATECMDUI, bDisableIfNoHandler, 0);
    }
}

CFrameWnd* CFrameWnd::FindParentFrame(HWND hWnd) {
    for (HWND parent = hWnd != nullptr ? ::GetParent(hWnd) : nullptr; parent != nullptr;
         parent = ::GetParent(parent)) {
        if (auto* frame = dynamic_cast<CFrameWnd*>(FromHandlePermanent(parent)))
            return frame;
    }
    return nullptr;
}

LRESULT CFrameWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_SIZE:
        if (wParam != SIZE_MINIMIZED)
            RecalcLayout();
        return CWnd::WindowProc(message, wParam, lParam);
    case WM_SETFOCUS:
        if (m_pViewActive != nullptr && m_pViewActive->IsWindow()) {
            m_pViewActive->SetFocus();
            return 0;
        }
        return CWnd::WindowProc(message, wParam, lParam);
    case WM_NCDESTROY:
        m_pViewActive = nullptr;
        return CWnd::WindowProc(message, wParam, lParam);
    default:
        return CWnd::WindowProc(message, wParam, lParam);
    }
}

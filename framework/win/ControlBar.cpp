#include "framework/win/ControlBar.h"

#include <algorithm>

#include "framework/win/FrameWnd.h"
#include "framework/win/WindowClasses.h"

CFrameWnd* CControlBar::GetParentFrame() const {
    return CFrameWnd::FindParentFrame(m_hWnd);
}

CSize CControlBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
    return CSize(bStretch && bHorz ? 32767 : 0, bStretch && !bHorz ? 32767 : 0);
}

BOOL CControlBar::PreCreateWindow(CREATESTRUCTW& cs) {
    if (!AfxDeferRegisterClass(AFX_WNDCONTROLBAR_REG))
        return FALSE;
    cs.style |= WS_CLIPSIBLINGS;
    return CWnd::PreCreateWindow(cs);
}

LRESULT CControlBar::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_SIZEPARENT:
        return OnSizeParent(wParam, lParam);
    case WM_IDLEUPDATECMDUI:
        if (IsWindowVisible())
            OnUpdateCmdUI(GetParentFrame(), static_cast<BOOL>(wParam));
        return 0;
    default:
        return CWnd::WindowProc(message, wParam, lParam);
    }
}

LRESULT CControlBar::OnSizeParent(WPARAM, LPARAM lParam) {
    auto* layout = reinterpret_cast<AFX_SIZEPARENTPARAMS*>(lParam);
    const DWORD align = m_dwStyle & CBRS_ALIGN_ANY;
    if (layout == nullptr || align == 0 || (GetStyle() & WS_VISIBLE) == 0)
        return 0;
    const CRect free(layout->rect);
    const BOOL horizontal = (align & CBRS_ORIENT_HORZ) != 0;
    CSize size = CalcFixedLayout(layout->bStretch, horizontal);
    // A bar that asks for everything along its edge gets the free length.
    if (horizontal && size.cx >= 32767)
        size.cx = free.Width();
    if (!horizontal && size.cy >= 32767)
        size.cy = free.Height();

    CRect bar(free.left, free.top, free.left + size.cx, free.top + size.cy);
    RECT& rest = layout->rect;
    if (align & CBRS_ALIGN_TOP) {
        rest.top += size.cy;
    } else if (align & CBRS_ALIGN_BOTTOM) {
        bar.OffsetRect(0, free.Height() - size.cy);
        rest.bottom -= size.cy;
    } else if (align & CBRS_ALIGN_LEFT) {
        rest.left += size.cx;
    } else {
        bar.OffsetRect(free.Width() - size.cx, 0);
        rest.right -= size.cx;
    }
    if (horizontal) {
        layout->sizeTotal.cy += size.cy;
        layout->sizeTotal.cx = std::max<LONG>(layout->sizeTotal.cx, size.cx);
    } else {
        layout->sizeTotal.cx += size.cx;
        layout->sizeTotal.cy = std::max<LONG>(layout->sizeTotal.cy, size.cy);
    }
    if (layout->hDWP != nullptr)
        layout->hDWP = DeferWindowPos(layout->hDWP, m_hWnd, nullptr, bar.left, bar.top, bar.Width(),
                                      bar.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
    return 0;
}

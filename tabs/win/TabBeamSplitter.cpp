#include "tabs/win/TabBeamSplitter.h"

#include <windowsx.h>

#include "foundation/win/Library.h"
#include "framework/win/PaintDC.h"
#include "framework/win/WindowClasses.h"
#include "resources/resource.h"
#include "tabs/BeamBarLayout.h"
#include "tabs/win/TabBeamBar.h"

const wchar_t* AF_CTabBeamSplitter::GetClassName() {
    static const wchar_t* name = AfxRegisterWndClass(
        CS_HREDRAW | CS_VREDRAW,
        LoadCursorW(VuGetInstanceHandle(), MAKEINTRESOURCEW(IDC_VU_TAB_SPLITTER)),
        static_cast<HBRUSH>(GetStockObject(LTGRAY_BRUSH)));
    return name;
}

BOOL AF_CTabBeamSplitter::Create(CRect& rect, AF_CTabBeamBar* pBar) {
    const wchar_t* className = GetClassName();
    if (className == nullptr || pBar == nullptr)
        return FALSE;
    m_pBar = pBar;
    m_nPos = rect.left;
    return CreateEx(0, className, nullptr, WS_CHILD | WS_VISIBLE, rect, pBar, kControlId);
}

LRESULT AF_CTabBeamSplitter::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_PAINT:
        OnPaint();
        return 0;
    case WM_LBUTTONDOWN:
        OnLButtonDown(CPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)));
        return 0;
    case WM_MOUSEMOVE:
        OnMouseMove(CPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)));
        return 0;
    case WM_LBUTTONUP:
        OnLButtonUp();
        return 0;
    case WM_CAPTURECHANGED:
        OnCaptureChanged();
        return 0;
    default:
        return CWnd::WindowProc(message, wParam, lParam);
    }
}

void AF_CTabBeamSplitter::OnPaint() {
    CPaintDC dc(this);
    CRect rc;
    GetClientRect(&rc);
    const int inset = rc.Width() / 4;
    rc.left += inset;
    rc.right -= inset;
    dc.Draw3dRect(rc, GetSysColor(COLOR_BTNHIGHLIGHT), GetSysColor(COLOR_BTNSHADOW));
}

void AF_CTabBeamSplitter::OnLButtonDown(CPoint point) {
    ReleaseCapture();
    SetCapture();
    m_ptStart = point;
    m_bButtonDown = true;
    m_bCaptured = ::GetCapture() == m_hWnd;
}

void AF_CTabBeamSplitter::OnMouseMove(CPoint point) {
    if (!IsTracking() || m_pBar == nullptr)
        return;
    CRect own;
    GetWindowRect(&own);
    m_pBar->ScreenToClient(&own);
    CRect client;
    m_pBar->GetClientRect(&client);
    m_nPos = vu::beambar::DraggedSplitterPos(own.left, point.x - m_ptStart.x, client,
                                             AF_CTabBeamBar::GetMinPaneWidth());
    m_pBar->OnSplitterMoved(m_nPos);
}

void AF_CTabBeamSplitter::OnLButtonUp() {
    const bool wasTracking = m_bButtonDown;
    EndTracking();
    if (wasTracking && m_pBar != nullptr)
        m_pBar->OnSplitterReleased();
}

// Another window took the mouse (a dialog, Alt+Tab): the drag ends where it
// stands.
void AF_CTabBeamSplitter::OnCaptureChanged() {
    if (m_bCaptured && ::GetCapture() != m_hWnd) {
        m_bCaptured = false;
        m_bButtonDown = false;
        m_ptStart = CPoint(-1, -1);
    }
}

void AF_CTabBeamSplitter::EndTracking() {
    m_bButtonDown = false;
    m_ptStart = CPoint(-1, -1);
    if (m_bCaptured) {
        m_bCaptured = false;
        ReleaseCapture();
    }
}

#include "tabs/win/TabWnd.h"

#include <windowsx.h>

#include "foundation/win/Library.h"
#include "framework/win/DC.h"
#include "framework/win/FrameWnd.h"
#include "framework/win/Geometry.h"
#include "framework/win/PaintDC.h"
#include "framework/win/ResourceException.h"
#include "framework/win/View.h"
#include "framework/win/WindowClasses.h"
#include "resources/resource.h"
#include "tabs/BeamBarLayout.h"
#include "tabs/TabWndLayout.h"

namespace {

int MinPaneWidth() {
    static const int minPane = vu::beambar::MinPaneWidth(GetSystemMetrics(SM_CXHTHUMB));
    return minPane;
}

COLORREF DividerColour(vu::tabwnd::DividerColumn column) {
    switch (column) {
    case vu::tabwnd::DividerColumn::Highlight:
        return GetSysColor(COLOR_BTNHIGHLIGHT);
    case vu::tabwnd::DividerColumn::Face:
        return GetSysColor(COLOR_3DFACE);
    case vu::tabwnd::DividerColumn::Shadow:
        return GetSysColor(COLOR_BTNSHADOW);
    case vu::tabwnd::DividerColumn::Black:
    default:
        return RGB(0, 0, 0);
    }
}

} // namespace

// ---- creation ------------------------------------------------------------------

BOOL Vu_CTabWnd::Create(CWnd* pParentWnd, DWORD dwStyle, UINT nID) {
    return CreateCommon(pParentWnd, dwStyle | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, nID);
}

BOOL Vu_CTabWnd::CreateCommon(CWnd* pParentWnd, DWORD dwStyle, UINT nID) {
    m_bHasHScroll = (dwStyle & WS_HSCROLL) != 0;
    m_bHasVScroll = (dwStyle & WS_VSCROLL) != 0;
    dwStyle &= ~(WS_HSCROLL | WS_VSCROLL);
    m_cxVScroll = GetSystemMetrics(SM_CXVSCROLL);
    m_cyHScroll = GetSystemMetrics(SM_CYHSCROLL);
    m_hcurArrow = LoadCursorW(VuGetInstanceHandle(), MAKEINTRESOURCEW(IDC_VU_TAB_SPLITTER));
    if (!AfxDeferRegisterClass(AFX_WNDMDIFRAME_REG))
        return FALSE;
    if (!CreateEx(0, AFX_WNDMDIFRAME, L"", dwStyle | WS_CHILD, CRect(0, 0, 0, 0), pParentWnd, nID))
        return FALSE;

    const DWORD barStyle = WS_CHILD | WS_VISIBLE;
    if (m_bHasHScroll &&
        !m_wndHScroll.Create(barStyle | SBS_HORZ, CRect(0, 0, 1, 1), this, kHScrollId))
        AfxThrowResourceException();
    if (m_bHasVScroll &&
        !m_wndVScroll.Create(barStyle | SBS_VERT, CRect(0, 0, 1, 1), this, kVScrollId))
        AfxThrowResourceException();
    if (!m_TabBeam.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 20), this, kBeamId))
        return FALSE;
    CRect beam;
    m_TabBeam.GetWindowRect(&beam);
    m_nBeamHeight = beam.Height();
    RecalcLayout();
    return TRUE;
}

// ---- attributes ----------------------------------------------------------------

void Vu_CTabWnd::GetInsideRect(CRect& rect) const {
    CRect client;
    GetClientRect(&client);
    rect = vu::tabwnd::InsideRect(client, m_nBeamHeight, m_bHasVScroll != FALSE);
}

CScrollBar* Vu_CTabWnd::GetScrollBarCtrl(int nBar) {
    if (nBar == SB_HORZ && m_wndHScroll.m_hWnd != nullptr)
        return &m_wndHScroll;
    if (nBar == SB_VERT && m_wndVScroll.m_hWnd != nullptr)
        return &m_wndVScroll;
    return nullptr;
}

CWnd* Vu_CTabWnd::PaneOfTab(int nIndex) const {
    if (nIndex < 0 || nIndex >= m_TabBeam.GetCount())
        return nullptr;
    return dynamic_cast<CWnd*>(m_TabBeam.GetTab(nIndex)->m_pData);
}

// ---- operations ------------------------------------------------------------------

void Vu_CTabWnd::AttachWnd(CWnd* pWnd, const wchar_t* lpszTitle) {
    if (pWnd == nullptr || pWnd->m_hWnd == nullptr)
        return;
    CRect inside;
    GetInsideRect(inside);
    pWnd->MoveWindow(inside, FALSE);
    m_TabBeam.InsertTab(FALSE, lpszTitle, pWnd, FALSE, -1, nullptr, nullptr);
    const int index = m_TabBeam.FindTab(pWnd);
    pWnd->ShowScrollBar(SB_BOTH, FALSE);
    if (m_pActiveWnd == nullptr) {
        m_pActiveWnd = pWnd;
        pWnd->ShowWindow(SW_SHOW);
        ActivatePane(pWnd);
    } else {
        pWnd->ShowWindow(SW_HIDE);
    }
    pWnd->SendMessage(WM_VU_TABWND_ATTACHED, static_cast<WPARAM>(index));
}

void Vu_CTabWnd::ActivatePane(CWnd* pWnd) {
    if (auto* view = dynamic_cast<CView*>(pWnd)) {
        if (CFrameWnd* frame = view->GetParentFrame())
            frame->SetActiveView(view);
    }
}

void Vu_CTabWnd::OnTabSwitch(int nIndex) {
    CWnd* pane = PaneOfTab(nIndex);
    if (pane == nullptr)
        return;
    if (pane == m_pActiveWnd) {
        pane->SetFocus();
        ActivatePane(pane);
        return;
    }
    SwitchTab(pane);
}

void Vu_CTabWnd::SwitchTab(CWnd* pWnd) {
    const int newIndex = m_TabBeam.FindTab(pWnd);
    if (pWnd == nullptr || newIndex < 0 || pWnd == m_pActiveWnd)
        return;
    if (CWnd* old = m_pActiveWnd) {
        old->PostMessage(WM_VU_TABWND_DEACTIVATED, static_cast<WPARAM>(m_TabBeam.FindTab(old)));
        old->ShowWindow(SW_HIDE);
    }
    m_pActiveWnd = pWnd;
    if (m_TabBeam.GetCurSel() != newIndex)
        m_TabBeam.SetCurSel(newIndex);
    pWnd->ShowWindow(SW_SHOW);
    ActivatePane(pWnd);
    pWnd->SetFocus();
    RecalcLayout();
    m_TabBeam.CWnd::Invalidate();
    pWnd->PostMessage(WM_VU_TABWND_ACTIVATED, static_cast<WPARAM>(newIndex));
}

CRect Vu_CTabWnd::DividerRect() const {
    CRect client;
    GetClientRect(&client);
    return vu::tabwnd::Arrange(client, m_nBeamHeight, m_bHasHScroll != FALSE,
                               m_bHasVScroll != FALSE, m_nDividerPos, MinPaneWidth())
        .divider;
}

void Vu_CTabWnd::RecalcLayout() {
    if (m_hWnd == nullptr)
        return;
    CRect client;
    GetClientRect(&client);
    const auto layout = vu::tabwnd::Arrange(client, m_nBeamHeight, m_bHasHScroll != FALSE,
                                            m_bHasVScroll != FALSE, m_nDividerPos, MinPaneWidth());
    const auto place = [](CWnd& wnd, const CRect& r) {
        if (wnd.m_hWnd != nullptr)
            wnd.SetWindowPos(static_cast<HWND>(nullptr), r.left, r.top, r.Width(), r.Height(),
                             SWP_NOZORDER | SWP_NOACTIVATE);
    };
    for (int i = 0; i < m_TabBeam.GetCount(); ++i) {
        if (CWnd* pane = PaneOfTab(i))
            place(*pane, layout.inside);
    }
    place(m_TabBeam, layout.beam);
    place(m_wndHScroll, layout.hScroll);
    place(m_wndVScroll, layout.vScroll);
    CRect strip(client.left, layout.inside.bottom, client.right, client.bottom);
    InvalidateRect(&strip);
}

// ---- painting and the divider -------------------------------------------------------

void Vu_CTabWnd::OnDrawSplitter(CDC* pDC, const CRect& rect) {
    for (int i = 0; i < vu::tabwnd::kDividerWidth && rect.left + i < rect.right; ++i)
        pDC->FillSolidRect(rect.left + i, rect.top, 1, rect.Height(),
                           DividerColour(vu::tabwnd::kDividerColumns[i]));
}

void Vu_CTabWnd::OnPaint() {
    CPaintDC dc(this);
    if (m_bHasHScroll)
        OnDrawSplitter(&dc, DividerRect());
}

void Vu_CTabWnd::OnLButtonDown(CPoint point) {
    if (!m_bHasHScroll || !DividerRect().PtInRect(point))
        return;
    m_bTracking = TRUE;
    m_nTrackStartX = point.x;
    m_nTrackStartPos = DividerRect().left;
    SetCapture();
}

void Vu_CTabWnd::OnMouseMove(CPoint point) {
    if (!m_bTracking)
        return;
    CRect inside;
    GetInsideRect(inside);
    m_nDividerPos = vu::tabwnd::DraggedDividerPos(m_nTrackStartPos, point.x - m_nTrackStartX,
                                                  inside.Width(), MinPaneWidth());
    RecalcLayout();
    m_TabBeam.DetermineTextForResizeRoutine();
}

void Vu_CTabWnd::OnLButtonUp() {
    if (!m_bTracking)
        return;
    m_bTracking = FALSE;
    ReleaseCapture();
}

BOOL Vu_CTabWnd::OnSetCursor() {
    CPoint point;
    GetCursorPos(vu::AsPOINT(&point));
    ScreenToClient(&point);
    if (m_hcurArrow == nullptr ||
        !(m_bTracking || (m_bHasHScroll && DividerRect().PtInRect(point))))
        return FALSE;
    ::SetCursor(m_hcurArrow);
    return TRUE;
}

void Vu_CTabWnd::OnRButtonUp(WPARAM wParam, CPoint point) {
    CWnd* parent = GetParent();
    if (parent == nullptr)
        return;
    ::MapWindowPoints(m_hWnd, parent->m_hWnd, vu::AsPOINT(&point), 1);
    parent->PostMessage(WM_RBUTTONUP, wParam, MAKELPARAM(point.x, point.y));
}

// ---- messages ------------------------------------------------------------------------

LRESULT Vu_CTabWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const CPoint point(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
    switch (message) {
    case WM_VU_TAB_SELCHANGED:
        OnTabSwitch(static_cast<int>(wParam));
        return 0;
    case WM_SIZE:
        RecalcLayout();
        if (m_TabBeam.m_hWnd != nullptr)
            m_TabBeam.DetermineTextForResizeRoutine();
        return CWnd::WindowProc(message, wParam, lParam);
    case WM_PAINT:
        OnPaint();
        return 0;
    case WM_HSCROLL:
    case WM_VSCROLL:
        if (m_pActiveWnd != nullptr && m_pActiveWnd->m_hWnd != nullptr)
            return m_pActiveWnd->SendMessage(message, wParam, lParam);
        return 0;
    case WM_SETFOCUS:
        if (m_pActiveWnd != nullptr && m_pActiveWnd->m_hWnd != nullptr)
            m_pActiveWnd->SetFocus();
        return 0;
    case WM_LBUTTONDOWN:
        OnLButtonDown(point);
        return 0;
    case WM_MOUSEMOVE:
        OnMouseMove(point);
        return 0;
    case WM_LBUTTONUP:
        OnLButtonUp();
        return 0;
    case WM_CAPTURECHANGED:
        m_bTracking = FALSE;
        return 0;
    case WM_SETCURSOR:
        if (LOWORD(lParam) == HTCLIENT && reinterpret_cast<HWND>(wParam) == m_hWnd && OnSetCursor())
            return TRUE;
        return CWnd::WindowProc(message, wParam, lParam);
    case WM_RBUTTONUP:
        OnRButtonUp(wParam, point);
        return 0;
    default:
        return CWnd::WindowProc(message, wParam, lParam);
    }
}

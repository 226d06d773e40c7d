#include "tabs/win/TabBeamBar.h"

#include <vector>

#include "foundation/win/HostServices.h"
#include "framework/win/WindowClasses.h"
#include "tabs/BeamBarLayout.h"

namespace {

// Copies every item of src (text, id, state, submenus copied in turn) to the
// end of dst.
bool CopyMenuItems(HMENU src, HMENU dst) {
    const int count = GetMenuItemCount(src);
    for (int i = 0; i < count; ++i) {
        MENUITEMINFOW info{};
        info.cbSize = sizeof(info);
        info.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_ID | MIIM_SUBMENU | MIIM_STRING;
        if (!GetMenuItemInfoW(src, static_cast<UINT>(i), TRUE, &info))
            return false;
        std::vector<wchar_t> text(info.cch + 1, L'\0');
        info.dwTypeData = text.data();
        info.cch = static_cast<UINT>(text.size());
        if (!GetMenuItemInfoW(src, static_cast<UINT>(i), TRUE, &info))
            return false;
        if (info.hSubMenu != nullptr) {
            HMENU copy = CreatePopupMenu();
            if (copy == nullptr || !CopyMenuItems(info.hSubMenu, copy)) {
                if (copy != nullptr)
                    DestroyMenu(copy);
                return false;
            }
            info.hSubMenu = copy;
        }
        if (!InsertMenuItemW(dst, static_cast<UINT>(i), TRUE, &info))
            return false;
    }
    return true;
}

} // namespace

int AF_CTabBeamBar::GetMinPaneWidth() {
    static const int minPane = vu::beambar::MinPaneWidth(GetSystemMetrics(SM_CXHTHUMB));
    return minPane;
}

// ---- creation ------------------------------------------------------------------

BOOL AF_CTabBeamBar::PreCreateWindow(CREATESTRUCTW& cs) {
    cs.style |= WS_CLIPCHILDREN;
    return CControlBar::PreCreateWindow(cs);
}

BOOL AF_CTabBeamBar::Create(DWORD dwStyle, const CRect& rect, CWnd* pParentWnd, UINT nID) {
    m_nBarHeight = rect.bottom - rect.top;
    CRect barRect(rect);
    barRect.right += 2;
    if (!CreateEx(0, AFX_WNDCONTROLBAR, L" ", dwStyle | WS_CHILD | WS_VISIBLE, barRect, pParentWnd,
                  nID))
        return FALSE;
    SetBarStyle(CBRS_ALIGN_BOTTOM);

    CRect client;
    GetClientRect(&client);
    m_nSplitterPos = static_cast<int>(VuGetHostServices()->GetProfileInt(
        kProfileSection, kProfileEntry, vu::beambar::DefaultSplitterPos(client)));

    const int pos = m_nSplitterPos;
    if (!m_TabBar.Create(WS_CHILD | WS_VISIBLE, CRect(client.left, client.top, pos, client.bottom),
                         this, kBeamId))
        return FALSE;
    m_TabBar.SetNotifyWnd(pParentWnd);

    CRect splitter(pos, client.top, pos + vu::beambar::kSplitterWidth, client.bottom);
    if (!m_Splitter.Create(splitter, this))
        return FALSE;

    const CRect scroll(splitter.right + vu::beambar::kScrollBarGap, client.top, client.right,
                       client.bottom);
    if (!m_ScrollBar.Create(WS_CHILD | WS_VISIBLE | SBS_HORZ, scroll, this, kScrollBarId))
        return FALSE;
    m_ScrollBar.Initialize(this);

    SetWindowPos(static_cast<HWND>(nullptr), 0, 0, 0, 0,
                 SWP_SHOWWINDOW | SWP_NOACTIVATE | SWP_NOZORDER);
    return TRUE;
}

// ---- tabs ------------------------------------------------------------------------

void AF_CTabBeamBar::InsertTab(int bAtCurrent, const wchar_t* lpszText, AF_CTabExtra* pData,
                               int bOwnsData, int nWidth, HMENU hMenu, HBITMAP hBitmap) {
    m_TabBar.InsertTab(bAtCurrent, lpszText, pData, bOwnsData, nWidth, hMenu, hBitmap);
}
void AF_CTabBeamBar::DeleteTab(int nIndex) {
    m_TabBar.DeleteTab(nIndex);
}
int AF_CTabBeamBar::GetCount() const {
    return m_TabBar.GetCount();
}
void AF_CTabBeamBar::SetCurSel(int nIndex) {
    m_TabBar.SetCurSel(nIndex);
}
int AF_CTabBeamBar::GetCurSel() const {
    return m_TabBar.GetCurSel();
}
int AF_CTabBeamBar::GetPrevSel() const {
    return m_TabBar.GetPrevSel();
}
CString AF_CTabBeamBar::GetTabText(int nIndex) const {
    return m_TabBar.GetTabText(nIndex);
}
void AF_CTabBeamBar::SetTabText(int nIndex, const CString& text) {
    m_TabBar.SetTabText(nIndex, text);
}
void AF_CTabBeamBar::SetTabBitmap(int nIndex, HBITMAP hBitmap) {
    m_TabBar.SetTabBitmap(nIndex, hBitmap);
}
HBITMAP AF_CTabBeamBar::GetTabBitmap(int nIndex) const {
    return m_TabBar.GetTabBitmap(nIndex);
}
void AF_CTabBeamBar::SetDisplayStyle(Vu_CTabBeam::TabDisplayStyles style) {
    m_TabBar.SetDisplayStyle(style);
}
CString AF_CTabBeamBar::ShrinkTextForTab(const CString& text, int nIndex) {
    return m_TabBar.DetermineTextForTabs(text, nIndex);
}
void AF_CTabBeamBar::ShrinkTextForTab() {
    m_TabBar.DetermineTextForTabs();
}
void AF_CTabBeamBar::ScrollActiveTabIntoView() {
    m_TabBar.ScrollActiveTabIntoView();
}
void AF_CTabBeamBar::SetResize(BOOL bResize) {
    m_bResize = bResize;
    m_TabBar.SetResizeTabs(bResize);
}

// ---- tab data ----------------------------------------------------------------------

AF_CTabExtra* AF_CTabBeamBar::GetTabExtraData(int nIndex) const {
    if (nIndex < 0 || nIndex >= m_TabBar.GetCount())
        return nullptr;
    return dynamic_cast<AF_CTabExtra*>(m_TabBar.GetTab(nIndex)->m_pData);
}

int AF_CTabBeamBar::GetMenuTabIndex() const {
    return m_TabBar.GetCurSel();
}

BOOL AF_CTabBeamBar::GetPopupMenu(int nIndex, CMenu& menu) const {
    if (nIndex < 0 || nIndex >= m_TabBar.GetCount() || menu.m_hMenu != nullptr)
        return FALSE;
    HMENU source = m_TabBar.GetTab(nIndex)->m_hMenu;
    if (source == nullptr || !IsMenu(source))
        return FALSE;
    if (!menu.CreatePopupMenu())
        return FALSE;
    if (!CopyMenuItems(source, menu.m_hMenu)) {
        menu.DestroyMenu();
        return FALSE;
    }
    return TRUE;
}

DWORD AF_CTabBeamBar::GetRoutineUID(int nIndex) const {
    const AF_CTabExtra* extra = GetTabExtraData(nIndex);
    return extra != nullptr ? extra->GetRoutineUID() : 0;
}

// ---- scroll bar ----------------------------------------------------------------------

void AF_CTabBeamBar::SetHScrollRange(int nMinPos, int nMaxPos, BOOL bRedraw) {
    m_ScrollBar.SetScrollRange(nMinPos, nMaxPos, bRedraw);
}
void AF_CTabBeamBar::GetHScrollRange(LPINT lpMinPos, LPINT lpMaxPos) const {
    m_ScrollBar.GetScrollRange(lpMinPos, lpMaxPos);
}
int AF_CTabBeamBar::SetHScrollPos(int nPos, BOOL bRedraw) {
    return m_ScrollBar.SetScrollPos(nPos, bRedraw);
}
int AF_CTabBeamBar::GetHScrollPos() const {
    return m_ScrollBar.GetScrollPos();
}
BOOL AF_CTabBeamBar::SetHScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw) {
    return m_ScrollBar.SetScrollInfo(lpScrollInfo, bRedraw);
}
BOOL AF_CTabBeamBar::GetHScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask) const {
    return m_ScrollBar.GetScrollInfo(lpScrollInfo, nMask);
}

void AF_CTabBeamBar::ScrollbarActivated() {
    if (AF_CTabExtra* extra = GetTabExtraData(GetCurSel()))
        extra->ScrollbarActivated();
}

// ---- layout --------------------------------------------------------------------------

void AF_CTabBeamBar::AlignAllMyChildren() {
    if (m_hWnd == nullptr)
        return;
    CRect client;
    GetClientRect(&client);
    const auto children = vu::beambar::ArrangeChildren(client, m_nSplitterPos, GetMinPaneWidth(),
                                                       GetSystemMetrics(SM_CXVSCROLL));
    const UINT flags = SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW;
    const auto place = [&](CWnd& child, const CRect& r) {
        if (child.m_hWnd != nullptr)
            child.SetWindowPos(static_cast<HWND>(nullptr), r.left, r.top, r.Width(), r.Height(),
                               flags);
    };
    place(m_TabBar, children.beam);
    place(m_Splitter, children.splitter);
    place(m_ScrollBar, children.scrollBar);
    m_Splitter.SetSplitterPos(children.splitter.left);
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void AF_CTabBeamBar::RefitTabTexts() {
    if (m_TabBar.m_hWnd != nullptr)
        m_TabBar.DetermineTextForResizeRoutine();
}

void AF_CTabBeamBar::OnSplitterMoved(int nPos) {
    m_nSplitterPos = nPos;
    VuGetHostServices()->WriteProfileInt(kProfileSection, kProfileEntry, nPos);
    AlignAllMyChildren();
    RefitTabTexts();
}

void AF_CTabBeamBar::OnSplitterReleased() {
    AlignAllMyChildren();
    RefitTabTexts();
}

CSize AF_CTabBeamBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
    CRect parentClient;
    if (HWND parent = ::GetParent(m_hWnd))
        ::GetClientRect(parent, parentClient);
    return vu::beambar::FixedSize(CControlBar::CalcFixedLayout(bStretch, bHorz), m_nBarHeight,
                                  bHorz != FALSE, parentClient.Width());
}

void AF_CTabBeamBar::OnUpdateCmdUI(CFrameWnd*, BOOL) {
    m_TabBar.OnUpdateCmdUI();
}

// ---- messages ------------------------------------------------------------------------

LRESULT AF_CTabBeamBar::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_SIZE:
        OnSize();
        return CControlBar::WindowProc(message, wParam, lParam);
    case WM_HSCROLL:
        OnHScroll(LOWORD(wParam), HIWORD(wParam), reinterpret_cast<HWND>(lParam));
        return CControlBar::WindowProc(message, wParam, lParam);
    case WM_WINDOWPOSCHANGED: {
        const LRESULT result = CControlBar::WindowProc(message, wParam, lParam);
        OnWindowPosChanged(reinterpret_cast<const WINDOWPOS*>(lParam));
        return result;
    }
    default:
        return CControlBar::WindowProc(message, wParam, lParam);
    }
}

LRESULT AF_CTabBeamBar::OnSizeParent(WPARAM wParam, LPARAM lParam) {
    const LRESULT result = CControlBar::OnSizeParent(wParam, lParam);
    if ((GetStyle() & WS_VISIBLE) != 0 && IsDocked()) {
        AlignAllMyChildren();
        RefitTabTexts();
    }
    return result;
}

void AF_CTabBeamBar::OnSize() {
    AlignAllMyChildren();
    RefitTabTexts();
}

void AF_CTabBeamBar::OnHScroll(UINT nSBCode, UINT nPos, HWND hWndScrollBar) {
    if (hWndScrollBar == nullptr || hWndScrollBar != m_ScrollBar.m_hWnd)
        return;
    if (AF_CTabExtra* extra = GetTabExtraData(GetCurSel()))
        extra->OnHScroll(nSBCode, nPos, &m_ScrollBar);
}

// A bar shown by the frame's layout repaints whole: it was created with no
// size, and its children were laid out before it had one.
void AF_CTabBeamBar::OnWindowPosChanged(const WINDOWPOS* pPos) {
    if (pPos != nullptr && (pPos->flags & SWP_SHOWWINDOW) != 0)
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

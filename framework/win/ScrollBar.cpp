#include "framework/win/ScrollBar.h"

BOOL CScrollBar::Create(DWORD dwStyle, const CRect& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::CreateEx(0, L"SCROLLBAR", nullptr, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

int CScrollBar::GetScrollPos() const {
    return ::GetScrollPos(m_hWnd, SB_CTL);
}
int CScrollBar::SetScrollPos(int nPos, BOOL bRedraw) {
    return ::SetScrollPos(m_hWnd, SB_CTL, nPos, bRedraw);
}

void CScrollBar::GetScrollRange(LPINT lpMinPos, LPINT lpMaxPos) const {
    ::GetScrollRange(m_hWnd, SB_CTL, lpMinPos, lpMaxPos);
}

void CScrollBar::SetScrollRange(int nMinPos, int nMaxPos, BOOL bRedraw) {
    ::SetScrollRange(m_hWnd, SB_CTL, nMinPos, nMaxPos, bRedraw);
}

BOOL CScrollBar::SetScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw) {
    return CWnd::SetScrollInfo(SB_CTL, lpScrollInfo, bRedraw);
}

BOOL CScrollBar::GetScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask) const {
    return CWnd::GetScrollInfo(SB_CTL, lpScrollInfo, nMask);
}

int CScrollBar::GetScrollLimit() const {
    SCROLLINFO info{};
    if (!GetScrollInfo(&info, SIF_RANGE | SIF_PAGE))
        return 0;
    int limit = info.nMax - (info.nPage > 0 ? static_cast<int>(info.nPage) - 1 : 0);
    return limit < info.nMin ? info.nMin : limit;
}

void CScrollBar::ShowScrollBar(BOOL bShow) {
    ::ShowScrollBar(m_hWnd, SB_CTL, bShow);
}

BOOL CScrollBar::EnableScrollBar(UINT nArrowFlags) {
    return ::EnableScrollBar(m_hWnd, SB_CTL, nArrowFlags);
}

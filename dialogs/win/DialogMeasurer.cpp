#include "dialogs/win/DialogMeasurer.h"

#include "foundation/win/HostServices.h"

AF_CDialogMeasurer::AF_CDialogMeasurer(HWND hWnd) : m_hWnd(hWnd), m_hDC(::GetDC(hWnd)) {
    auto hFont = reinterpret_cast<HGDIOBJ>(::SendMessageW(hWnd, WM_GETFONT, 0, 0));
    if (m_hDC != nullptr && hFont != nullptr)
        m_hOldFont = ::SelectObject(m_hDC, hFont);
}

AF_CDialogMeasurer::~AF_CDialogMeasurer() {
    if (m_hDC == nullptr)
        return;
    if (m_hOldFont != nullptr)
        ::SelectObject(m_hDC, m_hOldFont);
    ::ReleaseDC(m_hWnd, m_hDC);
}

CSize AF_CDialogMeasurer::GetTextExtent(const CString& text) {
    SIZE size{0, 0};
    if (m_hDC != nullptr)
        ::GetTextExtentPoint32W(m_hDC, text.GetString(), text.GetLength(), &size);
    return CSize(size.cx, size.cy);
}

CRect AF_CDialogMeasurer::CalcTextRect(const CString& text, const CRect& rect, bool wordBreak) {
    RECT rc{rect.left, rect.top, rect.right, rect.bottom};
    UINT format = DT_CALCRECT | DT_NOPREFIX;
    if (wordBreak)
        format |= DT_WORDBREAK | DT_EXPANDTABS | DT_NOCLIP;
    if (m_hDC != nullptr)
        ::DrawTextW(m_hDC, text.GetString(), text.GetLength(), &rc, format);
    return CRect(rc.left, rc.top, rc.right, rc.bottom);
}

int AF_CDialogMeasurer::GetWorkAreaWidth() {
    HWND hMain = VuGetHostServices()->GetMainWindow();
    HMONITOR hMonitor = hMain != nullptr ? ::MonitorFromWindow(hMain, MONITOR_DEFAULTTONEAREST)
                                         : ::MonitorFromWindow(m_hWnd, MONITOR_DEFAULTTONEAREST);
    MONITORINFO info{};
    info.cbSize = sizeof(info);
    if (hMonitor == nullptr || !::GetMonitorInfoW(hMonitor, &info))
        return ::GetSystemMetrics(SM_CXSCREEN);
    return info.rcWork.right - info.rcWork.left;
}

int AF_CDialogMeasurer::GetDialogFrameWidth() {
    return ::GetSystemMetrics(SM_CXDLGFRAME);
}
int AF_CDialogMeasurer::GetCaptionHeight() {
    return ::GetSystemMetrics(SM_CYCAPTION);
}
int AF_CDialogMeasurer::GetAverageCharWidth() {
    TEXTMETRICW tm{};
    return m_hDC != nullptr && ::GetTextMetricsW(m_hDC, &tm) ? tm.tmAveCharWidth : 0;
}
int AF_CDialogMeasurer::GetSmallIconSize() {
    return ::GetSystemMetrics(SM_CXSMICON);
}
int AF_CDialogMeasurer::GetCheckBoxWidth() {
    // The square and the room the button leaves before its caption.
    return ::GetSystemMetrics(SM_CXMENUCHECK) + 4;
}

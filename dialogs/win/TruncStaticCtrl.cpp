#include "dialogs/win/TruncStaticCtrl.h"

#include "dialogs/TextTruncation.h"
#include "dialogs/win/DialogMeasurer.h"

CString AF_CTruncStaticCtrl::GetDisplayedText() {
    CString text;
    GetWindowText(text);
    CRect client;
    GetClientRect(&client);
    AF_CDialogMeasurer measurer(m_hWnd);
    return VuTruncateText(text, client.Width(), m_bKeepEnd, measurer);
}

void AF_CTruncStaticCtrl::OnPaint() {
    const CString shown = GetDisplayedText();
    PAINTSTRUCT ps;
    HDC hDC = ::BeginPaint(m_hWnd, &ps);
    RECT rc;
    ::GetClientRect(m_hWnd, &rc);
    // The parent chooses the background, as for any static control.
    auto hBrush = reinterpret_cast<HBRUSH>(::SendMessageW(::GetParent(m_hWnd), WM_CTLCOLORSTATIC,
                                                          reinterpret_cast<WPARAM>(hDC),
                                                          reinterpret_cast<LPARAM>(m_hWnd)));
    ::FillRect(hDC, &rc, hBrush != nullptr ? hBrush : ::GetSysColorBrush(COLOR_BTNFACE));
    ::SetBkMode(hDC, TRANSPARENT);
    ::SetTextColor(hDC, ::GetSysColor(IsWindowEnabled() ? COLOR_WINDOWTEXT : COLOR_GRAYTEXT));
    auto hFont = reinterpret_cast<HGDIOBJ>(::SendMessageW(m_hWnd, WM_GETFONT, 0, 0));
    HGDIOBJ hOld = hFont != nullptr ? ::SelectObject(hDC, hFont) : nullptr;
    ::DrawTextW(hDC, shown.GetString(), shown.GetLength(), &rc,
                DT_SINGLELINE | DT_NOPREFIX | DT_LEFT | DT_TOP);
    if (hOld != nullptr)
        ::SelectObject(hDC, hOld);
    ::EndPaint(m_hWnd, &ps);
}

LRESULT AF_CTruncStaticCtrl::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_PAINT:
        OnPaint();
        return 0;
    case WM_SETTEXT: { // the static paints its text at once: show the cut one
        const LRESULT result = CStatic::WindowProc(message, wParam, lParam);
        Invalidate();
        return result;
    }
    default:
        return CStatic::WindowProc(message, wParam, lParam);
    }
}

#include "tabs/win/TabBeamScrollBar.h"

#include "tabs/win/TabBeamBar.h"

LRESULT AF_CTabBeamScrollBar::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_MOUSEACTIVATE) {
        const LRESULT result = CScrollBar::WindowProc(message, wParam, lParam);
        if (m_pBar != nullptr)
            m_pBar->ScrollbarActivated();
        return result;
    }
    return CScrollBar::WindowProc(message, wParam, lParam);
}

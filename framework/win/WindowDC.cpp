#include "framework/win/WindowDC.h"

#include "framework/win/Wnd.h"

CWindowDC::CWindowDC(CWnd* pWnd) : m_hWnd(pWnd != nullptr ? pWnd->m_hWnd : nullptr) {
    Attach(::GetWindowDC(m_hWnd));
}

CWindowDC::~CWindowDC() {
    if (m_hDC != nullptr)
        ::ReleaseDC(m_hWnd, Detach());
}

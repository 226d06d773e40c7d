#include "framework/win/ClientDC.h"

#include "framework/win/Wnd.h"

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(pWnd != nullptr ? pWnd->m_hWnd : nullptr) {
    Attach(::GetDC(m_hWnd));
}

CClientDC::~CClientDC() {
    if (m_hDC != nullptr)
        ::ReleaseDC(m_hWnd, Detach());
}

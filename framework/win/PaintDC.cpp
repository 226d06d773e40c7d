#include "framework/win/PaintDC.h"

#include "framework/win/Wnd.h"

CPaintDC::CPaintDC(CWnd* pWnd) : m_hWnd(pWnd != nullptr ? pWnd->m_hWnd : nullptr) {
    if (m_hWnd != nullptr)
        Attach(::BeginPaint(m_hWnd, &m_ps));
}

CPaintDC::~CPaintDC() {
    if (m_hWnd != nullptr && m_hDC != nullptr)
        ::EndPaint(m_hWnd, &m_ps);
    Detach();
}

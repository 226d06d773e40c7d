#pragma once
// CPaintDC: BeginPaint/EndPaint around a WM_PAINT handler.
#include "framework/win/DC.h"

class CPaintDC : public CDC {
public:
    explicit CPaintDC(CWnd* pWnd);
    ~CPaintDC() override;

    PAINTSTRUCT m_ps{};
    HWND m_hWnd = nullptr;
};

#pragma once
// CWindowDC: the whole window's DC (non-client area included).
#include "framework/win/DC.h"

class CWindowDC : public CDC {
public:
    explicit CWindowDC(CWnd* pWnd); // null: the screen
    ~CWindowDC() override;

    HWND m_hWnd = nullptr;
};

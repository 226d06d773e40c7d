#pragma once
// CClientDC: the client area's DC of a window, released with the object.
#include "framework/win/DC.h"

class CClientDC : public CDC {
public:
    explicit CClientDC(CWnd* pWnd); // null: the screen
    ~CClientDC() override;

    HWND m_hWnd = nullptr;
};

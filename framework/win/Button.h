#pragma once
// CButton: the system button (push, check, radio, group, owner-drawn).
#include "framework/win/Wnd.h"

class CButton : public CWnd {
public:
    virtual BOOL Create(const wchar_t* lpszCaption, DWORD dwStyle, const CRect& rect,
                        CWnd* pParentWnd, UINT nID);

    UINT GetState() const;
    void SetState(BOOL bHighlight);
    int GetCheck() const;
    void SetCheck(int nCheck);
    UINT GetButtonStyle() const;
    void SetButtonStyle(UINT nStyle, BOOL bRedraw = TRUE);
    HICON SetIcon(HICON hIcon);
    HBITMAP SetBitmap(HBITMAP hBitmap);
    void Click();
};

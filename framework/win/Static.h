#pragma once
// CStatic: the system static control.
#include "framework/win/Wnd.h"

class CStatic : public CWnd {
public:
    virtual BOOL Create(const wchar_t* lpszText, DWORD dwStyle, const CRect& rect, CWnd* pParentWnd,
                        UINT nID = 0xffff);

    HICON SetIcon(HICON hIcon);
    HICON GetIcon() const;
    HBITMAP SetBitmap(HBITMAP hBitmap);
    HBITMAP GetBitmap() const;
};

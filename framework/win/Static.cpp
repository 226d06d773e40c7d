#include "framework/win/Static.h"

BOOL CStatic::Create(const wchar_t* lpszText, DWORD dwStyle, const CRect& rect, CWnd* pParentWnd,
                     UINT nID) {
    return CWnd::CreateEx(0, L"STATIC", lpszText, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

HICON CStatic::SetIcon(HICON hIcon) {
    return reinterpret_cast<HICON>(SendMessage(STM_SETICON, reinterpret_cast<WPARAM>(hIcon)));
}

HICON CStatic::GetIcon() const {
    return reinterpret_cast<HICON>(SendMessage(STM_GETICON));
}

HBITMAP CStatic::SetBitmap(HBITMAP hBitmap) {
    return reinterpret_cast<HBITMAP>(
        SendMessage(STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(hBitmap)));
}

HBITMAP CStatic::GetBitmap() const {
    return reinterpret_cast<HBITMAP>(SendMessage(STM_GETIMAGE, IMAGE_BITMAP));
}

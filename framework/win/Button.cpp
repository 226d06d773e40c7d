#include "framework/win/Button.h"

BOOL CButton::Create(const wchar_t* lpszCaption, DWORD dwStyle, const CRect& rect, CWnd* pParentWnd,
                     UINT nID) {
    return CWnd::CreateEx(0, L"BUTTON", lpszCaption, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

UINT CButton::GetState() const {
    return static_cast<UINT>(SendMessage(BM_GETSTATE));
}
void CButton::SetState(BOOL bHighlight) {
    SendMessage(BM_SETSTATE, bHighlight);
}
int CButton::GetCheck() const {
    return static_cast<int>(SendMessage(BM_GETCHECK));
}
void CButton::SetCheck(int nCheck) {
    SendMessage(BM_SETCHECK, nCheck);
}
UINT CButton::GetButtonStyle() const {
    return GetStyle() & 0xFFFF;
}
void CButton::SetButtonStyle(UINT nStyle, BOOL bRedraw) {
    SendMessage(BM_SETSTYLE, nStyle, bRedraw);
}

HICON CButton::SetIcon(HICON hIcon) {
    return reinterpret_cast<HICON>(
        SendMessage(BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(hIcon)));
}

HBITMAP CButton::SetBitmap(HBITMAP hBitmap) {
    return reinterpret_cast<HBITMAP>(
        SendMessage(BM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(hBitmap)));
}

void CButton::Click() {
    SendMessage(BM_CLICK);
}

#include "framework/win/ListBox.h"

#include "framework/win/Geometry.h"

namespace {
inline LPARAM Text(const wchar_t* s) {
    return reinterpret_cast<LPARAM>(s);
}
} // namespace

BOOL CListBox::Create(DWORD dwStyle, const CRect& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::CreateEx(0, L"LISTBOX", nullptr, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

BOOL CListBox::Create(DWORD dwStyle, const CRect& rect, HWND hWndParent, UINT nID) {
    return CWnd::CreateEx(0, L"LISTBOX", nullptr, dwStyle | WS_CHILD, rect.left, rect.top,
                          rect.right - rect.left, rect.bottom - rect.top, hWndParent,
                          reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)));
}

int CListBox::GetCount() const {
    return static_cast<int>(SendMessage(LB_GETCOUNT));
}

int CListBox::GetHorizontalExtent() const {
    return static_cast<int>(SendMessage(LB_GETHORIZONTALEXTENT));
}

void CListBox::SetHorizontalExtent(int cxExtent) {
    SendMessage(LB_SETHORIZONTALEXTENT, cxExtent);
}
int CListBox::GetTopIndex() const {
    return static_cast<int>(SendMessage(LB_GETTOPINDEX));
}
int CListBox::SetTopIndex(int nIndex) {
    return static_cast<int>(SendMessage(LB_SETTOPINDEX, nIndex));
}

DWORD_PTR CListBox::GetItemData(int nIndex) const {
    return static_cast<DWORD_PTR>(SendMessage(LB_GETITEMDATA, nIndex));
}

int CListBox::SetItemData(int nIndex, DWORD_PTR dwItemData) {
    return static_cast<int>(SendMessage(LB_SETITEMDATA, nIndex, static_cast<LPARAM>(dwItemData)));
}

void* CListBox::GetItemDataPtr(int nIndex) const {
    return reinterpret_cast<void*>(GetItemData(nIndex));
}

int CListBox::SetItemDataPtr(int nIndex, void* pData) {
    return SetItemData(nIndex, reinterpret_cast<DWORD_PTR>(pData));
}

int CListBox::GetItemRect(int nIndex, LPRECT lpRect) const {
    return static_cast<int>(SendMessage(LB_GETITEMRECT, nIndex, reinterpret_cast<LPARAM>(lpRect)));
}

int CListBox::GetItemRect(int nIndex, CRect* lpRect) const {
    return GetItemRect(nIndex, vu::AsRECT(lpRect));
}

int CListBox::GetSel(int nIndex) const {
    return static_cast<int>(SendMessage(LB_GETSEL, nIndex));
}

int CListBox::GetText(int nIndex, CString& rString) const {
    int length = GetTextLen(nIndex);
    if (length == LB_ERR) {
        rString.Empty();
        return LB_ERR;
    }
    wchar_t* buffer = rString.GetBuffer(length + 1);
    int copied =
        static_cast<int>(SendMessage(LB_GETTEXT, nIndex, reinterpret_cast<LPARAM>(buffer)));
    rString.ReleaseBuffer(copied == LB_ERR ? 0 : copied);
    return copied;
}

int CListBox::GetTextLen(int nIndex) const {
    return static_cast<int>(SendMessage(LB_GETTEXTLEN, nIndex));
}

int CListBox::SetItemHeight(int nIndex, UINT cyItemHeight) {
    return static_cast<int>(SendMessage(LB_SETITEMHEIGHT, nIndex, MAKELPARAM(cyItemHeight, 0)));
}

int CListBox::GetItemHeight(int nIndex) const {
    return static_cast<int>(SendMessage(LB_GETITEMHEIGHT, nIndex));
}

UINT CListBox::ItemFromPoint(CPoint pt, BOOL& bOutside) const {
    DWORD result = static_cast<DWORD>(SendMessage(LB_ITEMFROMPOINT, 0, MAKELPARAM(pt.x, pt.y)));
    bOutside = HIWORD(result) != 0;
    return LOWORD(result);
}

int CListBox::SetCaretIndex(int nIndex, BOOL bScroll) {
    return static_cast<int>(SendMessage(LB_SETCARETINDEX, nIndex, MAKELPARAM(bScroll, 0)));
}

int CListBox::GetCaretIndex() const {
    return static_cast<int>(SendMessage(LB_GETCARETINDEX));
}
int CListBox::GetCurSel() const {
    return static_cast<int>(SendMessage(LB_GETCURSEL));
}
int CListBox::SetCurSel(int nSelect) {
    return static_cast<int>(SendMessage(LB_SETCURSEL, nSelect));
}

int CListBox::SetSel(int nIndex, BOOL bSelect) {
    return static_cast<int>(SendMessage(LB_SETSEL, bSelect, nIndex));
}

int CListBox::GetSelCount() const {
    return static_cast<int>(SendMessage(LB_GETSELCOUNT));
}

int CListBox::GetSelItems(int nMaxItems, LPINT rgIndex) const {
    return static_cast<int>(
        SendMessage(LB_GETSELITEMS, nMaxItems, reinterpret_cast<LPARAM>(rgIndex)));
}

BOOL CListBox::SetTabStops(int nTabStops, const int* rgTabStops) {
    return static_cast<BOOL>(
        SendMessage(LB_SETTABSTOPS, nTabStops, reinterpret_cast<LPARAM>(rgTabStops)));
}

void CListBox::SetColumnWidth(int cxWidth) {
    SendMessage(LB_SETCOLUMNWIDTH, cxWidth);
}

int CListBox::AddString(const wchar_t* lpszItem) {
    return static_cast<int>(SendMessage(LB_ADDSTRING, 0, Text(lpszItem)));
}

int CListBox::DeleteString(UINT nIndex) {
    return static_cast<int>(SendMessage(LB_DELETESTRING, nIndex));
}

int CListBox::InsertString(int nIndex, const wchar_t* lpszItem) {
    return static_cast<int>(SendMessage(LB_INSERTSTRING, nIndex, Text(lpszItem)));
}

void CListBox::ResetContent() {
    SendMessage(LB_RESETCONTENT);
}

int CListBox::FindString(int nStartAfter, const wchar_t* lpszItem) const {
    return static_cast<int>(SendMessage(LB_FINDSTRING, nStartAfter, Text(lpszItem)));
}

int CListBox::FindStringExact(int nIndexStart, const wchar_t* lpszFind) const {
    return static_cast<int>(SendMessage(LB_FINDSTRINGEXACT, nIndexStart, Text(lpszFind)));
}

int CListBox::SelectString(int nStartAfter, const wchar_t* lpszItem) {
    return static_cast<int>(SendMessage(LB_SELECTSTRING, nStartAfter, Text(lpszItem)));
}

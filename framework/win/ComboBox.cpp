#include "framework/win/ComboBox.h"

#include "framework/win/Geometry.h"

namespace {
inline LPARAM Text(const wchar_t* s) {
    return reinterpret_cast<LPARAM>(s);
}
} // namespace

BOOL CComboBox::Create(DWORD dwStyle, const CRect& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::CreateEx(0, L"COMBOBOX", nullptr, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

int CComboBox::GetCount() const {
    return static_cast<int>(SendMessage(CB_GETCOUNT));
}
int CComboBox::GetCurSel() const {
    return static_cast<int>(SendMessage(CB_GETCURSEL));
}
int CComboBox::SetCurSel(int nSelect) {
    return static_cast<int>(SendMessage(CB_SETCURSEL, nSelect));
}

DWORD_PTR CComboBox::GetItemData(int nIndex) const {
    return static_cast<DWORD_PTR>(SendMessage(CB_GETITEMDATA, nIndex));
}

int CComboBox::SetItemData(int nIndex, DWORD_PTR dwItemData) {
    return static_cast<int>(SendMessage(CB_SETITEMDATA, nIndex, static_cast<LPARAM>(dwItemData)));
}

void* CComboBox::GetItemDataPtr(int nIndex) const {
    return reinterpret_cast<void*>(GetItemData(nIndex));
}

int CComboBox::SetItemDataPtr(int nIndex, void* pData) {
    return SetItemData(nIndex, reinterpret_cast<DWORD_PTR>(pData));
}

int CComboBox::GetLBText(int nIndex, CString& rString) const {
    int length = GetLBTextLen(nIndex);
    if (length == CB_ERR) {
        rString.Empty();
        return CB_ERR;
    }
    wchar_t* buffer = rString.GetBuffer(length + 1);
    int copied =
        static_cast<int>(SendMessage(CB_GETLBTEXT, nIndex, reinterpret_cast<LPARAM>(buffer)));
    rString.ReleaseBuffer(copied == CB_ERR ? 0 : copied);
    return copied;
}

int CComboBox::GetLBTextLen(int nIndex) const {
    return static_cast<int>(SendMessage(CB_GETLBTEXTLEN, nIndex));
}

int CComboBox::SetItemHeight(int nIndex, UINT cyItemHeight) {
    return static_cast<int>(SendMessage(CB_SETITEMHEIGHT, nIndex, MAKELPARAM(cyItemHeight, 0)));
}

int CComboBox::GetItemHeight(int nIndex) const {
    return static_cast<int>(SendMessage(CB_GETITEMHEIGHT, nIndex));
}

int CComboBox::GetTopIndex() const {
    return static_cast<int>(SendMessage(CB_GETTOPINDEX));
}

int CComboBox::SetTopIndex(int nIndex) {
    return static_cast<int>(SendMessage(CB_SETTOPINDEX, nIndex));
}

BOOL CComboBox::GetDroppedState() const {
    return static_cast<BOOL>(SendMessage(CB_GETDROPPEDSTATE));
}

void CComboBox::GetDroppedControlRect(CRect* lprect) const {
    SendMessage(CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(vu::AsRECT(lprect)));
}

int CComboBox::SetDroppedWidth(UINT nWidth) {
    return static_cast<int>(SendMessage(CB_SETDROPPEDWIDTH, nWidth));
}

int CComboBox::GetDroppedWidth() const {
    return static_cast<int>(SendMessage(CB_GETDROPPEDWIDTH));
}
BOOL CComboBox::LimitText(int nMaxChars) {
    return static_cast<BOOL>(SendMessage(CB_LIMITTEXT, nMaxChars));
}
DWORD CComboBox::GetEditSel() const {
    return static_cast<DWORD>(SendMessage(CB_GETEDITSEL));
}

BOOL CComboBox::SetEditSel(int nStartChar, int nEndChar) {
    return static_cast<BOOL>(SendMessage(CB_SETEDITSEL, 0, MAKELPARAM(nStartChar, nEndChar)));
}

void CComboBox::ShowDropDown(BOOL bShowIt) {
    SendMessage(CB_SHOWDROPDOWN, bShowIt);
}

int CComboBox::AddString(const wchar_t* lpszString) {
    return static_cast<int>(SendMessage(CB_ADDSTRING, 0, Text(lpszString)));
}

int CComboBox::DeleteString(UINT nIndex) {
    return static_cast<int>(SendMessage(CB_DELETESTRING, nIndex));
}

int CComboBox::InsertString(int nIndex, const wchar_t* lpszString) {
    return static_cast<int>(SendMessage(CB_INSERTSTRING, nIndex, Text(lpszString)));
}

void CComboBox::ResetContent() {
    SendMessage(CB_RESETCONTENT);
}

int CComboBox::FindString(int nStartAfter, const wchar_t* lpszString) const {
    return static_cast<int>(SendMessage(CB_FINDSTRING, nStartAfter, Text(lpszString)));
}

int CComboBox::FindStringExact(int nIndexStart, const wchar_t* lpszFind) const {
    return static_cast<int>(SendMessage(CB_FINDSTRINGEXACT, nIndexStart, Text(lpszFind)));
}

int CComboBox::SelectString(int nStartAfter, const wchar_t* lpszString) {
    return static_cast<int>(SendMessage(CB_SELECTSTRING, nStartAfter, Text(lpszString)));
}

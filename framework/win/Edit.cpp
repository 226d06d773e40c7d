#include "framework/win/Edit.h"

BOOL CEdit::Create(DWORD dwStyle, const CRect& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::CreateEx(0, L"EDIT", nullptr, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

void CEdit::GetSel(int& nStartChar, int& nEndChar) const {
    DWORD start = 0, end = 0;
    SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    nStartChar = static_cast<int>(start);
    nEndChar = static_cast<int>(end);
}

void CEdit::SetSel(int nStartChar, int nEndChar, BOOL bNoScroll) {
    SendMessage(EM_SETSEL, nStartChar, nEndChar);
    if (!bNoScroll)
        SendMessage(EM_SCROLLCARET);
}

void CEdit::ReplaceSel(const wchar_t* lpszNewText, BOOL bCanUndo) {
    SendMessage(EM_REPLACESEL, bCanUndo, reinterpret_cast<LPARAM>(lpszNewText ? lpszNewText : L""));
}

void CEdit::LimitText(int nChars) {
    SendMessage(EM_LIMITTEXT, nChars);
}
UINT CEdit::GetLimitText() const {
    return static_cast<UINT>(SendMessage(EM_GETLIMITTEXT));
}
BOOL CEdit::GetModify() const {
    return static_cast<BOOL>(SendMessage(EM_GETMODIFY));
}
void CEdit::SetModify(BOOL bModified) {
    SendMessage(EM_SETMODIFY, bModified);
}
BOOL CEdit::SetReadOnly(BOOL bReadOnly) {
    return static_cast<BOOL>(SendMessage(EM_SETREADONLY, bReadOnly));
}
int CEdit::GetLineCount() const {
    return static_cast<int>(SendMessage(EM_GETLINECOUNT));
}
int CEdit::LineFromChar(int nIndex) const {
    return static_cast<int>(SendMessage(EM_LINEFROMCHAR, nIndex));
}
int CEdit::LineIndex(int nLine) const {
    return static_cast<int>(SendMessage(EM_LINEINDEX, nLine));
}
int CEdit::LineLength(int nLine) const {
    return static_cast<int>(SendMessage(EM_LINELENGTH, nLine));
}

int CEdit::GetLine(int nIndex, CString& rString) const {
    int length = LineLength(LineIndex(nIndex));
    // EM_GETLINE reads the buffer size from its first unit.
    wchar_t* buffer = rString.GetBuffer(length < 1 ? 1 : length);
    buffer[0] = static_cast<wchar_t>(length);
    int copied =
        length > 0
            ? static_cast<int>(SendMessage(EM_GETLINE, nIndex, reinterpret_cast<LPARAM>(buffer)))
            : 0;
    rString.ReleaseBuffer(copied);
    return copied;
}

void CEdit::SetMargins(UINT nLeft, UINT nRight) {
    SendMessage(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(nLeft, nRight));
}

CPoint CEdit::PosFromChar(UINT nChar) const {
    DWORD pos = static_cast<DWORD>(SendMessage(EM_POSFROMCHAR, nChar));
    return CPoint(static_cast<short>(LOWORD(pos)), static_cast<short>(HIWORD(pos)));
}

int CEdit::CharFromPos(CPoint pt) const {
    return static_cast<int>(SendMessage(EM_CHARFROMPOS, 0, MAKELPARAM(pt.x, pt.y)));
}

void CEdit::Clear() {
    SendMessage(WM_CLEAR);
}
void CEdit::Copy() {
    SendMessage(WM_COPY);
}
void CEdit::Cut() {
    SendMessage(WM_CUT);
}
void CEdit::Paste() {
    SendMessage(WM_PASTE);
}
BOOL CEdit::Undo() {
    return static_cast<BOOL>(SendMessage(EM_UNDO));
}

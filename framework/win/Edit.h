#pragma once
// CEdit: the system edit control.
#include "framework/win/Wnd.h"

class CEdit : public CWnd {
public:
    virtual BOOL Create(DWORD dwStyle, const CRect& rect, CWnd* pParentWnd, UINT nID);

    void GetSel(int& nStartChar, int& nEndChar) const;
    void SetSel(int nStartChar, int nEndChar, BOOL bNoScroll = FALSE);
    void ReplaceSel(const wchar_t* lpszNewText, BOOL bCanUndo = FALSE);
    void LimitText(int nChars = 0);
    UINT GetLimitText() const;
    BOOL GetModify() const;
    void SetModify(BOOL bModified = TRUE);
    BOOL SetReadOnly(BOOL bReadOnly = TRUE);
    int GetLineCount() const;
    int LineFromChar(int nIndex = -1) const;
    int LineIndex(int nLine = -1) const;
    int LineLength(int nLine = -1) const;
    int GetLine(int nIndex, CString& rString) const;
    void SetMargins(UINT nLeft, UINT nRight);
    CPoint PosFromChar(UINT nChar) const;
    int CharFromPos(CPoint pt) const;
    void Clear();
    void Copy();
    void Cut();
    void Paste();
    BOOL Undo();
};

#pragma once
// CComboBox: the system combo box; owner-drawn combo boxes get the
// owner-draw virtuals through reflection from the parent.
#include "framework/win/Wnd.h"

class CComboBox : public CWnd {
public:
    virtual BOOL Create(DWORD dwStyle, const CRect& rect, CWnd* pParentWnd, UINT nID);

    // Attributes
    int GetCount() const;
    int GetCurSel() const;
    int SetCurSel(int nSelect);
    DWORD_PTR GetItemData(int nIndex) const;
    int SetItemData(int nIndex, DWORD_PTR dwItemData);
    void* GetItemDataPtr(int nIndex) const;
    int SetItemDataPtr(int nIndex, void* pData);
    int GetLBText(int nIndex, CString& rString) const;
    int GetLBTextLen(int nIndex) const;
    int SetItemHeight(int nIndex, UINT cyItemHeight);
    int GetItemHeight(int nIndex) const;
    int GetTopIndex() const;
    int SetTopIndex(int nIndex);
    BOOL GetDroppedState() const;
    void GetDroppedControlRect(CRect* lprect) const;
    int SetDroppedWidth(UINT nWidth);
    int GetDroppedWidth() const;
    BOOL LimitText(int nMaxChars);
    DWORD GetEditSel() const;
    BOOL SetEditSel(int nStartChar, int nEndChar);

    // Operations
    void ShowDropDown(BOOL bShowIt = TRUE);
    int AddString(const wchar_t* lpszString);
    int DeleteString(UINT nIndex);
    int InsertString(int nIndex, const wchar_t* lpszString);
    void ResetContent();
    int FindString(int nStartAfter, const wchar_t* lpszString) const;
    int FindStringExact(int nIndexStart, const wchar_t* lpszFind) const;
    int SelectString(int nStartAfter, const wchar_t* lpszString);
};

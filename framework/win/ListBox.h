#pragma once
// CListBox: the system list box. Owner-drawn list boxes get DrawItem,
// MeasureItem, CompareItem and DeleteItem through reflection from the parent.
#include "framework/win/Wnd.h"

class CListBox : public CWnd {
public:
    virtual BOOL Create(DWORD dwStyle, const CRect& rect, CWnd* pParentWnd, UINT nID);
    BOOL Create(DWORD dwStyle, const CRect& rect, HWND hWndParent, UINT nID);

    // Attributes
    int GetCount() const;
    int GetHorizontalExtent() const;
    void SetHorizontalExtent(int cxExtent);
    int GetTopIndex() const;
    int SetTopIndex(int nIndex);
    DWORD_PTR GetItemData(int nIndex) const;
    int SetItemData(int nIndex, DWORD_PTR dwItemData);
    void* GetItemDataPtr(int nIndex) const;
    int SetItemDataPtr(int nIndex, void* pData);
    int GetItemRect(int nIndex, LPRECT lpRect) const;
    int GetItemRect(int nIndex, CRect* lpRect) const;
    int GetSel(int nIndex) const;
    int GetText(int nIndex, CString& rString) const;
    int GetTextLen(int nIndex) const;
    int SetItemHeight(int nIndex, UINT cyItemHeight);
    int GetItemHeight(int nIndex) const;
    // The item nearest to pt (client coordinates); bOutside is TRUE when pt
    // lies outside every item.
    UINT ItemFromPoint(CPoint pt, BOOL& bOutside) const;
    int SetCaretIndex(int nIndex, BOOL bScroll = TRUE);
    int GetCaretIndex() const;
    int GetCurSel() const;
    int SetCurSel(int nSelect);
    int SetSel(int nIndex, BOOL bSelect = TRUE);
    int GetSelCount() const;
    int GetSelItems(int nMaxItems, LPINT rgIndex) const;
    BOOL SetTabStops(int nTabStops, const int* rgTabStops);
    void SetColumnWidth(int cxWidth);

    // Operations
    int AddString(const wchar_t* lpszItem);
    int DeleteString(UINT nIndex);
    int InsertString(int nIndex, const wchar_t* lpszItem);
    void ResetContent();
    int FindString(int nStartAfter, const wchar_t* lpszItem) const;
    int FindStringExact(int nIndexStart, const wchar_t* lpszFind) const;
    int SelectString(int nStartAfter, const wchar_t* lpszItem);
};

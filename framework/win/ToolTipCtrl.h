#pragma once
// CToolTipCtrl: a tooltip control owned by a window.
#include <windows.h>

#include <commctrl.h>

#include "framework/Rect.h"
#include "framework/win/Wnd.h"

class CToolTipCtrl : public CWnd {
public:
    // A popup tooltip owned by pParentWnd (TTS_ALWAYSTIP added).
    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = 0);

    // Tools. Each TOOLINFOW's cbSize is filled in here.
    BOOL AddTool(TOOLINFOW* pToolInfo);
    // A tool over a rectangle of pWnd (the whole window when lpRect is null)
    // whose text is lpszText, or supplied by TTN_NEEDTEXT when it is
    // LPSTR_TEXTCALLBACKW.
    BOOL AddTool(CWnd* pWnd, const wchar_t* lpszText, const CRect* lpRect = nullptr,
                 UINT_PTR nIDTool = 0);
    void DelTool(CWnd* pWnd, UINT_PTR nIDTool = 0);
    BOOL GetToolInfo(TOOLINFOW* pToolInfo, CWnd* pWnd, UINT_PTR nIDTool = 0) const;
    void SetToolInfo(TOOLINFOW* pToolInfo);
    void SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, const CRect& rect);
    void UpdateTipText(const wchar_t* lpszText, CWnd* pWnd, UINT_PTR nIDTool = 0);
    int GetToolCount() const;

    // Behaviour
    void Activate(BOOL bActivate);
    void RelayEvent(MSG* pMsg);
    void Pop();
    void Update();
    int SetMaxTipWidth(int iWidth);
    void SetDelayTime(DWORD dwDuration, int iTime);
    int GetDelayTime(DWORD dwDuration) const;
    void SetTipBkColor(COLORREF clr);
    void SetTipTextColor(COLORREF clr);
    BOOL AdjustRect(CRect* lpRect, BOOL bLarger = TRUE);
    void TrackActivate(BOOL bActivate, TOOLINFOW* pToolInfo);
    void TrackPosition(int x, int y);
};

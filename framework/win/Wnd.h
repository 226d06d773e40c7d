#pragma once
// CWnd: a framework object bound to a window handle. A permanent binding
// (Attach, SubclassWindow, CreateEx) puts the object in the thread's handle
// map; subclassing also routes the window's messages through the virtual
// WindowProc. Notifications that Windows sends to the parent (owner-draw,
// WM_COMMAND from controls, WM_NOTIFY, WM_CTLCOLOR*, scroll bars) come back
// to the child object through OnChildNotify: the framework watches the
// parent with a message filter, so the parent may be a plain Win32 window.
#include <windows.h>

#include "framework/CString.h"
#include "framework/Object.h"
#include "framework/Point.h"
#include "framework/Rect.h"
#include "framework/Size.h"

class CDC;
class CFont;
class CMenu;

class CWnd : public CObject {
public:
    CWnd() = default;
    explicit CWnd(HWND hWnd) : m_hWnd(hWnd) {} // unmapped wrapper
    ~CWnd() override;
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;

    // Attributes
    HWND m_hWnd = nullptr;
    operator HWND() const { return m_hWnd; }
    HWND GetSafeHwnd() const { return m_hWnd; }

    // Handle maps. FromHandle gives the permanent object or a temporary
    // wrapper that the framework owns; null only for a null handle.
    static CWnd* FromHandle(HWND hWnd);
    static CWnd* FromHandlePermanent(HWND hWnd);
    static void DeleteTempMap();

    BOOL Attach(HWND hWndNew); // FALSE if null, already bound, or mapped elsewhere
    HWND Detach();
    BOOL SubclassWindow(HWND hWnd);
    BOOL SubclassDlgItem(UINT nID, CWnd* pParent);
    BOOL SubclassDlgItem(UINT nID, HWND hWndParent);
    HWND UnsubclassWindow();
    BOOL IsSubclassed() const { return m_pfnSuper != nullptr; }

    // Creation
    virtual BOOL CreateEx(DWORD dwExStyle, const wchar_t* lpszClassName,
                          const wchar_t* lpszWindowName, DWORD dwStyle, int x, int y, int nWidth,
                          int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam = nullptr);
    BOOL CreateEx(DWORD dwExStyle, const wchar_t* lpszClassName, const wchar_t* lpszWindowName,
                  DWORD dwStyle, const CRect& rect, CWnd* pParentWnd, UINT nID,
                  LPVOID lpParam = nullptr);
    virtual BOOL Create(const wchar_t* lpszClassName, const wchar_t* lpszWindowName, DWORD dwStyle,
                        const CRect& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL DestroyWindow();

    // Window state
    BOOL IsWindow() const { return m_hWnd != nullptr && ::IsWindow(m_hWnd); }
    DWORD GetStyle() const;
    DWORD GetExStyle() const;
    BOOL ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    BOOL ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    int GetDlgCtrlID() const;
    int SetDlgCtrlID(int nID);
    CWnd* GetParent() const;
    CWnd* GetOwner() const;
    CWnd* GetTopLevelParent() const;
    CWnd* GetDlgItem(int nID) const;
    static CWnd* GetSafeOwner(CWnd* pParent = nullptr);
    BOOL ShowWindow(int nCmdShow);
    BOOL IsWindowVisible() const;
    BOOL EnableWindow(BOOL bEnable = TRUE);
    BOOL IsWindowEnabled() const;
    void SetWindowText(const wchar_t* lpszString);
    int GetWindowText(CString& rString) const;
    int GetWindowTextLength() const;
    void SetFont(CFont* pFont, BOOL bRedraw = TRUE);
    CFont* GetFont() const;
    CMenu* GetMenu() const;

    // Messages
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    int GetDlgItemText(int nID, CString& rString) const;
    void SetDlgItemText(int nID, const wchar_t* lpszString);

    // Geometry
    void GetClientRect(LPRECT lpRect) const;
    void GetClientRect(CRect* lpRect) const;
    void GetWindowRect(LPRECT lpRect) const;
    void GetWindowRect(CRect* lpRect) const;
    void ClientToScreen(CPoint* lpPoint) const;
    void ClientToScreen(CRect* lpRect) const;
    void ScreenToClient(CPoint* lpPoint) const;
    void ScreenToClient(CRect* lpRect) const;
    void MapWindowPoints(CWnd* pwndTo, CRect* lpRect) const;
    void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint = TRUE);
    void MoveWindow(const CRect& rect, BOOL bRepaint = TRUE);
    BOOL SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags);
    BOOL SetWindowPos(HWND hWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags);
    void CenterWindow(CWnd* pAlternateOwner = nullptr);
    static CWnd* WindowFromPoint(CPoint point);
    CWnd* ChildWindowFromPoint(CPoint point) const;

    // Painting
    void Invalidate(BOOL bErase = TRUE);
    void InvalidateRect(const CRect* lpRect, BOOL bErase = TRUE);
    void ValidateRect(const CRect* lpRect);
    void UpdateWindow();
    BOOL RedrawWindow(const CRect* lpRectUpdate = nullptr, HRGN hrgnUpdate = nullptr,
                      UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    void SetRedraw(BOOL bRedraw = TRUE);
    CDC* GetDC();
    CDC* GetWindowDC();
    int ReleaseDC(CDC* pDC);
    void ScrollWindow(int xAmount, int yAmount, const CRect* lpRect = nullptr,
                      const CRect* lpClipRect = nullptr);

    // Input
    CWnd* SetFocus();
    static CWnd* GetFocus();
    CWnd* SetCapture();
    static CWnd* GetCapture();
    UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT nElapse, TIMERPROC lpfnTimer = nullptr);
    BOOL KillTimer(UINT_PTR nIDEvent);

    // Scrolling
    BOOL SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
    BOOL GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL) const;
    int SetScrollPos(int nBar, int nPos, BOOL bRedraw = TRUE);
    int GetScrollPos(int nBar) const;
    void SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw = TRUE);
    void ShowScrollBar(UINT nBar, BOOL bShow = TRUE);

    // Overridables
    virtual BOOL PreCreateWindow(CREATESTRUCTW& cs);
    virtual void PreSubclassWindow();
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    // A notification that Windows sent to the parent about this child. TRUE
    // with *pResult set claims it; the parent then does not see it.
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual void PostNcDestroy();

    // Owner-draw, reached through OnChildNotify. The base versions leave the
    // notification to the parent's own procedure, so a class that does not
    // draw changes nothing for its parent.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);

    // Calls the previous procedure with the message being handled.
    LRESULT Default();

    // The one window procedure of subclassed framework windows.
    static LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

protected:
    // Owner-draw notifications reach DrawItem and its kin; a window class
    // that is never owner-drawn may return FALSE to let the parent answer.
    BOOL ReflectOwnerDraw(UINT message, LPARAM lParam, LRESULT* pResult);
    void HookCreation();
    static void UnhookCreation();

    WNDPROC m_pfnSuper = nullptr; // the procedure that was there before subclassing

private:
    void WatchParent();
    void StopWatchingParent();
    void OnNcDestroyed();

    HWND m_hWndWatchedParent = nullptr; // parent whose notifications reach this object
};

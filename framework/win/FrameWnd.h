#pragma once
// CFrameWnd: a window that lays out its control bars and one client pane,
// and knows its active view.
//
// Layout (RecalcLayout, on every WM_SIZE): RepositionBars offers the client
// rectangle to every child whose control id lies in the bar range with
// WM_SIZEPARENT; each bar takes its room from one side, and the child with id
// AFX_IDW_PANE_FIRST gets what is left. All the moves happen at once through
// one deferred window position.
//
// What this covers: bars docked on the four sides in child order, the pane,
// the active view with its activation calls, idle updates of the bars, focus
// passed on to the active view. What it leaves out: menus, accelerators,
// command routing through views and documents, the status line and its idle
// text, floating bars and dock contexts, MDI child management, and the
// "extra" and "border" variants of the layout.
#include "framework/win/Wnd.h"

class CControlBar;
class CView;

constexpr UINT AFX_IDW_PANE_FIRST = 0xE900;
constexpr UINT AFX_IDW_CONTROLBAR_FIRST = 0xE800;
constexpr UINT AFX_IDW_CONTROLBAR_LAST = 0xE8FF;

class CFrameWnd : public CWnd {
public:
    // RepositionBars flags: reposDefault moves the windows; reposQuery only
    // reports the pane's rectangle in lpRectParam and moves nothing.
    enum RepositionFlags { reposDefault = 0, reposQuery = 1 };

    // Creation: a top-level frame (or a child when pParentWnd is given and
    // the style says WS_CHILD). A null class name uses "AfxFrameOrView70u".
    BOOL Create(const wchar_t* lpszClassName, const wchar_t* lpszWindowName,
                DWORD dwStyle = WS_OVERLAPPEDWINDOW, const CRect& rect = CRect(0, 0, 640, 480),
                CWnd* pParentWnd = nullptr, UINT nID = 0);

    // Layout
    // Lays out the bars (any id from 0 to 0xFFFF except the pane's) and the
    // pane. Calls while a layout runs are ignored.
    virtual void RecalcLayout(BOOL bNotify = TRUE);
    void RepositionBars(UINT nIDFirst, UINT nIDLast, UINT nIDLeftOver, UINT nFlag = reposDefault,
                        LPRECT lpRectParam = nullptr, LPCRECT lpRectClient = nullptr,
                        BOOL bStretch = TRUE);

    // Views
    CView* GetActiveView() const { return m_pViewActive; }
    // Makes pViewNew (which may be null) the active view; with bNotify the
    // old view hears of its deactivation first, then the new one of its
    // activation.
    virtual void SetActiveView(CView* pViewNew, BOOL bNotify = TRUE);

    // Idle: asks every visible control bar among the children to update.
    void UpdateControlBars(BOOL bDisableIfNoHandler = TRUE);

    // The first framework frame among hWnd's parents (not hWnd itself).
    static CFrameWnd* FindParentFrame(HWND hWnd);

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    // Implementation
    CView* m_pViewActive = nullptr;
    bool m_bInRecalcLayout = false;
};

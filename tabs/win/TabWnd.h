#pragma once
// Vu_CTabWnd: several document panes in one place, one shown at a time, with
// a tab beam along the bottom to switch between them. Created with WS_HSCROLL
// and/or WS_VSCROLL, it keeps its own scroll-bar children (ids 59904 and
// 59920) in place of the panes' scroll bars and hands their events to the
// active pane unchanged; the beam (id 59905) sits left of the horizontal
// scroll bar, parted from it by a 5-pixel divider that the user drags.
//
// Messages sent to the panes (lParam 0):
//   WM_VU_TABWND_ATTACHED   0x07C1, wParam = the pane's tab index, when attached
//   WM_VU_TABWND_ACTIVATED  0x07C4, wParam = the pane's tab index, posted when
//                           it becomes the shown pane
//   WM_VU_TABWND_DEACTIVATED 0x07C5, wParam = the pane's tab index, posted
//                           when another pane replaces it
// A pane that is a CView also becomes its frame's active view when shown.
//
// Decisions:
// - The divider starts in the middle of the strip; both sides keep
//   4 x SM_CXHTHUMB + 20 pixels while the strip has room, the beam otherwise.
//   Over the divider the cursor is the library's resize cursor (30980).
// - SwitchTab called by a program also moves the beam to the pane's tab.
// - A right-button release is posted to the parent in the parent's client
//   coordinates.
// - Creating by run-time class is CreateObject (the framework has no
//   run-time class objects).
#include "framework/win/ScrollBar.h"
#include "tabs/win/TabBeam.h"

class CDC;

constexpr UINT WM_VU_TABWND_ATTACHED = 0x07C1;
constexpr UINT WM_VU_TABWND_ACTIVATED = 0x07C4;
constexpr UINT WM_VU_TABWND_DEACTIVATED = 0x07C5;

class Vu_CTabWnd : public CWnd {
public:
    enum { kHScrollId = 59904, kVScrollId = 59920, kBeamId = 59905 };

    static Vu_CTabWnd* CreateObject() { return new Vu_CTabWnd; }

    // Creation. WS_HSCROLL / WS_VSCROLL in dwStyle ask for the scroll bars.
    // Throws the framework's resource exception when a scroll bar cannot be
    // made; FALSE when the window or the beam cannot.
    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = WS_CHILD | WS_VISIBLE, UINT nID = 0xE900);

    // Attributes
    void GetInsideRect(CRect& rect) const;
    CWnd* GetActiveWnd() const { return m_pActiveWnd; }
    Vu_CTabBeam* GetTabBeam() { return &m_TabBeam; }
    // The window's own scroll bar (SB_HORZ or SB_VERT), or null.
    CScrollBar* GetScrollBarCtrl(int nBar);
    int GetDividerPos() const { return m_nDividerPos; }

    // Operations
    // Adds a pane with a tab titled lpszTitle; the first pane becomes the
    // shown one. The pane stays the caller's and must outlive its tab.
    void AttachWnd(CWnd* pWnd, const wchar_t* lpszTitle);
    // Shows pWnd (an attached pane) in place of the active one.
    void SwitchTab(CWnd* pWnd);
    // Lays out the panes, the beam, the divider and the scroll bars.
    void RecalcLayout();

protected:
    BOOL CreateCommon(CWnd* pParentWnd, DWORD dwStyle, UINT nID);
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    // Overrideables
    // Paints the divider: one-pixel columns black, highlight, face, shadow,
    // black.
    virtual void OnDrawSplitter(CDC* pDC, const CRect& rect);

    // Message handlers
    void OnTabSwitch(int nIndex);
    void OnPaint();
    void OnLButtonDown(CPoint point);
    void OnMouseMove(CPoint point);
    void OnLButtonUp();
    BOOL OnSetCursor();
    void OnRButtonUp(WPARAM wParam, CPoint point);

    // Implementation
    CWnd* PaneOfTab(int nIndex) const;
    void ActivatePane(CWnd* pWnd);
    CRect DividerRect() const;

    BOOL m_bHasHScroll = FALSE;
    BOOL m_bHasVScroll = FALSE;
    Vu_CTabBeam m_TabBeam;         // the tabs, one per pane
    CWnd* m_pActiveWnd = nullptr;  // the pane shown
    int m_cxVScroll = 0;           // SM_CXVSCROLL
    int m_cyHScroll = 0;           // SM_CYHSCROLL
    int m_nBeamHeight = 0;         // read back from the beam
    BOOL m_bTracking = FALSE;      // the divider is being dragged
    HCURSOR m_hcurArrow = nullptr; // the resize cursor shown over the divider
    CScrollBar m_wndHScroll;
    CScrollBar m_wndVScroll;
    int m_nDividerPos = -1;   // x of the beam's right edge; -1 until set
    int m_nTrackStartX = 0;   // mouse x where the divider drag began
    int m_nTrackStartPos = 0; // divider position then
};

#pragma once
// CControlBar: the base of bars that a frame docks along one of its edges.
// A bar takes part in its parent's layout through WM_SIZEPARENT: the frame
// (CFrameWnd::RepositionBars) hands every child the rectangle still free, and
// a visible, docked bar takes its CalcFixedLayout size from the side named by
// its CBRS_ALIGN_ style, moves there and leaves the rest to the next child.
// On idle, a frame asks each bar to update its controls' state
// (OnUpdateCmdUI, reached through WM_IDLEUPDATECMDUI).
//
// What this covers: docking along one edge of a frame, fixed sizes, the
// update hook. What it leaves out: floating and dragging bars to another
// edge, borders and grippers, dock sites and bar state saved in a profile,
// tool tips and the status line for bar buttons; a bar here draws nothing of
// its own beyond its class background.
#include "framework/win/Wnd.h"

class CFrameWnd;

// Messages of the layout protocol.
constexpr UINT WM_SIZEPARENT = 0x0361;      // lParam: AFX_SIZEPARENTPARAMS*
constexpr UINT WM_IDLEUPDATECMDUI = 0x0363; // wParam: disable commands without a handler

// What WM_SIZEPARENT carries. A child that takes room moves itself (through
// hDWP when it is not null; a null hDWP only asks for sizes) and shrinks rect.
struct AFX_SIZEPARENTPARAMS {
    HDWP hDWP;      // the deferred move in progress, or null for a query
    RECT rect;      // the room still free, in the parent's client coordinates
    SIZE sizeTotal; // the room the bars took so far
    BOOL bStretch;  // bars stretch along their edge
};

// Bar styles.
enum : DWORD {
    CBRS_ALIGN_LEFT = 0x1000,
    CBRS_ALIGN_TOP = 0x2000,
    CBRS_ALIGN_RIGHT = 0x4000,
    CBRS_ALIGN_BOTTOM = 0x8000,
    CBRS_ALIGN_ANY = 0xF000,
    CBRS_ORIENT_HORZ = CBRS_ALIGN_TOP | CBRS_ALIGN_BOTTOM,
    CBRS_ORIENT_VERT = CBRS_ALIGN_LEFT | CBRS_ALIGN_RIGHT,
};

class CControlBar : public CWnd {
public:
    // Attributes
    DWORD GetBarStyle() const { return m_dwStyle; }
    void SetBarStyle(DWORD dwStyle) { m_dwStyle = dwStyle; }
    BOOL IsDocked() const { return (m_dwStyle & CBRS_ALIGN_ANY) != 0; }
    BOOL IsHorizontal() const { return (m_dwStyle & CBRS_ORIENT_HORZ) != 0; }
    // The first framework frame among the bar's parents, or null.
    CFrameWnd* GetParentFrame() const;

    // Overridables
    // The bar's size: along a stretched edge the bar asks for everything
    // (32767); otherwise nothing. Bars with a size of their own override it.
    virtual CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz);
    // Updates the state of the bar's controls from the frame's commands.
    virtual void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) = 0;
    // Registers "AfxControlBar70u" and keeps bars from painting over their
    // siblings.
    BOOL PreCreateWindow(CREATESTRUCTW& cs) override;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    // Message handlers
    // Takes the bar's room from the side of the free rectangle that its
    // alignment names; a hidden or floating bar takes none.
    virtual LRESULT OnSizeParent(WPARAM wParam, LPARAM lParam);

    // Implementation
    DWORD m_dwStyle = 0; // CBRS_ styles
};

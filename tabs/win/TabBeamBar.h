#pragma once
// AF_CTabBeamBar: a control bar docked along the bottom of a routine editor's
// frame. From left to right it holds the tabs of the open routines (a
// Vu_CTabBeam, id 1, reporting to the frame), a 10-pixel splitter that the
// user drags to share the width, and the active routine's horizontal scroll
// bar (id 2). The splitter position is kept in the host's profile, section
// "Routine Window", entry "Routine Tab Splitter", and is written on every move
// of a drag, so it survives the next start of the host.
//
// Scroll events of the scroll bar go to the active tab's AF_CTabExtra, which
// scrolls its document; the host sets the scroll bar's range and position for
// the active document through the SetHScroll... operations.
//
// A drag keeps both sides of the splitter at least 4 x SM_CXHTHUMB + 20
// pixels wide (GetMinPaneWidth). A stored position below 0 counts as unset
// and puts the splitter one minimum from the left; one that leaves less than
// the minimum on the right is drawn pulled back, and kept as stored.
//
// The forwarding operations mean what the beam's do; like the beam's, an
// index outside the tabs raises CInvalidArgException. The tab-data accessors
// answer null, 0 or FALSE instead.
//
// Decisions:
// - GetMenuTabIndex is the active tab: the beam activates a tab on a right
//   click, so the active tab is the one whose menu a context menu shows.
// - GetPopupMenu copies the tab's menu into the caller's CMenu, so the caller
//   may show and destroy it while the tab keeps its own handle.
// - GetRoutineUID asks the tab's AF_CTabExtra; 0 without one.
// - Laying out the children repaints the bar and all its children, so no
//   stale splitter or scroll bar pixels remain.
// - A click on the bar's own background (the gap beside the scroll bar) does
//   nothing.
#include "framework/win/ControlBar.h"
#include "framework/win/Menu.h"
#include "tabs/win/TabBeam.h"
#include "tabs/win/TabBeamScrollBar.h"
#include "tabs/win/TabBeamSplitter.h"
#include "tabs/win/TabExtra.h"

// The beam as the bar holds it.
using AF_CTabBar = Vu_CTabBeam;

class AF_CTabBeamBar : public CControlBar {
public:
    enum { kBeamId = 1, kScrollBarId = 2 };

    // Creation. The bar takes rect's height and its width + 2 (the frame's
    // layout gives it its place: call the frame's RecalcLayout afterwards).
    BOOL Create(DWORD dwStyle, const CRect& rect, CWnd* pParentWnd, UINT nID);

    // Tabs, as the beam does them
    void InsertTab(int bAtCurrent, const wchar_t* lpszText, AF_CTabExtra* pData, int bOwnsData,
                   int nWidth = -1, HMENU hMenu = nullptr, HBITMAP hBitmap = nullptr);
    void DeleteTab(int nIndex);
    int GetCount() const;
    void SetCurSel(int nIndex);
    int GetCurSel() const;
    int GetPrevSel() const;
    CString GetTabText(int nIndex) const;
    void SetTabText(int nIndex, const CString& text);
    void SetTabBitmap(int nIndex, HBITMAP hBitmap);
    HBITMAP GetTabBitmap(int nIndex) const;
    void SetDisplayStyle(Vu_CTabBeam::TabDisplayStyles style);
    // Sets tab nIndex's text and fits all texts; returns the tab's shown line.
    CString ShrinkTextForTab(const CString& text, int nIndex);
    // Fits all tab texts into the beam.
    void ShrinkTextForTab();
    void ScrollActiveTabIntoView();
    // Refit the texts after every insertion and deletion.
    void SetResize(BOOL bResize);

    // Tab data
    // The tab's data object, or null (no such tab, no data, or not an
    // AF_CTabExtra).
    AF_CTabExtra* GetTabExtraData(int nIndex) const;
    int GetMenuTabIndex() const;
    // FALSE when there is no such tab, the tab has no menu, or menu already
    // holds a menu.
    BOOL GetPopupMenu(int nIndex, CMenu& menu) const;
    DWORD GetRoutineUID(int nIndex) const;

    // The scroll bar
    CScrollBar* GetHScrollBar() { return &m_ScrollBar; }
    void SetHScrollRange(int nMinPos, int nMaxPos, BOOL bRedraw = TRUE);
    void GetHScrollRange(LPINT lpMinPos, LPINT lpMaxPos) const;
    int SetHScrollPos(int nPos, BOOL bRedraw = TRUE);
    int GetHScrollPos() const;
    BOOL SetHScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
    BOOL GetHScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL) const;

    // Layout
    // Places beam, splitter and scroll bar for the bar's width and the
    // splitter position, and repaints.
    void AlignAllMyChildren();
    // The stored splitter position (may differ from where the splitter is
    // drawn when the bar is too narrow for it).
    int GetSplitterPosition() const { return m_nSplitterPos; }
    static int GetMinPaneWidth();
    Vu_CTabBeam* GetTabBeam() { return &m_TabBar; }
    AF_CTabBeamSplitter* GetSplitter() { return &m_Splitter; }

    // The user clicked the scroll bar: the active tab hears of it.
    void ScrollbarActivated();

    // Overrideables
    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    // The bar has no commands of its own; the beam is asked to update.
    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) override;
    // Adds WS_CLIPCHILDREN so the bar's background does not flicker over
    // its children.
    BOOL PreCreateWindow(CREATESTRUCTW& cs) override;

    // Called by the splitter during and at the end of a drag.
    void OnSplitterMoved(int nPos);
    void OnSplitterReleased();

    // Profile location of the splitter position.
    static constexpr const wchar_t* kProfileSection = L"Routine Window";
    static constexpr const wchar_t* kProfileEntry = L"Routine Tab Splitter";

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    // Message handlers
    LRESULT OnSizeParent(WPARAM wParam, LPARAM lParam) override;
    void OnSize();
    void OnHScroll(UINT nSBCode, UINT nPos, HWND hWndScrollBar);
    void OnWindowPosChanged(const WINDOWPOS* pPos);

    // Implementation
    void RefitTabTexts();

    AF_CTabBar m_TabBar;              // the tabs
    AF_CTabBeamScrollBar m_ScrollBar; // the active document's scroll bar
    AF_CTabBeamSplitter m_Splitter;   // between the two
    BOOL m_bResize = FALSE;           // refit texts after insertions and deletions
    int m_nSplitterPos = 0;           // x of the beam's right edge, bar client coordinates
    int m_nBarHeight = 20;            // from the creation rectangle
};

#pragma once
// Vu_CTabBeam: a horizontal strip of document tabs (the beam) along the
// edge of a tabbed document window. The logic lives in VU_CTabBeamModel
// (tabs/TabBeamModel.h); this class is its window: fonts, colours, the
// scroll bar at the left (id 100), double-buffered painting, tooltips, the
// mouse, and tab reordering by OLE drag and drop inside the beam.
//
// Messages to the owner (SendMessage, lParam 0):
//   WM_VU_TAB_SELCHANGED (0x0785, new active index) and WM_VU_TAB_DBLCLK
//   (0x0786, active index) to the notify window, else the parent;
//   WM_VU_TAB_MOVED (0x0788, active index after the move) to the
//   move-notify window. Dragging tabs is enabled only while the
//   move-notify window is set and is the beam's parent; tab 0 is pinned
//   (it can neither be dragged nor be dropped on).
//
// A dialog template creates a beam with the window class "Vu_CTabBeam"
// (call RegisterClassW first): such a beam sets itself up when it is
// created and deletes itself when its window is destroyed.
//
// Decisions of this implementation:
// - Tooltip texts are asked of the top-level window holding the beam
//   (WM_NOTIFY, TTN_GETDISPINFOW, idFrom = tab index); mouse messages are
//   relayed to the tooltip from the window procedure, so hosts whose
//   message loop does not call PreTranslateMessage get tips too.
// - The scroll bar's enabled state is judged over the whole client area
//   even when only part of the beam is repainted.
// - Row 0 of the beam is drawn in black: the edge of the document, which
//   the active tab breaks through.
// - Rounded two-line tabs: each tab is a rounded box inset by 2 pixels,
//   line 1 above line 2, both centred; the active tab's line 1 is bold.
// - Text widths are remembered per font (VU_CTabTextWidthCache), so that
//   fitting after a resize measures nothing new.
#include <windows.h>

#include "framework/win/Brush.h"
#include "framework/win/Font.h"
#include "framework/win/OleDropTarget.h"
#include "framework/win/Pen.h"
#include "framework/win/ScrollBar.h"
#include "framework/win/ToolTipCtrl.h"
#include "framework/win/Wnd.h"
#include "tabs/TabBeamModel.h"
#include "tabs/TabTextWidthCache.h"
#include "tabs/win/TabInfo.h"

#define WM_VU_TAB_SELCHANGED 0x0785
#define WM_VU_TAB_DBLCLK 0x0786
#define WM_VU_TAB_MOVED 0x0788

class CDC;
class COleDataObject;

// Forwards OLE drop callbacks to the Vu_CTabBeam it is registered for.
class Vu_CTabBreamDropTarget : public COleDropTarget {
public:
    DROPEFFECT OnDragEnter(CWnd* pWnd, COleDataObject* pDataObject, DWORD dwKeyState,
                           CPoint point) override;
    DROPEFFECT OnDragOver(CWnd* pWnd, COleDataObject* pDataObject, DWORD dwKeyState,
                          CPoint point) override;
    BOOL OnDrop(CWnd* pWnd, COleDataObject* pDataObject, DROPEFFECT dropEffect,
                CPoint point) override;
    DROPEFFECT OnDropEx(CWnd* pWnd, COleDataObject* pDataObject, DROPEFFECT dropDefault,
                        DROPEFFECT dropList, CPoint point) override;
    void OnDragLeave(CWnd* pWnd) override;
    DROPEFFECT OnDragScroll(CWnd* pWnd, DWORD dwKeyState, CPoint point) override;
};

class Vu_CTabBeam : public CWnd, public VU_CTabBeamModel, private VU_ATabBeamView {
public:
    static constexpr UINT kScrollBarId = 100;
    static constexpr UINT_PTR kAutoScrollTimer = 10;
    static constexpr UINT kAutoScrollMs = 500;
    static constexpr COLORREF kBitmapKey = RGB(0xC0, 0xC0, 0xC0);

    Vu_CTabBeam();
    ~Vu_CTabBeam() override;

    // Setup
    // Registers the window class "Vu_CTabBeam" once (CS_DBLCLKS, and
    // CS_GLOBALCLASS so that a dialog template of any module finds it);
    // returns the class name, or null when registration fails.
    static const wchar_t* RegisterClassW();
    static void UnregisterClassW();
    using CWnd::Create;
    virtual BOOL Create(DWORD dwStyle, const CRect& rect, CWnd* pParentWnd, UINT nID);
    void SetDisplayStyle(TabDisplayStyles style);
    void SetNotifyWnd(CWnd* pWnd) { m_pNotifyWnd = pWnd; }
    void SetTabMoveNotifyWnd(CWnd* pWnd) { m_pMoveNotifyWnd = pWnd; }
    BOOL RegisterAsDropTarget();
    void SetupResources();
    void CreateFonts();
    void DestroyFonts();
    void CreateBrushes();

    // Tabs
    void InsertTab(int bAtCurrent, const wchar_t* text, CObject* data, int ownsData, int width,
                   HMENU menu, HBITMAP bitmap);
    Vu_CTabInfo* GetTab(int i) const { return static_cast<Vu_CTabInfo*>(GetTabRecord(i)); }
    void SetTabBitmap(int i, HBITMAP hBitmap); // the tab owns it; the tab is resized
    HBITMAP GetTabBitmap(int i) const { return GetTab(i)->m_bitmap.GetHandle(); }
    int GetHeight() const { return m_nHeight; }

    // Drawing
    void DrawTab(CDC* pDC, int i);
    void DrawAngleTab(CDC* pDC, int i);
    void DrawRoundedTab(CDC* pDC, int i);

    // Drag and drop
    void DragAndDrop(int index);
    static int GetTabIndexFromDataSource(COleDataObject* pDataObject);
    static CLIPFORMAT GetTabIdFormat();

    // Overrideables
    virtual DROPEFFECT OnDragEnter(COleDataObject* pDataObject, DWORD dwKeyState, CPoint point);
    virtual DROPEFFECT OnDragOver(COleDataObject* pDataObject, DWORD dwKeyState, CPoint point);
    virtual BOOL OnDrop(COleDataObject* pDataObject, DROPEFFECT dropEffect, CPoint point);
    virtual DROPEFFECT OnDropEx(COleDataObject* pDataObject, DROPEFFECT dropDefault,
                                DROPEFFECT dropList, CPoint point);
    virtual void OnDragLeave();
    virtual DROPEFFECT OnDragScroll(DWORD dwKeyState, CPoint point);
    virtual void OnUpdateCmdUI() {}
    // Whether a foreign drag (without a tab) activates the tab under it.
    virtual bool IsTabSwitchingOnDragAllowed() const { return false; }

    BOOL PreCreateWindow(CREATESTRUCTW& cs) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void PostNcDestroy() override;

protected:
    // Message handlers
    int OnCreate();
    void OnPaint();
    void PaintInto(CDC* pTarget, CRect clip);
    void OnMouseMove(UINT nFlags, CPoint point);
    void OnMouseLeave();
    void OnButtonDown(bool bRight, UINT nFlags, CPoint point);
    void OnLButtonDblClk(CPoint point);
    void OnHScroll(UINT nSBCode, HWND hScrollBar);
    void OnTimer(UINT_PTR nIDEvent);
    LRESULT OnToolTipShow(NMHDR* pHeader);

    // Implementation
    void FinishCreate(const CRect& rect);
    int MeasureTabText(vu::StringView text, bool bBold) override;
    CRect GetTabClientRect() const override;
    void InvalidateTabs() override;
    void ScrollTabArea(int dx) override;
    void InvalidateTabStrip(int left, int right) override;
    void TabCountChanged(int count) override;
    void TabSelChanged(int index) override;
    void TabMoved(int index) override;

    bool IsMoveNotifyParent() const;
    CWnd* NotifyTarget() const;
    void UpdateScrollBarEnabling(int lastDrawn);
    void DrawAngleTabAt(CDC* pDC, int i, int x0);
    void DrawRoundedTabAt(CDC* pDC, int i, int x0);
    void DrawTabAt(CDC* pDC, int i, int x0);
    void DrawTabBitmap(CDC* pDC, Vu_CTabInfo* pTab, CRect& textRect);
    void ShowToolTipFor(int tab);
    void HideToolTip();
    void KillAutoScrollTimer();
    static LRESULT CALLBACK ClassHookProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

    CFont* m_pBoldFont = nullptr;
    CFont* m_pNormalFont = nullptr;
    COLORREF m_crActiveText = 0;
    COLORREF m_crInactiveText = 0;
    COLORREF m_crInactiveFace = 0;
    COLORREF m_crActiveFace = 0;
    COLORREF m_crBackground = 0;
    CBrush m_brInactiveFace;
    CBrush m_brActiveFace;
    CBrush m_brBlack;
    CPen m_penShadow;
    int m_nHeight = 0;
    int m_nArrowWidth = 0;
    int m_nTextHeight = 0;      // of "t" in the normal font
    HDC m_hMeasureDC = nullptr; // memory DC for text widths
    CWnd* m_pNotifyWnd = nullptr;
    CWnd* m_pMoveNotifyWnd = nullptr;
    CScrollBar m_scrollBar;
    int m_nAutoScrollDirection = 0;
    UINT_PTR m_nAutoScrollTimer = 0;
    CToolTipCtrl m_toolTip;
    bool m_bToolHasTool = false;
    bool m_bTrackingLeave = false;
    Vu_CTabBreamDropTarget m_dropTarget;
    VU_CTabTextWidthCache m_widthCache;
    bool m_bCreatedByClassHook = false;
    bool m_bWholeInvalid = false; // invalidated since the last paint

    static int ms_nLastToolTipTab; // process-wide
};

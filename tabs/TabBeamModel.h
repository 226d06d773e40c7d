#pragma once
// VU_CTabBeamModel: the logic of a tab beam (a strip of document tabs),
// without any drawing: the tab list, widths, text shortening, the visible
// range and scrolling, activation, marks, hit testing and the drop position
// of a dragged tab. The Windows beam Vu_CTabBeam derives from it and
// supplies the view (measurements and effects, see TabBeamView.h).
//
// Geometry. Tabs sit side by side from `start` (the scroll-bar area + 1
// when the scroll bar is shown, else 0); every tab occupies width + overlap
// pixels; tab i is drawn from CalcTabOffset(i) to that + width + 2 overlap,
// so neighbours share a slant. The hit area of a tab is the part right of
// its left neighbour's slant.
//
// Text fitting. While the tabs are wider than the client area, the longest
// text (most countable characters, ties to the later tab) loses one
// character, until every text is down to 3 countable characters; if the
// tabs still overflow then, all texts are shown in full. The shortening
// order depends only on the character counts, so the fitting keeps the
// counts in an ordered set and the total width as a running sum: one
// measurement per shortened character and O(log n) for the rest.
//
// Decisions kept on purpose, for the hosts that rely on them:
// - InsertTab at the active index raises the count only while a tab drag
//   runs (it serves MoveTab during a drop); elsewhere the new tab sits in
//   the array beyond the count.
// - Deleting the active tab activates the index after it, taken before the
//   removal (so the tab after its right neighbour, or 0 after the last).
//   When the active tab was the last but one, the active index then lies
//   one past the end; drawing and hit testing treat it as no tab.
// - MoveTab re-activates at the moved tab's left edge, which outside a drag
//   lies on the left neighbour's slant (the neighbour becomes active).
// - The truncated flag changes only when a fitting shortens or restores.
// Ends that would otherwise not come:
// - A line with nothing left to shorten ("...*") hands the step to the
//   other line of its tab.
// - Stepping the active tab into view stops when Scroll cannot move.
// - With no tabs the geometry answers -1 / 0 and reads no tab.
// - A drop right of the last visible tab (no tab under it) moves nothing.
#include "framework/CString.h"
#include "framework/Point.h"
#include "framework/TypedArrays.h"
#include "tabs/TabBeamView.h"
#include "tabs/TabRecord.h"

class VU_CTabBeamModel {
public:
    enum TabDisplayStyles { AngledTabs = 0, RoundedTabs = 1 };
    enum ScrollCodes { ScrollFirst = 0, ScrollLeft = 1, ScrollRight = 2, ScrollLast = 3 };
    // Free pixels after a resize from which the full texts are tried again.
    static constexpr int kRestoreSlack = 15;

    // Construction
    explicit VU_CTabBeamModel(VU_ATabBeamView* pView = nullptr);
    virtual ~VU_CTabBeamModel(); // destroys every tab
    VU_CTabBeamModel(const VU_CTabBeamModel&) = delete;
    VU_CTabBeamModel& operator=(const VU_CTabBeamModel&) = delete;
    void SetView(VU_ATabBeamView* pView) { m_pView = pView; }

    // Attributes
    int GetCount() const { return m_nCount; }
    int GetCurSel() const { return m_nCurrent; }
    int GetPrevSel() const { return m_nPrevious; }
    int GetFirstVisible() const { return m_nFirstVisible; }
    bool IsTruncated() const { return m_bTruncated; }
    bool IsDragging() const { return m_bDragging; }
    int GetOverlap() const { return m_nOverlap; }
    int GetScrollArea() const { return m_nScrollArea; }
    TabDisplayStyles GetDisplayStyle() const { return m_nDisplayStyle; }
    // Tab i of the array; CInvalidArgException outside it.
    VU_CTabRecord* GetTabRecord(int i) const;
    // The first tab whose data is pData, else -1.
    int FindTab(const CObject* pData) const;
    CString GetTabText(int i) const; // the full text
    CString GetTabText(const CObject* pData) const;
    bool IsTabMarked(int i) const { return GetTabRecord(i)->m_bMarked != 0; }

    // Settings
    // Angled tabs overlap by 7 pixels, rounded two-line tabs by 0.
    void SetDisplayStyle(TabDisplayStyles style);
    void SetResizeTabs(int bResize) { m_bResizeTabs = bResize != 0; }
    void SetScrollArea(int width, bool bShown);

    // Tabs
    // Takes ownership of pTab (already given its text, data and extras) and
    // inserts it at the active index (bAtCurrent, with an active tab) or at
    // the end; width < 0 sizes it to its text.
    void InsertTabRecord(int bAtCurrent, VU_CTabRecord* pTab, int width);
    void InsertTab(int bAtCurrent, const WCHAR* text, CObject* data, int ownsData, int width);
    void DeleteTab(int i);
    void MoveTab(int from, int to);
    void SetTabText(int i, const CString& text);
    void SetTabText(const CObject* pData, const CString& text);

    // Selection
    void SetCurSel(int i);
    void SwitchToTab(CPoint point);
    // A click: left/right button with the Shift and Ctrl states.
    void Click(CPoint point, bool bRight, bool bShift, bool bCtrl);
    // The active index a double click at point reports, or -1.
    int DoubleClickTarget(CPoint point) const;
    void ClearMarks();

    // Geometry
    int CalcTabOffset(int i) const;
    int CalcTabMidpoint(int i) const;
    int CalcTotalTabWidth() const;
    int CalcLastVisibleTab() const;
    int CalcFirstVisibleTab(int i) const;
    int CalcTabFromOffset(int x) const;
    int CalcDestTab(int from, int& dest, CPoint point) const;
    void AdjustTabSize(int i);
    // Scrolls by code (ScrollCodes); returns the distance the tab area
    // moved (negative: to the left), 0 when nothing moved.
    int Scroll(int code);
    void ScrollActiveTabIntoView();
    // Pixels available for the tabs.
    int CalcAvailableWidth() const;
    int GetTabStart() const { return m_bScrollBarShown ? m_nScrollArea + 1 : 0; }

    // Text fitting
    void DetermineTextForTabs();
    CString DetermineTextForTabs(const CString& text, int index);
    void DetermineTextForResizeRoutine();
    bool CheckTabsForExcess() const;
    void RestoreTabsToOriginal();
    int FindLongestTab() const;
    void ShortenLongestTab();
    static void ShrinkText(CString& str) { VU_CTabRecord::ShrinkText(str); }

    // Drag and drop (the dragged tab travels as its index)
    // DROPEFFECT_MOVE-style answers: true when a move would be accepted.
    bool CanDropOnEnter(CPoint point, bool bMoveNotifyIsParent) const;
    bool CanDropOnOver(int dragged, CPoint point, bool bMoveNotifyIsParent) const;
    // Moves tab from to the place under point; true when it moved.
    bool DropTab(int from, CPoint point);
    void SetDragging(bool bDragging) { m_bDragging = bDragging; }

protected:
    // Implementation
    int Width(int i) const; // 0 for an index outside the counted tabs
    int RightEnd(int i) const { return CalcTabOffset(i) + Width(i) + 2 * m_nOverlap; }
    void MarkRange(int clicked);
    void AdjustFirstVisibleFor(int i);
    void RefitAndInvalidate();
    // Shortens one line of tab i by a character; false when neither can.
    bool ShortenTab(int i);
    // Removes tab i with the bookkeeping of DeleteTab and returns it.
    VU_CTabRecord* RemoveTab(int i);
    void Invalidate();
    CRect ClientRect() const;

    VU_ATabBeamView* m_pView = nullptr;
    CObArray m_tabs;               // VU_CTabRecord*, owned; index = display position
    int m_nCount = 0;              // counted tabs (see InsertTab)
    int m_nCurrent = -1;           // active tab
    int m_nFirstVisible = 0;       // leftmost shown tab
    int m_nPrevious = -1;          // previously active tab
    int m_nOverlap = 7;            // slant shared by neighbours
    int m_nScrollArea = 0;         // reserved at the left for the scroll bar
    bool m_bScrollBarShown = true; // tabs start right of the scroll area
    TabDisplayStyles m_nDisplayStyle = AngledTabs;
    bool m_bResizeTabs = false; // re-fit after insert and delete
    bool m_bTruncated = false;  // a text is shortened
    bool m_bDragging = false;   // a tab drag of this beam is running
};

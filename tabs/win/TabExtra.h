#pragma once
// AF_CTabExtra: what a tab of the beam bar carries for its document. The bar
// hands the document's horizontal scroll bar to the active tab's object, so
// that each document scrolls itself, and asks it for the routine it shows.
// A host derives from it and inserts its objects with the tabs
// (AF_CTabBeamBar::InsertTab); a tab whose data is not an AF_CTabExtra (or
// that has none) ignores scroll events.
#include <windows.h>

#include "framework/Object.h"

class CScrollBar;

class AF_CTabExtra : public CObject {
public:
    // Overrideables
    // A scroll event from the bar's scroll bar while this tab is active, as
    // WM_HSCROLL carries it. The base does nothing.
    virtual void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    // The user clicked the bar's scroll bar while this tab is active. The
    // base does nothing.
    virtual void ScrollbarActivated();
    // The id of the routine this tab shows; the base answers 0 (none).
    virtual DWORD GetRoutineUID() const;
};

#pragma once
// AF_CTabBeamScrollBar: the beam bar's horizontal scroll bar. It belongs to
// the active tab's document: its scroll events go to the tab through the
// bar (WM_HSCROLL reaches the bar, its parent), and a click on it tells the
// tab that its scroll bar was activated.
#include "framework/win/ScrollBar.h"

class AF_CTabBeamBar;

class AF_CTabBeamScrollBar : public CScrollBar {
public:
    // Operations
    void Initialize(AF_CTabBeamBar* pBar) { m_pBar = pBar; }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    // Implementation
    AF_CTabBeamBar* m_pBar = nullptr; // the bar that owns this scroll bar
};

#pragma once
// VU_ATabBeamView: what the tab beam's logic needs from its window. The
// Windows beam measures with GDI in its own fonts and turns the effects into
// invalidation, ScrollWindow, scroll-bar changes and messages; a test fills
// it from a fixed-width fake and records the effects.
#include "framework/Char.h"
#include "framework/Rect.h"

class VU_ATabBeamView {
public:
    virtual ~VU_ATabBeamView() = default;

    // Measurements
    // Width in pixels of text drawn in the beam's bold or normal font.
    virtual int MeasureTabText(vu::StringView text, bool bBold) = 0;
    // The beam's client rectangle.
    virtual CRect GetTabClientRect() const = 0;

    // Effects (all optional)
    virtual void InvalidateTabs() {}
    // Moves the tab area's pixels by dx (negative: to the left) and
    // repaints what that uncovers.
    virtual void ScrollTabArea(int /*dx*/) {}
    // Repaints the strip [left, right) of the tab area.
    virtual void InvalidateTabStrip(int /*left*/, int /*right*/) {}
    // The tab count changed: the scroll range is 0 .. count and the scroll
    // bar is enabled while count != 0.
    virtual void TabCountChanged(int /*count*/) {}
    // The user activated another tab.
    virtual void TabSelChanged(int /*index*/) {}
    // A dropped tab was moved; index is the active tab after the move.
    virtual void TabMoved(int /*index*/) {}
};

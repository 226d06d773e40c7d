#pragma once
// Vu_CSaveOptionsLayout: how the save-options box grows around a prompt that
// its prompt control cannot hold. The prompt is measured wrapped at the
// control's width; a longer height grows the dialog by the difference, half
// above and half below; a word longer than the control is wide (a file path)
// widens the dialog by the excess plus an allowance of two average
// characters (one each side), half to the left and half to the right. The
// prompt control grows by the same amounts and the buttons move right by
// half the added width and down by the added height, so they stay centred
// under the prompt.
#include "framework/Rect.h"
#include "framework/Size.h"

#include <vector>

class Vu_CSaveOptionsLayout {
public:
    // The width and height to add (never negative) for a prompt that needs
    // the measured rectangle in a control of the given rectangle.
    static CSize CalcGrowth(const CRect& control, const CRect& measured, int averageCharWidth);
    // Applies a growth to the dialog's window rectangle, the prompt
    // control's rectangle and the buttons' rectangles (the last two in the
    // dialog's client coordinates).
    static void Apply(const CSize& growth, CRect& dialog, CRect& prompt,
                      std::vector<CRect>& buttons);
};

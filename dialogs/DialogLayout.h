#pragma once
// AF_CDialogLayout: the arithmetic of the message box's button row and
// prompt. Dialog units become pixels with the dialog font's base units
// (baseX pixels per 4 horizontal units, baseY per 8 vertical ones, integer
// division); every button is its caption's width plus 8 pixels each side,
// or the minimum width; the row is centred at the bottom of the client
// area; a prompt wider than 55 % of the work area wraps at that width.
#include "dialogs/DialogMeasuring.h"
#include "framework/StringArray.h"
#include "framework/TypedArrays.h"

#include <vector>

class AF_CDialogLayout {
public:
    // Attributes: the constants in pixels (CalcConstants)
    int m_nMinButtonWidth = 0;
    int m_nButtonHeight = 0;
    int m_nButtonGap = 0;
    int m_nMarginX = 0;
    int m_nMarginY = 0;
    CUIntArray m_buttonWidths; // pixels, one per caption (CalcButtonWidths)

    // Layout constants in dialog units
    static constexpr int kMinButtonWidthDU = 29;
    static constexpr int kButtonHeightDU = 14;
    static constexpr int kButtonGapDU = 5;
    static constexpr int kMarginXDU = 7;
    static constexpr int kMarginYDU = 7;
    // Room left of and right of a caption inside its button.
    static constexpr int kCaptionPadding = 16;

    // Operations
    void CalcConstants(int baseX, int baseY);
    void CalcButtonWidths(const CStringArray& captions, AF_ADialogMeasuring& measuring);
    // The buttons, the gaps between them and a margin on each side.
    int CalcMinClientWidthForButtons() const;
    // The same plus the dialog frame on both sides.
    int CalcMinDlgWidthForButtons(AF_ADialogMeasuring& measuring) const;
    // One rectangle per button width, centred in a row at the bottom of a
    // client area of that size.
    std::vector<CRect> CalcButtonRects(const CSize& client) const;

    // The widest a prompt may grow: 55 % of the work area, truncated.
    static int CalcTextWidthLimit(int workAreaWidth);
    // How much a text control of that client rectangle must grow (never
    // negative) to show the text: on one line when it fits the width limit,
    // else wrapped at the limit.
    static CSize CalcTextControlDxDy(const CString& text, const CRect& controlClient,
                                     AF_ADialogMeasuring& measuring);
    // The message box's window size once its prompt grew by dxdy: never
    // narrower than the button row needs.
    CSize CalcDialogSize(const CSize& window, const CSize& dxdy,
                         AF_ADialogMeasuring& measuring) const;
};

#pragma once
// AF_ADialogMeasuring: what the dialog layouts need to know about fonts and
// the screen. The window side answers from GDI and the system metrics with
// the dialog's own font selected; a test answers from a fixed fake.
#include "framework/CString.h"
#include "framework/Rect.h"
#include "framework/Size.h"

class AF_ADialogMeasuring {
public:
    virtual ~AF_ADialogMeasuring() = default;

    // Width and height of the text on one line (GetTextExtentPoint32).
    virtual CSize GetTextExtent(const CString& text) = 0;
    // The rectangle the text needs when drawn from the top-left corner of
    // rect (DrawText with DT_CALCRECT and DT_NOPREFIX). Without wordBreak
    // only the line breaks in the text start new lines; with it the width
    // of rect is kept, lines wrap at it and tabs are expanded.
    virtual CRect CalcTextRect(const CString& text, const CRect& rect, bool wordBreak) = 0;
    // The width of the work area of the monitor nearest the application's
    // main window (the screen's width when there is no monitor).
    virtual int GetWorkAreaWidth() = 0;
    // SM_CXDLGFRAME and SM_CYCAPTION.
    virtual int GetDialogFrameWidth() = 0;
    virtual int GetCaptionHeight() = 0;
    // The font's average character width (tmAveCharWidth).
    virtual int GetAverageCharWidth() = 0;
    // The side of a small icon and the width a check box's square takes
    // before its text.
    virtual int GetSmallIconSize() = 0;
    virtual int GetCheckBoxWidth() = 0;
};

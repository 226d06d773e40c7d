#pragma once
// AF_CDialogMeasurer: the dialog layouts' measurements taken from GDI with a
// window's own font (the dialog's, or a control's) selected into its DC. The
// work area is that of the monitor nearest the host's main window, or
// nearest the measured window when the host has none.
#include <windows.h>

#include "dialogs/DialogMeasuring.h"

class AF_CDialogMeasurer : public AF_ADialogMeasuring {
public:
    explicit AF_CDialogMeasurer(HWND hWnd);
    ~AF_CDialogMeasurer() override;
    AF_CDialogMeasurer(const AF_CDialogMeasurer&) = delete;
    AF_CDialogMeasurer& operator=(const AF_CDialogMeasurer&) = delete;

    // Operations
    CSize GetTextExtent(const CString& text) override;
    CRect CalcTextRect(const CString& text, const CRect& rect, bool wordBreak) override;
    int GetWorkAreaWidth() override;
    int GetDialogFrameWidth() override;
    int GetCaptionHeight() override;
    int GetAverageCharWidth() override;
    int GetSmallIconSize() override;
    int GetCheckBoxWidth() override;

private:
    HWND m_hWnd;
    HDC m_hDC;
    HGDIOBJ m_hOldFont = nullptr;
};

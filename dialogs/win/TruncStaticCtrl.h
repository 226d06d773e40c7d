#pragma once
// AF_CTruncStaticCtrl: a static control that shows its text on one line,
// cut to its width with "..." (VuTruncateText): at the end, or with
// SetKeepEnd at the start, so the end of a path stays readable.
#include "framework/win/Static.h"

class AF_CTruncStaticCtrl : public CStatic {
public:
    // Attributes
    void SetKeepEnd(bool keepEnd) { m_bKeepEnd = keepEnd; }
    bool GetKeepEnd() const { return m_bKeepEnd; }
    // The text as the control shows it at its present width.
    CString GetDisplayedText();

protected:
    // Message handlers
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnPaint();

    bool m_bKeepEnd = false;
};

#pragma once
// VuTruncateText: a text cut to fit a width on one line, with "..." where
// the cut is. The end is cut by default; with keepEnd the start is, so the
// end of a path or a member name stays readable. A text that fits comes
// back whole; a width too small even for "..." gives an empty text.
#include "dialogs/DialogMeasuring.h"

CString VuTruncateText(const CString& text, int width, bool keepEnd,
                       AF_ADialogMeasuring& measuring);

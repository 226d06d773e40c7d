#include "dialogs/TextTruncation.h"

namespace {

// The text with "..." and `kept` characters of the original, at its start
// or (keepEnd) at its end.
CString Cut(const CString& text, int kept, bool keepEnd) {
    const CString dots(VU_T('.'), 3);
    return keepEnd ? dots + text.Right(kept) : text.Left(kept) + dots;
}

} // namespace

CString VuTruncateText(const CString& text, int width, bool keepEnd,
                       AF_ADialogMeasuring& measuring) {
    if (measuring.GetTextExtent(text).cx <= width)
        return text;
    // The widths grow with the number of kept characters: find the most
    // that still fit.
    int fits = -1;
    int lo = 0;
    int hi = text.GetLength() - 1;
    while (lo <= hi) {
        const int mid = lo + (hi - lo) / 2;
        if (measuring.GetTextExtent(Cut(text, mid, keepEnd)).cx <= width) {
            fits = mid;
            lo = mid + 1;
        } else {
            hi = mid - 1;
        }
    }
    return fits < 0 ? CString() : Cut(text, fits, keepEnd);
}

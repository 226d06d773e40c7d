#include "dialogs/SaveOptionsLayout.h"

CSize Vu_CSaveOptionsLayout::CalcGrowth(const CRect& control, const CRect& measured,
                                        int averageCharWidth) {
    CSize growth(0, 0);
    if (measured.Width() > control.Width())
        growth.cx = measured.Width() - control.Width() + 2 * averageCharWidth;
    if (measured.Height() > control.Height())
        growth.cy = measured.Height() - control.Height();
    return growth;
}

void Vu_CSaveOptionsLayout::Apply(const CSize& growth, CRect& dialog, CRect& prompt,
                                  std::vector<CRect>& buttons) {
    dialog.left -= growth.cx / 2;
    dialog.right += growth.cx - growth.cx / 2;
    dialog.top -= growth.cy / 2;
    dialog.bottom += growth.cy - growth.cy / 2;
    prompt.right += growth.cx;
    prompt.bottom += growth.cy;
    for (CRect& button : buttons)
        button.OffsetRect(growth.cx / 2, growth.cy);
}

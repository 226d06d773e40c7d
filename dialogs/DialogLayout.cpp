#include "dialogs/DialogLayout.h"

#include <algorithm>

void AF_CDialogLayout::CalcConstants(int baseX, int baseY) {
    m_nMinButtonWidth = kMinButtonWidthDU * baseX / 4;
    m_nButtonHeight = kButtonHeightDU * baseY / 8;
    m_nButtonGap = kButtonGapDU * baseX / 4;
    m_nMarginX = kMarginXDU * baseX / 4;
    m_nMarginY = kMarginYDU * baseY / 8;
}

void AF_CDialogLayout::CalcButtonWidths(const CStringArray& captions,
                                        AF_ADialogMeasuring& measuring) {
    m_buttonWidths.RemoveAll();
    for (INT_PTR i = 0; i < captions.GetSize(); ++i) {
        const int textWidth = measuring.GetTextExtent(captions[i]).cx;
        const int width = textWidth > m_nMinButtonWidth - kCaptionPadding
                              ? textWidth + kCaptionPadding
                              : m_nMinButtonWidth;
        m_buttonWidths.Add(static_cast<UINT>(width));
    }
}

int AF_CDialogLayout::CalcMinClientWidthForButtons() const {
    int width = 2 * m_nMarginX;
    for (INT_PTR i = 0; i < m_buttonWidths.GetSize(); ++i)
        width += static_cast<int>(m_buttonWidths[i]);
    if (m_buttonWidths.GetSize() > 1)
        width += static_cast<int>(m_buttonWidths.GetSize() - 1) * m_nButtonGap;
    return width;
}

int AF_CDialogLayout::CalcMinDlgWidthForButtons(AF_ADialogMeasuring& measuring) const {
    return CalcMinClientWidthForButtons() + 2 * measuring.GetDialogFrameWidth();
}

std::vector<CRect> AF_CDialogLayout::CalcButtonRects(const CSize& client) const {
    std::vector<CRect> rects;
    const int bottom = client.cy - m_nMarginY;
    const int top = bottom - m_nButtonHeight;
    int x = (client.cx - CalcMinClientWidthForButtons()) / 2 + m_nMarginX;
    for (INT_PTR i = 0; i < m_buttonWidths.GetSize(); ++i) {
        const int width = static_cast<int>(m_buttonWidths[i]);
        rects.emplace_back(x, top, x + width, bottom);
        x += width + m_nButtonGap;
    }
    return rects;
}

int AF_CDialogLayout::CalcTextWidthLimit(int workAreaWidth) {
    return static_cast<int>(static_cast<long long>(workAreaWidth) * 55 / 100);
}

CSize AF_CDialogLayout::CalcTextControlDxDy(const CString& text, const CRect& controlClient,
                                            AF_ADialogMeasuring& measuring) {
    const int limit = CalcTextWidthLimit(measuring.GetWorkAreaWidth());
    CRect needed = measuring.CalcTextRect(text, controlClient, false);
    if (needed.right > limit) {
        CRect wrapped = controlClient;
        wrapped.right = limit;
        needed = measuring.CalcTextRect(text, wrapped, true);
    }
    return CSize(std::max<int>(needed.right - controlClient.right, 0),
                 std::max<int>(needed.bottom - controlClient.bottom, 0));
}

CSize AF_CDialogLayout::CalcDialogSize(const CSize& window, const CSize& dxdy,
                                       AF_ADialogMeasuring& measuring) const {
    CSize size(window.cx + dxdy.cx, window.cy + dxdy.cy);
    size.cx = std::max<int>(size.cx, CalcMinDlgWidthForButtons(measuring));
    return size;
}

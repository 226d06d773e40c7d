#include "dialogs/ConditionActionLayout.h"

#include <algorithm>

void AF_CConditionActionLayout::CalcConstants(int baseX, int baseY) {
    AF_CDialogLayout::CalcConstants(baseX, baseY);
    m_nRowStep = kRowStepDU * baseX / 4;
    m_nSmallGap = kSmallGapDU * baseY / 8;
}

void AF_CConditionActionLayout::Calculate(const Input& in, CArray<CStaticTextItem>& labels,
                                          const CArray<CTruncStaticTextItem>& values,
                                          const CArray<CWarningItem>& warnings,
                                          AF_ADialogMeasuring& measuring) {
    CalcConstants(in.baseX, in.baseY);
    CalcButtonWidths(in.captions, measuring);
    m_labelWidths.clear();
    for (INT_PTR i = 0; i < labels.GetSize(); ++i)
        m_labelWidths.push_back(measuring.GetTextExtent(labels[i].m_strText).cx);

    // A wider "Condition:" label takes its room from the condition text.
    m_rcLabel = in.rcLabel;
    m_rcCondition = in.rcCondition;
    m_bConditionVisible = !in.conditionText.IsEmpty();
    const CSize labelGrowth = CalcTextControlDxDy(
        in.labelText, CRect(0, 0, m_rcLabel.Width(), m_rcLabel.Height()), measuring);
    if (labelGrowth.cx > 0) {
        m_rcLabel.right += labelGrowth.cx;
        m_rcCondition.left += labelGrowth.cx;
    }
    const CSize growth = CalcTextControlDxDy(
        in.conditionText, CRect(0, 0, m_rcCondition.Width(), m_rcCondition.Height()), measuring);
    m_rcCondition.right += growth.cx;
    m_rcCondition.bottom += growth.cy;

    for (INT_PTR i = 0; i < labels.GetSize(); ++i)
        labels[i].m_nLeft = labels[i].m_bGroupLabel ? m_rcLabel.left : m_rcCondition.left;
    CalcLabelTopPositions(labels);

    int widen = growth.cx;
    if (!values.IsEmpty()) {
        const int shortBy = ValueColumnLeft(labels) + m_nMinButtonWidth - m_rcCondition.right;
        if (shortBy > 0) {
            m_rcCondition.right += shortBy;
            widen += shortBy;
        }
    }
    m_windowSize.cx = std::max<int>(in.windowSize.cx + widen, CalcMinDlgWidthForButtons(measuring));
    m_clientSize.cx = in.clientSize.cx + (m_windowSize.cx - in.windowSize.cx);

    CalcValuePositions(labels, values.GetSize());
    CalcWarningPositions(labels, warnings, measuring);
    CalcPromptPosition(in.promptText, labels, measuring);
    m_windowSize.cy = GetMinDialogHeight(labels, measuring);
    m_clientSize.cy = in.clientSize.cy + (m_windowSize.cy - in.windowSize.cy);
    m_buttonRects = CalcButtonRects(m_clientSize);
}

void AF_CConditionActionLayout::CalcLabelTopPositions(CArray<CStaticTextItem>& labels) const {
    int top = m_rcCondition.bottom + 3 * m_nSmallGap;
    for (INT_PTR i = 0; i < labels.GetSize(); ++i) {
        if (i > 0) {
            top += m_nRowStep + m_nSmallGap;
            if (labels[i].m_bGroupLabel)
                top += m_nSmallGap;
        }
        labels[i].m_nTop = top;
    }
}

int AF_CConditionActionLayout::ValueColumnLeft(const CArray<CStaticTextItem>& labels) const {
    int widest = 0;
    for (INT_PTR i = 0; i < labels.GetSize(); ++i)
        if (!labels[i].m_bGroupLabel)
            widest = std::max<int>(widest, m_labelWidths[static_cast<size_t>(i)]);
    return m_rcCondition.left + widest + m_nButtonGap;
}

void AF_CConditionActionLayout::CalcValuePositions(const CArray<CStaticTextItem>& labels,
                                                   INT_PTR valueCount) {
    m_valueRects.clear();
    const int left = ValueColumnLeft(labels);
    for (INT_PTR i = 0; i < labels.GetSize(); ++i) {
        if (labels[i].m_bGroupLabel)
            continue;
        if (static_cast<INT_PTR>(m_valueRects.size()) == valueCount)
            break;
        m_valueRects.emplace_back(left, labels[i].m_nTop, m_rcCondition.right,
                                  labels[i].m_nTop + m_nRowStep);
    }
}

void AF_CConditionActionLayout::CalcWarningPositions(const CArray<CStaticTextItem>& labels,
                                                     const CArray<CWarningItem>& warnings,
                                                     AF_ADialogMeasuring& measuring) {
    m_warningPositions.clear();
    const int icon = measuring.GetSmallIconSize();
    const int left = m_rcLabel.left;
    const int textLeft = left + icon + m_nButtonGap;
    const int right = std::max<int>(m_rcCondition.right, textLeft + m_nMinButtonWidth);
    int top = (labels.IsEmpty() ? m_rcCondition.bottom
                                : labels[labels.GetUpperBound()].m_nTop + m_nRowStep) +
              3 * m_nSmallGap;
    for (INT_PTR i = 0; i < warnings.GetSize(); ++i) {
        const int box = warnings[i].m_bHasCheckbox ? measuring.GetCheckBoxWidth() : 0;
        const CRect measured = measuring.CalcTextRect(warnings[i].m_strText,
                                                      CRect(0, 0, right - textLeft - box, 0), true);
        const int textHeight = std::max<int>(measured.Height(), m_nRowStep);
        const int rowHeight = std::max<int>(icon, textHeight);
        CWarningPosition pos;
        pos.m_rcIcon = CRect(left, top, left + icon, top + icon);
        const int textTop = top + (rowHeight - textHeight) / 2;
        pos.m_rcText = CRect(textLeft, textTop, right, textTop + textHeight);
        m_warningPositions.push_back(pos);
        top += rowHeight + m_nSmallGap;
    }
}

void AF_CConditionActionLayout::CalcPromptPosition(const CString& prompt,
                                                   const CArray<CStaticTextItem>& labels,
                                                   AF_ADialogMeasuring& measuring) {
    m_rcPrompt = CRect();
    if (prompt.IsEmpty())
        return;
    int top;
    if (!m_warningPositions.empty())
        top = m_warningPositions.back().m_rcText.bottom + 2 * m_nRowStep;
    else if (!labels.IsEmpty())
        top = labels[labels.GetUpperBound()].m_nTop + 2 * m_nRowStep;
    else if (m_bConditionVisible)
        top = m_rcCondition.bottom + 2 * m_nRowStep;
    else
        top = m_rcCondition.top;
    m_rcPrompt = CRect(m_rcCondition.left, top, m_rcCondition.right, top + m_nRowStep);
    const CRect measured = measuring.CalcTextRect(prompt, m_rcPrompt, true);
    m_rcPrompt.bottom = std::max<int>(m_rcPrompt.bottom, measured.bottom);
}

int AF_CConditionActionLayout::GetMinDialogHeight(const CArray<CStaticTextItem>& labels,
                                                  AF_ADialogMeasuring& measuring) const {
    int bottom;
    if (!m_rcPrompt.IsRectEmpty())
        bottom = m_rcPrompt.bottom;
    else if (!m_warningPositions.empty())
        bottom = std::max<int>(m_warningPositions.back().m_rcText.bottom,
                               m_warningPositions.back().m_rcIcon.bottom);
    else if (!labels.IsEmpty())
        bottom = labels[labels.GetUpperBound()].m_nTop;
    else
        bottom = m_rcCondition.bottom;
    return bottom - m_rcCondition.top + m_nButtonHeight + measuring.GetCaptionHeight() +
           3 * m_nButtonHeight;
}

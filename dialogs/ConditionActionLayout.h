#pragma once
// AF_CConditionActionLayout: the whole layout of the condition-action
// dialog, computed from its texts before any control exists. From the top:
// the "Condition:" label and the condition text, the labels (group labels
// at the label's left edge, item labels at the condition text's left edge,
// their values right of the widest item label), the warnings, the prompt,
// and the centred button row of the message box.
//
// Decisions of this library:
// - A value control runs from the widest item label (plus a button gap) to
//   the condition text's right edge, and is never narrower than a minimum
//   button: when the labels leave less, the condition column (and the
//   dialog) widens so the value column gets that much.
// - Warnings start three small gaps below the last label's row (or below
//   the condition text), one under another with a small gap between them;
//   each is a small icon at the label's left edge and its text wrapped
//   between the icon and the condition text's right edge, vertically
//   centred on the icon when shorter. A check box's caption is the text.
#include "dialogs/ConditionActionItems.h"
#include "dialogs/DialogLayout.h"
#include "framework/Array.h"

#include <vector>

class AF_CConditionActionLayout : public AF_CDialogLayout {
public:
    // The template's geometry and the texts, in client pixels.
    struct Input {
        int baseX = 0, baseY = 0;
        CRect rcLabel;     // the "Condition:" label
        CRect rcCondition; // the condition text
        CSize windowSize;  // the dialog as the template makes it
        CSize clientSize;
        CString labelText;
        CString conditionText;
        CString promptText;
        CStringArray captions;
    };

    // Attributes: the two further constants in pixels
    int m_nRowStep = 0;  // 9 units converted with baseX, used as a vertical step
    int m_nSmallGap = 0; // 3 vertical units
    static constexpr int kRowStepDU = 9;
    static constexpr int kSmallGapDU = 3;

    // Results of Calculate
    CRect m_rcLabel;
    CRect m_rcCondition;
    bool m_bConditionVisible = false;
    std::vector<int> m_labelWidths;  // text width of each label
    std::vector<CRect> m_valueRects; // one per value that has an item label
    std::vector<CWarningPosition> m_warningPositions;
    CRect m_rcPrompt; // empty without a prompt
    CSize m_windowSize;
    CSize m_clientSize;
    std::vector<CRect> m_buttonRects;

    // Operations
    void CalcConstants(int baseX, int baseY);
    // Lays everything out; writes each label's left and top.
    void Calculate(const Input& in, CArray<CStaticTextItem>& labels,
                   const CArray<CTruncStaticTextItem>& values, const CArray<CWarningItem>& warnings,
                   AF_ADialogMeasuring& measuring);

    // The steps, each on the results of the ones before.
    void CalcLabelTopPositions(CArray<CStaticTextItem>& labels) const;
    void CalcValuePositions(const CArray<CStaticTextItem>& labels, INT_PTR valueCount);
    void CalcWarningPositions(const CArray<CStaticTextItem>& labels,
                              const CArray<CWarningItem>& warnings, AF_ADialogMeasuring& measuring);
    void CalcPromptPosition(const CString& prompt, const CArray<CStaticTextItem>& labels,
                            AF_ADialogMeasuring& measuring);
    int GetMinDialogHeight(const CArray<CStaticTextItem>& labels,
                           AF_ADialogMeasuring& measuring) const;

private:
    int ValueColumnLeft(const CArray<CStaticTextItem>& labels) const;
};

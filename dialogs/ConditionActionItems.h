#pragma once
// The rows of the condition-action dialog as the caller adds them: labels
// (group labels and their item labels), the values beside the item labels,
// and the warnings. The dialog lays them out (AF_CConditionActionLayout)
// and creates one control (or, for a warning, an icon and a text or check
// box) for each.
#include "framework/CString.h"
#include "framework/Rect.h"

// A group label or an item label; left and top are client pixels, set by
// the layout.
class CStaticTextItem {
public:
    CStaticTextItem() = default;
    CStaticTextItem(const CString& text, bool isGroupLabel)
        : m_strText(text), m_bGroupLabel(isGroupLabel) {}

    CString m_strText;
    bool m_bGroupLabel = false;
    int m_nLeft = 0;
    int m_nTop = 0;
};

// The value shown right of an item label, cut to its place with an
// ellipsis. With m_bKeepEnd the middle is cut instead of the end, for
// values whose end says most (paths, tag names with members).
class CTruncStaticTextItem {
public:
    CTruncStaticTextItem() = default;
    CTruncStaticTextItem(const CString& text, bool keepEnd)
        : m_strText(text), m_bKeepEnd(keepEnd) {}

    CString m_strText;
    bool m_bKeepEnd = false;
};

// A warning line: the exclamation icon, the text, and optionally a check
// box (ids 2501 to 2600) whose caption is the text.
class CWarningItem {
public:
    static constexpr unsigned int kFirstCheckboxId = 2501;
    static constexpr unsigned int kLastCheckboxId = 2600;
    static bool IsCheckboxId(unsigned int id) {
        return id >= kFirstCheckboxId && id <= kLastCheckboxId;
    }

    CString m_strText;
    bool m_bHasCheckbox = false;
    unsigned int m_nCheckboxId = 0;
    bool m_bChecked = false;
    bool m_bEnabled = true;
};

// Where a warning stands: its icon, and its text (the whole check box,
// square and caption, when it has one).
class CWarningPosition {
public:
    CRect m_rcIcon;
    CRect m_rcText;
};

#pragma once
// VU_CSummaryListBox: a flat, read-only, owner-drawn list of summary lines.
// Header lines are bold; other lines are indented under them. Rows carry
// their CSummaryNode as item data; the control owns the nodes.
//
// The window must be a LISTBOX with LBS_OWNERDRAWFIXED and without
// LBS_HASSTRINGS. Lines look the same selected or not.
#include <windows.h>

#include "framework/Array.h"
#include "framework/CString.h"
#include "framework/win/ListBox.h"
#include "tree/SummaryNode.h"

class VU_CSummaryListBox : public CListBox {
public:
    VU_CSummaryListBox() = default;
    ~VU_CSummaryListBox() override;

    // Operations
    // Appends a line; returns the row the list box reports (negative on failure).
    int AddItem(const CString& text, bool header);
    // Empty for a row outside 0..count-1.
    CString GetDisplayText(int row) const;
    // Nothing for an invalid row; the row is not repainted.
    void SetDisplayText(int row, const CString& text);
    CString GetCurSelDisplayText() const;
    BOOL IsVerticalScrollbarVisible() const;
    int GetLineCount() const { return static_cast<int>(m_nodes.GetSize()); }

    // Overridables
    virtual CSummaryNode* CreateSummaryNode(const CString& text, bool header);
    void DrawItem(LPDRAWITEMSTRUCT drawItem) override;

protected:
    CSummaryNode* GetNode(int row) const;

private:
    HFONT GetHeaderFont(HFONT base);

    CArray<CSummaryNode*, CSummaryNode*> m_nodes; // owned, in order of addition
    HFONT m_headerFont = nullptr;                 // bold copy of m_headerFontFor
    HFONT m_headerFontFor = nullptr;
};

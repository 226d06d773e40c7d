#pragma once
// One line of a summary list box: a text, printed bold when it is a header,
// indented under the previous header otherwise.
#include "framework/CString.h"

class CSummaryNode {
public:
    // Left margin of a header's text and the further indent of other lines, in pixels.
    static constexpr int cHEADER_INDENT = 3;
    static constexpr int cLINE_INDENT = 12;

    CSummaryNode(const CString& text, bool header) : m_displayText(text), m_header(header) {}
    CSummaryNode(const CSummaryNode&) = default;
    CSummaryNode& operator=(const CSummaryNode&) = default;
    virtual ~CSummaryNode() = default;

    virtual CString GetDisplayText() const { return m_displayText; }
    void SetDisplayText(const CString& text) { m_displayText = text; }
    bool IsHeader() const { return m_header; }
    void SetHeader(bool header) { m_header = header; }

    // Pixels from the row's left edge to where the text starts.
    int GetTextIndent() const { return cHEADER_INDENT + (m_header ? 0 : cLINE_INDENT); }

private:
    CString m_displayText;
    bool m_header;
};

#pragma once
// VU_CLookAheadEdit: an edit field that completes what the user types. After
// a printable character typed at the end of the text, it asks Lookup for an
// item starting with the text; when there is one, the field shows the item's
// text with the part beyond what was typed selected, so the next character
// replaces the proposal and the search goes on. Backspace, Delete and typing
// in the middle never complete. Return accepts a proposal (the caret goes to
// the end). The rule itself is VU_CLookAheadCompletion (portable).
#include "foundation/GString.h"
#include "framework/win/Edit.h"

class VU_CXmlWriter;

class VU_CLookAheadEdit : public CEdit {
public:
    // Overridables
    // Replaces text by the completed item's text and returns 1, or returns 0
    // (no completion). The base has no items and never completes.
    virtual int Lookup(CString& text);

    // Operations
    // Writes the field's element "HbxLookAheadEdit" (text, selection and the
    // proposed tail; see VU_CLookAheadCompletion).
    bool WriteXml(VU_CXmlWriter& writer) const;
    AF_GString XmlGetString() const;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    // Message handlers
    virtual LRESULT OnKeyDown(WPARAM wParam, LPARAM lParam);
    virtual LRESULT OnKeyUp(WPARAM wParam, LPARAM lParam);
    virtual LRESULT OnChar(WPARAM wParam, LPARAM lParam);
    virtual LRESULT OnSetText(WPARAM wParam, LPARAM lParam);

    // Implementation
    // Asks Lookup about the text typed so far and shows its proposal.
    void CompleteTypedText();
};

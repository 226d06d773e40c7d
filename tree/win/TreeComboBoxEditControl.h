#pragma once
// VU_CTreeComboBoxEditControl: the edit field of a tree combo box, a
// look-ahead edit that completes from the combo's items. While the tree's
// list is dropped down the field shows the selected row's text (typing moves
// the selection instead of editing freely), Return closes the list, and Left
// and Right go to the tree list, which collapses and expands.
#include "tree/win/LookAheadEdit.h"

class AF_CTreeComboBoxEx;

class VU_CTreeComboBoxEditControl : public VU_CLookAheadEdit {
public:
    // Attributes
    void SetParentCombo(AF_CTreeComboBoxEx* combo) { m_combo = combo; }
    AF_CTreeComboBoxEx* GetParentEnum() const { return m_combo; }

    // Overridables
    // With the tree: hands the text to the combo's FindStringEx (which moves
    // the selection) and proposes nothing. Without it: the first item that
    // starts with the text, which becomes the combo's selection.
    int Lookup(CString& text) override;

protected:
    // Message handlers
    LRESULT OnKeyDown(WPARAM wParam, LPARAM lParam) override;
    LRESULT OnChar(WPARAM wParam, LPARAM lParam) override;
    LRESULT OnSetText(WPARAM wParam, LPARAM lParam) override;

private:
    bool IsTreeDropped() const;

    AF_CTreeComboBoxEx* m_combo = nullptr; // not owned
    // Set while a text is being replaced by the selected row's, so that the
    // replacement itself is set normally; shared by every instance.
    static bool s_settingSelectionText;
};

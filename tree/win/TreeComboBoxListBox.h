#pragma once
// VU_CTreeComboBoxListBox: the tree list that takes over a tree combo box's
// drop-down list. A click on a parent's expand column opens or closes it and
// leaves the list dropped down; a click on a row the combo does not accept is
// ignored; releasing the button on a leaf chooses it: the list closes and the
// combo's parent gets CBN_SELENDOK. Moving onto a leaf with the keyboard
// shows it in the edit field without closing the list.
#include "tree/win/TreeListBox.h"

class AF_CTreeComboBoxEx;

class VU_CTreeComboBoxListBox : public VU_CTreeListBox {
public:
    // Attributes
    void SetParentCombo(AF_CTreeComboBoxEx* combo) { m_combo = combo; }
    AF_CTreeComboBoxEx* GetParentCombo() const { return m_combo; }
    bool IsClosingClick() const { return m_closingClick; }

    // Operations
    // The row's display text into buffer (room for GetChildItemTextLength + 1
    // units); the length, or LB_ERR for an invalid row or a null buffer.
    int GetChildItemText(int row, wchar_t* buffer) const;
    int GetChildItemTextLength(int row) const;
    // The row's image (its first), -1 when none.
    int GetItemIcon(int row) const;

    // Overridables
    // Shows as many of the new children as the drop-down holds, keeping the
    // parent on the page.
    // Also grows the dropped-down list to hold the new rows.
    void Expand(int row) override;
    // The list itself never takes the focus: it counts as focused while it
    // is dropped down, or while its combo (or the combo's edit field) has it,
    // so the row being chosen is drawn highlighted.
    BOOL HasFocus() override;
    // Headers and separators never; the rest as the combo decides.
    virtual bool IsItemAllowedToBeSelected(int row);
    BOOL PreTranslateMessage(MSG* msg) override;

    // Called by the combo after the list's LBN_SELCHANGE went its usual way.
    void OnReflectedSelChange();

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    // Message handlers
    LRESULT OnDropLButtonDown(WPARAM wParam, LPARAM lParam);
    LRESULT OnDropLButtonUp(WPARAM wParam, LPARAM lParam);
    LRESULT OnDropLButtonDblClk(WPARAM wParam, LPARAM lParam);
    LRESULT OnDropMouseMove(WPARAM wParam, LPARAM lParam);

private:
    void FitDropDownToRows();

    AF_CTreeComboBoxEx* m_combo = nullptr; // not owned
    bool m_closingClick = false;           // true only while a button release is handled
    bool m_pressSwallowed = false;         // the last press toggled or was ignored
};

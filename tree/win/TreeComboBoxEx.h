#pragma once
// AF_CTreeComboBoxEx: a combo box whose drop-down list shows a tree. The
// system combo box's list window is taken over by a VU_CTreeComboBoxListBox
// and its edit field by a VU_CTreeComboBoxEditControl. Only rows that the
// combo accepts can be chosen (by default the leaves); nodes with children
// open and close inside the drop-down.
//
// The window is a COMBOBOX with CBS_OWNERDRAWFIXED and without CBS_HASSTRINGS
// or CBS_SORT (Create sees to that; a subclassed dialog item must have them):
// the rows carry node pointers. CBS_DROPDOWN gives the edit field, CBS_DROPDOWNLIST
// none.
//
// Decisions:
// - Items are identified by handles: AddItem and InsertItem return the new
//   node's handle (-1 on failure), which later calls take as parentHandle;
//   Expand and Collapse take rows.
// - The combo accepts, by default, every row whose node is a leaf and neither
//   a header nor a separator. A host overrides IsItemAllowedToBeSelected.
// - Without the tree (UseTree(0) before the window exists or before items
//   are added) the combo is a plain owner-drawn combo box: every item is a
//   flat row in the order added, parentHandle is ignored, and the look-ahead
//   edit completes from the items. Switching while items exist keeps the
//   rows already shown, flat.
// - Searches go over the rows as the system combo box does: from the row
//   after `start` (-1: from the top) round to the rows before it, case-blind,
//   a row matching when its text starts with the key (CB_FINDSTRINGEXACT:
//   its text before the first tab equals the key). FindStringEx considers
//   leaves only and, with the tree, selects the row it finds (typing in the
//   open list moves the selection). CB_GETLBTEXT(LEN) and WM_GETTEXT(LENGTH)
//   answer the rows' display texts.
// - The drop-down is as wide as the combo; rows too long for it end in an
//   ellipsis as in the tree list box, so SetupHorzScrollExtent only turns the
//   list's horizontal extent off.
// - GetItemCount is the number of items (nodes) added, shown or not.
// - The XML description: a declaration, then "HbxComboBox" holding the edit
//   field's "HbxLookAheadEdit" (or, without an edit field, the current text in
//   "Text"), then, with the tree in use, the tree list's "HbxTreeList".
#include "foundation/GString.h"
#include "framework/win/ComboBox.h"
#include "tree/ImageIndexArray.h"
#include "tree/TreeNodeArray.h"
#include "tree/win/TreeComboBoxEditControl.h"
#include "tree/win/TreeComboBoxListBox.h"

class CImageList;
class CTreeNode;

class AF_CTreeComboBoxEx : public CComboBox {
public:
    AF_CTreeComboBoxEx();
    ~AF_CTreeComboBoxEx() override;

    BOOL Create(DWORD style, const CRect& rect, CWnd* parent, UINT id) override;
    BOOL Create(DWORD style, const CRect& rect, HWND parent, UINT id);

    // ---- Attributes -----------------------------------------------------------------
    VU_CTreeComboBoxListBox& GetListBox() { return m_listBox; }
    virtual VU_CTreeComboBoxEditControl* GetEditControl();
    bool IsUsingTree() const { return m_useTree != 0; }
    bool IsListSubclassed() const { return m_listSubclassed; }
    int GetLastAcceptedSelection() const { return m_lastAccepted; }
    const CString& GetInitialText() const { return m_initialText; }
    void SetTitleText(const CString& text) { m_titleText = text; }
    const CString& GetTitleText() const { return m_titleText; }

    // ---- Operations -----------------------------------------------------------------
    // Switches the tree on (non-zero) or off; see the file comment.
    void UseTree(int on);
    void SetImageList(CImageList* imageList);
    void DrawTreeLines(bool draw);
    void DisplayInColumns(bool columns);

    int AddItem(CString& text, VU_CImageIndexArray& images, unsigned long itemData,
                int parentHandle = -1);
    int AddItem(CString& text, int image, int selectedImage, unsigned long itemData,
                int parentHandle = -1);
    int InsertItem(CString& text, int image, int selectedImage, unsigned long itemData,
                   int parentHandle, int index);
    CTreeNode* FindNode(int handle);
    void Expand(int row);
    void Collapse(int row);
    void ResetComboBoxContents();

    // Each shows the node (opening its ancestors), makes its row the
    // selection and the edit text; with notify the parent gets CBN_SELCHANGE.
    // The row, or -1 when not found.
    int SelectItemFromItemData(unsigned long itemData, bool notify);
    int SelectItemFromString(const CString& text, bool notify);
    int SelectItemFromIndex(int row, bool notify);

    // First row (after none, from the top) whose node or a shown node below it
    // starts with the first `length` units of text, case-blind; nodes with
    // children only with matchParents. -1 when none.
    int FindNoCaseChildString(CString& text, int length, int matchParents, int unused = 0);
    virtual int FindNoCaseChildStringItem(const CString& text, CString& foundText, int length,
                                          int matchParents);
    virtual int FindStringEx(int start, const wchar_t* text);

    int GetLBItemText(int row, CString& text);
    CString GetCurSelDisplayText();
    unsigned long GetCurSelItemData();
    unsigned long GetIndexItemData(int row);
    int GetItemCount();
    void SetEditText(const CString& text);
    AF_GString XmlGetString();

    // ---- Overridables ---------------------------------------------------------------
    virtual bool IsItemAllowedToBeSelected(int row);

protected:
    // Puts the selection back to the last accepted one when the combo refuses
    // the selection it closes with; with the tree, shows the selection's text.
    virtual void HandleOnCloseUp();
    virtual void SetupHorzScrollExtent(HWND list);
    void DrawItem(LPDRAWITEMSTRUCT drawItem) override;
    void MeasureItem(LPMEASUREITEMSTRUCT measureItem) override;
    int CompareItem(LPCOMPAREITEMSTRUCT compareItem) override;

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    void PreSubclassWindow() override;

    // Message handlers
    void OnDropDown();
    void OnCloseUp();
    LRESULT OnCtlColorListBox(WPARAM wParam, LPARAM lParam);
    LRESULT OnDestroy();
    LRESULT OnFindString(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnGetLBText(WPARAM wParam, LPARAM lParam);
    LRESULT OnGetLBTextLen(WPARAM wParam);
    LRESULT OnGetText(WPARAM wParam, LPARAM lParam);
    LRESULT OnGetTextLength();

    // Implementation
    void AttachParts();
    bool SubclassList(HWND list);
    void UnsubclassList();
    bool HasEditField() const;
    CTreeNode* NodeOfRow(int row) const;
    int SelectRow(int row, bool notify);
    int FindRow(int start, const wchar_t* key, bool exact, bool leavesOnly);
    int AddFlatItem(CString& text, const VU_CImageIndexArray& images, unsigned long itemData);
    void PostToParent(int code);

private:
    VU_CTreeComboBoxListBox m_listBox;
    VU_CTreeComboBoxEditControl m_editControl;
    CTreeNodeArray m_flatNodes; // the items without the tree (owned)
    CString m_initialText;      // the selection's text when the list opened
    CString m_titleText;
    int m_useTree = 1;
    int m_lastAccepted = -1; // selection accepted at the last close-up
    int m_nextFlatHandle = 1;
    bool m_listSubclassed = false;
    bool m_openingUnseen = false; // UseTree's own opening and closing
};

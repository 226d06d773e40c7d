#pragma once
// VU_CTreeListBox: a tree of CTreeNode shown in an owner-drawn,
// single-selection list box. The list box holds the rows, one per node that
// shows (every ancestor expanded), in pre-order; each row's item data is the
// node it shows. The control owns its root nodes and through them the tree.
//
// The window must be a LISTBOX with LBS_OWNERDRAWFIXED and without
// LBS_HASSTRINGS (the rows carry node pointers, not strings); LBS_NOTIFY makes
// the list box report selection changes to the parent as usual.
//
// Rows are numbered as the list box numbers them; handles identify nodes and
// are given out from 1 upwards in order of insertion.
#include <windows.h>

#include <commctrl.h>

#include <vector>

#include "foundation/GString.h"
#include "framework/CString.h"
#include "framework/TypedArrays.h"
#include "framework/win/ImageList.h"
#include "framework/win/ListBox.h"
#include "framework/win/ToolTipCtrl.h"
#include "tree/TreeNode.h"

class CBitmap;

class VU_CTreeListBox : public CListBox {
public:
    VU_CTreeListBox();
    ~VU_CTreeListBox() override;

    // ---- Building the tree -------------------------------------------------------
    // All return the new row or -1, and give the new node's handle through
    // outHandle when it is not null. expandParent asks that the parent be
    // expanded so that the new row shows.

    // Appends under the parent (or as the last root for parentHandle -1).
    // Rows: see AppendedChildRow; without expandParent no row is inserted, the
    // parent's flag is cleared and the result is the parent's child count
    // before the addition when the parent showed no descendants, else 0.
    int AddItem(const CString& text, const VU_CImageIndexArray& images, unsigned long itemData,
                int parentHandle = -1, int* outHandle = nullptr, bool expandParent = false);
    int AddItem(const CString& text, int image, int selectedImage, unsigned long itemData,
                int parentHandle = -1, int* outHandle = nullptr, bool expandParent = false);
    // The bitmaps are added to the image list in use (masked with blue).
    int AddItem(const CString& text, CBitmap* bitmap, CBitmap* selectedBitmap,
                unsigned long itemData, int parentHandle = -1, int* outHandle = nullptr,
                bool expandParent = false);
    // As AddItem with the parent named by its row (-1: a root; another row
    // without node: -1, nothing added).
    int AddItemByIndex(const CString& text, const VU_CImageIndexArray& images,
                       unsigned long itemData, int parentRow = -1, int* outHandle = nullptr,
                       bool expandParent = false);
    int AddItemByIndex(const CString& text, int image, int selectedImage, unsigned long itemData,
                       int parentRow = -1, int* outHandle = nullptr, bool expandParent = false);
    // Inserts at position index among the siblings (see the protected InsertItem).
    int InsertItem(const CString& text, const VU_CImageIndexArray& images, unsigned long itemData,
                   int parentHandle, int index, int* outHandle = nullptr,
                   bool expandParent = false);
    int InsertItem(const CString& text, int image, int selectedImage, unsigned long itemData,
                   int parentHandle, int index, int* outHandle = nullptr,
                   bool expandParent = false);
    int InsertItemByIndex(const CString& text, const VU_CImageIndexArray& images,
                          unsigned long itemData, int parentRow, int index,
                          int* outHandle = nullptr, bool expandParent = false);
    int InsertItemByIndex(const CString& text, int image, int selectedImage, unsigned long itemData,
                          int parentRow, int index, int* outHandle = nullptr,
                          bool expandParent = false);
    // A bold root row without lines or images. Relies on handles and rows
    // coinciding, which holds while the list is built by appending only.
    int AddHeader(const CString& text);
    // A root row drawn as a line.
    int AddSeparator();

    // Removes the row's node with its subtree; false for an invalid row.
    bool DeleteItemByIndex(int row);
    // Deletion goes by row; this form does nothing.
    bool DeleteItem(int handle);
    // Empties the list and the tree; handles start at 1 again.
    bool ResetTreeContents();

    // ---- Queries ----------------------------------------------------------------------
    int GetNodeCount() const;
    CTreeNode* FindNode(int handle) const; // null for -1 and unknown handles
    CTreeNode* FindNodeFromItemData(unsigned long data) const;
    CTreeNode* GetNode(int row) const; // null for a row without node
    int GetNodeHandle(int row) const;  // -1 for an invalid row
    int GetListboxIndex(const CTreeNode* node) const;
    int GetListboxIndex(int handle) const;
    unsigned long GetItemData(int row) const; // 0 for an invalid row
    unsigned long GetCurSelItemData() const;
    int GetItemLevel(int row) const; // -1 for an invalid row
    CString GetDisplayText(int row) const;
    void SetDisplayText(int row, const CString& text);
    CString GetCurSelDisplayText() const;
    // True when the row is valid and its node has no children (a leaf).
    bool IsChildNode(int row) const;
    bool IsChildNodeSelected() const;
    BOOL IsVerticalScrollbarVisible() const;
    const CTreeNodeArray& GetRoots() const { return m_roots; }
    int GetRowCount() const;
    int GetSelectedRow() const;

    // ---- Selection ----------------------------------------------------------------------
    // Finds the node (roots in order, pre-order inside each), makes it show,
    // selects its row and, with notify, sends LBN_SELCHANGE to the parent.
    // Returns the row, -1 when not found.
    int SelectItemFromItemData(unsigned long data, bool notify);
    int SelectItemFromString(const CString& text, bool notify); // whole display text

    // First row whose node (or a shown node of its subtree) matches the node
    // search; -1 for an empty key or list.
    int FindNoCaseChildString(const CString& text, int length, int matchParents, int unused = 0,
                              int exactBeforeTab = 0);

    // ---- Expansion and scrolling ---------------------------------------------------
    virtual void Expand(int row);
    // Expands each collapsed ancestor of node, outermost first, so that the
    // node shows; the node itself keeps its state.
    virtual void ExpandThisAndParent(CTreeNode* node);
    virtual void Collapse(int row);
    void CollapseAllBranches();
    void ScrollItemIntoView(int row);

    // "HbxTreeList" with one "HbxListNode" per row.
    AF_GString XmlGetString();

    // ---- Appearance -------------------------------------------------------------------------
    void SetImageList(CImageList* imageList); // null: back to the own images
    HIMAGELIST GetImageListHandle() const;
    void DrawTreeLines(bool draw);
    void DisplayInColumns(bool columns);
    void SetLeftGutterSize(int pixels);
    int GetLeftGutterSize() const { return m_leftGutter; }
    // Column positions in average character widths from the text's start.
    void SetTabStops(const CWordArray& stops);
    // The tool tip belongs to the parent window from now on (made again if
    // it exists already).
    void UseTooltipParent();

    // ---- Overridables -------------------------------------------------------------------------
    // Row of the match; the matching node's text goes to foundText.
    virtual int FindNoCaseChildStringItem(const CString& text, CString& foundText, int length,
                                          int matchParents, int exactBeforeTab);
    virtual BOOL GetToolTipText(NMTTDISPINFOW* info, LRESULT* result);
    // Whether the selected row is drawn highlighted (COLOR_HIGHLIGHT);
    // without the focus it is drawn on COLOR_BTNFACE. Default: the window
    // has the keyboard focus.
    virtual BOOL HasFocus();
    virtual CTreeNode* CreateTreeNode(const CString& text, const VU_CImageIndexArray& images,
                                      unsigned long itemData, int handle, CTreeNode* parent);
    // TRUE when point (client coordinates) lies over the text of row;
    // textLeft receives where that text starts.
    virtual BOOL GetTextUnderPoint(const CPoint& point, int row, int& textLeft);
    // The column of text under point (given the row's text start in *column
    // on entry as x); *column receives the column index, -1 when none.
    virtual CString GetTabbedTextUnderPoint(const CPoint& point, const CString& text, int* column);
    virtual BOOL IsItemEnabled(int row, long itemData);
    virtual CString GetTooltipDisplayText(CTreeNode* node);

    void DrawItem(LPDRAWITEMSTRUCT drawItem) override;
    void MeasureItem(LPMEASUREITEMSTRUCT measureItem) override;
    BOOL PreTranslateMessage(MSG* msg) override;

    // Geometry used by drawing, hit tests and tool tips (client coordinates).
    int GetTextLeft(int row) const;
    bool IsHorizontalChildrenLineToBeDrawn(int row, int level) const;
    // Whether the row's text fits its rectangle (each column its own, with columns).
    BOOL DoesTextFitWithinRect(int row);

protected:
    // Takes the node: inserts it under the parent (or among the roots for
    // parentHandle -1) at index and gives it a handle. When it cannot be placed
    // (unknown parent, index out of range) it is deleted and -1 returned.
    // The row is the parent's row plus index when the parent shows; a root's
    // row is index plus the shown rows of the root just before it.
    int InsertItem(CTreeNode* node, int parentHandle, int index, int* outHandle, bool expandParent);

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void PreSubclassWindow() override;

    // Message handlers
    LRESULT OnCreate(WPARAM wParam, LPARAM lParam);
    LRESULT OnLButtonDown(WPARAM wParam, LPARAM lParam);
    LRESULT OnLButtonDblClk(WPARAM wParam, LPARAM lParam);
    LRESULT OnKeyDown(WPARAM wParam, LPARAM lParam);
    LRESULT OnFocusChange(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnGetText(WPARAM wParam, LPARAM lParam);
    LRESULT OnGetTextLen(WPARAM wParam, LPARAM lParam);
    LRESULT OnFindString(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnMouseMove(WPARAM wParam, LPARAM lParam);
    BOOL OnToolTipNotify(NMHDR* header, LRESULT* result);

    // Row bookkeeping on the window itself (no repaint, no notification).
    int InsertRow(int row, CTreeNode* node);
    int AppendRow(CTreeNode* node);
    void DeleteRow(int row);
    void SetSelectedRow(int row);
    void NotifySelChange();
    // Shows the node (expanding its ancestors), selects its row; -1 for null.
    int SelectNode(CTreeNode* node, bool notify);
    bool IsRowSelectable(int row) const;
    bool IsOnScrollBar(const CPoint& point) const;
    int RowFromPoint(const CPoint& point) const;
    void RedrawAll();
    // Redraw off while rows change; the outermost end repaints once.
    void BeginUpdate();
    void EndUpdate();

private:
    void CreateToolTip();
    // Whether one column of the row's text (-1: every column) fits.
    BOOL DoesColumnFit(int row, int column);
    HFONT GetControlFont() const;
    HFONT GetBoldFont();
    int GetAverageCharWidth();
    void DrawTreeLinesOfRow(HDC dc, const RECT& rc, CTreeNode* node, int row);
    void DrawExpandButton(HDC dc, const RECT& rc, CTreeNode* node);
    void DrawRowText(HDC dc, RECT rc, const CString& text, bool header);
    void DrawSeparator(HDC dc, const RECT& rc);
    std::vector<int> ColumnStartsFor(int columns);
    int AddBitmap(CBitmap* bitmap);
    void RemoveNodeFromTree(CTreeNode* node);

    // Attributes
    CImageList* m_externalImageList = nullptr; // not owned; null: the own list
    CImageList m_ownImageList;                 // bitmap 2336, 16-pixel images
    CTreeNodeArray m_roots;                    // owned
    CWordArray m_tabStops;                     // in average character widths
    wchar_t m_tooltipBuffer[502] = {};         // text handed to the tool tip
    CString m_tooltipText;                     // text of the last tool tip
    int m_tooltipRow = -1;                     // row whose tool tip shows
    int m_useTooltipParent = 0;
    CToolTipCtrl* m_tooltip = nullptr; // created with the window
    int m_updateDepth = 0;             // nested redraw suspensions
    int m_leftGutter = 0;              // blank pixels left of level 0
    bool m_drawTreeLines = true;
    bool m_secondFlag = true;      // kept for derived controls; no effect here
    HFONT m_boldFont = nullptr;    // bold copy of m_boldFontFor
    HFONT m_boldFontFor = nullptr; // the control font the bold copy was made from
    int m_avgCharWidth = 0;        // of the control font, measured lazily
    HFONT m_avgCharWidthFor = nullptr;
    bool m_displayInColumns = true;
    int m_nextHandle = 1;
};

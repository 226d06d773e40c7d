#pragma once
// The decisions of the tree combo box that need no window: what a click in
// the dropped-down tree does, which selection survives the close-up, where
// the combo hides while its list is created, and when the edit field must
// show the selected row's text. The window code asks these and acts.
#include "foundation/GString.h"
#include "framework/Char.h"

namespace vu::treecombo {

// ---- Clicks in the dropped-down tree ------------------------------------------

enum class DropClick {
    Default, // the tree list's own handling (select; the release chooses)
    Toggle,  // expand or collapse the row's node; the list stays open
    Ignore,  // a row that may not be chosen: nothing happens
};

// A button press at x on a row of `level`. The expand column of a node with
// children spans level*16 .. level*16+16 (no gutter in the drop-down); a row
// that is not selectable (header, separator, refused by the combo) swallows
// the click. Clicks on the scroll bar, or below the last row (`onRow`
// false), go to the list box as they are.
DropClick ClassifyDropClick(bool onScrollBar, bool onRow, int x, int level, bool hasChildren,
                            bool selectable);

// ---- Growing the drop-down ----------------------------------------------------

// Height for a dropped list of `rows` rows (a frame of `frame` pixels around
// them), at most maxHeight but always room for one row; never less than
// `current`, so that an open list does not shrink under the pointer.
int DropDownHeight(int rows, int itemHeight, int frame, int maxHeight, int current);

// Whether expanding a node shows its `shown` new rows best with the node at
// the top of a page of pageRows rows (they do not all fit below it).
inline bool ParentGoesToTop(int shown, int pageRows) {
    return shown + 1 > pageRows;
}

// ---- Close-up --------------------------------------------------------------------

struct CloseUp {
    int restore;      // the selection to put back, or -1 to keep the current one
    int lastAccepted; // the new last accepted selection
};

// `selection` is the combo's selection as the list closes; `allowed` whether
// the combo accepts it; `lastAccepted` the one accepted before (-1: none yet).
// A refused selection is undone when an accepted one exists; the very first
// selection is taken as accepted even when refused (there is nothing to go
// back to).
CloseUp DecideCloseUp(int selection, bool allowed, int lastAccepted);

// ---- Creating the drop-down unseen ------------------------------------------

struct HidingPlace {
    bool move; // false: open the list where the combo is
    int x, y;  // in the parent's client coordinates
};

// Where the combo waits while its list is opened and closed once so that the
// list window exists: from system version 5.1 on, off the parent's client
// area, or the parent's origin on a system whose minor version is 2; below
// 5.1 it does not move.
HidingPlace HidingPlaceFor(unsigned major, unsigned minor);

// ---- The edit field while the list is open ----------------------------------

// True when a text about to be set must be replaced by the selected row's
// text: with the tree in use and the list dropped down, the field always
// shows the selected row.
bool MustShowSelection(bool useTree, bool dropped, vu::StringView text,
                       vu::StringView selectionText);

// ---- Searching the rows -------------------------------------------------------------

// Whether a row's text answers a search for key: it starts with key
// (case-blind), or with exact, its text before the first tab equals key
// (case-blind). An empty key matches nothing.
bool MatchesKey(vu::StringView shown, vu::StringView key, bool exact);

// The first of `count` rows after `start` (-1 or out of range: from row 0),
// going round to the rows before it, that `matches`; -1 when none. The order
// of the combo box's own search messages.
template <typename Matches> int FindRowAfter(int count, int start, Matches matches) {
    if (start < 0 || start >= count)
        start = -1;
    for (int i = 1; i <= count; ++i) {
        const int row = (start + i) % count;
        if (matches(row))
            return row;
    }
    return -1;
}

// ---- XML ------------------------------------------------------------------------

// The combo's description: an XML declaration, then "HbxComboBox" holding the
// edit field's own element (editXml) or, for a combo without an edit field
// (editXml null), the current text in an element "Text"; then the tree list's
// "HbxTreeList" element (treeListXml, written as it is).
AF_GString ComboXml(const AF_GString* editXml, vu::StringView currentText,
                    const AF_GString& treeListXml);

} // namespace vu::treecombo

#pragma once
// What the check-box tree list boxes share: the width of the check column
// left of the tree, and the rows a check toggles.
#include <windows.h>

#include <vector>

namespace vu::checklist {

// SM_CXHTHUMB, read once when the library is loaded.
int GetCheckColumnWidth();
// A click left of the check column's right edge is a check click; x equal
// to the width is already on the tree.
inline bool IsCheckClick(int x) {
    return x < GetCheckColumnWidth();
}
bool IsMultipleSelection(HWND list);
// The selected rows in ascending order: with LBS_MULTIPLESEL every selected
// row, otherwise the current selection (none when there is none).
std::vector<int> GetSelectedRows(HWND list);

} // namespace vu::checklist

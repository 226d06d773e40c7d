#pragma once
// The arithmetic of the tree list box, kept apart from the window code so
// that it can be tested without a window system: where a row's expand button
// and tree line lie, how the rows move when nodes are added, how the keyboard
// steps over rows that cannot be selected, how a row scrolls into view, and
// how tab-separated text is laid out in columns.
#include "framework/Char.h"
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace vu::treelist {

constexpr int kIndent = 16;      // pixels per level
constexpr int kButtonWidth = 16; // the expand button column
constexpr WCHAR kEllipsis[] = VU_T(" ... ");

// ---- Geometry of a row ------------------------------------------------------

// Left edge of the expand button of a row at `level`.
inline int ButtonLeft(int level, int leftGutter) {
    return level * kIndent + leftGutter;
}
// The button spans ButtonLeft .. ButtonLeft + 16, both ends included.
inline bool IsOnExpandButton(int x, int level, int leftGutter) {
    const int left = ButtonLeft(level, leftGutter);
    return x >= left && x <= left + kButtonWidth;
}
// A double click toggles from the button rightwards.
inline bool IsOnButtonOrText(int x, int level, int leftGutter) {
    return x >= ButtonLeft(level, leftGutter);
}
// x of the vertical tree line of `level`.
inline int TreeLineX(int level, int leftGutter) {
    return ButtonLeft(level, leftGutter) + 7;
}
// Where the image (or, without one, the text) of a row starts.
inline int ImageLeft(int level, int leftGutter) {
    return ButtonLeft(level, leftGutter) + kButtonWidth + 2;
}

// ---- Rows of insertions --------------------------------------------------------

// Row of a node appended under a parent at `parentRow` (AddItem): `shown` and
// `prior` are the parent's shown descendants and children before the addition.
int AppendedChildRow(int parentRow, int shown, int prior);
// The result of AddItem when no row is inserted.
inline int AppendedChildOffset(int shown, int prior) {
    return shown == 0 ? prior : 0;
}
// Row of a root inserted at `index`: only the root just before it counts its
// shown descendants (`precedingShown`).
inline int InsertedRootRow(int index, int precedingShown) {
    return index == 0 ? 0 : index + precedingShown;
}

// ---- Scrolling ------------------------------------------------------------------

// New top row so that `row` comes nearer: one row per whole page between the
// top and the row. Returns `top` when the page holds no whole row.
int ScrollTopForRow(int top, int row, int rowHeight, int clientHeight);
// Whether `rows` rows of `rowHeight` overflow a client area `clientHeight` high.
bool RowsOverflow(int rows, int rowHeight, int clientHeight);

// ---- Keyboard ---------------------------------------------------------------------

struct KeyStep {
    bool swallow = false; // the key must not move the selection
    int preselect = -1;   // row to select before the list box moves one step, or -1
};
// Steps over unselectable rows (headers, separators) from `selection` in
// direction `step` (+1 down, -1 up) among `count` rows.
KeyStep StepOverUnselectable(int selection, int count, int step,
                             const std::function<bool(int row)>& unselectable);

// ---- Columns ------------------------------------------------------------------------

// Splits at tab characters the way wcstok does: runs of tabs are one
// delimiter, and leading or trailing tabs give no empty column.
std::vector<vu::StringView> SplitColumns(vu::StringView text);

// Left edge of each column, in pixels from the text start: column 0 at 0,
// column k at tabStops[k-1] average characters; columns beyond the tab stops
// continue at the last stop's spacing. A stop at or left of the previous
// column's start gives that column the spacing (so every column keeps room).
std::vector<int> ColumnStarts(int columns, const std::vector<int>& tabStops, int avgCharWidth);

// Measures the width in pixels of a piece of text.
using MeasureText = std::function<int(vu::StringView)>;

// The text to draw in `width` pixels: the whole text when it fits, otherwise
// the longest prefix followed by " ... " that fits (possibly only the marker,
// or nothing when not even the marker fits).
vu::String FitText(vu::StringView text, int width, const MeasureText& measure);

// Index of the column under x (pixels from the text start), -1 left of column 0.
int ColumnAt(int x, const std::vector<int>& starts);

} // namespace vu::treelist

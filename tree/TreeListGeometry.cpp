#include "tree/TreeListGeometry.h"

namespace vu::treelist {

int AppendedChildRow(int parentRow, int shown, int prior) {
    return parentRow + 1 + shown + AppendedChildOffset(shown, prior);
}

int ScrollTopForRow(int top, int row, int rowHeight, int clientHeight) {
    if (rowHeight <= 0)
        return top;
    const int rowsPerPage = clientHeight / rowHeight;
    if (rowsPerPage <= 0)
        return top;
    return top + (row - top) / rowsPerPage;
}

bool RowsOverflow(int rows, int rowHeight, int clientHeight) {
    if (rows <= 0)
        return false;
    if (rowHeight <= 0)
        return false;
    return rows > clientHeight / rowHeight;
}

KeyStep StepOverUnselectable(int selection, int count, int step,
                             const std::function<bool(int row)>& unselectable) {
    KeyStep result;
    if (selection < 0 || selection >= count || (step != 1 && step != -1))
        return result;
    int row = selection + step;
    while (row >= 0 && row < count && unselectable(row))
        row += step;
    const bool skipped = row != selection + step;
    if (row < 0 || row >= count) {
        // Only unselectable rows (or none) lie ahead: nothing to move to.
        result.swallow = skipped;
        return result;
    }
    if (skipped)
        result.preselect = row - step;
    return result;
}

std::vector<vu::StringView> SplitColumns(vu::StringView text) {
    std::vector<vu::StringView> parts;
    size_t pos = 0;
    while (pos < text.size()) {
        const size_t start = text.find_first_not_of(VU_T('\t'), pos);
        if (start == vu::StringView::npos)
            break;
        size_t end = text.find(VU_T('\t'), start);
        if (end == vu::StringView::npos)
            end = text.size();
        parts.push_back(text.substr(start, end - start));
        pos = end;
    }
    return parts;
}

std::vector<int> ColumnStarts(int columns, const std::vector<int>& tabStops, int avgCharWidth) {
    std::vector<int> starts;
    if (columns <= 0)
        return starts;
    const int unit = avgCharWidth > 0 ? avgCharWidth : 1;
    const int m = static_cast<int>(tabStops.size());
    // Spacing of the stops past the last given one, in characters.
    int spacing = 8;
    if (m == 1)
        spacing = tabStops[0];
    else if (m >= 2)
        spacing = tabStops[m - 1] - tabStops[m - 2];
    if (spacing <= 0)
        spacing = 8;
    starts.push_back(0);
    for (int k = 1; k < columns; ++k) {
        const int stop =
            k <= m ? tabStops[k - 1] : (m > 0 ? tabStops[m - 1] : 0) + (k - m) * spacing;
        // A stop that does not lie right of the previous column's start
        // would leave that column no room: it starts one spacing further.
        const int x = stop * unit;
        starts.push_back(x > starts.back() ? x : starts.back() + spacing * unit);
    }
    return starts;
}

vu::String FitText(vu::StringView text, int width, const MeasureText& measure) {
    if (measure(text) <= width)
        return vu::String(text);
    const vu::StringView marker(kEllipsis);
    if (measure(marker) > width)
        return vu::String();
    // Longest prefix that fits with the marker: binary search, widths grow
    // with the prefix length.
    size_t low = 0;
    size_t high = text.size();
    while (low < high) {
        const size_t mid = (low + high + 1) / 2;
        vu::String candidate(text.substr(0, mid));
        candidate += marker;
        if (measure(candidate) <= width)
            low = mid;
        else
            high = mid - 1;
    }
    vu::String fitted(text.substr(0, low));
    fitted += marker;
    return fitted;
}

int ColumnAt(int x, const std::vector<int>& starts) {
    int column = -1;
    for (size_t k = 0; k < starts.size(); ++k)
        if (x >= starts[k])
            column = static_cast<int>(k);
    return column;
}

} // namespace vu::treelist

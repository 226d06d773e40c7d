#include "tree/win/CheckColumn.h"

namespace vu::checklist {
namespace {

// Read when the DLL is loaded, as the system reports it then.
const int gCheckColumnWidth = GetSystemMetrics(SM_CXHTHUMB);

} // namespace

int GetCheckColumnWidth() {
    return gCheckColumnWidth;
}

bool IsMultipleSelection(HWND list) {
    return (GetWindowLongW(list, GWL_STYLE) & LBS_MULTIPLESEL) != 0;
}

std::vector<int> GetSelectedRows(HWND list) {
    std::vector<int> rows;
    if (list == nullptr)
        return rows;
    if (!IsMultipleSelection(list)) {
        const int row = static_cast<int>(SendMessageW(list, LB_GETCURSEL, 0, 0));
        if (row >= 0)
            rows.push_back(row);
        return rows;
    }
    const LRESULT count = SendMessageW(list, LB_GETSELCOUNT, 0, 0);
    if (count <= 0)
        return rows;
    rows.resize(static_cast<size_t>(count));
    const LRESULT got = SendMessageW(list, LB_GETSELITEMS, static_cast<WPARAM>(count),
                                     reinterpret_cast<LPARAM>(rows.data()));
    rows.resize(got > 0 ? static_cast<size_t>(got) : 0);
    return rows;
}

} // namespace vu::checklist

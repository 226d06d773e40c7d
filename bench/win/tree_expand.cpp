// Expanding a node with 10k children in a tree list box, and the XML dump of
// its rows, against the raw cost of 10k LB_INSERTSTRING calls into a plain
// owner-drawn list box in the same run. Prints the best of several rounds.
// Run under Wine: xvfb-run -a scripts/wine-run build/<dir>/bin/bench_tree_expand.exe
#include <windows.h>

#include "Clock.h"

#include "tree/win/TreeListBox.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

using vu::bench::Now;

namespace {

int kChildren = 10000; // argv[1] may change it
constexpr int kRounds = 7;
constexpr DWORD kStyle =
    WS_CHILD | WS_VISIBLE | WS_VSCROLL | LBS_OWNERDRAWFIXED | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT;

// Best time of kRounds runs of `timed`, each after an untimed `prepare`.
double Best(const std::function<void()>& prepare, const std::function<void()>& timed) {
    return vu::bench::BestOf(kRounds, prepare, timed);
}

void Pump() {
    MSG msg;
    while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageW(&msg);
}

HWND MakeParent() {
    static bool registered = false;
    if (!registered) {
        WNDCLASSW wc{};
        wc.lpfnWndProc = DefWindowProcW;
        wc.hInstance = GetModuleHandleW(nullptr);
        wc.lpszClassName = L"VuBenchParent";
        RegisterClassW(&wc);
        registered = true;
    }
    HWND parent =
        CreateWindowExW(0, L"VuBenchParent", L"bench", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 400,
                        400, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
    Pump();
    return parent;
}

// Inserts n rows after row 0 of a raw list box, as Expand does.
void RawInsert(HWND list, int n, bool redrawOff) {
    if (redrawOff)
        SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    for (int i = 0; i < n; ++i)
        SendMessageW(list, LB_INSERTSTRING, static_cast<WPARAM>(1 + i),
                     static_cast<LPARAM>(0x1000 + i));
    if (redrawOff) {
        SendMessageW(list, WM_SETREDRAW, TRUE, 0);
        InvalidateRect(list, nullptr, TRUE);
        UpdateWindow(list);
    }
}

void ResetRaw(HWND list) {
    SendMessageW(list, LB_RESETCONTENT, 0, 0);
    SendMessageW(list, LB_ADDSTRING, 0, 0x10);
    Pump();
}

} // namespace

int main(int argc, char** argv) {
    setvbuf(stdout, nullptr, _IONBF, 0);
    if (argc > 1)
        kChildren = std::max(10, std::atoi(argv[1]));
    HWND rawParent = MakeParent();
    HWND raw = CreateWindowExW(0, L"LISTBOX", nullptr, kStyle, 0, 0, 300, 320, rawParent, nullptr,
                               GetModuleHandleW(nullptr), nullptr);
    SendMessageW(raw, LB_SETITEMHEIGHT, 0, 16);

    HWND treeParent = MakeParent();
    VU_CTreeListBox tree;
    if (!tree.Create(kStyle, CRect(0, 0, 300, 320), treeParent, 1)) {
        std::printf("could not create the tree list box\n");
        return 1;
    }
    SendMessageW(tree.m_hWnd, LB_SETITEMHEIGHT, 0, 16);
    int root = -1;
    tree.AddItem(CString(L"Program Tags"), 0, 1, 1, -1, &root);
    for (int i = 0; i < kChildren; ++i) {
        const std::wstring text =
            L"Tag_" + std::wstring(1, wchar_t(L'A' + i % 26)) + L"\tDINT\tcounter & <limit>";
        tree.AddItem(CString(text.c_str()), 6, 6, static_cast<unsigned long>(i + 2), root);
    }

    std::printf("filled the tree: %d nodes\n", tree.GetNodeCount());
    const auto resetRaw = [&] { ResetRaw(raw); };
    // With redraw on, Wine repaints a visible list box on every insertion, which
    // makes the plain loop hundreds of times slower; it is timed on a few rows
    // only, for the record, and the comparison uses the redraw-off loop (what
    // Expand itself does).
    constexpr int kPlainRows = 100;
    const double rawPlain = Best(resetRaw, [&] { RawInsert(raw, kPlainRows, false); });
    const double rawBest = Best(resetRaw, [&] { RawInsert(raw, kChildren, true); });
    std::printf("raw loops done\n");

    const auto collapse = [&] {
        tree.Collapse(0);
        Pump();
    };
    const double expand = Best(collapse, [&] { tree.Expand(0); });
    const bool rowsOk = tree.GetRowCount() == kChildren + 1;

    std::printf("rows after Expand: %d (%s)\n", tree.GetRowCount(), rowsOk ? "ok" : "WRONG");
    std::printf("raw LB_INSERTSTRING, redraw on:  %8.3f ms per call (%d calls)\n",
                rawPlain * 1e3 / kPlainRows, kPlainRows);
    std::printf("raw LB_INSERTSTRING x %d, redraw off:     %8.2f ms\n", kChildren, rawBest * 1e3);
    std::printf("Expand of a node with %d children:        %8.2f ms  (%.2fx the faster raw loop)\n",
                kChildren, expand * 1e3, expand / rawBest);

    // The dump at several sizes: rows of the expanded node, then fewer.
    std::printf("XmlGetString of the shown rows (and the nodes' part alone):\n");
    double perRow10k = 0;
    for (int rows : {kChildren, kChildren / 2, kChildren / 4, kChildren / 8}) {
        SendMessageW(tree.m_hWnd, WM_SETREDRAW, FALSE, 0);
        while (tree.GetRowCount() > rows + 1)
            tree.DeleteItemByIndex(tree.GetRowCount() - 1);
        SendMessageW(tree.m_hWnd, WM_SETREDRAW, TRUE, 0);
        AF_GString xml;
        const double dump = Best([] {}, [&] { xml = tree.XmlGetString(); });
        const int shown = tree.GetRowCount();
        CTreeNode* node = tree.FindNode(root);
        const double nodes = Best([] {},
                                  [&] {
                                      CTreeNode::ResetXmlRowCounter(-1);
                                      AF_GString part = node->XmlGetString();
                                  });
        if (rows == kChildren)
            perRow10k = dump / shown;
        std::printf("  %6d rows: %8.2f ms  %6.3f us/row  %5.2fx the raw insert loop  (%zu chars; "
                    "nodes alone %.2f ms)\n",
                    shown, dump * 1e3, dump * 1e6 / shown, dump / rawBest, xml.size(), nodes * 1e3);
    }
    (void)perRow10k;
    DestroyWindow(tree.m_hWnd);
    DestroyWindow(treeParent);
    DestroyWindow(rawParent);
    return rowsOk ? 0 : 1;
}

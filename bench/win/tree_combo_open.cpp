// Opening a tree combo box's drop-down on a tree of 10k rows, against
// expanding the same 10k rows in a plain tree list box, in one run. Prints
// the best of 15 rounds of each, the rounds taking turns:
//   expand   VU_CTreeListBox::Expand of a root with 10k children (the peer);
//   open     CB_SHOWDROPDOWN on a combo whose tree already shows the 10k rows,
//            with the paint that follows;
//   system   the same combo opening on the same rows without the tree list
//            (the system's own drop-down, for scale);
//   open+expand  opening the combo collapsed, then expanding the root inside
//            the dropped list (what a user does to see the rows), and its
//            two halves.
// Run under Wine: xvfb-run -a scripts/wine-run build/windows/bin/bench_tree_combo_open.exe
#include <windows.h>

#include "Clock.h"

#include "tree/win/TreeComboBoxEx.h"
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
constexpr int kRounds = 15;
constexpr DWORD kListStyle =
    WS_CHILD | WS_VISIBLE | WS_VSCROLL | LBS_OWNERDRAWFIXED | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT;

void Pump() {
    MSG msg;
    while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageW(&msg);
}

// One timed piece of work: `prepare` (untimed) puts the controls in the
// state it starts from, `timed` runs with the paints it causes.
struct Scenario {
    std::function<void()> prepare, timed;
    double best = 1e30;
};

// Runs the scenarios in turn, kRounds times, and keeps each one's best time:
// taking turns spreads the machine's busy moments over all of them.
void RunInTurns(std::vector<Scenario*> scenarios) {
    for (int round = 0; round < kRounds; ++round)
        for (Scenario* scenario : scenarios) {
            scenario->prepare();
            Pump();
            const double start = Now();
            scenario->timed();
            Pump();
            scenario->best = std::min(scenario->best, Now() - start);
        }
}

HWND MakeParent() {
    static bool registered = false;
    if (!registered) {
        WNDCLASSW wc{};
        wc.lpfnWndProc = DefWindowProcW;
        wc.hInstance = GetModuleHandleW(nullptr);
        wc.lpszClassName = L"VuComboBenchParent";
        RegisterClassW(&wc);
        registered = true;
    }
    HWND parent =
        CreateWindowExW(0, L"VuComboBenchParent", L"bench", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0,
                        400, 400, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
    Pump();
    return parent;
}

std::wstring TagText(int i) {
    return L"Tag_" + std::wstring(1, wchar_t(L'A' + i % 26)) + std::to_wstring(i) +
           L"\tDINT\tcounter";
}

} // namespace

int main(int argc, char** argv) {
    setvbuf(stdout, nullptr, _IONBF, 0);
    if (argc > 1)
        kChildren = std::max(10, std::atoi(argv[1]));

    HWND listParent = MakeParent();
    VU_CTreeListBox tree;
    if (!tree.Create(kListStyle, CRect(0, 0, 300, 320), listParent, 1)) {
        std::printf("could not create the tree list box\n");
        return 1;
    }
    SendMessageW(tree.m_hWnd, LB_SETITEMHEIGHT, 0, 16);
    int root = -1;
    tree.AddItem(CString(L"Program Tags"), 0, 1, 1, -1, &root);
    for (int i = 0; i < kChildren; ++i)
        tree.AddItem(CString(TagText(i).c_str()), 6, 6, static_cast<unsigned long>(i + 2), root);

    HWND comboParent = MakeParent();
    AF_CTreeComboBoxEx combo;
    if (!combo.Create(CBS_DROPDOWN | WS_VISIBLE, CRect(0, 0, 300, 340), comboParent, 2) ||
        !combo.IsListSubclassed()) {
        std::printf("could not create the tree combo box\n");
        return 1;
    }
    CString rootText(L"Program Tags");
    const int comboRoot = combo.AddItem(rootText, 0, 1, 1);
    for (int i = 0; i < kChildren; ++i) {
        CString text(TagText(i).c_str());
        combo.AddItem(text, 6, 6, static_cast<unsigned long>(i + 2), comboRoot);
    }
    VU_CTreeComboBoxListBox& dropped = combo.GetListBox();
    std::printf("filled both trees: %d and %d nodes\n", tree.GetNodeCount(),
                dropped.GetNodeCount());

    const auto closeAndCollapse = [&] {
        combo.ShowDropDown(FALSE);
        dropped.Collapse(0);
    };
    Scenario expand{[&] { tree.Collapse(0); }, [&] { tree.Expand(0); }};
    Scenario open{[&] {
                      combo.ShowDropDown(FALSE);
                      dropped.Expand(0);
                  },
                  [&] { combo.ShowDropDown(TRUE); }};
    Scenario openExpand{closeAndCollapse, [&] {
                            combo.ShowDropDown(TRUE);
                            dropped.Expand(0);
                        }};
    Scenario openCollapsed{closeAndCollapse, [&] { combo.ShowDropDown(TRUE); }};
    Scenario expandInList{[&] {
                              combo.ShowDropDown(TRUE);
                              dropped.Collapse(0);
                          },
                          [&] { dropped.Expand(0); }};
    RunInTurns({&expand, &open, &openExpand, &openCollapsed, &expandInList});
    const bool listOk = tree.GetRowCount() == kChildren + 1;
    const bool openOk = combo.GetDroppedState() && combo.GetCount() == kChildren + 1;
    combo.ShowDropDown(FALSE);
    Pump();

    // The system's own drop-down on the same rows: the tree list lets go of
    // the list window and the combo draws the rows flat. Taking turns with the
    // tree list box's Expand again.
    combo.UseTree(0);
    Scenario expandAgain{expand.prepare, expand.timed};
    Scenario openPlain{[&] { combo.ShowDropDown(FALSE); }, [&] { combo.ShowDropDown(TRUE); }};
    RunInTurns({&expandAgain, &openPlain});
    combo.ShowDropDown(FALSE);
    Pump();

    std::printf("rows: list %d (%s), combo %s\n", tree.GetRowCount(), listOk ? "ok" : "WRONG",
                openOk ? "ok" : "WRONG");
    std::printf("plain tree list box, Expand of %d rows:      %8.2f ms\n", kChildren,
                expand.best * 1e3);
    std::printf("tree combo, open on %d shown rows:           %8.2f ms  (%.2fx)\n", kChildren,
                open.best * 1e3, open.best / expand.best);
    std::printf("tree combo, open collapsed + Expand in list: %8.2f ms  (%.2fx)\n",
                openExpand.best * 1e3, openExpand.best / expand.best);
    std::printf("  of which: open collapsed %.2f ms, Expand in the open list %.2f ms (%.2fx)\n",
                openCollapsed.best * 1e3, expandInList.best * 1e3, expandInList.best / expand.best);
    std::printf("system combo drop-down on the same rows, no tree: %8.2f ms  (%.2fx the Expand "
                "of %.2f ms in the same turns)\n",
                openPlain.best * 1e3, openPlain.best / expandAgain.best, expandAgain.best * 1e3);

    combo.DestroyWindow();
    DestroyWindow(tree.m_hWnd);
    DestroyWindow(listParent);
    DestroyWindow(comboParent);
    return listOk && openOk ? 0 : 1;
}

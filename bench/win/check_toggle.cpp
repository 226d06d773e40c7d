// A user's toggle of the parent of 10k nodes in the propagating check-box
// tree list box, end to end: the click in the check column (check, walk up,
// same-text pass) and the repaint of the shown rows. The peer is a plain
// pre-order walk setting the same flags followed by the same repaint, in the
// same run. Prints the best of several rounds.
// Run under Wine: xvfb-run -a scripts/wine-run build/<dir>/bin/bench_check_toggle.exe
#include <windows.h>

#include "Clock.h"

#include "tree/CheckImages.h"
#include "tree/win/ExCheckBoxTreeListBox.h"

#include <algorithm>
#include <cstdio>
#include <functional>
#include <string>

using vu::bench::Now;

namespace {

constexpr int kGroups = 100;
constexpr int kLeaves = 99; // 1 + 100 * (1 + 99) = 10,001 nodes
constexpr int kRounds = 21;
constexpr DWORD kStyle =
    WS_CHILD | WS_VISIBLE | WS_VSCROLL | LBS_OWNERDRAWFIXED | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT;

double Best(const std::function<void()>& timed) {
    return vu::bench::BestOf(
        kRounds, [] {}, timed);
}

void PlainSet(CTreeNode* node, bool state) {
    static_cast<CCheckboxTreeNode*>(node)->SetCheck(state);
    for (int i = 0; i < node->GetNumberOfChildren(); ++i)
        PlainSet(node->GetChild(i), state);
}

} // namespace

int main() {
    setvbuf(stdout, nullptr, _IONBF, 0);
    HWND parent = CreateWindowExW(0, L"STATIC", L"bench", WS_POPUP | WS_VISIBLE, 0, 0, 320, 340,
                                  nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
    VU_CExCheckBoxTreeListBox list;
    if (!list.Create(kStyle, CRect(0, 0, 300, 320), parent, 1)) {
        std::printf("could not create the list\n");
        return 1;
    }
    SendMessageW(list.m_hWnd, LB_SETITEMHEIGHT, 0, 16);
    int root = 0;
    list.AddItem(CString(L"Program"), -1, -1, 1, -1, &root);
    for (int g = 0; g < kGroups; ++g) {
        int group = 0;
        list.AddItem(CString(L"Routine"), -1, -1, 0, root, &group, true);
        for (int l = 0; l < kLeaves; ++l)
            list.AddItem(CString((L"Tag_" + std::to_wstring(l)).c_str()), -1, -1, 0, group);
    }
    for (int i = 0; i < 50; ++i)
        list.AddItem(CString(i == 25 ? L"Program" : L"Single"), -1, -1, 0);
    UpdateWindow(list.m_hWnd);
    std::printf("nodes: %d, rows: %d\n", list.GetNodeCount(), list.GetRowCount());

    const LPARAM box = MAKELPARAM(4, 8);
    const double toggle = Best([&] {
        SendMessageW(list.m_hWnd, WM_LBUTTONDOWN, MK_LBUTTON, box);
        SendMessageW(list.m_hWnd, WM_LBUTTONUP, 0, box);
        UpdateWindow(list.m_hWnd);
    });
    const int image = list.GetCheckImage(0);
    bool on = false;
    CTreeNode* top = list.FindNode(root);
    const double peer = Best([&] {
        PlainSet(top, on = !on);
        InvalidateRect(list.m_hWnd, nullptr, TRUE);
        UpdateWindow(list.m_hWnd);
    });
    const double repaint = Best([&] {
        InvalidateRect(list.m_hWnd, nullptr, TRUE);
        UpdateWindow(list.m_hWnd);
    });
    std::printf("click toggle of the 10k-node parent with repaint: %7.3f ms (image %d)\n",
                toggle * 1e3, image);
    std::printf("plain pre-order walk with the same repaint:       %7.3f ms (%.2fx)\n", peer * 1e3,
                toggle / peer);
    std::printf("repaint alone:                                    %7.3f ms\n", repaint * 1e3);
    list.DestroyWindow();
    DestroyWindow(parent);
    return 0;
}

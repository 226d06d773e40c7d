// Uses the installed package: the value types and the text engine on every
// platform, and in the Windows package a tree list box from vulib.dll.
// Prints what it checks and exits with the number of failures.
#include "foundation/Path.h"
#include "text/SearchableString.h"
#include "tree/TreeNode.h"

#ifdef _WIN32
#include "foundation/win/Library.h"
#include "tree/win/TreeListBox.h"
#endif

#include <cstdio>

namespace {

int g_failures = 0;

void Check(bool ok, const char* what) {
    std::printf("%s: %s\n", ok ? "PASS" : "FAIL", what);
    g_failures += ok ? 0 : 1;
}

} // namespace

int main() {
    AF_CPath path(VU_T("C:\\Projects\\Line1\\Main.ACD"));
    path.SetExt(VU_T("L5X"));
    Check(path.GetFullPath() == VU_T("C:\\Projects\\Line1\\Main.L5X"), "path rebuilt");

    VU_CSearchableString text(VU_T("Start motor; stop motor"));
    Check(text.FindReplace(VU_T("motor"), VU_T("pump"), TRUE) == 2, "replace all");

    CTreeNode root(VU_T("Controller"), 0, 0, 1, 1, nullptr);
    root.Add(new CTreeNode(VU_T("MainTask"), 0, 0, 2, 2, &root));
    Check(root.GetNumberOfNodes() == 2, "tree model");

#ifdef _WIN32
    Check(VuGetInstanceHandle() != nullptr, "vulib.dll loaded");
    HWND parent = CreateWindowExW(0, L"STATIC", L"consumer", WS_POPUP, 0, 0, 200, 200, nullptr,
                                  nullptr, nullptr, nullptr);
    VU_CTreeListBox list;
    list.Create(WS_CHILD | LBS_OWNERDRAWFIXED | LBS_NOTIFY, CRect(0, 0, 200, 100), parent, 1);
    list.AddItem(L"Controller", 0, 0, 1);
    Check(list.GetRowCount() == 1 && list.GetDisplayText(0) == L"Controller",
          "tree list box from vulib.dll");
    list.DestroyWindow();
    DestroyWindow(parent);
#endif
    return g_failures;
}

// A plain Win32 host that links vulib.dll: it makes its windows with the raw
// API, lets the library subclass an owner-drawn list box on its own parent
// window, and checks that DrawItem reaches the library object. Also checks
// the resource chain (the host's string wins) and the instance handle.
// Prints one line per check; the exit code is the number of failures.
#include <windows.h>

#include <cstdio>
#include <vector>

#include "foundation/win/Library.h"
#include "framework/win/Dialog.h"
#include "framework/win/DynLinkLibrary.h"
#include "framework/win/ListBox.h"

namespace {

int g_failures = 0;

void Check(bool ok, const char* what) {
    std::printf("%s: %s\n", ok ? "PASS" : "FAIL", what);
    if (!ok)
        ++g_failures;
}

class HostListBox : public CListBox {
public:
    void DrawItem(LPDRAWITEMSTRUCT dis) override { drawn.push_back(dis->itemData); }
    std::vector<ULONG_PTR> drawn;
};

// The host's own dialog template, run by the library's dialog class.
class HostDialog : public CDialog {
public:
    HostDialog() : CDialog(4000) {}
    BOOL OnInitDialog() override {
        initialised = list.SubclassDlgItem(4001, this) != FALSE;
        PostMessage(WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
        return TRUE;
    }
    HostListBox list;
    bool initialised = false;
};

LRESULT CALLBACK ParentProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    return DefWindowProcW(hWnd, message, wParam, lParam);
}

bool Same(const CString& s, const wchar_t* expected) {
    return std::wstring(s.GetString()) == expected;
}

} // namespace

int main() {
    Check(VuGetInstanceHandle() != nullptr &&
              VuGetInstanceHandle() == GetModuleHandleW(L"vulib.dll"),
          "instance handle is vulib.dll");

    CString text;
    Check(AfxLoadString(2008, text) && Same(text, L"Abbrechen"), "host string 2008 wins");
    Check(AfxLoadString(2007, text) && Same(text, L"OK"), "library string 2007 found after host");

    WNDCLASSW wc{};
    wc.lpfnWndProc = ParentProc;
    wc.hInstance = GetModuleHandleW(nullptr);
    wc.lpszClassName = L"LinkedHostParent";
    RegisterClassW(&wc);
    HWND parent = CreateWindowExW(0, L"LinkedHostParent", L"host", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                                  0, 0, 300, 200, nullptr, nullptr, wc.hInstance, nullptr);
    HWND list = CreateWindowExW(
        0, L"LISTBOX", L"", WS_CHILD | WS_VISIBLE | LBS_OWNERDRAWFIXED, 5, 5, 200, 150, parent,
        reinterpret_cast<HMENU>(static_cast<INT_PTR>(10)), wc.hInstance, nullptr);
    Check(parent != nullptr && list != nullptr, "plain windows created");

    HostListBox box;
    Check(box.SubclassWindow(list) != FALSE, "library subclasses the host's list box");
    for (ULONG_PTR data : {101u, 102u, 103u})
        SendMessageW(list, LB_ADDSTRING, 0, static_cast<LPARAM>(data));
    box.drawn.clear();
    RedrawWindow(list, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    Check(box.drawn == std::vector<ULONG_PTR>({101u, 102u, 103u}), "DrawItem called for each row");

    DestroyWindow(parent);
    Check(box.m_hWnd == nullptr, "object released with the window");

    HostDialog dialog;
    Check(dialog.DoModal() == IDOK && dialog.initialised, "host dialog template found and run");
    Check(dialog.list.m_hWnd == nullptr, "dialog's list box released with the dialog");
    return g_failures;
}

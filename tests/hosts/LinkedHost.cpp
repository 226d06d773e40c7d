// A plain Win32 host that links vulib.dll and carries its own resources: the
// instance handle, the resource chain (the host's string wins) and a dialog
// template of the host run by the library's dialog class, which subclasses
// its list box. (Owner-draw on a plain parent is checked in the framework's
// suite, which links the library too.) Prints one line per check; the exit code is the
// number of failures.
#include <windows.h>

#include <cstdio>

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

// The host's own dialog template, run by the library's dialog class.
class HostDialog : public CDialog {
public:
    HostDialog() : CDialog(4000) {}
    BOOL OnInitDialog() override {
        initialised = list.SubclassDlgItem(4001, this) != FALSE;
        PostMessage(WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
        return TRUE;
    }
    CListBox list;
    bool initialised = false;
};

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

    HostDialog dialog;
    Check(dialog.DoModal() == IDOK && dialog.initialised, "host dialog template found and run");
    Check(dialog.list.m_hWnd == nullptr, "dialog's list box released with the dialog");
    return g_failures;
}

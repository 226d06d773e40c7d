// A host written the way Win32 hosts are: L"..." literals, LPCWSTR and
// wchar_t buffers handed to the library's strings, paths, searchable string
// and tree list box with no cast anywhere, and a plain window procedure as
// the list's parent. Prints one line per check; the exit code is the number
// of failures.
#include <windows.h>

#include <cstdio>
#include <cwchar>
#include <string>

#include "foundation/GString.h"
#include "foundation/Path.h"
#include "foundation/PathIterator.h"
#include "foundation/UStr.h"
#include "text/SearchableString.h"
#include "tree/win/TreeListBox.h"

namespace {

int g_failures = 0;

void Check(bool ok, const char* what) {
    std::printf("%s: %s\n", ok ? "PASS" : "FAIL", what);
    if (!ok)
        ++g_failures;
}

bool Same(LPCWSTR a, LPCWSTR b) {
    return a != nullptr && b != nullptr && wcscmp(a, b) == 0;
}

// A routine name as the host's own API would hand it over.
LPCWSTR RoutineName() {
    static const wchar_t name[] = L"MainRoutine";
    return name;
}

void Strings() {
    CString routine(L"Main");
    routine += L"Routine";
    Check(routine == RoutineName() && routine.Compare(L"MainRoutine") == 0, "CString from L\"\"");
    LPCWSTR view = routine; // the host reads the text in place
    Check(Same(view, L"MainRoutine") && routine.Find(L"Rout") == 4, "operator LPCWSTR, Find");

    CString tag;
    tag.Format(L"%s_%d:%s", L"Motor", 7, routine);
    tag.GetBuffer(32)[0] = L'm'; // written as wchar_t*
    tag.ReleaseBuffer();
    Check(tag == L"motor_7:MainRoutine", "Format with wide arguments, GetBuffer as wchar_t*");

    AF_GString g(L"  Tag_1  ");
    g.trim(L" ");
    Check(g == L"Tag_1", "AF_GString from L\"\"");

    AF_CUStr wide(L"Motor");
    const char* narrow = wide;
    AF_CUStr back(narrow);
    LPCWSTR again = back;
    Check(std::string(narrow) == "Motor" && Same(again, L"Motor"), "AF_CUStr both ways");
}

void Paths() {
    AF_CPath path(L"C:\\Projects\\Line1\\Main.ACD");
    Check(path.GetDrive() == L"C" && path.GetDir() == L"\\Projects\\Line1", "AF_CPath parts");
    path.SetExt(L"L5X");
    LPCWSTR full = path;
    Check(Same(full, L"C:\\Projects\\Line1\\Main.L5X"), "AF_CPath rebuilt, read as LPCWSTR");

    AF_CPathIterator it(L"C:\\Projects\\Line1");
    Check(Same(it.First(), L"C:\\"), "AF_CPathIterator");
}

void Search() {
    VU_CSearchableString text(L"Start motor; stop Motor");
    Check(text.FindReplace(L"motor", L"pump", TRUE) == 1 && text == L"Start pump; stop Motor",
          "VU_CSearchableString::FindReplace");
}

// The list's parent: a plain window procedure that counts selection changes.
int g_selectionChanges = 0;

LRESULT CALLBACK ParentProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_COMMAND && HIWORD(wParam) == LBN_SELCHANGE)
        ++g_selectionChanges;
    return DefWindowProcW(hWnd, message, wParam, lParam);
}

void TreeListBox() {
    WNDCLASSW wc{};
    wc.lpfnWndProc = ParentProc;
    wc.hInstance = GetModuleHandleW(nullptr);
    wc.lpszClassName = L"WideHostParent";
    RegisterClassW(&wc);
    HWND parent = CreateWindowExW(0, L"WideHostParent", L"Wide host", WS_OVERLAPPEDWINDOW, 0, 0,
                                  400, 300, nullptr, nullptr, wc.hInstance, nullptr);

    VU_CTreeListBox tree;
    const DWORD style = WS_CHILD | WS_VISIBLE | WS_VSCROLL | LBS_OWNERDRAWFIXED | LBS_NOTIFY;
    Check(tree.Create(style, CRect(0, 0, 300, 200), parent, 100) != FALSE, "tree list box created");
    int controller = -1;
    tree.AddItem(L"Controller", 0, 0, 1, -1, &controller);
    tree.AddItem(RoutineName(), 0, 0, 3, controller, nullptr, true);
    Check(tree.GetDisplayText(1) == RoutineName(), "rows from wide texts");
    Check(tree.SelectItemFromString(L"MainRoutine", true) == 1 && g_selectionChanges == 1,
          "select by wide text, the parent told");
    AF_GString xml = tree.XmlGetString();
    Check(xml.find(L"MainRoutine") != AF_GString::npos, "XML dump read as wide text");
    tree.DestroyWindow();
    DestroyWindow(parent);
}

} // namespace

int main() {
    Strings();
    Paths();
    Search();
    TreeListBox();
    std::printf("%d failed\n", g_failures);
    return g_failures;
}

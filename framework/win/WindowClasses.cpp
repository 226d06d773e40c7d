#include "framework/win/WindowClasses.h"

#include <cwchar>
#include <set>
#include <string>

#include "framework/win/DynLinkLibrary.h"

namespace {

// TRUE if the class exists in the library's module or could be registered.
BOOL RegisterOnce(const wchar_t* name, UINT style, HCURSOR cursor, HBRUSH background, HICON icon) {
    HINSTANCE instance = AfxGetInstanceHandle();
    WNDCLASSW existing{};
    if (GetClassInfoW(instance, name, &existing))
        return TRUE;
    WNDCLASSW wc{};
    wc.style = style;
    wc.lpfnWndProc = DefWindowProcW;
    wc.hInstance = instance;
    wc.hCursor = cursor;
    wc.hbrBackground = background;
    wc.hIcon = icon;
    wc.lpszClassName = name;
    return RegisterClassW(&wc) != 0;
}

HBRUSH SysColorBrush(int index) {
    return reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(index + 1));
}

} // namespace

BOOL AfxDeferRegisterClass(UINT fToRegister) {
    HCURSOR arrow = LoadCursorW(nullptr, IDC_ARROW);
    BOOL ok = TRUE;
    if (fToRegister & AFX_WNDCONTROLBAR_REG)
        ok &= RegisterOnce(AFX_WNDCONTROLBAR, CS_DBLCLKS, arrow, SysColorBrush(COLOR_BTNFACE),
                           nullptr);
    if (fToRegister & AFX_WNDMDIFRAME_REG)
        ok &=
            RegisterOnce(AFX_WNDMDIFRAME, CS_DBLCLKS, arrow, SysColorBrush(COLOR_BTNFACE), nullptr);
    if (fToRegister & AFX_WNDFRAMEORVIEW_REG)
        ok &= RegisterOnce(AFX_WNDFRAMEORVIEW, CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, arrow,
                           SysColorBrush(COLOR_WINDOW), nullptr);
    return ok;
}

const wchar_t* AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground,
                                   HICON hIcon) {
    static std::set<std::wstring> names; // stable storage for the returned names
    wchar_t name[96];
    swprintf(name, 96, L"Afx:%p:%x:%p:%p:%p", static_cast<void*>(AfxGetInstanceHandle()),
             nClassStyle, static_cast<void*>(hCursor), static_cast<void*>(hbrBackground),
             static_cast<void*>(hIcon));
    if (!RegisterOnce(name, nClassStyle, hCursor, hbrBackground, hIcon))
        return nullptr;
    return names.insert(name).first->c_str();
}

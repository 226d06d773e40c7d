#pragma once
// The framework's own window classes, registered on first use with
// DefWindowProcW as their procedure (framework objects subclass their
// windows at creation), all in the library's module.
//
//   "AfxControlBar70u"   control bars: double clicks, arrow cursor,
//                        button-face background.
//   "AfxMDIFrame70u"     frames that host panes (the tab window): double
//                        clicks, arrow cursor, button-face background so that
//                        whatever the panes leave uncovered looks like a frame.
//   "AfxFrameOrView70u"  frames and views: double clicks, redrawn on any
//                        resize, arrow cursor, window background.
//
// AfxRegisterWndClass makes (once) a class for any other combination of
// class style, cursor, background brush and icon, and returns its name.
#include <windows.h>

constexpr const wchar_t* AFX_WNDCONTROLBAR = L"AfxControlBar70u";
constexpr const wchar_t* AFX_WNDMDIFRAME = L"AfxMDIFrame70u";
constexpr const wchar_t* AFX_WNDFRAMEORVIEW = L"AfxFrameOrView70u";

enum : UINT {
    AFX_WNDCONTROLBAR_REG = 0x0002,
    AFX_WNDMDIFRAME_REG = 0x0004,
    AFX_WNDFRAMEORVIEW_REG = 0x0008,
};

// Registers the classes named by the flags that are not registered yet;
// FALSE if any registration failed.
BOOL AfxDeferRegisterClass(UINT fToRegister);

// The name of a class with these attributes, registered on the first call;
// null if the registration failed. The name stays valid for the process.
const wchar_t* AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = nullptr,
                                   HBRUSH hbrBackground = nullptr, HICON hIcon = nullptr);

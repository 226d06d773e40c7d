#pragma once
// Hands the notifications that Windows sends to a parent window about one of
// its children (owner-draw, WM_COMMAND from controls, WM_NOTIFY, WM_CTLCOLOR*,
// scroll bars) to the child's framework object. One reflector watches each
// parent that has framework children, through a message filter, so the
// parent needs no framework of its own.
//
// A child that claims a notification ends it with its result; when that
// result is 0 the parent's own procedure runs as well (a filter cannot end a
// message with 0), which matches what a plain parent answers by default.
#include "foundation/win/MessageFilter.h"

class CWnd;

class CChildReflector final : public VU_CMessageFilter {
public:
    // Reference-counted per parent: the first child starts the watch, the
    // last one stops it.
    static void Acquire(HWND hWndParent);
    static void Release(HWND hWndParent);
    static BOOL IsWatching(HWND hWndParent);
    // Makes the reflector the framework's parent watch; the library does so
    // when it loads.
    static void Install();

    // The child window that a parent notification is about, or null.
    static HWND ChildOfNotification(HWND hWndParent, UINT message, WPARAM wParam, LPARAM lParam);

    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT AfterMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    explicit CChildReflector(HWND hWndParent);
    ~CChildReflector();

    HWND m_hWndParent;
    int m_nRefs = 0;
};

#pragma once
// VU_CMessageFilter lets any number of independent objects watch and
// intercept the messages of one window without the window's class knowing.
// Each filter subclasses the window again; one process-wide registry maps a
// window to its filters, newest first, so the oldest filter (the last one)
// holds the window's own procedure.
//
// Dispatch: OnMessage runs on each filter, newest first; the first non-zero
// result ends the message with that value. Otherwise the window's own
// procedure runs, then AfterMessage on each filter; the first non-zero
// result stops that walk and the message's result becomes 1.
//
// All of it runs on the window's thread; the registry is not synchronised.
#include <windows.h>

#include "framework/Array.h"
#include "framework/Types.h"

class VU_CMessageFilter;

// The filters of one window, newest first. Does not own the filters.
class VU_CMessageFilterArray : public CArray<VU_CMessageFilter*, VU_CMessageFilter*> {
public:
    virtual ~VU_CMessageFilterArray() = default;
};

class VU_CMessageFilter {
public:
    VU_CMessageFilter() = default;
    // Copies both fields as they stand; the copy is not registered.
    VU_CMessageFilter(const VU_CMessageFilter&) = default;
    VU_CMessageFilter& operator=(const VU_CMessageFilter&) = default;

    // Operations
    // Starts watching a window (a null or dead handle leaves the filter
    // idle). A filter that already listens is registered a second time;
    // call StopListening first.
    void ListenTo(HWND hWnd);
    // Stops watching; does nothing when not listening.
    void StopListening();
    BOOL IsHooked() const { return m_pfnPrevWndProc != nullptr; }
    HWND GetHookedWindow() const { return m_hWnd; }

    // The one procedure that every watched window gets.
    static LRESULT CALLBACK WindowProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
    // TRUE and the window's filters if it has any.
    static BOOL Lookup(HWND hWnd, VU_CMessageFilterArray** ppArray);
    // Number of windows with filters (diagnostics and tests).
    static int GetWatchedWindowCount();

    // Overridables
    // Before the window's own procedure; non-zero ends the message.
    virtual LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    // After the window's own procedure; non-zero makes the result 1.
    virtual LRESULT AfterMessage(UINT message, WPARAM wParam, LPARAM lParam);

protected:
    ~VU_CMessageFilter();

private:
    HWND m_hWnd = nullptr;              // the watched window; null when idle
    WNDPROC m_pfnPrevWndProc = nullptr; // procedure installed before this filter
};

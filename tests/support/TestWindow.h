#pragma once
// Windows test helpers: a plain Win32 window (no framework) that records the
// messages its own procedure receives and can be told what to answer, and a
// small message pump.
#include <windows.h>

#include <functional>
#include <map>
#include <vector>

namespace vutest {

struct ReceivedMessage {
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
};

// Registers a window class once per name.
inline void RegisterOnce(const wchar_t* name, WNDPROC proc) {
    WNDCLASSW wc{};
    if (GetClassInfoW(GetModuleHandleW(nullptr), name, &wc))
        return;
    wc.lpfnWndProc = proc;
    wc.hInstance = GetModuleHandleW(nullptr);
    wc.lpszClassName = name;
    wc.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    wc.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    RegisterClassW(&wc);
}

class PlainWindow {
public:
    // A hidden top-level window, or a child of parent when given.
    explicit PlainWindow(HWND parent = nullptr, DWORD style = 0, int id = 0) {
        RegisterOnce(L"VuTestPlainWindow", &PlainWindow::Proc);
        hwnd = CreateWindowExW(
            0, L"VuTestPlainWindow", L"plain",
            style | (parent != nullptr ? WS_CHILD : WS_OVERLAPPEDWINDOW), 0, 0, 300, 200, parent,
            parent != nullptr ? reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)) : nullptr,
            GetModuleHandleW(nullptr), this);
    }
    ~PlainWindow() {
        if (hwnd != nullptr && IsWindow(hwnd))
            DestroyWindow(hwnd);
    }
    PlainWindow(const PlainWindow&) = delete;
    PlainWindow& operator=(const PlainWindow&) = delete;

    // How often the window's own procedure saw a message.
    int Count(UINT message) const {
        int n = 0;
        for (const ReceivedMessage& m : received)
            n += m.message == message ? 1 : 0;
        return n;
    }
    void Answer(UINT message, LRESULT result) { answers[message] = result; }

    static WNDPROC OwnProcedure() { return &PlainWindow::Proc; }

    HWND hwnd = nullptr;
    std::vector<ReceivedMessage> received;
    std::map<UINT, LRESULT> answers;
    // Runs first for every message; returning true ends it with *result.
    std::function<bool(UINT, WPARAM, LPARAM, LRESULT*)> onMessage;

private:
    static LRESULT CALLBACK Proc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_NCCREATE)
            SetWindowLongPtrW(hWnd, GWLP_USERDATA,
                              reinterpret_cast<LONG_PTR>(
                                  reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams));
        auto* self = reinterpret_cast<PlainWindow*>(GetWindowLongPtrW(hWnd, GWLP_USERDATA));
        if (self == nullptr)
            return DefWindowProcW(hWnd, message, wParam, lParam);
        self->received.push_back({message, wParam, lParam});
        LRESULT result = 0;
        if (self->onMessage && self->onMessage(message, wParam, lParam, &result))
            return result;
        if (auto it = self->answers.find(message); it != self->answers.end())
            return it->second;
        if (message == WM_NCDESTROY)
            self->hwnd = nullptr;
        return DefWindowProcW(hWnd, message, wParam, lParam);
    }
};

// A visible top-level window that lives as long as the test program. Under
// Xvfb, hiding or destroying a visible top-level window makes Wine wait two
// seconds for a window manager that is not there, so tests that need
// painting put their (plain, child) parent windows on this stage.
inline HWND Stage() {
    static HWND stage = [] {
        RegisterOnce(L"VuTestStage", DefWindowProcW);
        return CreateWindowExW(0, L"VuTestStage", L"stage", WS_POPUP | WS_VISIBLE, 0, 0, 640, 480,
                               nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
    }();
    return stage;
}

// Dispatches everything waiting in the thread's queue.
inline void PumpPending() {
    MSG msg;
    while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
    }
}

// Drops everything waiting (including a pending quit).
inline void DrainQueue() {
    MSG msg;
    while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
    }
}

// Milliseconds from a fixed point, with sub-tick resolution.
inline double NowMs() {
    LARGE_INTEGER frequency, counter;
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&counter);
    return 1000.0 * static_cast<double>(counter.QuadPart) / static_cast<double>(frequency.QuadPart);
}

} // namespace vutest

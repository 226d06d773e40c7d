#pragma once
// A plain Win32 parent window for the tree controls' tests: it records the
// WM_COMMAND notifications it is sent, and helpers drive a control with real
// messages and read its rows back.
#include "support/TestWindow.h"

#include <algorithm>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace treetest {

struct Command {
    int id;
    int code;
    HWND from;
};

class ParentWindow {
public:
    ParentWindow(int width = 400, int height = 300) {
        vutest::RegisterOnce(L"VuTreeTestParent", &ParentWindow::Proc);
        m_hWnd = CreateWindowExW(0, L"VuTreeTestParent", L"tree test", WS_OVERLAPPEDWINDOW, 0, 0,
                                 width, height, nullptr, nullptr, GetModuleHandleW(nullptr), this);
    }
    ~ParentWindow() {
        if (IsWindow(m_hWnd))
            DestroyWindow(m_hWnd);
    }
    ParentWindow(const ParentWindow&) = delete;
    ParentWindow& operator=(const ParentWindow&) = delete;

    HWND Handle() const { return m_hWnd; }
    std::vector<Command> commands;
    std::function<void(const Command&)> onCommand; // runs inside the notification

    int CountCommands(int code) const {
        return static_cast<int>(std::count_if(commands.begin(), commands.end(),
                                              [code](const Command& c) { return c.code == code; }));
    }

private:
    static LRESULT CALLBACK Proc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_NCCREATE)
            SetWindowLongPtrW(hWnd, GWLP_USERDATA,
                              reinterpret_cast<LONG_PTR>(
                                  reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams));
        auto* self = reinterpret_cast<ParentWindow*>(GetWindowLongPtrW(hWnd, GWLP_USERDATA));
        if (message == WM_COMMAND && self != nullptr) {
            self->commands.push_back(
                {LOWORD(wParam), HIWORD(wParam), reinterpret_cast<HWND>(lParam)});
            if (self->onCommand)
                self->onCommand(self->commands.back());
        }
        return DefWindowProcW(hWnd, message, wParam, lParam);
    }

    HWND m_hWnd = nullptr;
};

inline void PumpMessages() {
    vutest::PumpPending();
}

inline void Key(HWND hWnd, UINT vk) {
    SendMessageW(hWnd, WM_KEYDOWN, vk, 1);
    SendMessageW(hWnd, WM_KEYUP, vk, 0xC0000001);
}

inline void Click(HWND hWnd, int x, int y) {
    SendMessageW(hWnd, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    SendMessageW(hWnd, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
}

inline void DoubleClick(HWND hWnd, int x, int y) {
    SendMessageW(hWnd, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(x, y));
    SendMessageW(hWnd, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
}

// The rows as the list box reports them through LB_GETTEXT.
inline std::vector<std::wstring> RowTexts(HWND hWnd) {
    std::vector<std::wstring> rows(static_cast<size_t>(SendMessageW(hWnd, LB_GETCOUNT, 0, 0)));
    for (size_t i = 0; i < rows.size(); ++i) {
        const LRESULT length = SendMessageW(hWnd, LB_GETTEXTLEN, i, 0);
        rows[i].resize(static_cast<size_t>(std::max<LRESULT>(length, 0)) + 1);
        SendMessageW(hWnd, LB_GETTEXT, i, reinterpret_cast<LPARAM>(rows[i].data()));
        rows[i] = length < 0 ? L"<error>" : rows[i].substr(0, static_cast<size_t>(length));
    }
    return rows;
}

// A 32-bit top-down picture of a window's client area, drawn by the window
// itself through WM_PRINTCLIENT.
class ClientPicture {
public:
    explicit ClientPicture(HWND hWnd) {
        RECT rc{};
        GetClientRect(hWnd, &rc);
        m_width = rc.right;
        m_height = rc.bottom;
        BITMAPINFO bi{{sizeof(BITMAPINFOHEADER), m_width, -m_height, 1, 32, BI_RGB, 0, 0, 0, 0, 0},
                      {}};
        m_dc = CreateCompatibleDC(nullptr);
        m_bitmap = CreateDIBSection(m_dc, &bi, DIB_RGB_COLORS, reinterpret_cast<void**>(&m_bits),
                                    nullptr, 0);
        m_old = SelectObject(m_dc, m_bitmap);
        FillRect(m_dc, &rc, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
        SendMessageW(hWnd, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(m_dc),
                     PRF_CLIENT | PRF_ERASEBKGND);
        GdiFlush();
    }
    ~ClientPicture() {
        SelectObject(m_dc, m_old);
        DeleteObject(m_bitmap);
        DeleteDC(m_dc);
    }
    ClientPicture(const ClientPicture&) = delete;
    ClientPicture& operator=(const ClientPicture&) = delete;

    int Width() const { return m_width; }
    int Height() const { return m_height; }
    // As a COLORREF (red in the low byte).
    COLORREF At(int x, int y) const {
        if (x < 0 || y < 0 || x >= m_width || y >= m_height)
            return CLR_INVALID;
        const DWORD p = m_bits[y * m_width + x];
        return RGB((p >> 16) & 0xFF, (p >> 8) & 0xFF, p & 0xFF);
    }
    // The first and last x from `from` on whose colour in rows [top, bottom)
    // differs from background; -1 if none.
    std::pair<int, int> InkSpan(int top, int bottom, int from, COLORREF background) const {
        int first = -1, last = -1;
        for (int x = from; x < m_width; ++x)
            for (int y = top; y < bottom; ++y)
                if (At(x, y) != background) {
                    if (first < 0)
                        first = x;
                    last = x;
                }
        return {first, last};
    }
    bool HasColour(int left, int top, int right, int bottom, COLORREF colour) const {
        for (int y = top; y < bottom; ++y)
            for (int x = left; x < right; ++x)
                if (At(x, y) == colour)
                    return true;
        return false;
    }

private:
    int m_width = 0;
    int m_height = 0;
    HDC m_dc = nullptr;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_old = nullptr;
    DWORD* m_bits = nullptr;
};

} // namespace treetest

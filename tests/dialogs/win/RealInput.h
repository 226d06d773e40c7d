#pragma once
// Real keyboard and mouse input through the X server: xdotool, started from
// the test under Wine (a Unix program runs from CreateProcess by its Z:
// path), on a second thread while the test's own thread runs the modal
// dialog. Screen coordinates of a Wine window are the X root's (no window
// manager), and the keyboard focus follows the pointer, so every step
// first parks the pointer inside the dialog.
#include <windows.h>

#include <functional>
#include <string>
#include <thread>

namespace vutest {

// Runs xdotool scripts. Wine starts a Unix program slowly (about 2 s) and
// without a process to wait for, so one shell started for the whole run
// takes each script from a file the test drops into a directory, in order
// (xdotool runs a script's chained commands in order). The shell ends when
// the runner goes, or after 15 minutes.
class XdotoolRunner {
public:
    static XdotoolRunner& Instance() {
        static XdotoolRunner runner;
        return runner;
    }
    bool Run(const std::wstring& args) {
        const std::wstring name = m_dir + L"\\" + std::to_wstring(m_next++);
        return Write(name + L".tmp", args) &&
               MoveFileW((name + L".tmp").c_str(), (name + L".cmd").c_str());
    }
    ~XdotoolRunner() { Write(m_dir + L"\\quit", L""); }

private:
    XdotoolRunner() {
        const std::wstring unixDir =
            L"/tmp/vulib-xdotool-" + std::to_wstring(GetCurrentProcessId());
        m_dir = L"Z:" + unixDir;
        for (wchar_t& c : m_dir)
            c = c == L'/' ? L'\\' : c;
        CreateDirectoryW(m_dir.c_str(), nullptr);
        Write(m_dir + L"\\run.sh", L"d=$(dirname \"$0\"); end=$(($(date +%s) + 900))\n"
                                   L"while [ ! -e \"$d/quit\" ] && [ $(date +%s) -lt $end ]; do\n"
                                   L"  for f in \"$d\"/*.cmd; do [ -e \"$f\" ] || continue; "
                                   L"xdotool $(cat \"$f\"); rm -f \"$f\"; done\n"
                                   L"  sleep 0.02\ndone\nrm -rf \"$d\"\n");
        std::wstring command = L"Z:\\bin\\sh " + unixDir + L"/run.sh";
        STARTUPINFOW si{};
        si.cb = sizeof(si);
        PROCESS_INFORMATION pi{};
        if (CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                           &si, &pi)) {
            CloseHandle(pi.hThread);
            CloseHandle(pi.hProcess);
        }
    }
    static bool Write(const std::wstring& path, const std::wstring& text) {
        HANDLE h = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                               FILE_ATTRIBUTE_NORMAL, nullptr);
        if (h == INVALID_HANDLE_VALUE)
            return false;
        const std::string bytes(text.begin(), text.end()); // ASCII only
        DWORD written = 0;
        const BOOL ok =
            WriteFile(h, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
        CloseHandle(h);
        return ok && written == bytes.size();
    }
    std::wstring m_dir;
    int m_next = 0;
};

inline bool Xdotool(const std::wstring& args) {
    return XdotoolRunner::Instance().Run(args);
}

// The centre of a window in screen coordinates, as xdotool arguments.
inline std::wstring CentreOf(HWND hWnd) {
    RECT rc{};
    GetWindowRect(hWnd, &rc);
    return std::to_wstring((rc.left + rc.right) / 2) + L" " +
           std::to_wstring((rc.top + rc.bottom) / 2);
}

// Waits (up to 10 s) for a visible top-level window with this title.
inline HWND WaitForWindow(const wchar_t* title) {
    for (int i = 0; i < 500; ++i) {
        HWND hWnd = FindWindowW(nullptr, title);
        if (hWnd != nullptr && IsWindowVisible(hWnd))
            return hWnd;
        Sleep(20);
    }
    return nullptr;
}

// Once the window titled `title` shows, runs on a second thread the
// xdotool script that `script` makes from the dialog's handle. Joined on
// destruction.
class InputScript {
public:
    // Visible is not yet mapped on the X server: input sent at once may go
    // to the window below.
    static constexpr DWORD kSettleMs = 250;

    InputScript(const wchar_t* title, std::function<std::wstring(HWND)> script)
        : m_thread([t = std::wstring(title), script] {
              if (HWND hDlg = WaitForWindow(t.c_str())) {
                  Sleep(kSettleMs);
                  Xdotool(script(hDlg));
              }
          }) {}
    ~InputScript() { m_thread.join(); }
    InputScript(const InputScript&) = delete;
    InputScript& operator=(const InputScript&) = delete;

private:
    std::thread m_thread;
};

// Script steps, each with the pointer parked in the window first (the
// focus follows it) and a pause after it: keys ("Escape", "alt+a") in the
// dialog, or a click on a control.
inline std::wstring KeyIn(HWND hDlg, const wchar_t* keys) {
    return L"mousemove " + CentreOf(hDlg) + L" sleep 0.05 key " + keys + L" sleep 0.2 ";
}
inline std::wstring ClickOn(HWND hCtrl) {
    return L"mousemove " + CentreOf(hCtrl) + L" sleep 0.05 click 1 sleep 0.2 ";
}

} // namespace vutest

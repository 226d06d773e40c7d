#pragma once
// Real keyboard and mouse input through the X server, and what the dialog
// tests record. xdotool is a Unix program that Wine starts from its Z: path
// without a process to wait for, so a dialog's whole script is one call
// (chained commands run in order), started by a second thread once the
// dialog shows. Wine's screen coordinates are the X root's and the focus
// follows the pointer: every step first parks the pointer where it acts.
#include <windows.h>

#include "foundation/win/HostServices.h"
#include "framework/Rect.h"
#include "framework/TypedArrays.h"

#include <string>
#include <thread>
#include <vector>

namespace vutest {

// Steps separated by spaces: a number clicks the control with that id,
// anything else is a key ("Escape", "alt+n") pressed in the dialog.
inline std::wstring Script(HWND hDlg, const std::wstring& steps) {
    std::wstring script, step;
    for (size_t i = 0; i <= steps.size(); ++i) {
        if (i < steps.size() && steps[i] != L' ') {
            step += steps[i];
            continue;
        }
        HWND target = iswdigit(step[0]) ? GetDlgItem(hDlg, std::stoi(step)) : hDlg;
        RECT rc{};
        GetWindowRect(target, &rc);
        script += L"mousemove " + std::to_wstring((rc.left + rc.right) / 2) + L" " +
                  std::to_wstring((rc.top + rc.bottom) / 2) + L" sleep 0.05 " +
                  (target == hDlg ? L"key " + step : std::wstring(L"click 1")) + L" sleep 0.2 ";
        step.clear();
    }
    return script;
}

// Runs the script in the visible window titled `title` once it has had a
// moment to reach the X server.
class InputScript {
public:
    InputScript(const wchar_t* title, const wchar_t* steps)
        : m_thread([t = std::wstring(title), s = std::wstring(steps)] {
              for (int i = 0; i < 500; ++i, Sleep(20)) {
                  HWND hDlg = FindWindowW(nullptr, t.c_str());
                  if (hDlg == nullptr || !IsWindowVisible(hDlg))
                      continue;
                  Sleep(250);
                  std::wstring command = L"Z:\\usr\\bin\\xdotool " + Script(hDlg, s);
                  STARTUPINFOW si{};
                  si.cb = sizeof(si);
                  PROCESS_INFORMATION pi{};
                  if (CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr,
                                     nullptr, &si, &pi)) {
                      CloseHandle(pi.hThread);
                      CloseHandle(pi.hProcess);
                  }
                  return;
              }
          }) {}
    ~InputScript() { m_thread.join(); }

private:
    std::thread m_thread;
};

// Host services that record every context-help request while installed.
struct HelpRecorder : VU_CHostServices {
    HelpRecorder() : previous(VuSetHostServices(this)) {}
    ~HelpRecorder() override { VuSetHostServices(previous); }
    BOOL ShowContextHelp(DWORD dwContext, HWND) override {
        contexts.push_back(dwContext);
        return TRUE;
    }
    VU_CHostServices* previous;
    std::vector<DWORD> contexts;
};

// A press or click callback that records its ids and refuses one.
struct CallbackLog {
    std::vector<unsigned> ids;
    unsigned refuse = 0;
    static int Callback(unsigned id, void* user) {
        auto* log = static_cast<CallbackLog*>(user);
        log->ids.push_back(id);
        return id != log->refuse ? 1 : 0;
    }
};

inline CUIntArray Ids(const std::vector<UINT>& ids) {
    CUIntArray a;
    for (UINT id : ids)
        a.Add(id);
    return a;
}

// A child's rectangle in its dialog's client coordinates.
inline CRect ChildRect(HWND hDlg, HWND hChild) {
    RECT rc{};
    GetWindowRect(hChild, &rc);
    MapWindowPoints(nullptr, hDlg, reinterpret_cast<POINT*>(&rc), 2);
    return CRect(rc.left, rc.top, rc.right, rc.bottom);
}

inline bool CloseIsGrey(HWND hDlg) {
    return (GetMenuState(GetSystemMenu(hDlg, FALSE), SC_CLOSE, MF_BYCOMMAND) & MF_GRAYED) != 0;
}

} // namespace vutest

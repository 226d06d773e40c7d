#pragma once
// Real input through the X server (xdotool: one call per dialog, as Wine starts
// a Unix program without a process to wait for), and what the dialog tests
// record. Screen coordinates are the X root's; the focus follows the pointer.
#include <windows.h>

#include "foundation/win/HostServices.h"
#include "framework/Rect.h"
#include "framework/TypedArrays.h"

#include <sstream>
#include <string>
#include <thread>
#include <vector>

// The tests' own strings (DialogTestStrings.rc); 41999 is not there.
constexpr UINT IDS_T_FORMAT = 41000, IDS_T_LONG = 41001, IDS_T_YES = 41002, IDS_T_NO = 41003,
               IDS_T_YES_TO_ALL = 41004, IDS_T_GROUP = 41005, IDS_T_NAME = 41006,
               IDS_T_TYPE = 41007, IDS_T_WARN_OUTPUTS = 41008, IDS_T_WARN_FORCES = 41009,
               IDS_T_MISSING = 41999;

namespace vutest {

// Leaves this program's windows unmanaged (no window manager: Wine waits 2 s
// whenever a managed window hides); read as the driver loads, so from the
// second run in a prefix on.
inline const bool unmanagedWindows = [] {
    wchar_t path[MAX_PATH];
    const std::wstring exe(path, GetModuleFileNameW(nullptr, path, MAX_PATH));
    const std::wstring key = L"Software\\Wine\\AppDefaults\\" +
                             exe.substr(exe.find_last_of(L"\\/") + 1) + L"\\X11 Driver";
    return RegSetKeyValueW(HKEY_CURRENT_USER, key.c_str(), L"Managed", REG_SZ, L"N", 4) == 0;
}();

// Steps separated by spaces: a number clicks the control with that id,
// anything else is a key ("Escape", "alt+n") pressed in the dialog.
inline std::wstring Script(HWND hDlg, const std::wstring& steps) {
    std::wistringstream in(steps);
    std::wstring script, step;
    while (in >> step) {
        HWND target = iswdigit(step[0]) ? GetDlgItem(hDlg, std::stoi(step)) : hDlg;
        RECT rc{};
        GetWindowRect(target, &rc);
        script += L"mousemove " + std::to_wstring((rc.left + rc.right) / 2) + L" " +
                  std::to_wstring((rc.top + rc.bottom) / 2) + L" sleep 0.05 " +
                  (target == hDlg ? L"key " + step : L"click 1") + L" sleep 0.2 ";
    }
    return script;
}

// Runs the script once the window titled `title` shows (and a moment later).
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
                  for (int wait = 0; wait < 500 && IsWindow(hDlg); ++wait)
                      Sleep(20);
                  if (IsWindow(hDlg)) // the flow did not close it: end it, the test fails
                      EndDialog(hDlg, -2);
                  return;
              }
          }) {}
    ~InputScript() { m_thread.join(); }

private:
    std::thread m_thread;
};

// Runs a dialog modally while the script drives it.
template <class Dlg> INT_PTR RunWithInput(Dlg& dlg, const wchar_t* title, const wchar_t* steps) {
    InputScript input(title, steps);
    return dlg.DoModal();
}

// Host services that record every context-help request while installed.
struct HelpRecorder : VU_CHostServices {
    HelpRecorder() : previous(VuSetHostServices(this)) {}
    ~HelpRecorder() override { VuSetHostServices(previous); }
    BOOL ShowContextHelp(DWORD context, HWND) override {
        contexts.push_back(context);
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

#pragma once
// What the dialog tests share: the host's context help and the callbacks,
// recorded; and the rectangles of a dialog's controls.
#include "RealInput.h"

#include "foundation/win/HostServices.h"
#include "framework/TypedArrays.h"

#include <set>
#include <vector>

namespace vutest {

// Installs host services that record every context-help request.
class HelpRecorder : public VU_CHostServices {
public:
    HelpRecorder() : m_pPrevious(VuSetHostServices(this)) {}
    ~HelpRecorder() override { VuSetHostServices(m_pPrevious); }
    BOOL ShowContextHelp(DWORD dwContext, HWND) override {
        contexts.push_back(dwContext);
        return TRUE;
    }
    std::vector<DWORD> contexts;

private:
    VU_CHostServices* m_pPrevious;
};

// A press or click callback that records its ids and refuses some.
struct CallbackLog {
    std::vector<unsigned> ids;
    std::set<unsigned> refuse;
    static int Callback(unsigned id, void* user) {
        auto* log = static_cast<CallbackLog*>(user);
        log->ids.push_back(id);
        return log->refuse.count(id) != 0 ? 0 : 1;
    }
};

// A control's rectangle in its dialog's client coordinates.
inline RECT ClientRectOf(HWND hDlg, int id) {
    RECT rc{};
    GetWindowRect(GetDlgItem(hDlg, id), &rc);
    MapWindowPoints(nullptr, hDlg, reinterpret_cast<POINT*>(&rc), 2);
    return rc;
}

inline CUIntArray Ids(const std::vector<UINT>& ids) {
    CUIntArray a;
    for (UINT id : ids)
        a.Add(id);
    return a;
}

inline bool CloseIsGrey(HWND hDlg) {
    return (GetMenuState(GetSystemMenu(hDlg, FALSE), SC_CLOSE, MF_BYCOMMAND) & MF_GRAYED) != 0;
}

} // namespace vutest

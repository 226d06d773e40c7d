#include "foundation/win/MessagePump.h"

#include "foundation/win/HostServices.h"
#include "foundation/win/Library.h"
#include "framework/win/DumpContext.h"
#include "framework/win/ThreadState.h"
#include "framework/win/WinApp.h"
#include "framework/win/WinThread.h"
#include "framework/win/Wnd.h"

// The function name the pump's audit-trail entries carry.
const wchar_t* const g_szPumpFunctionName = L"VuInternalPumpMessage()";

namespace {

struct TracedMessage {
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    DWORD time;
    LONG x;
    LONG y;
    bool operator==(const TracedMessage&) const = default;
};

bool g_hasPrevious = false;
TracedMessage g_previous{};
CString g_lastTrace;

const wchar_t* KnownMessageName(UINT message) {
    switch (message) {
    case 15:
        return L"WM_PAINT";
    case 18:
        return L"WM_QUIT";
    case 160:
        return L"WM_NCMOUSEMOVE";
    case 275:
        return L"WM_TIMER";
    case 512:
        return L"WM_MOUSEFIRST or WM_MOUSEMOVE";
    case 874:
        return L"WM_KICKIDLE";
    case 1186:
        return L"CO_NOTIFICATION - WM_USER+128+34 - WM_AF_NOTIF_FIRST+34";
    case 1192:
        return L"WM_DW_RUNGNOTIFWINDOWMESSAGE - what?";
    default:
        return L"<unknown>";
    }
}

// Handles and parameters are shown as their low 32 bits.
unsigned Low32(UINT_PTR value) {
    return static_cast<unsigned>(value & 0xFFFFFFFFu);
}

} // namespace

CString VuMessageName(UINT message) {
    CString name;
    name.Format(L"0x%08x - %s", message, KnownMessageName(message));
    return name;
}

void VuResetMessageTrace() {
    g_hasPrevious = false;
}

CString VuGetLastPumpTrace() {
    return g_lastTrace;
}

CString VuDescribeMessage(const MSG& msg) {
    TracedMessage current{msg.hwnd, msg.message, msg.wParam, msg.lParam,
                          msg.time, msg.pt.x,    msg.pt.y};
    CString text(L"Unavailable");
    if (CWnd* pWnd = CWnd::FromHandlePermanent(msg.hwnd))
        pWnd->GetWindowText(text);
    if (g_hasPrevious && current == g_previous)
        return CString(L"same");
    g_previous = current;
    g_hasPrevious = true;

    CString description;
    description.Format(
        L"\n\t\tThreadID = 0x%08x\n\t\tText     = %s\n\t\thwnd     = 0x%08x"
        L"\n\t\tmessage  = %s\n\t\twParam   = 0x%08x\n\t\tlParam   = 0x%08x"
        L"\n\t\ttime     = 0x%08x\n\t\tpt.x     = 0x%08x\n\t\tpt.y     = 0x%08x\n\t\t",
        static_cast<unsigned>(AfxGetThread()->m_nThreadID), text.GetString(),
        Low32(reinterpret_cast<UINT_PTR>(msg.hwnd)), VuMessageName(msg.message).GetString(),
        Low32(msg.wParam), Low32(static_cast<UINT_PTR>(msg.lParam)),
        static_cast<unsigned>(msg.time), static_cast<unsigned>(msg.pt.x),
        static_cast<unsigned>(msg.pt.y));
    return description;
}

BOOL VuInternalPumpMessage() {
    MSG& msg = AfxGetThreadState()->m_msgCur;
    BOOL got = GetMessageW(&msg, nullptr, 0, 0);
    if (got == 0)
        return FALSE;
    if (got == -1) // no message was taken
        return TRUE;

    g_lastTrace = VuDescribeMessage(msg);
#ifdef VULIB_TRACE_PUMP
    *VuGetTraceDump() << g_lastTrace << L"\n";
#endif

    if (msg.message == WM_KICKIDLE)
        return TRUE;
    if (!AfxPreTranslateMessage(&msg)) {
        TranslateMessage(&msg);
        if (msg.message == VU_WM_CONTROL_NOTIFICATION) {
            CString text;
            text.Format(L"Sleep(%d) before Dispatch...",
                        static_cast<int>(VU_PUMP_NOTIFICATION_PAUSE_MS));
            MDLogAuditTrailMsg(VU_AUDIT_TYPE_PUMP, g_szPumpFunctionName, text);
            Sleep(VU_PUMP_NOTIFICATION_PAUSE_MS);
        }
        DispatchMessageW(&msg);
    }
    return TRUE;
}

BOOL VuWaitForMessageQueue() {
    MSG peeked{};
    while (PeekMessageW(&peeked, nullptr, 0, 0, PM_NOREMOVE)) {
        if (!VuInternalPumpMessage()) {
            PostQuitMessage(static_cast<int>(AfxGetThreadState()->m_msgCur.wParam));
            return FALSE;
        }
    }
    return TRUE;
}

BOOL VuWaitForMessage(HWND hWnd, UINT msgFilterMin, UINT msgFilterMax, int timeoutSeconds) {
    CWinApp* pApp = AfxGetApp();
    pApp->BeginWaitCursor();
    const DWORD start = GetTickCount();
    // Negative waits nothing; the longest wait is what the tick count can span.
    const unsigned long long ms =
        1000ull * static_cast<unsigned>(timeoutSeconds > 0 ? timeoutSeconds : 0);
    const DWORD limit = static_cast<DWORD>(ms < 0xFFFFFFF0ull ? ms : 0xFFFFFFF0ull);
    bool arrived = false;
    bool timedOut = false;
    while (!arrived && !timedOut) {
        MSG peeked{};
        if (PeekMessageW(&peeked, hWnd, msgFilterMin, msgFilterMax, PM_NOREMOVE)) {
            if (!AfxGetThread()->PumpMessage())
                PostQuitMessage(static_cast<int>(AfxGetThreadState()->m_msgCur.wParam));
            arrived = true;
        }
        DWORD elapsed = GetTickCount() - start;
        if (elapsed > limit) {
            timedOut = true;
        } else if (!arrived) {
            // Sleep until input comes or the time is up rather than spin.
            MsgWaitForMultipleObjectsEx(0, nullptr, limit - elapsed + 1, QS_ALLINPUT,
                                        MWMO_INPUTAVAILABLE);
        }
    }
    pApp->EndWaitCursor();
    return !timedOut;
}

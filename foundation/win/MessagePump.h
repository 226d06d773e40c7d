#pragma once
// The library's private message pump: keeps the user interface alive while
// a component waits, without the host's main loop.
#include <windows.h>

#include "framework/CString.h"

// The library's control notification (message base plus 34): the pump
// pauses before dispatching it so that its sender can settle.
const UINT VU_WM_CONTROL_NOTIFICATION = 0x04A2;
const DWORD VU_PUMP_NOTIFICATION_PAUSE_MS = 150;
const DWORD VU_AUDIT_TYPE_PUMP = 132;

// Takes one message off the queue into the thread state's current message,
// then pre-translates, translates and dispatches it (WM_KICKIDLE is only
// taken off). FALSE when the message was WM_QUIT.
BOOL VuInternalPumpMessage();

// Pumps until no message is waiting: TRUE then, FALSE if a WM_QUIT was met
// (it is posted again with the same exit code).
BOOL VuWaitForMessageQueue();

// Shows the wait cursor and waits until a message for hWnd within
// [msgFilterMin, msgFilterMax] is queued (then pumps one message) or until
// timeoutSeconds have passed. TRUE if the message came in time.
BOOL VuWaitForMessage(HWND hWnd, UINT msgFilterMin, UINT msgFilterMax, int timeoutSeconds);

// The pump's trace of a message: "same" when all seven fields (window,
// message, wParam, lParam, time, x, y) equal those of the message traced
// before, else a block naming the thread, window text, handle, message and
// parameters. Updates the remembered message.
CString VuDescribeMessage(const MSG& msg);
// The display name of a message number as the trace shows it
// ("0x0000000f - WM_PAINT").
CString VuMessageName(UINT message);
// The pump's latest trace (diagnostics and tests).
CString VuGetLastPumpTrace();
// Forgets the remembered message, so the next trace is never "same".
void VuResetMessageTrace();

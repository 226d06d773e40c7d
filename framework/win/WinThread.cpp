#include "framework/win/WinThread.h"

#include "framework/win/ThreadState.h"
#include "framework/win/WinApp.h"
#include "framework/win/Wnd.h"

CWinThread::CWinThread() : m_nThreadID(GetCurrentThreadId()) {}

BOOL CWinThread::PreTranslateMessage(MSG*) {
    return FALSE;
}

BOOL CWinThread::PumpMessage() {
    MSG& msg = AfxGetThreadState()->m_msgCur;
    BOOL got = GetMessageW(&msg, nullptr, 0, 0);
    if (got == 0)
        return FALSE;
    if (got == -1 || msg.message == WM_KICKIDLE)
        return TRUE;
    if (!AfxPreTranslateMessage(&msg)) {
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
    }
    return TRUE;
}

CWinThread* AfxGetThread() {
    CWinApp* pApp = AfxGetApp();
    if (pApp->m_nThreadID == GetCurrentThreadId())
        return pApp;
    AFX_THREAD_STATE* state = AfxGetThreadState();
    if (state->m_pThread == nullptr)
        state->m_pThread = new CWinThread;
    return state->m_pThread;
}

BOOL AfxPreTranslateMessage(MSG* pMsg) {
    if (pMsg == nullptr)
        return FALSE;
    for (HWND hWnd = pMsg->hwnd; hWnd != nullptr; hWnd = GetParent(hWnd)) {
        CWnd* pWnd = CWnd::FromHandlePermanent(hWnd);
        if (pWnd == nullptr)
            continue;
        BOOL consumed = FALSE;
        try {
            consumed = pWnd->PreTranslateMessage(pMsg);
        } catch (...) {
            consumed = FALSE;
        }
        if (consumed)
            return TRUE;
        // Stop at a top-level window: its owner is not its container.
        if ((GetWindowLongPtrW(hWnd, GWL_STYLE) & WS_CHILD) == 0)
            break;
    }
    return AfxGetThread()->PreTranslateMessage(pMsg);
}

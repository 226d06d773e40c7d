#pragma once
// The framework's per-thread state: the message the pump took last, the
// message the innermost window procedure is handling, the window whose
// creation is under way, and the maps from handles to framework objects.
// Windows belong to threads, so these maps are per thread too.
#include <windows.h>

#include <unordered_map>

#include "framework/win/HandleMap.h"

class CWnd;
class CWinThread;

enum AfxTempMapKind {
    afxTempWnd,
    afxTempDC,
    afxTempGdiObject,
    afxTempFont,
    afxTempPen,
    afxTempBrush,
    afxTempBitmap,
    afxTempMenu,
    afxTempMapCount
};

struct AFX_THREAD_STATE {
    AFX_THREAD_STATE();
    ~AFX_THREAD_STATE();
    AFX_THREAD_STATE(const AFX_THREAD_STATE&) = delete;
    AFX_THREAD_STATE& operator=(const AFX_THREAD_STATE&) = delete;

    // The temporary map of one kind, made on first use.
    CHandleMap& TempMap(AfxTempMapKind kind, CHandleMap::IsAliveFn isAlive,
                        CHandleMap::DetachFn detach);
    void DeleteTempMaps();

    MSG m_msgCur{};                  // the message the pump took last
    MSG m_lastSentMsg{};             // the message the innermost window procedure handles
    CWnd* m_pWndInit = nullptr;      // window being created (hooked on creation)
    HHOOK m_hHookCbt = nullptr;      // creation hook while m_pWndInit is set
    CWinThread* m_pThread = nullptr; // this thread's thread object (owned)

    std::unordered_map<HWND, CWnd*> m_permanentWindows;
    // Procedures to forward to for windows whose framework object left
    // while another subclass still sat above ours.
    std::unordered_map<HWND, WNDPROC> m_orphanProcs;

private:
    CHandleMap* m_tempMaps[afxTempMapCount] = {};
};

// The calling thread's state, made on first use.
AFX_THREAD_STATE* AfxGetThreadState();
// Frees the calling thread's state (thread detach).
void AfxTermThreadState();
// Frees every thread's state (module detach).
void AfxTermAllThreadStates();

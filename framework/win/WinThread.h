#pragma once
// CWinThread: the framework's object for a thread that runs windows. The
// library has no main loop of its own; a thread object exists so that code
// that must keep the user interface alive can pump one message at a time.
#include <windows.h>

#include "framework/Object.h"

class CWinThread : public CObject {
public:
    CWinThread();

    DWORD m_nThreadID; // the thread this object stands for

    // Takes one message off the queue (into the thread state's current
    // message), lets the framework pre-translate it, then translates and
    // dispatches it. FALSE when the message was WM_QUIT.
    virtual BOOL PumpMessage();
    // The thread's own chance at a message before the windows' (FALSE: not
    // consumed).
    virtual BOOL PreTranslateMessage(MSG* pMsg);
};

// The calling thread's thread object (the application object on the thread
// that first asked for it).
CWinThread* AfxGetThread();

// Offers the message to PreTranslateMessage of each framework window from
// its target up through its parents, then to the thread object. TRUE if one
// of them consumed it.
BOOL AfxPreTranslateMessage(MSG* pMsg);

// WM_KICKIDLE: posted to ask for idle processing; pumps take it off the
// queue without translating or dispatching it.
#ifndef WM_KICKIDLE
#define WM_KICKIDLE 0x036A
#endif

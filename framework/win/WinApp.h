#pragma once
// CWinApp: the library's application object. The host owns the real
// application; this one stands for it where the framework needs one (the
// wait cursor, the main window) and forwards to the host services.
#include "framework/win/WinThread.h"

class CWnd;

class CWinApp : public CWinThread {
public:
    void BeginWaitCursor();
    void EndWaitCursor();
    CWnd* GetMainWnd();
};

CWinApp* AfxGetApp();
CWnd* AfxGetMainWnd();

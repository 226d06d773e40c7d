#include "framework/win/WinApp.h"

#include "framework/win/AppServices.h"
#include "framework/win/Wnd.h"

void CWinApp::BeginWaitCursor() {
    AfxGetAppServices()->BeginWaitCursor();
}
void CWinApp::EndWaitCursor() {
    AfxGetAppServices()->EndWaitCursor();
}
CWnd* CWinApp::GetMainWnd() {
    return CWnd::FromHandle(AfxGetAppServices()->GetMainWindow());
}

CWinApp* AfxGetApp() {
    // Made on first use, on the thread that first asks (the host's user
    // interface thread in practice).
    static CWinApp* pApp = new CWinApp;
    return pApp;
}

CWnd* AfxGetMainWnd() {
    return AfxGetApp()->GetMainWnd();
}

#include "framework/win/WinApp.h"

#include "foundation/win/HostServices.h"
#include "framework/win/Wnd.h"

void CWinApp::BeginWaitCursor() {
    VuGetHostServices()->BeginWaitCursor();
}
void CWinApp::EndWaitCursor() {
    VuGetHostServices()->EndWaitCursor();
}
CWnd* CWinApp::GetMainWnd() {
    return CWnd::FromHandle(VuGetHostServices()->GetMainWindow());
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

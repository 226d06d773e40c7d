#include "framework/win/AppServices.h"

namespace {
CAppServices g_plainServices;
CAppServices* g_pServices = nullptr;
} // namespace

HWND CAppServices::GetSafeOwner(HWND hWndParent) {
    if (hWndParent == nullptr || !IsWindow(hWndParent))
        return nullptr;
    return GetAncestor(hWndParent, GA_ROOT);
}

void CAppServices::BeginWaitCursor() {
    SetCursor(LoadCursorW(nullptr, IDC_WAIT));
}

void CAppServices::EndWaitCursor() {
    SetCursor(LoadCursorW(nullptr, IDC_ARROW));
}

CAppServices* AfxGetAppServices() {
    return g_pServices != nullptr ? g_pServices : &g_plainServices;
}

CAppServices* AfxSetAppServices(CAppServices* pServices) {
    CAppServices* previous = AfxGetAppServices();
    g_pServices = pServices;
    return previous;
}

#include "foundation/win/Library.h"

#include <commctrl.h>

#include "foundation/win/ChildReflector.h"
#include "foundation/win/DumpFile.h"
#include "foundation/win/HostServices.h"
#include "framework/win/DumpContext.h"
#include "framework/win/DynLinkLibrary.h"
#include "framework/win/ThreadState.h"

namespace {

HINSTANCE g_hInstance = nullptr;
AFX_EXTENSION_MODULE g_extensionModule;
CDynLinkLibrary* g_pResourceLink = nullptr;
Vu_CDumpFile* g_pDumpFile = nullptr;
CDumpContext* g_pDumpContext = nullptr;

void InitCommonControlClasses() {
    INITCOMMONCONTROLSEX icc{};
    icc.dwSize = sizeof(icc);
    icc.dwICC = ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES | ICC_BAR_CLASSES | ICC_TAB_CLASSES;
    if (!InitCommonControlsEx(&icc))
        InitCommonControls();
}

void OnProcessAttach(HINSTANCE hInstance) {
    g_hInstance = hInstance;
    AfxInitExtensionModule(g_extensionModule, hInstance);
    InitCommonControlClasses();
    g_pResourceLink = new CDynLinkLibrary(g_extensionModule);
    // The framework below reaches the host services and reflection only
    // through what is installed here.
    AfxSetAppServices(VuGetHostServices());
    CChildReflector::Install();
}

void OnProcessDetach() {
    delete g_pDumpContext;
    g_pDumpContext = nullptr;
    delete g_pDumpFile;
    g_pDumpFile = nullptr;
    // The resource link stays while the process runs; on an unload it must
    // leave the chain, since the module's resources go with it.
    delete g_pResourceLink;
    g_pResourceLink = nullptr;
    AfxTermAllThreadStates();
}

} // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID) {
    switch (dwReason) {
    case DLL_PROCESS_ATTACH:
        OnProcessAttach(hInstance);
        break;
    case DLL_THREAD_DETACH:
        AfxTermThreadState();
        break;
    case DLL_PROCESS_DETACH:
        OnProcessDetach();
        break;
    default:
        break;
    }
    return TRUE;
}

HINSTANCE VuGetInstanceHandle() {
    return g_hInstance;
}

void VuLibInitialize() {}

CDumpContext* VuGetTraceDump() {
    if (g_pDumpFile == nullptr)
        g_pDumpFile = new Vu_CDumpFile;
    if (g_pDumpContext == nullptr)
        g_pDumpContext = new CDumpContext(g_pDumpFile);
    return g_pDumpContext;
}

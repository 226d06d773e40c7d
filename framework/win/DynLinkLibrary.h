#pragma once
// The resource chain. A resource look-up (strings, bitmaps, dialogs,
// cursors, menus) searches the host's executable first, so that a host can
// replace any of the library's resources, and then every registered library
// module in the order they registered. A library module registers itself
// when it attaches, through its AFX_EXTENSION_MODULE and a CDynLinkLibrary.
#include <windows.h>

#include "framework/CString.h"

struct AFX_EXTENSION_MODULE {
    BOOL bInitialized = FALSE;
    HMODULE hModule = nullptr;
    HMODULE hResource = nullptr;
};

// One registered module in the chain; lives until the module detaches.
class CDynLinkLibrary {
public:
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state);
    ~CDynLinkLibrary(); // leaves the chain
    CDynLinkLibrary(const CDynLinkLibrary&) = delete;
    CDynLinkLibrary& operator=(const CDynLinkLibrary&) = delete;

    HMODULE m_hModule;
    HMODULE m_hResource;
};

// Fills the descriptor for a module; FALSE for a null module.
BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule);

// The module this framework code lives in (the library DLL).
HINSTANCE AfxGetInstanceHandle();
// The host's executable: the first place resources are looked for.
HINSTANCE AfxGetHostHandle();

// The first module in the chain that has the resource, or null.
HINSTANCE AfxFindResourceHandle(LPCWSTR lpszName, LPCWSTR lpszType);
// The modules of the chain in search order (the host first).
int AfxGetResourceChain(HINSTANCE* pModules, int nMax);

// Loads string nID from the chain; FALSE (and an empty string) if no module
// has it.
BOOL AfxLoadString(UINT nID, CString& rString);
// Loads a bitmap, cursor or menu from the chain; null if none has it.
HBITMAP AfxLoadBitmap(UINT nID);
HCURSOR AfxLoadCursor(UINT nID);
HMENU AfxLoadMenu(UINT nID);

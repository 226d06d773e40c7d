#pragma once
// The library module: its instance handle, its explicit initialisation
// entry and its diagnostic dump context.
//
// When the host loads vulib.dll, the module entry keeps the instance
// handle, registers the module in the resource chain (the host's executable
// is searched first, then the library: see framework/win/DynLinkLibrary.h)
// and initialises the common controls.
#include <windows.h>

class CDumpContext;

// The library's module handle, for loading its own resources directly.
HINSTANCE VuGetInstanceHandle();

// The host's explicit initialisation entry; everything is done when the
// module attaches, so there is nothing left to do here.
void VuLibInitialize();

// The dump context over the library's dump file (%TEMP%\VuLib-<pid>.log),
// both made on first use; later calls return the same context. Released
// when the module detaches.
CDumpContext* VuGetTraceDump();

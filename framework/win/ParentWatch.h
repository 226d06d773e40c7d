#pragma once
// Windows sends a control's owner-draw and notification messages to its
// parent, and a host's plain Win32 parent does not hand them on. Reflection
// therefore needs a watcher on the parent of every framework control. The
// watcher is a message filter, which lives above the framework, so it
// installs itself here (the library does so when it loads); CWnd only
// reports which parents need watching. Without a watcher nothing is watched
// and a host's parent must reflect by itself.
#include <windows.h>

class CParentWatch {
public:
    // Calls are counted per parent: the first Acquire starts the watch, the
    // matching last Release ends it.
    virtual void Acquire(HWND hWndParent) = 0;
    virtual void Release(HWND hWndParent) = 0;

protected:
    ~CParentWatch() = default;
};

CParentWatch* AfxGetParentWatch();
void AfxSetParentWatch(CParentWatch* pWatch);

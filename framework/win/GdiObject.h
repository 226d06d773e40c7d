#pragma once
// CGdiObject: owns a GDI object handle (deleted with the object unless it
// was detached). FromHandle gives a temporary wrapper that does not own it.
#include <windows.h>

#include "framework/Object.h"

class CGdiObject : public CObject {
public:
    CGdiObject() = default;
    ~CGdiObject() override { DeleteObject(); }
    CGdiObject(const CGdiObject&) = delete;
    CGdiObject& operator=(const CGdiObject&) = delete;

    // Attributes
    HGDIOBJ m_hObject = nullptr;
    operator HGDIOBJ() const { return m_hObject; }
    HGDIOBJ GetSafeHandle() const { return m_hObject; }
    int GetObject(int nCount, LPVOID lpObject) const;
    UINT GetObjectType() const;

    // Operations
    static CGdiObject* FromHandle(HGDIOBJ hObject);
    BOOL Attach(HGDIOBJ hObject); // FALSE if null or already holding one
    HGDIOBJ Detach();
    BOOL DeleteObject(); // FALSE if there was nothing to delete
    BOOL CreateStockObject(int nIndex);
};

// Shared by the typed wrappers' FromHandle.
bool AfxIsGdiObjectAlive(void* hObject);
void AfxDetachGdiObject(CObject* pObject);

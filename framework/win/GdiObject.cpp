#include "framework/win/GdiObject.h"

#include "framework/win/ThreadState.h"

bool AfxIsGdiObjectAlive(void* hObject) {
    return ::GetObjectType(static_cast<HGDIOBJ>(hObject)) != 0;
}

void AfxDetachGdiObject(CObject* pObject) {
    static_cast<CGdiObject*>(pObject)->m_hObject = nullptr;
}

CGdiObject* CGdiObject::FromHandle(HGDIOBJ hObject) {
    if (hObject == nullptr)
        return nullptr;
    CHandleMap& temps =
        AfxGetThreadState()->TempMap(afxTempGdiObject, AfxIsGdiObjectAlive, AfxDetachGdiObject);
    if (CObject* found = temps.Lookup(hObject))
        return static_cast<CGdiObject*>(found);
    auto* pObject = new CGdiObject;
    pObject->m_hObject = hObject;
    temps.Add(hObject, pObject);
    return pObject;
}

int CGdiObject::GetObject(int nCount, LPVOID lpObject) const {
    return m_hObject != nullptr ? ::GetObjectW(m_hObject, nCount, lpObject) : 0;
}

UINT CGdiObject::GetObjectType() const {
    return m_hObject != nullptr ? static_cast<UINT>(::GetObjectType(m_hObject)) : 0;
}

BOOL CGdiObject::Attach(HGDIOBJ hObject) {
    if (hObject == nullptr || m_hObject != nullptr)
        return FALSE;
    m_hObject = hObject;
    return TRUE;
}

HGDIOBJ CGdiObject::Detach() {
    HGDIOBJ hObject = m_hObject;
    m_hObject = nullptr;
    return hObject;
}

BOOL CGdiObject::DeleteObject() {
    if (m_hObject == nullptr)
        return FALSE;
    return ::DeleteObject(Detach());
}

BOOL CGdiObject::CreateStockObject(int nIndex) {
    // Stock objects are never deleted; DeleteObject on them is harmless.
    return Attach(::GetStockObject(nIndex));
}

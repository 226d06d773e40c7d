#include "framework/win/OleDataObject.h"

namespace {
FORMATETC GlobalFormat(CLIPFORMAT cfFormat) {
    return FORMATETC{cfFormat, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
}
} // namespace

void COleDataObject::Attach(IDataObject* pDataObject, BOOL bAutoRelease) {
    Release();
    m_pDataObject = pDataObject;
    m_bAutoRelease = bAutoRelease;
}

IDataObject* COleDataObject::Detach() {
    IDataObject* pDataObject = m_pDataObject;
    m_pDataObject = nullptr;
    return pDataObject;
}

void COleDataObject::Release() {
    if (m_pDataObject != nullptr && m_bAutoRelease)
        m_pDataObject->Release();
    m_pDataObject = nullptr;
}

BOOL COleDataObject::IsDataAvailable(CLIPFORMAT cfFormat) const {
    if (m_pDataObject == nullptr)
        return FALSE;
    FORMATETC format = GlobalFormat(cfFormat);
    return m_pDataObject->QueryGetData(&format) == S_OK;
}

HGLOBAL COleDataObject::GetGlobalData(CLIPFORMAT cfFormat) const {
    if (m_pDataObject == nullptr)
        return nullptr;
    FORMATETC format = GlobalFormat(cfFormat);
    STGMEDIUM medium{};
    if (FAILED(m_pDataObject->GetData(&format, &medium)))
        return nullptr;
    if (medium.tymed == TYMED_HGLOBAL && medium.pUnkForRelease == nullptr)
        return medium.hGlobal; // ours now
    // Memory that the source keeps: take a copy and let the source free its own.
    HGLOBAL copy = medium.tymed == TYMED_HGLOBAL
                       ? static_cast<HGLOBAL>(OleDuplicateData(medium.hGlobal, cfFormat, 0))
                       : nullptr;
    ReleaseStgMedium(&medium);
    return copy;
}

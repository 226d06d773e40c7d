#include "framework/win/OleDataSource.h"

#include <shlobj.h>

COleDataSource::~COleDataSource() {
    Empty();
}

void COleDataSource::CacheGlobalData(CLIPFORMAT cfFormat, HGLOBAL hGlobal) {
    if (hGlobal == nullptr)
        return;
    for (Entry& entry : m_entries)
        if (entry.format == cfFormat) {
            GlobalFree(entry.data);
            entry.data = hGlobal;
            return;
        }
    m_entries.push_back({cfFormat, hGlobal});
}

void COleDataSource::Empty() {
    for (Entry& entry : m_entries)
        GlobalFree(entry.data);
    m_entries.clear();
}

DROPEFFECT COleDataSource::DoDragDrop(DWORD dwEffects) {
    m_buttonDown =
        (GetKeyState(VK_RBUTTON) < 0 && GetKeyState(VK_LBUTTON) >= 0) ? MK_RBUTTON : MK_LBUTTON;
    DWORD effect = DROPEFFECT_NONE;
    HRESULT hr = ::DoDragDrop(this, static_cast<IDropSource*>(this), dwEffects, &effect);
    return hr == DRAGDROP_S_DROP ? effect : DROPEFFECT_NONE;
}

const COleDataSource::Entry* COleDataSource::Find(const FORMATETC* pFormat) const {
    if (pFormat == nullptr || (pFormat->tymed & TYMED_HGLOBAL) == 0 ||
        pFormat->dwAspect != DVASPECT_CONTENT)
        return nullptr;
    for (const Entry& entry : m_entries)
        if (entry.format == pFormat->cfFormat)
            return &entry;
    return nullptr;
}

// ---- IUnknown ----------------------------------------------------------------

STDMETHODIMP COleDataSource::QueryInterface(REFIID riid, void** ppv) {
    if (ppv == nullptr)
        return E_POINTER;
    if (riid == IID_IUnknown || riid == IID_IDataObject)
        *ppv = static_cast<IDataObject*>(this);
    else if (riid == IID_IDropSource)
        *ppv = static_cast<IDropSource*>(this);
    else {
        *ppv = nullptr;
        return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
}

STDMETHODIMP_(ULONG) COleDataSource::AddRef() {
    return static_cast<ULONG>(InterlockedIncrement(&m_cRef));
}

STDMETHODIMP_(ULONG) COleDataSource::Release() {
    LONG count = InterlockedDecrement(&m_cRef);
    if (count == 0)
        delete this;
    return static_cast<ULONG>(count);
}

// ---- IDataObject ---------------------------------------------------------------

STDMETHODIMP COleDataSource::GetData(FORMATETC* pFormat, STGMEDIUM* pMedium) {
    if (pMedium == nullptr)
        return E_POINTER;
    const Entry* entry = Find(pFormat);
    if (entry == nullptr)
        return DV_E_FORMATETC;
    // Every reader gets its own copy to free.
    HGLOBAL copy = static_cast<HGLOBAL>(OleDuplicateData(entry->data, entry->format, 0));
    if (copy == nullptr)
        return E_OUTOFMEMORY;
    pMedium->tymed = TYMED_HGLOBAL;
    pMedium->hGlobal = copy;
    pMedium->pUnkForRelease = nullptr;
    return S_OK;
}

STDMETHODIMP COleDataSource::GetDataHere(FORMATETC*, STGMEDIUM*) {
    return E_NOTIMPL;
}

STDMETHODIMP COleDataSource::QueryGetData(FORMATETC* pFormat) {
    return Find(pFormat) != nullptr ? S_OK : DV_E_FORMATETC;
}

STDMETHODIMP COleDataSource::GetCanonicalFormatEtc(FORMATETC*, FORMATETC* pOut) {
    if (pOut != nullptr)
        pOut->ptd = nullptr;
    return DATA_S_SAMEFORMATETC;
}

STDMETHODIMP COleDataSource::SetData(FORMATETC*, STGMEDIUM*, BOOL) {
    return E_NOTIMPL;
}

STDMETHODIMP COleDataSource::EnumFormatEtc(DWORD dwDirection, IEnumFORMATETC** ppEnum) {
    if (ppEnum == nullptr)
        return E_POINTER;
    *ppEnum = nullptr;
    if (dwDirection != DATADIR_GET)
        return E_NOTIMPL;
    std::vector<FORMATETC> formats;
    for (const Entry& entry : m_entries)
        formats.push_back({entry.format, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL});
    return SHCreateStdEnumFmtEtc(static_cast<UINT>(formats.size()), formats.data(), ppEnum);
}

STDMETHODIMP COleDataSource::DAdvise(FORMATETC*, DWORD, IAdviseSink*, DWORD*) {
    return OLE_E_ADVISENOTSUPPORTED;
}

STDMETHODIMP COleDataSource::DUnadvise(DWORD) {
    return OLE_E_ADVISENOTSUPPORTED;
}

STDMETHODIMP COleDataSource::EnumDAdvise(IEnumSTATDATA**) {
    return OLE_E_ADVISENOTSUPPORTED;
}

// ---- IDropSource -----------------------------------------------------------------

STDMETHODIMP COleDataSource::QueryContinueDrag(BOOL fEscapePressed, DWORD grfKeyState) {
    if (fEscapePressed)
        return DRAGDROP_S_CANCEL;
    if ((grfKeyState & m_buttonDown) == 0)
        return DRAGDROP_S_DROP;
    return S_OK;
}

STDMETHODIMP COleDataSource::GiveFeedback(DWORD) {
    return DRAGDROP_S_USEDEFAULTCURSORS;
}

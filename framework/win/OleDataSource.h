#pragma once
// COleDataSource: the giving side of a data transfer. It offers blocks of
// global memory, each under a clipboard format, as an IDataObject, and runs
// a drag with them. It is reference counted: create it with new and end
// your use with InternalRelease (OLE may hold it a little longer).
#include <windows.h>

#include <ole2.h>

#include "framework/win/OleDataObject.h"

#include <vector>

class COleDataSource : public IDataObject, private IDropSource {
public:
    COleDataSource() = default;
    COleDataSource(const COleDataSource&) = delete;
    COleDataSource& operator=(const COleDataSource&) = delete;

    // Operations
    // Offers hGlobal under cfFormat; the source owns it from now on (a
    // format offered again replaces the earlier block). A null hGlobal is
    // ignored.
    void CacheGlobalData(CLIPFORMAT cfFormat, HGLOBAL hGlobal);
    void Empty();
    // Runs a drag with the left (or right) button down until it is dropped
    // or cancelled (Escape); returns the effect the target chose, or
    // DROPEFFECT_NONE.
    DROPEFFECT DoDragDrop(DWORD dwEffects = DROPEFFECT_COPY | DROPEFFECT_MOVE | DROPEFFECT_LINK);
    ULONG InternalRelease() { return Release(); }

    // IUnknown
    STDMETHODIMP QueryInterface(REFIID riid, void** ppv) override;
    STDMETHODIMP_(ULONG) AddRef() override;
    STDMETHODIMP_(ULONG) Release() override;

    // IDataObject
    STDMETHODIMP GetData(FORMATETC* pFormat, STGMEDIUM* pMedium) override;
    STDMETHODIMP GetDataHere(FORMATETC* pFormat, STGMEDIUM* pMedium) override;
    STDMETHODIMP QueryGetData(FORMATETC* pFormat) override;
    STDMETHODIMP GetCanonicalFormatEtc(FORMATETC* pIn, FORMATETC* pOut) override;
    STDMETHODIMP SetData(FORMATETC* pFormat, STGMEDIUM* pMedium, BOOL fRelease) override;
    STDMETHODIMP EnumFormatEtc(DWORD dwDirection, IEnumFORMATETC** ppEnum) override;
    STDMETHODIMP DAdvise(FORMATETC*, DWORD, IAdviseSink*, DWORD*) override;
    STDMETHODIMP DUnadvise(DWORD) override;
    STDMETHODIMP EnumDAdvise(IEnumSTATDATA**) override;

protected:
    virtual ~COleDataSource();

private:
    // IDropSource
    STDMETHODIMP QueryContinueDrag(BOOL fEscapePressed, DWORD grfKeyState) override;
    STDMETHODIMP GiveFeedback(DWORD dwEffect) override;

    struct Entry {
        CLIPFORMAT format;
        HGLOBAL data;
    };
    const Entry* Find(const FORMATETC* pFormat) const;

    std::vector<Entry> m_entries;
    LONG m_cRef = 1;
    DWORD m_buttonDown = 0; // MK_LBUTTON or MK_RBUTTON: the button the drag started with
};

#pragma once
// COleDataObject: the receiving side of a data transfer, a thin holder of
// an IDataObject (a drop's data, or the clipboard's).
#include <windows.h>

#include <ole2.h>

// What a drop does with the data (DROPEFFECT_NONE, _COPY, _MOVE, _LINK,
// _SCROLL), as the OLE drag calls pass it.
typedef DWORD DROPEFFECT;

class COleDataObject {
public:
    COleDataObject() = default;
    ~COleDataObject() { Release(); }
    COleDataObject(const COleDataObject&) = delete;
    COleDataObject& operator=(const COleDataObject&) = delete;

    // Operations
    // Holds pDataObject; with bAutoRelease the holder releases it (the
    // caller hands over one reference), otherwise it only borrows it.
    void Attach(IDataObject* pDataObject, BOOL bAutoRelease = TRUE);
    IDataObject* Detach();
    void Release();
    IDataObject* GetIDataObject() const { return m_pDataObject; }

    // Whether the data is offered in cfFormat as global memory.
    BOOL IsDataAvailable(CLIPFORMAT cfFormat) const;
    // The data in cfFormat as global memory that the caller frees, or null.
    HGLOBAL GetGlobalData(CLIPFORMAT cfFormat) const;

private:
    IDataObject* m_pDataObject = nullptr;
    BOOL m_bAutoRelease = FALSE;
};

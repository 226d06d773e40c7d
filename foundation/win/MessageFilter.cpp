#include "foundation/win/MessageFilter.h"

#include <vector>

#include "framework/Map.h"

namespace {

typedef CMap<HWND, HWND&, VU_CMessageFilterArray*, VU_CMessageFilterArray*> FilterRegistry;

// The registry owns the arrays; what is left at unload is freed with it.
struct RegistryHolder {
    FilterRegistry map;
    RegistryHolder() { map.InitHashTable(17); }
    ~RegistryHolder() {
        POSITION pos = map.GetStartPosition();
        while (pos != nullptr) {
            HWND hWnd = nullptr;
            VU_CMessageFilterArray* pArray = nullptr;
            map.GetNextAssoc(pos, hWnd, pArray);
            delete pArray;
        }
        map.RemoveAll();
    }
};

FilterRegistry& Registry() {
    static RegistryHolder holder;
    return holder.map;
}

VU_CMessageFilterArray* FindArray(HWND hWnd) {
    VU_CMessageFilterArray* pArray = nullptr;
    return Registry().Lookup(hWnd, pArray) ? pArray : nullptr;
}

bool StillRegistered(HWND hWnd, VU_CMessageFilter* pFilter) {
    VU_CMessageFilterArray* pArray = FindArray(hWnd);
    if (pArray == nullptr)
        return false;
    for (INT_PTR i = 0; i < pArray->GetSize(); ++i) {
        if (pArray->GetAt(i) == pFilter)
            return true;
    }
    return false;
}

// A filter may stop listening (or be deleted) while it or another filter is
// being called, so each walk works on a snapshot and skips filters that have
// left the window in the meantime.
std::vector<VU_CMessageFilter*> Snapshot(const VU_CMessageFilterArray& array) {
    return std::vector<VU_CMessageFilter*>(array.GetData(), array.GetData() + array.GetSize());
}

} // namespace

VU_CMessageFilter::~VU_CMessageFilter() {
    StopListening();
}

LRESULT VU_CMessageFilter::OnMessage(UINT, WPARAM, LPARAM) {
    return 0;
}
LRESULT VU_CMessageFilter::AfterMessage(UINT, WPARAM, LPARAM) {
    return 0;
}

void VU_CMessageFilter::ListenTo(HWND hWnd) {
    if (hWnd == nullptr || !IsWindow(hWnd)) // nothing to watch: stay idle
        return;
    m_pfnPrevWndProc = reinterpret_cast<WNDPROC>(SetWindowLongPtrW(
        hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&VU_CMessageFilter::WindowProc)));
    m_hWnd = hWnd;
    if (VU_CMessageFilterArray* pArray = FindArray(hWnd)) {
        pArray->InsertAt(0, this);
        return;
    }
    auto* pArray = new VU_CMessageFilterArray;
    pArray->Add(this);
    Registry().SetAt(hWnd, pArray);
}

void VU_CMessageFilter::StopListening() {
    if (m_hWnd == nullptr)
        return;
    HWND hWnd = m_hWnd;
    if (VU_CMessageFilterArray* pArray = FindArray(hWnd)) {
        INT_PTR index = -1;
        for (INT_PTR i = 0; i < pArray->GetSize(); ++i) {
            if (pArray->GetAt(i) == this) {
                index = i;
                break;
            }
        }
        if (index >= 0) {
            pArray->RemoveAt(index);
            if (index == 0) // the window's current procedure: put back the one before
                SetWindowLongPtrW(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_pfnPrevWndProc));
            else // the newer neighbour now calls what this filter called
                pArray->GetAt(index - 1)->m_pfnPrevWndProc = m_pfnPrevWndProc;
            if (pArray->GetSize() == 0) {
                Registry().RemoveKey(hWnd);
                delete pArray;
            }
        }
    }
    m_hWnd = nullptr;
    m_pfnPrevWndProc = nullptr;
}

LRESULT CALLBACK VU_CMessageFilter::WindowProc(HWND hWnd, UINT message, WPARAM wParam,
                                               LPARAM lParam) {
    VU_CMessageFilterArray* pArray = FindArray(hWnd);
    if (pArray == nullptr)
        return 0;

    for (VU_CMessageFilter* pFilter : Snapshot(*pArray)) {
        if (!StillRegistered(hWnd, pFilter))
            continue;
        if (LRESULT claimed = pFilter->OnMessage(message, wParam, lParam))
            return claimed;
    }

    // The oldest filter holds the window's own procedure. If the filters
    // all left during OnMessage, the window has that procedure back.
    WNDPROC pfnOwn = nullptr;
    pArray = FindArray(hWnd);
    if (pArray != nullptr && pArray->GetSize() > 0)
        pfnOwn = pArray->GetAt(pArray->GetSize() - 1)->m_pfnPrevWndProc;
    else
        pfnOwn = reinterpret_cast<WNDPROC>(GetWindowLongPtrW(hWnd, GWLP_WNDPROC));
    LRESULT result = 0;
    if (pfnOwn != nullptr && pfnOwn != &VU_CMessageFilter::WindowProc)
        result = CallWindowProcW(pfnOwn, hWnd, message, wParam, lParam);

    // The window may have dropped its filters while handling the message
    // (its destruction, typically).
    pArray = FindArray(hWnd);
    if (pArray == nullptr)
        return result;
    for (VU_CMessageFilter* pFilter : Snapshot(*pArray)) {
        if (!StillRegistered(hWnd, pFilter))
            continue;
        if (pFilter->AfterMessage(message, wParam, lParam) != 0)
            return 1;
    }
    return result;
}

BOOL VU_CMessageFilter::Lookup(HWND hWnd, VU_CMessageFilterArray** ppArray) {
    VU_CMessageFilterArray* pArray = FindArray(hWnd);
    if (ppArray != nullptr)
        *ppArray = pArray;
    return pArray != nullptr;
}

int VU_CMessageFilter::GetWatchedWindowCount() {
    return static_cast<int>(Registry().GetCount());
}

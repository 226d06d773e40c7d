#include "framework/win/OleDropTarget.h"

#include "framework/win/OleDataObject.h"
#include "framework/win/Wnd.h"

COleDropTarget::~COleDropTarget() {
    Revoke();
}

BOOL COleDropTarget::Register(CWnd* pWnd) {
    if (pWnd == nullptr || pWnd->m_hWnd == nullptr || m_hWnd != nullptr)
        return FALSE;
    if (!m_bOleInitialized)
        m_bOleInitialized = SUCCEEDED(OleInitialize(nullptr));
    if (FAILED(RegisterDragDrop(pWnd->m_hWnd, this)))
        return FALSE;
    m_hWnd = pWnd->m_hWnd;
    return TRUE;
}

void COleDropTarget::Revoke() {
    if (m_hWnd != nullptr)
        RevokeDragDrop(m_hWnd);
    m_hWnd = nullptr;
    if (m_pDragData != nullptr)
        m_pDragData->Release();
    m_pDragData = nullptr;
    if (m_bOleInitialized)
        OleUninitialize();
    m_bOleInitialized = false;
}

CWnd* COleDropTarget::Window() const {
    return CWnd::FromHandle(m_hWnd);
}

CPoint COleDropTarget::ToClient(POINTL pt) const {
    POINT point{pt.x, pt.y};
    ScreenToClient(m_hWnd, &point);
    return CPoint(point.x, point.y);
}

// ---- overridables ---------------------------------------------------------------

DROPEFFECT COleDropTarget::OnDragEnter(CWnd*, COleDataObject*, DWORD, CPoint) {
    return DROPEFFECT_NONE;
}
DROPEFFECT COleDropTarget::OnDragOver(CWnd*, COleDataObject*, DWORD, CPoint) {
    return DROPEFFECT_NONE;
}
BOOL COleDropTarget::OnDrop(CWnd*, COleDataObject*, DROPEFFECT, CPoint) {
    return FALSE;
}
DROPEFFECT COleDropTarget::OnDropEx(CWnd*, COleDataObject*, DROPEFFECT, DROPEFFECT, CPoint) {
    return static_cast<DROPEFFECT>(-1);
}
void COleDropTarget::OnDragLeave(CWnd*) {}
DROPEFFECT COleDropTarget::OnDragScroll(CWnd*, DWORD, CPoint) {
    return DROPEFFECT_NONE;
}

// ---- IDropTarget -------------------------------------------------------------------

STDMETHODIMP COleDropTarget::QueryInterface(REFIID riid, void** ppv) {
    if (ppv == nullptr)
        return E_POINTER;
    if (riid == IID_IUnknown || riid == IID_IDropTarget) {
        *ppv = static_cast<IDropTarget*>(this);
        return S_OK;
    }
    *ppv = nullptr;
    return E_NOINTERFACE;
}

DROPEFFECT COleDropTarget::Step(bool bEnter, DWORD grfKeyState, POINTL pt, DWORD allowed) {
    CWnd* pWnd = Window();
    CPoint point = ToClient(pt);
    DROPEFFECT effect = OnDragScroll(pWnd, grfKeyState, point);
    if (effect & DROPEFFECT_SCROLL)
        return effect;
    COleDataObject data;
    data.Attach(m_pDragData, FALSE);
    effect = bEnter ? OnDragEnter(pWnd, &data, grfKeyState, point)
                    : OnDragOver(pWnd, &data, grfKeyState, point);
    return effect & (allowed | DROPEFFECT_SCROLL);
}

STDMETHODIMP COleDropTarget::DragEnter(IDataObject* pDataObj, DWORD grfKeyState, POINTL pt,
                                       DWORD* pdwEffect) {
    if (pdwEffect == nullptr)
        return E_INVALIDARG;
    if (m_pDragData != nullptr)
        m_pDragData->Release();
    m_pDragData = pDataObj;
    if (m_pDragData != nullptr)
        m_pDragData->AddRef();
    *pdwEffect = Step(true, grfKeyState, pt, *pdwEffect);
    return S_OK;
}

STDMETHODIMP COleDropTarget::DragOver(DWORD grfKeyState, POINTL pt, DWORD* pdwEffect) {
    if (pdwEffect == nullptr)
        return E_INVALIDARG;
    *pdwEffect = Step(false, grfKeyState, pt, *pdwEffect);
    return S_OK;
}

STDMETHODIMP COleDropTarget::DragLeave() {
    OnDragLeave(Window());
    if (m_pDragData != nullptr)
        m_pDragData->Release();
    m_pDragData = nullptr;
    return S_OK;
}

STDMETHODIMP COleDropTarget::Drop(IDataObject* pDataObj, DWORD grfKeyState, POINTL pt,
                                  DWORD* pdwEffect) {
    if (pdwEffect == nullptr)
        return E_INVALIDARG;
    CWnd* pWnd = Window();
    CPoint point = ToClient(pt);
    DWORD allowed = *pdwEffect;
    COleDataObject data;
    data.Attach(pDataObj, FALSE);
    DROPEFFECT effect = OnDragOver(pWnd, &data, grfKeyState, point) & allowed;
    if (effect == DROPEFFECT_NONE) {
        DragLeave();
        *pdwEffect = DROPEFFECT_NONE;
        return S_OK;
    }
    DROPEFFECT result = OnDropEx(pWnd, &data, effect, allowed, point);
    if (result == static_cast<DROPEFFECT>(-1))
        result = OnDrop(pWnd, &data, effect, point) ? effect : DROPEFFECT_NONE;
    *pdwEffect = result;
    if (m_pDragData != nullptr)
        m_pDragData->Release();
    m_pDragData = nullptr;
    return S_OK;
}

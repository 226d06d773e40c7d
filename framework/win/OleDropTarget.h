#pragma once
// COleDropTarget: makes a window a target of OLE drag and drop. Register
// puts the object's IDropTarget on the window; OLE then calls it while a
// drag passes over, and it calls the overridables below with the window,
// the dragged data and the cursor in the window's client coordinates.
//
// Over a window, each step first asks OnDragScroll; when that answers with
// DROPEFFECT_SCROLL the step is a scroll and that answer stands, otherwise
// OnDragEnter / OnDragOver answer. A drop asks OnDragOver once more: when
// it refuses, the drop becomes a leave; otherwise OnDropEx decides, or
// OnDrop when OnDropEx answers -1.
//
// The object lives inside its owner (not reference counted): Revoke it, or
// destroy it, before the owner goes away.
#include <windows.h>

#include <ole2.h>

#include "framework/win/OleDataObject.h"

#include "framework/Point.h"

class CWnd;

class COleDropTarget : public IDropTarget {
public:
    COleDropTarget() = default;
    virtual ~COleDropTarget(); // revokes
    COleDropTarget(const COleDropTarget&) = delete;
    COleDropTarget& operator=(const COleDropTarget&) = delete;

    // Operations
    // Registers the target for pWnd (initialising OLE on this thread when
    // the host has not); FALSE if the window has a target already.
    BOOL Register(CWnd* pWnd);
    void Revoke();
    HWND GetRegisteredWindow() const { return m_hWnd; }

    // Overridables (the defaults refuse everything)
    virtual DROPEFFECT OnDragEnter(CWnd* pWnd, COleDataObject* pDataObject, DWORD dwKeyState,
                                   CPoint point);
    virtual DROPEFFECT OnDragOver(CWnd* pWnd, COleDataObject* pDataObject, DWORD dwKeyState,
                                  CPoint point);
    virtual BOOL OnDrop(CWnd* pWnd, COleDataObject* pDataObject, DROPEFFECT dropEffect,
                        CPoint point);
    virtual DROPEFFECT OnDropEx(CWnd* pWnd, COleDataObject* pDataObject, DROPEFFECT dropDefault,
                                DROPEFFECT dropList, CPoint point);
    virtual void OnDragLeave(CWnd* pWnd);
    virtual DROPEFFECT OnDragScroll(CWnd* pWnd, DWORD dwKeyState, CPoint point);

    // IUnknown (the owner keeps the object alive)
    STDMETHODIMP QueryInterface(REFIID riid, void** ppv) override;
    STDMETHODIMP_(ULONG) AddRef() override { return 2; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }

    // IDropTarget
    STDMETHODIMP DragEnter(IDataObject* pDataObj, DWORD grfKeyState, POINTL pt,
                           DWORD* pdwEffect) override;
    STDMETHODIMP DragOver(DWORD grfKeyState, POINTL pt, DWORD* pdwEffect) override;
    STDMETHODIMP DragLeave() override;
    STDMETHODIMP Drop(IDataObject* pDataObj, DWORD grfKeyState, POINTL pt,
                      DWORD* pdwEffect) override;

private:
    CWnd* Window() const;
    CPoint ToClient(POINTL pt) const;
    DROPEFFECT Step(bool bEnter, DWORD grfKeyState, POINTL pt, DWORD allowed);

    HWND m_hWnd = nullptr;
    IDataObject* m_pDragData = nullptr; // held from enter to leave or drop
    bool m_bOleInitialized = false;
};

#pragma once
// CDialog: a dialog from a template found through the resource chain (the
// host's executable first, then the library), or from a template in memory.
// DoModal runs it modally under a safe owner; the object receives the
// dialog's messages from its creation on. No data exchange: dialogs read
// and write their controls themselves.
#include "framework/win/Wnd.h"

class CDialog : public CWnd {
public:
    CDialog() = default;
    explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = nullptr);

    // Attributes
    UINT m_nIDTemplate = 0;
    UINT m_nIDHelp = 0;
    CWnd* m_pParentWnd = nullptr;
    HWND m_hWndParent = nullptr; // used when m_pParentWnd is null

    // Operations
    // A template in memory for DoModal instead of the resource (not copied:
    // it must outlive the call).
    BOOL InitModalIndirect(const DLGTEMPLATE* lpDialogTemplate, CWnd* pParentWnd = nullptr);
    // The EndDialog result, or -1 if the template was not found or the
    // dialog could not be created.
    virtual INT_PTR DoModal();
    // Modeless
    BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    BOOL CreateIndirect(const DLGTEMPLATE* lpDialogTemplate, CWnd* pParentWnd = nullptr);
    void EndDialog(int nResult);
    BOOL IsModal() const { return m_bModal; }
    void GotoDlgCtrl(CWnd* pWndCtrl);
    void NextDlgCtrl() const;
    void PrevDlgCtrl() const;
    void SetDefID(UINT nID);
    DWORD GetDefID() const;
    void MapDialogRect(CRect* lpRect) const;

    // Overridables
    virtual BOOL OnInitDialog(); // TRUE: the system sets the focus
    virtual void OnOK();
    virtual void OnCancel();
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

    static INT_PTR CALLBACK AfxDlgProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

protected:
    const DLGTEMPLATE* FindTemplate(UINT nIDTemplate, HINSTANCE* phInst) const;
    HWND ParentHandle() const;

    const DLGTEMPLATE* m_lpDialogTemplate = nullptr;
    BOOL m_bModal = FALSE;
    bool m_bHookPending = false;
};

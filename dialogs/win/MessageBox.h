#pragma once
// AF_CMessageBox: a modal message box in place of the system's: an icon, a
// prompt loaded from the string table and formatted with arguments, and a
// row of buttons whose captions (string ids) and command ids the caller
// chooses. It sizes itself to the prompt (wrapping at 55 % of the work
// area) and to the buttons, and centres itself.
//
// A callback may refuse a button (the box then stays open) and may answer
// help (id 9) instead of the host's context help, whose id is 0x30000 plus
// the prompt's string id. Esc and the close box cancel only when there is
// a Cancel button, or an OK button that is the only button; otherwise the
// system menu's Close is grey.
//
// Errors: no command ids and no default button, or more captions than
// command ids, make DoModal raise CInvalidArgException (the box does not
// show).
#include "dialogs/DialogLayout.h"
#include "dialogs/win/DialogButtons.h"
#include "framework/win/Dialog.h"
#include "framework/win/Static.h"

class AF_CMessageBox : public CDialog {
public:
    typedef AF_CDialogButtons::PressCallback PressCallback;
    static constexpr unsigned int kHelpContextBase = 0x30000;

    explicit AF_CMessageBox(CWnd* pParent = nullptr);

    // Operations: set up in this order, then DoModal
    void SetTitle(const wchar_t* lpszTitle);
    int SetTitle(unsigned int nID); // 0 when the string does not load
    // Loads string nID and formats it with the arguments as a message
    // format (%1, %2, ...; at most 1024 characters); a string that does not
    // load leaves the prompt empty, one that does not format stays as it
    // is. Returns 1.
    int SetPromptText(unsigned int nID, ...);
    int SetButtonStringIDs(unsigned int nFirstID, ...); // ended by 0
    int SetButtonStringIDs(const CUIntArray& ids);
    void SetButtonCmdIDs(unsigned int nFirstID, ...); // ended by 0
    void SetButtonCmdIDs(const CUIntArray& ids);
    void SetDefaultButton(unsigned int nID) { m_buttons.m_nDefaultId = nID; }
    // 16 hand, 32 question, 48 exclamation (the default), 64 asterisk.
    void SetStandardMessageIcon(unsigned int nIcon) { m_nStandardIcon = nIcon; }
    void DisableF1Help() { m_buttons.m_bF1Help = FALSE; }
    void SetButtonPressCallback(PressCallback pfn, void* pData);
    // The command id of the button that closed the box; under the
    // application's safe owner when no parent was given.
    INT_PTR DoModal() override;

    // Attributes
    const CString& GetPromptText() const { return m_strPrompt; }
    BOOL IsCancelAllowed() const { return m_buttons.m_bCancelAllowed; }

protected:
    // Implementation
    void CalcConstants();
    CSize GetActualDialogBaseUnits() const;
    void CalcButtonWidths();
    int CalcMinClientWidthForButtons() const;
    int CalcMinDlgWidthForButtons();
    void CalcTextControlDxDy(CSize& dxdy);
    void CreateButtonWindows();
    HICON LoadStandardMessageIcon() const;
    int FindButton(unsigned int nID) const { return m_buttons.Find(nID); }
    BOOL ButtonPresent(unsigned int nID) const { return m_buttons.Present(nID); }

    // Overridables
    virtual void OnButtonPressed(unsigned int nID);
    virtual void OnHelp();
    BOOL OnInitDialog() override;

    // Message handlers
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    LRESULT OnCommandHelp(WPARAM wParam, LPARAM lParam);

    CStatic m_wndText; // the prompt control
    unsigned int m_nStandardIcon = MB_ICONEXCLAMATION;
    CString m_strPrompt;
    CString m_strTitle;
    unsigned int m_nPromptId = 0;
    AF_CDialogButtons m_buttons;
    AF_CDialogLayout m_layout;
    bool m_bInitFailed = false; // OnInitDialog raised CInvalidArgException
};

#pragma once
// AF_CDialogButtons: the caller-defined button row that the message box and
// the condition-action dialog share: captions loaded from string ids, the
// command ids, the default button, the press callback and F1 help, the
// button windows, and the rule for when Esc may cancel (a Cancel button,
// or an OK button that is the only one).
#include <windows.h>

#include "framework/StringArray.h"
#include "framework/TypedArrays.h"
#include "framework/win/Button.h"

#include <cstdarg>
#include <memory>
#include <vector>

// Sent to a dialog for context help (F1); the system's WM_HELP from the F1
// key is handled the same way.
#ifndef WM_COMMANDHELP
#define WM_COMMANDHELP 0x0365
#endif

class AF_CDialogButtons {
public:
    typedef int (*PressCallback)(unsigned int id, void* user);
    static constexpr unsigned int kHelpId = 9; // IDHELP

    // Attributes
    CStringArray m_captions;
    CUIntArray m_cmdIds;
    std::vector<bool> m_enabled; // one per command id; applied when created
    std::vector<std::unique_ptr<CButton>> m_buttons;
    PressCallback m_pfnCallback = nullptr;
    void* m_pCallbackData = nullptr;
    unsigned int m_nDefaultId = 0; // 0: the first button
    BOOL m_bF1Help = TRUE;
    BOOL m_bCancelAllowed = FALSE;

    // Operations
    // Loads the captions in order through the resource chain; 0 as soon as
    // one does not load (those loaded so far stay), else 1.
    int SetStringIDs(const CUIntArray& ids);
    void SetCmdIDs(const CUIntArray& ids);
    // The ids of a variadic call: first, then the rest up to a 0.
    static CUIntArray CollectIds(unsigned int first, va_list args);

    // One visible tab-stop button per caption at its rectangle, in the
    // dialog's font. A caption without a command id raises
    // CInvalidArgException; creation stops at the first window that fails.
    void Create(CWnd* pDlg, const std::vector<CRect>& rects);
    int Find(unsigned int id) const; // index or -1
    BOOL Present(unsigned int id) const { return Find(id) >= 0; }
    // The set default id, else the first command id (CInvalidArgException
    // when there is none).
    unsigned int GetDefaultId() const;
    // Computes whether Esc may cancel; greys the system menu's Close when
    // it may not.
    void UpdateCancelAllowed(CWnd* pDlg);
    // Enables a button now, or records the wish for Create; FALSE for an
    // unknown id.
    BOOL Enable(unsigned int id, bool enable);
    // The callback's answer for a press (TRUE without a callback).
    BOOL Ask(unsigned int id) const;
    // What a press of button id does: nothing (Esc while cancelling is
    // refused, or the callback refused), the dialog's own help (the Help
    // button, unless the callback answered non-zero for it), or the end of
    // the dialog with id.
    enum class Press { Ignore, ShowHelp, EndDialog };
    Press Decide(unsigned int id) const;
    // TRUE when F1 should show the dialog's own help: F1 help is on and
    // the callback answers 0 (or there is none) for the Help id.
    BOOL WantsF1Help() const;
};

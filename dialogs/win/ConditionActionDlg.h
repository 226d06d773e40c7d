#pragma once
// AF_CConditionActionDlg: a modal confirmation that states a condition and
// asks what to do about it. From the top: "Condition:" and the condition
// text, groups of labelled values, warnings (each optionally with a check
// box, ids 2501 to 2600), a prompt, and the caller's buttons, which behave
// as the message box's (callback, F1 help with context 0x20000 plus the
// help context, Esc only with a Cancel button or a lone OK button). The
// layout (AF_CConditionActionLayout) is computed from the texts before any
// control is made.
//
// Errors: no command ids and no default button, or more captions than
// command ids, make DoModal raise CInvalidArgException (as the message box).
//
// Decisions of this library:
// - AddGroupLabelAndItemLabels adds nothing when one of its strings does
//   not load, so values never land beside the wrong label; AddWarnings adds
//   the warnings that load and returns 0 if one did not.
// - A value's flag keeps its end visible (the start is cut instead).
// - A check box's caption is its warning's text, so a click on the text
//   toggles it; a warning without a box is a plain static text.
#include "dialogs/ConditionActionLayout.h"
#include "dialogs/win/DialogButtons.h"
#include "dialogs/win/TruncStaticCtrl.h"
#include "framework/win/Dialog.h"
#include "framework/win/Static.h"

#include <memory>
#include <vector>

class AF_CConditionActionDlg : public CDialog {
public:
    typedef AF_CDialogButtons::PressCallback PressCallback;
    static constexpr unsigned int kHelpContextBase = 0x20000;
    static constexpr unsigned int kLastButtonId = 2500;

    explicit AF_CConditionActionDlg(CWnd* pParent = nullptr);

    // Operations: set up before DoModal
    void SetTitle(const wchar_t* lpszTitle);
    int SetTitle(unsigned int nID); // 0 when the string does not load
    void SetConditionText(const wchar_t* lpszText);
    void SetPromptText(const wchar_t* lpszText);
    void SetHelpContext(unsigned int nContext) { m_nHelpContext = nContext; }
    int SetButtonStringIDs(unsigned int nFirstID, ...); // ended by 0
    int SetButtonStringIDs(const CUIntArray& ids);
    void SetButtonCmdIDs(unsigned int nFirstID, ...); // ended by 0
    void SetButtonCmdIDs(const CUIntArray& ids);
    void SetDefaultButton(unsigned int nID) { m_buttons.m_nDefaultId = nID; }
    void DisableF1Help() { m_buttons.m_bF1Help = FALSE; }
    void SetButtonPressCallback(PressCallback pfn, void* pData);
    void SetCheckboxClickCallback(PressCallback pfn, void* pData);
    // The group label's string id first, then its item labels'; 0 (and
    // nothing added) when a string does not load.
    int AddGroupLabelAndItemLabels(const CUIntArray& ids);
    int AddGroupLabelAndItemLabels(unsigned int nGroupID, ...); // ended by 0
    // One value per item label, in order.
    void AddGroupItemValue(const wchar_t* lpszValue, bool bKeepEnd);
    // 0 when the text does not load or a check box's id is outside 2501 to
    // 2600; otherwise the warning is added, enabled.
    int AddWarning(unsigned int nTextID, bool bHasCheckbox, unsigned int nCheckboxID,
                   bool bChecked);
    int AddWarnings(const CUIntArray& textIds);  // without check boxes
    int AddWarnings(unsigned int nFirstID, ...); // ended by 0
    // The command id of the button that closed the dialog; under the
    // application's safe owner when no parent was given.
    INT_PTR DoModal() override;

    // Operations at any time: before the controls exist the wish is kept.
    // FALSE for an unknown id.
    BOOL EnableButton(unsigned int nID, bool bEnable);
    BOOL EnableCheckbox(unsigned int nID, bool bEnable);
    // The box's state as last clicked (or as added); false for an unknown id.
    bool IsWarningCheckboxChecked(unsigned int nID) const;

    // Attributes
    const AF_CConditionActionLayout& GetLayout() const { return m_layout; }
    BOOL IsCancelAllowed() const { return m_buttons.m_bCancelAllowed; }

protected:
    // Overridables
    virtual void OnButtonPressed(unsigned int nID);
    virtual void OnCheckboxClicked(unsigned int nID);
    virtual void OnHelp();
    BOOL OnInitDialog() override;

    // Message handlers
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    LRESULT OnCommandHelp(WPARAM wParam, LPARAM lParam);

    // Implementation
    void CalcLayout();
    void PlaceConditionLine();
    void CreateLabelControls();
    void CreateItemValueControls();
    void CreateWarningControls();
    void CreatePromptControl();
    CWarningItem* FindWarning(unsigned int nCheckboxID);
    const CWarningItem* FindWarning(unsigned int nCheckboxID) const;

    CStatic m_wndConditionText;
    CStatic m_wndConditionLabel;
    bool m_bInitialized = false;
    AF_CDialogButtons m_buttons;
    PressCallback m_pfnCheckboxCallback = nullptr;
    void* m_pCheckboxData = nullptr;
    CString m_strCondition;
    CString m_strTitle;
    CString m_strPrompt;
    unsigned int m_nHelpContext = 0;
    AF_CConditionActionLayout m_layout;
    CArray<CStaticTextItem> m_labels;
    std::vector<std::unique_ptr<CStatic>> m_labelCtrls;
    CArray<CTruncStaticTextItem> m_values;
    std::vector<std::unique_ptr<AF_CTruncStaticCtrl>> m_valueCtrls;
    CArray<CWarningItem> m_warnings;
    std::vector<std::unique_ptr<CStatic>> m_warningIcons;
    std::vector<std::unique_ptr<CWnd>> m_warningTexts; // CStatic or check box CButton
    CStatic m_wndPrompt;
    HICON m_hWarningIcon = nullptr;
    bool m_bInitFailed = false; // OnInitDialog raised CInvalidArgException
};

#pragma once
// Vu_CSaveOptionsMessageBox: the "Confirm Save Operation" box with Yes,
// Yes To All, No and Cancel. The answer comes back as the dialog result
// (6, 3100, 7, 2) and as a return code (0x42800 Yes, 0x42803 Yes To All,
// 0x42801 No, 0x42802 Cancel, Esc or the close box); a box never shown
// reports 0x42801. The box grows around its prompt (Vu_CSaveOptionsLayout)
// and centres itself.
#include "framework/win/Dialog.h"

class Vu_CSaveOptionsMessageBox : public CDialog {
public:
    static constexpr long kReturnYes = 0x42800;
    static constexpr long kReturnNo = 0x42801;
    static constexpr long kReturnCancel = 0x42802;
    static constexpr long kReturnYesToAll = 0x42803;

    // The prompt from the string table (empty when it does not load), or
    // given; style holds the MB_ flags that choose the icon.
    Vu_CSaveOptionsMessageBox(unsigned int nPromptID, unsigned int nStyle, CWnd* pParent = nullptr);
    Vu_CSaveOptionsMessageBox(const wchar_t* lpszPrompt, unsigned int nStyle,
                              CWnd* pParent = nullptr);

    // Attributes
    long GetAFReturnCode() const { return m_nReturnCode; }

protected:
    // Message handlers
    virtual void OnYes();
    virtual void OnNo();
    virtual void OnYestoall();
    void OnCancel() override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    BOOL OnInitDialog() override;

    // Implementation
    // Grows the dialog around its prompt and centres it.
    void AdjustDialog();
    HICON LoadIcon() const;

    CString m_strPrompt;
    unsigned int m_nStyle = 0;
    long m_nReturnCode = kReturnNo;
};

#include "framework/win/ToolTipCtrl.h"

#include "framework/win/Geometry.h"

namespace {

// The size of TOOLINFOW that every comctl32 version accepts (no lpReserved).
const UINT kToolInfoSize = TTTOOLINFOW_V2_SIZE;

TOOLINFOW MakeToolInfo(CWnd* pWnd, UINT_PTR nIDTool) {
    TOOLINFOW ti{};
    ti.cbSize = kToolInfoSize;
    ti.hwnd = pWnd != nullptr ? pWnd->m_hWnd : nullptr;
    ti.uId = nIDTool;
    return ti;
}

} // namespace

BOOL CToolTipCtrl::Create(CWnd* pParentWnd, DWORD dwStyle) {
    return CreateEx(WS_EX_TOOLWINDOW, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | dwStyle,
                    CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT,
                    pParentWnd != nullptr ? pParentWnd->m_hWnd : nullptr, nullptr);
}

BOOL CToolTipCtrl::AddTool(TOOLINFOW* pToolInfo) {
    if (pToolInfo == nullptr)
        return FALSE;
    pToolInfo->cbSize = kToolInfoSize;
    return static_cast<BOOL>(SendMessage(TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(pToolInfo)));
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, const wchar_t* lpszText, const CRect* lpRect,
                           UINT_PTR nIDTool) {
    if (pWnd == nullptr)
        return FALSE;
    TOOLINFOW ti = MakeToolInfo(pWnd, nIDTool);
    ti.uFlags = TTF_SUBCLASS;
    if (lpRect != nullptr)
        ti.rect = vu::ToRECT(*lpRect);
    else
        ::GetClientRect(pWnd->m_hWnd, &ti.rect);
    ti.lpszText = lpszText == reinterpret_cast<const wchar_t*>(LPSTR_TEXTCALLBACKW)
                      ? LPSTR_TEXTCALLBACKW
                      : const_cast<wchar_t*>(lpszText);
    return static_cast<BOOL>(SendMessage(TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&ti)));
}

void CToolTipCtrl::DelTool(CWnd* pWnd, UINT_PTR nIDTool) {
    TOOLINFOW ti = MakeToolInfo(pWnd, nIDTool);
    SendMessage(TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&ti));
}

BOOL CToolTipCtrl::GetToolInfo(TOOLINFOW* pToolInfo, CWnd* pWnd, UINT_PTR nIDTool) const {
    if (pToolInfo == nullptr)
        return FALSE;
    *pToolInfo = MakeToolInfo(pWnd, nIDTool);
    return static_cast<BOOL>(SendMessage(TTM_GETTOOLINFOW, 0, reinterpret_cast<LPARAM>(pToolInfo)));
}

void CToolTipCtrl::SetToolInfo(TOOLINFOW* pToolInfo) {
    if (pToolInfo == nullptr)
        return;
    pToolInfo->cbSize = kToolInfoSize;
    SendMessage(TTM_SETTOOLINFOW, 0, reinterpret_cast<LPARAM>(pToolInfo));
}

void CToolTipCtrl::SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, const CRect& rect) {
    TOOLINFOW ti = MakeToolInfo(pWnd, nIDTool);
    ti.rect = vu::ToRECT(rect);
    SendMessage(TTM_NEWTOOLRECTW, 0, reinterpret_cast<LPARAM>(&ti));
}

void CToolTipCtrl::UpdateTipText(const wchar_t* lpszText, CWnd* pWnd, UINT_PTR nIDTool) {
    TOOLINFOW ti = MakeToolInfo(pWnd, nIDTool);
    ti.lpszText = const_cast<wchar_t*>(lpszText);
    SendMessage(TTM_UPDATETIPTEXTW, 0, reinterpret_cast<LPARAM>(&ti));
}

int CToolTipCtrl::GetToolCount() const {
    return static_cast<int>(SendMessage(TTM_GETTOOLCOUNT));
}
void CToolTipCtrl::Activate(BOOL bActivate) {
    SendMessage(TTM_ACTIVATE, bActivate);
}

void CToolTipCtrl::RelayEvent(MSG* pMsg) {
    if (pMsg != nullptr && m_hWnd != nullptr)
        SendMessage(TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(pMsg));
}

void CToolTipCtrl::Pop() {
    SendMessage(TTM_POP);
}
void CToolTipCtrl::Update() {
    SendMessage(TTM_UPDATE);
}

int CToolTipCtrl::SetMaxTipWidth(int iWidth) {
    return static_cast<int>(SendMessage(TTM_SETMAXTIPWIDTH, 0, iWidth));
}

void CToolTipCtrl::SetDelayTime(DWORD dwDuration, int iTime) {
    SendMessage(TTM_SETDELAYTIME, dwDuration, MAKELPARAM(iTime, 0));
}

int CToolTipCtrl::GetDelayTime(DWORD dwDuration) const {
    return static_cast<int>(SendMessage(TTM_GETDELAYTIME, dwDuration));
}

void CToolTipCtrl::SetTipBkColor(COLORREF clr) {
    SendMessage(TTM_SETTIPBKCOLOR, clr);
}
void CToolTipCtrl::SetTipTextColor(COLORREF clr) {
    SendMessage(TTM_SETTIPTEXTCOLOR, clr);
}

BOOL CToolTipCtrl::AdjustRect(CRect* lpRect, BOOL bLarger) {
    return static_cast<BOOL>(
        SendMessage(TTM_ADJUSTRECT, bLarger, reinterpret_cast<LPARAM>(vu::AsRECT(lpRect))));
}

void CToolTipCtrl::TrackActivate(BOOL bActivate, TOOLINFOW* pToolInfo) {
    if (pToolInfo != nullptr)
        pToolInfo->cbSize = kToolInfoSize;
    SendMessage(TTM_TRACKACTIVATE, bActivate, reinterpret_cast<LPARAM>(pToolInfo));
}

void CToolTipCtrl::TrackPosition(int x, int y) {
    SendMessage(TTM_TRACKPOSITION, 0, MAKELPARAM(x, y));
}

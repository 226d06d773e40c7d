#include "framework/win/Wnd.h"

#include "framework/win/AppServices.h"
#include "framework/win/ParentWatch.h"
#include "framework/win/DC.h"
#include "framework/win/DynLinkLibrary.h"
#include "framework/win/Font.h"
#include "framework/win/Geometry.h"
#include "framework/win/Menu.h"
#include "framework/win/ThreadState.h"

namespace {

bool IsWindowAlive(void* h) {
    return ::IsWindow(static_cast<HWND>(h)) != FALSE;
}
void DetachTempWnd(CObject* o) {
    static_cast<CWnd*>(o)->m_hWnd = nullptr;
}

// Set while a default owner-draw virtual runs, so that the parent answers
// notifications that the object's class does not draw.
thread_local bool t_ownerDrawUnhandled = false;

int t_hookDepth = 0;

LRESULT CALLBACK CbtFilterHook(int code, WPARAM wParam, LPARAM lParam) {
    AFX_THREAD_STATE* state = AfxGetThreadState();
    if (code == HCBT_CREATEWND && state->m_pWndInit != nullptr) {
        CWnd* pWnd = state->m_pWndInit;
        state->m_pWndInit = nullptr; // only the first window created is ours
        HWND hWnd = reinterpret_cast<HWND>(wParam);
        if (pWnd->Attach(hWnd))
            pWnd->SubclassWindow(nullptr); // routes the attached window's messages
    }
    return CallNextHookEx(state->m_hHookCbt, code, wParam, lParam);
}

} // namespace

// ---- handle maps ---------------------------------------------------------

CWnd* CWnd::FromHandlePermanent(HWND hWnd) {
    if (hWnd == nullptr)
        return nullptr;
    auto& map = AfxGetThreadState()->m_permanentWindows;
    auto it = map.find(hWnd);
    return it == map.end() ? nullptr : it->second;
}

CWnd* CWnd::FromHandle(HWND hWnd) {
    if (hWnd == nullptr)
        return nullptr;
    if (CWnd* pWnd = FromHandlePermanent(hWnd))
        return pWnd;
    CHandleMap& temps = AfxGetThreadState()->TempMap(afxTempWnd, IsWindowAlive, DetachTempWnd);
    if (CObject* found = temps.Lookup(hWnd))
        return static_cast<CWnd*>(found);
    auto* pWnd = new CWnd;
    pWnd->m_hWnd = hWnd;
    temps.Add(hWnd, pWnd);
    return pWnd;
}

void CWnd::DeleteTempMap() {
    AfxGetThreadState()->TempMap(afxTempWnd, IsWindowAlive, DetachTempWnd).DeleteAll();
}

CWnd::~CWnd() {
    if (m_hWnd != nullptr && FromHandlePermanent(m_hWnd) == this) {
        // Like the framework it mimics: an object that dies bound destroys
        // its window (the handlers of derived classes are gone by now).
        if (::IsWindow(m_hWnd))
            ::DestroyWindow(m_hWnd);
        if (m_hWnd != nullptr)
            Detach();
    }
    StopWatchingParent();
}

BOOL CWnd::Attach(HWND hWndNew) {
    if (hWndNew == nullptr || m_hWnd != nullptr || FromHandlePermanent(hWndNew) != nullptr)
        return FALSE;
    AfxGetThreadState()->m_permanentWindows[hWndNew] = this;
    m_hWnd = hWndNew;
    return TRUE;
}

HWND CWnd::Detach() {
    HWND hWnd = m_hWnd;
    if (hWnd != nullptr) {
        auto& map = AfxGetThreadState()->m_permanentWindows;
        auto it = map.find(hWnd);
        if (it != map.end() && it->second == this)
            map.erase(it);
    }
    m_hWnd = nullptr;
    return hWnd;
}

// SubclassWindow(nullptr) subclasses the window already attached (used by
// the creation hook).
BOOL CWnd::SubclassWindow(HWND hWnd) {
    if (hWnd != nullptr) {
        if (!::IsWindow(hWnd) || !Attach(hWnd))
            return FALSE;
    } else if (m_hWnd == nullptr || m_pfnSuper != nullptr) {
        return FALSE;
    }
    PreSubclassWindow();
    auto* old = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&CWnd::AfxWndProc)));
    if (old == nullptr) {
        Detach();
        return FALSE;
    }
    m_pfnSuper = old;
    AfxGetThreadState()->m_orphanProcs.erase(m_hWnd);
    WatchParent();
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT nID, CWnd* pParent) {
    return pParent != nullptr && SubclassDlgItem(nID, pParent->m_hWnd);
}

BOOL CWnd::SubclassDlgItem(UINT nID, HWND hWndParent) {
    HWND hWndControl = ::GetDlgItem(hWndParent, static_cast<int>(nID));
    return hWndControl != nullptr && SubclassWindow(hWndControl);
}

HWND CWnd::UnsubclassWindow() {
    if (m_hWnd == nullptr || m_pfnSuper == nullptr)
        return nullptr;
    auto* current = reinterpret_cast<WNDPROC>(GetWindowLongPtrW(m_hWnd, GWLP_WNDPROC));
    if (current == &CWnd::AfxWndProc)
        SetWindowLongPtrW(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_pfnSuper));
    else // someone subclassed above us: keep forwarding through our procedure
        AfxGetThreadState()->m_orphanProcs[m_hWnd] = m_pfnSuper;
    m_pfnSuper = nullptr;
    StopWatchingParent();
    return Detach();
}

// ---- parent notifications -----------------------------------------------

namespace {
CParentWatch* g_pParentWatch = nullptr;
} // namespace

CParentWatch* AfxGetParentWatch() {
    return g_pParentWatch;
}

void AfxSetParentWatch(CParentWatch* pWatch) {
    g_pParentWatch = pWatch;
}

void CWnd::WatchParent() {
    if (m_hWndWatchedParent != nullptr || m_hWnd == nullptr)
        return;
    if ((GetWindowLongPtrW(m_hWnd, GWL_STYLE) & WS_CHILD) == 0)
        return;
    HWND hWndParent = ::GetParent(m_hWnd);
    CParentWatch* pWatch = AfxGetParentWatch();
    if (hWndParent == nullptr || pWatch == nullptr)
        return;
    pWatch->Acquire(hWndParent);
    m_hWndWatchedParent = hWndParent;
}

void CWnd::StopWatchingParent() {
    if (m_hWndWatchedParent == nullptr)
        return;
    if (CParentWatch* pWatch = AfxGetParentWatch())
        pWatch->Release(m_hWndWatchedParent);
    m_hWndWatchedParent = nullptr;
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM, LPARAM lParam, LRESULT* pResult) {
    switch (message) {
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_COMPAREITEM:
    case WM_DELETEITEM:
        return ReflectOwnerDraw(message, lParam, pResult);
    default:
        return FALSE;
    }
}

BOOL CWnd::ReflectOwnerDraw(UINT message, LPARAM lParam, LRESULT* pResult) {
    t_ownerDrawUnhandled = false;
    LRESULT result = TRUE;
    switch (message) {
    case WM_DRAWITEM:
        DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        break;
    case WM_MEASUREITEM:
        MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        break;
    case WM_COMPAREITEM:
        result = CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
        break;
    case WM_DELETEITEM:
        DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        break;
    default:
        return FALSE;
    }
    if (t_ownerDrawUnhandled) {
        t_ownerDrawUnhandled = false;
        return FALSE;
    }
    if (pResult != nullptr)
        *pResult = result;
    return TRUE;
}

void CWnd::DrawItem(LPDRAWITEMSTRUCT) {
    t_ownerDrawUnhandled = true;
}
void CWnd::MeasureItem(LPMEASUREITEMSTRUCT) {
    t_ownerDrawUnhandled = true;
}
int CWnd::CompareItem(LPCOMPAREITEMSTRUCT) {
    t_ownerDrawUnhandled = true;
    return 0;
}
void CWnd::DeleteItem(LPDELETEITEMSTRUCT) {
    t_ownerDrawUnhandled = true;
}

// ---- creation --------------------------------------------------------------

void CWnd::HookCreation() {
    AFX_THREAD_STATE* state = AfxGetThreadState();
    if (t_hookDepth++ == 0)
        state->m_hHookCbt = SetWindowsHookExW(WH_CBT, CbtFilterHook, nullptr, GetCurrentThreadId());
    state->m_pWndInit = this;
}

void CWnd::UnhookCreation() {
    AFX_THREAD_STATE* state = AfxGetThreadState();
    state->m_pWndInit = nullptr;
    if (--t_hookDepth == 0 && state->m_hHookCbt != nullptr) {
        UnhookWindowsHookEx(state->m_hHookCbt);
        state->m_hHookCbt = nullptr;
    }
}

BOOL CWnd::CreateEx(DWORD dwExStyle, const wchar_t* lpszClassName, const wchar_t* lpszWindowName,
                    DWORD dwStyle, int x, int y, int nWidth, int nHeight, HWND hWndParent,
                    HMENU nIDorHMenu, LPVOID lpParam) {
    if (m_hWnd != nullptr)
        return FALSE;
    CREATESTRUCTW cs{};
    cs.dwExStyle = dwExStyle;
    cs.lpszClass = lpszClassName;
    cs.lpszName = lpszWindowName;
    cs.style = static_cast<LONG>(dwStyle);
    cs.x = x;
    cs.y = y;
    cs.cx = nWidth;
    cs.cy = nHeight;
    cs.hwndParent = hWndParent;
    cs.hMenu = nIDorHMenu;
    cs.hInstance = AfxGetInstanceHandle();
    cs.lpCreateParams = lpParam;
    if (!PreCreateWindow(cs))
        return FALSE;

    HookCreation();
    HWND hWnd = CreateWindowExW(cs.dwExStyle, cs.lpszClass, cs.lpszName,
                                static_cast<DWORD>(cs.style), cs.x, cs.y, cs.cx, cs.cy,
                                cs.hwndParent, cs.hMenu, cs.hInstance, cs.lpCreateParams);
    UnhookCreation();
    if (hWnd == nullptr) {
        // A window that failed in WM_CREATE was destroyed and detached.
        if (m_hWnd != nullptr && !::IsWindow(m_hWnd))
            Detach();
        return FALSE;
    }
    if (m_hWnd == nullptr) // the hook did not see it: subclass now
        SubclassWindow(hWnd);
    return m_hWnd == hWnd;
}

BOOL CWnd::CreateEx(DWORD dwExStyle, const wchar_t* lpszClassName, const wchar_t* lpszWindowName,
                    DWORD dwStyle, const CRect& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam) {
    return CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top,
                    rect.right - rect.left, rect.bottom - rect.top,
                    pParentWnd != nullptr ? pParentWnd->m_hWnd : nullptr,
                    reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), lpParam);
}

BOOL CWnd::Create(const wchar_t* lpszClassName, const wchar_t* lpszWindowName, DWORD dwStyle,
                  const CRect& rect, CWnd* pParentWnd, UINT nID) {
    return CreateEx(0, lpszClassName, lpszWindowName, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

BOOL CWnd::DestroyWindow() {
    if (m_hWnd == nullptr)
        return FALSE;
    HWND hWnd = m_hWnd;
    bool permanent = FromHandlePermanent(hWnd) == this;
    BOOL result = ::DestroyWindow(hWnd);
    // A window bound without subclassing never saw WM_NCDESTROY.
    if (permanent && m_hWnd == hWnd && !::IsWindow(hWnd)) {
        StopWatchingParent();
        Detach();
    }
    return result;
}

BOOL CWnd::PreCreateWindow(CREATESTRUCTW&) {
    return TRUE;
}
void CWnd::PreSubclassWindow() {}
BOOL CWnd::PreTranslateMessage(MSG*) {
    return FALSE;
}
void CWnd::PostNcDestroy() {}

// ---- message handling ------------------------------------------------------

LRESULT CALLBACK CWnd::AfxWndProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    AFX_THREAD_STATE* state = AfxGetThreadState();
    CWnd* pWnd = FromHandlePermanent(hWnd);
    if (pWnd == nullptr || pWnd->m_pfnSuper == nullptr) {
        auto it = state->m_orphanProcs.find(hWnd);
        if (it == state->m_orphanProcs.end())
            return ::DefWindowProcW(hWnd, message, wParam, lParam);
        WNDPROC proc = it->second;
        if (message == WM_NCDESTROY)
            state->m_orphanProcs.erase(it);
        return CallWindowProcW(proc, hWnd, message, wParam, lParam);
    }

    MSG saved = state->m_lastSentMsg;
    state->m_lastSentMsg.hwnd = hWnd;
    state->m_lastSentMsg.message = message;
    state->m_lastSentMsg.wParam = wParam;
    state->m_lastSentMsg.lParam = lParam;
    LRESULT result = 0;
    try {
        result = pWnd->WindowProc(message, wParam, lParam);
    } catch (...) {
        // Nothing may unwind into the system's code.
        result = 0;
    }
    state->m_lastSentMsg = saved;

    if (message == WM_NCDESTROY) {
        if (CWnd* pStill = FromHandlePermanent(hWnd))
            pStill->OnNcDestroyed();
    }
    return result;
}

void CWnd::OnNcDestroyed() {
    if (m_pfnSuper != nullptr) {
        auto* current = reinterpret_cast<WNDPROC>(GetWindowLongPtrW(m_hWnd, GWLP_WNDPROC));
        if (current == &CWnd::AfxWndProc)
            SetWindowLongPtrW(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_pfnSuper));
        m_pfnSuper = nullptr;
    }
    StopWatchingParent();
    Detach();
    PostNcDestroy(); // may delete this
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    if (OnWndMsg(message, wParam, lParam, &result))
        return result;
    return DefWindowProc(message, wParam, lParam);
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    switch (message) {
    case WM_COMMAND:
        if (OnCommand(wParam, lParam)) {
            *pResult = 0;
            return TRUE;
        }
        return FALSE;
    case WM_NOTIFY:
        return OnNotify(wParam, lParam, pResult);
    default:
        return FALSE;
    }
}

BOOL CWnd::OnCommand(WPARAM, LPARAM) {
    return FALSE;
}
BOOL CWnd::OnNotify(WPARAM, LPARAM, LRESULT*) {
    return FALSE;
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (m_pfnSuper != nullptr)
        return CallWindowProcW(m_pfnSuper, m_hWnd, message, wParam, lParam);
    return ::DefWindowProcW(m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::Default() {
    const MSG& msg = AfxGetThreadState()->m_lastSentMsg;
    return DefWindowProc(msg.message, msg.wParam, msg.lParam);
}

// ---- window state ----------------------------------------------------------

DWORD CWnd::GetStyle() const {
    return static_cast<DWORD>(GetWindowLongPtrW(m_hWnd, GWL_STYLE));
}

DWORD CWnd::GetExStyle() const {
    return static_cast<DWORD>(GetWindowLongPtrW(m_hWnd, GWL_EXSTYLE));
}

static BOOL ModifyLong(HWND hWnd, int index, DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    DWORD style = static_cast<DWORD>(GetWindowLongPtrW(hWnd, index));
    DWORD newStyle = (style & ~dwRemove) | dwAdd;
    if (style == newStyle)
        return FALSE;
    SetWindowLongPtrW(hWnd, index, static_cast<LONG_PTR>(newStyle));
    if (nFlags != 0)
        ::SetWindowPos(hWnd, nullptr, 0, 0, 0, 0,
                       SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | nFlags);
    return TRUE;
}

BOOL CWnd::ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    return ModifyLong(m_hWnd, GWL_STYLE, dwRemove, dwAdd, nFlags);
}

BOOL CWnd::ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    return ModifyLong(m_hWnd, GWL_EXSTYLE, dwRemove, dwAdd, nFlags);
}

int CWnd::GetDlgCtrlID() const {
    return ::GetDlgCtrlID(m_hWnd);
}

int CWnd::SetDlgCtrlID(int nID) {
    return static_cast<int>(SetWindowLongPtrW(m_hWnd, GWLP_ID, nID));
}

CWnd* CWnd::GetParent() const {
    return FromHandle(::GetParent(m_hWnd));
}

CWnd* CWnd::GetOwner() const {
    return FromHandle(::GetWindow(m_hWnd, GW_OWNER));
}

CWnd* CWnd::GetTopLevelParent() const {
    return m_hWnd != nullptr ? FromHandle(GetAncestor(m_hWnd, GA_ROOT)) : nullptr;
}

CWnd* CWnd::GetDlgItem(int nID) const {
    return FromHandle(::GetDlgItem(m_hWnd, nID));
}

CWnd* CWnd::GetSafeOwner(CWnd* pParent) {
    return FromHandle(
        AfxGetAppServices()->GetSafeOwner(pParent != nullptr ? pParent->m_hWnd : nullptr));
}

BOOL CWnd::ShowWindow(int nCmdShow) {
    return ::ShowWindow(m_hWnd, nCmdShow);
}
BOOL CWnd::IsWindowVisible() const {
    return ::IsWindowVisible(m_hWnd);
}
BOOL CWnd::EnableWindow(BOOL bEnable) {
    return ::EnableWindow(m_hWnd, bEnable);
}
BOOL CWnd::IsWindowEnabled() const {
    return ::IsWindowEnabled(m_hWnd);
}

void CWnd::SetWindowText(const wchar_t* lpszString) {
    ::SetWindowTextW(m_hWnd, (lpszString != nullptr ? lpszString : L""));
}

int CWnd::GetWindowText(CString& rString) const {
    int length = ::GetWindowTextLengthW(m_hWnd);
    wchar_t* buffer = rString.GetBuffer(length + 1);
    int copied = ::GetWindowTextW(m_hWnd, buffer, length + 1);
    rString.ReleaseBuffer(copied);
    return copied;
}

int CWnd::GetWindowTextLength() const {
    return ::GetWindowTextLengthW(m_hWnd);
}

void CWnd::SetFont(CFont* pFont, BOOL bRedraw) {
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(pFont != nullptr ? pFont->m_hObject : nullptr),
                bRedraw);
}

CFont* CWnd::GetFont() const {
    return CFont::FromHandle(reinterpret_cast<HFONT>(SendMessage(WM_GETFONT)));
}

CMenu* CWnd::GetMenu() const {
    return CMenu::FromHandle(::GetMenu(m_hWnd));
}

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) const {
    return ::SendMessageW(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam) const {
    return ::PostMessageW(m_hWnd, message, wParam, lParam);
}

int CWnd::GetDlgItemText(int nID, CString& rString) const {
    HWND hWndItem = ::GetDlgItem(m_hWnd, nID);
    rString.Empty();
    if (hWndItem == nullptr)
        return 0;
    int length = ::GetWindowTextLengthW(hWndItem);
    wchar_t* buffer = rString.GetBuffer(length + 1);
    int copied = ::GetWindowTextW(hWndItem, buffer, length + 1);
    rString.ReleaseBuffer(copied);
    return copied;
}

void CWnd::SetDlgItemText(int nID, const wchar_t* lpszString) {
    ::SetDlgItemTextW(m_hWnd, nID, (lpszString != nullptr ? lpszString : L""));
}

// ---- geometry ----------------------------------------------------------------

void CWnd::GetClientRect(LPRECT lpRect) const {
    ::GetClientRect(m_hWnd, lpRect);
}
void CWnd::GetClientRect(CRect* lpRect) const {
    ::GetClientRect(m_hWnd, vu::AsRECT(lpRect));
}
void CWnd::GetWindowRect(LPRECT lpRect) const {
    ::GetWindowRect(m_hWnd, lpRect);
}
void CWnd::GetWindowRect(CRect* lpRect) const {
    ::GetWindowRect(m_hWnd, vu::AsRECT(lpRect));
}
void CWnd::ClientToScreen(CPoint* lpPoint) const {
    ::ClientToScreen(m_hWnd, vu::AsPOINT(lpPoint));
}

void CWnd::ClientToScreen(CRect* lpRect) const {
    ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<POINT*>(lpRect), 2);
}

void CWnd::ScreenToClient(CPoint* lpPoint) const {
    ::ScreenToClient(m_hWnd, vu::AsPOINT(lpPoint));
}

void CWnd::ScreenToClient(CRect* lpRect) const {
    ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<POINT*>(lpRect), 2);
}

void CWnd::MapWindowPoints(CWnd* pwndTo, CRect* lpRect) const {
    ::MapWindowPoints(m_hWnd, pwndTo != nullptr ? pwndTo->m_hWnd : nullptr,
                      reinterpret_cast<POINT*>(lpRect), 2);
}

void CWnd::MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint) {
    ::MoveWindow(m_hWnd, x, y, nWidth, nHeight, bRepaint);
}

void CWnd::MoveWindow(const CRect& rect, BOOL bRepaint) {
    ::MoveWindow(m_hWnd, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
                 bRepaint);
}

BOOL CWnd::SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags) {
    return ::SetWindowPos(m_hWnd, pWndInsertAfter != nullptr ? pWndInsertAfter->m_hWnd : nullptr, x,
                          y, cx, cy, nFlags);
}

BOOL CWnd::SetWindowPos(HWND hWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags) {
    return ::SetWindowPos(m_hWnd, hWndInsertAfter, x, y, cx, cy, nFlags);
}

void CWnd::CenterWindow(CWnd* pAlternateOwner) {
    HWND hWndCenter =
        pAlternateOwner != nullptr ? pAlternateOwner->m_hWnd : ::GetWindow(m_hWnd, GW_OWNER);
    if (hWndCenter == nullptr && (GetStyle() & WS_CHILD) != 0)
        hWndCenter = ::GetParent(m_hWnd);
    RECT area{};
    if (hWndCenter != nullptr && (GetStyle() & WS_CHILD) != 0)
        ::GetClientRect(hWndCenter, &area);
    else if (hWndCenter != nullptr)
        ::GetWindowRect(hWndCenter, &area);
    else
        SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    RECT own{};
    ::GetWindowRect(m_hWnd, &own);
    int width = own.right - own.left;
    int height = own.bottom - own.top;
    int x = (area.left + area.right - width) / 2;
    int y = (area.top + area.bottom - height) / 2;
    ::SetWindowPos(m_hWnd, nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

CWnd* CWnd::WindowFromPoint(CPoint point) {
    return FromHandle(::WindowFromPoint(vu::ToPOINT(point)));
}

CWnd* CWnd::ChildWindowFromPoint(CPoint point) const {
    return FromHandle(::ChildWindowFromPoint(m_hWnd, vu::ToPOINT(point)));
}

// ---- painting ----------------------------------------------------------------

void CWnd::Invalidate(BOOL bErase) {
    ::InvalidateRect(m_hWnd, nullptr, bErase);
}

void CWnd::InvalidateRect(const CRect* lpRect, BOOL bErase) {
    ::InvalidateRect(m_hWnd, vu::AsRECT(lpRect), bErase);
}

void CWnd::ValidateRect(const CRect* lpRect) {
    ::ValidateRect(m_hWnd, vu::AsRECT(lpRect));
}
void CWnd::UpdateWindow() {
    ::UpdateWindow(m_hWnd);
}

BOOL CWnd::RedrawWindow(const CRect* lpRectUpdate, HRGN hrgnUpdate, UINT flags) {
    return ::RedrawWindow(m_hWnd, vu::AsRECT(lpRectUpdate), hrgnUpdate, flags);
}

void CWnd::SetRedraw(BOOL bRedraw) {
    SendMessage(WM_SETREDRAW, bRedraw);
}

CDC* CWnd::GetDC() {
    return CDC::FromHandle(::GetDC(m_hWnd));
}
CDC* CWnd::GetWindowDC() {
    return CDC::FromHandle(::GetWindowDC(m_hWnd));
}

int CWnd::ReleaseDC(CDC* pDC) {
    return pDC != nullptr ? ::ReleaseDC(m_hWnd, pDC->m_hDC) : 0;
}

void CWnd::ScrollWindow(int xAmount, int yAmount, const CRect* lpRect, const CRect* lpClipRect) {
    ::ScrollWindow(m_hWnd, xAmount, yAmount, vu::AsRECT(lpRect), vu::AsRECT(lpClipRect));
}

// ---- input ---------------------------------------------------------------------

CWnd* CWnd::SetFocus() {
    return FromHandle(::SetFocus(m_hWnd));
}
CWnd* CWnd::GetFocus() {
    return FromHandle(::GetFocus());
}
CWnd* CWnd::SetCapture() {
    return FromHandle(::SetCapture(m_hWnd));
}
CWnd* CWnd::GetCapture() {
    return FromHandle(::GetCapture());
}

UINT_PTR CWnd::SetTimer(UINT_PTR nIDEvent, UINT nElapse, TIMERPROC lpfnTimer) {
    return ::SetTimer(m_hWnd, nIDEvent, nElapse, lpfnTimer);
}

BOOL CWnd::KillTimer(UINT_PTR nIDEvent) {
    return ::KillTimer(m_hWnd, nIDEvent);
}

// ---- scrolling ---------------------------------------------------------------

BOOL CWnd::SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw) {
    lpScrollInfo->cbSize = sizeof(SCROLLINFO);
    ::SetScrollInfo(m_hWnd, nBar, lpScrollInfo, bRedraw);
    return TRUE;
}

BOOL CWnd::GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask) const {
    lpScrollInfo->cbSize = sizeof(SCROLLINFO);
    lpScrollInfo->fMask = nMask;
    return ::GetScrollInfo(m_hWnd, nBar, lpScrollInfo);
}

int CWnd::SetScrollPos(int nBar, int nPos, BOOL bRedraw) {
    return ::SetScrollPos(m_hWnd, nBar, nPos, bRedraw);
}

int CWnd::GetScrollPos(int nBar) const {
    return ::GetScrollPos(m_hWnd, nBar);
}

void CWnd::SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw) {
    ::SetScrollRange(m_hWnd, nBar, nMinPos, nMaxPos, bRedraw);
}

void CWnd::ShowScrollBar(UINT nBar, BOOL bShow) {
    ::ShowScrollBar(m_hWnd, static_cast<int>(nBar), bShow);
}

#include "framework/win/Menu.h"

#include "framework/win/DynLinkLibrary.h"
#include "framework/win/ThreadState.h"
#include "framework/win/Wnd.h"

namespace {

bool IsMenuAlive(void* hMenu) {
    return ::IsMenu(static_cast<HMENU>(hMenu)) != FALSE;
}
void DetachTempMenu(CObject* o) {
    static_cast<CMenu*>(o)->m_hMenu = nullptr;
}

} // namespace

CMenu* CMenu::FromHandle(HMENU hMenu) {
    if (hMenu == nullptr)
        return nullptr;
    CHandleMap& temps = AfxGetThreadState()->TempMap(afxTempMenu, IsMenuAlive, DetachTempMenu);
    if (CObject* found = temps.Lookup(hMenu))
        return static_cast<CMenu*>(found);
    auto* pMenu = new CMenu;
    pMenu->m_hMenu = hMenu;
    temps.Add(hMenu, pMenu);
    return pMenu;
}

int CMenu::GetMenuItemCount() const {
    return ::GetMenuItemCount(m_hMenu);
}
UINT CMenu::GetMenuItemID(int nPos) const {
    return ::GetMenuItemID(m_hMenu, nPos);
}
UINT CMenu::GetMenuState(UINT nID, UINT nFlags) const {
    return ::GetMenuState(m_hMenu, nID, nFlags);
}

int CMenu::GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const {
    int length = ::GetMenuStringW(m_hMenu, nIDItem, nullptr, 0, nFlags);
    if (length <= 0) {
        rString.Empty();
        return 0;
    }
    wchar_t* buffer = rString.GetBuffer(length + 1);
    int copied = ::GetMenuStringW(m_hMenu, nIDItem, buffer, length + 1, nFlags);
    rString.ReleaseBuffer(copied);
    return copied;
}

CMenu* CMenu::GetSubMenu(int nPos) const {
    return FromHandle(::GetSubMenu(m_hMenu, nPos));
}

BOOL CMenu::CreateMenu() {
    return Attach(::CreateMenu());
}
BOOL CMenu::CreatePopupMenu() {
    return Attach(::CreatePopupMenu());
}
BOOL CMenu::LoadMenu(UINT nIDResource) {
    return Attach(AfxLoadMenu(nIDResource));
}

BOOL CMenu::Attach(HMENU hMenu) {
    if (hMenu == nullptr || m_hMenu != nullptr)
        return FALSE;
    m_hMenu = hMenu;
    return TRUE;
}

HMENU CMenu::Detach() {
    HMENU hMenu = m_hMenu;
    m_hMenu = nullptr;
    return hMenu;
}

BOOL CMenu::DestroyMenu() {
    if (m_hMenu == nullptr)
        return FALSE;
    return ::DestroyMenu(Detach());
}

BOOL CMenu::AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, const wchar_t* lpszNewItem) {
    return ::AppendMenuW(m_hMenu, nFlags, nIDNewItem, lpszNewItem);
}

BOOL CMenu::InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem,
                       const wchar_t* lpszNewItem) {
    return ::InsertMenuW(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
}

BOOL CMenu::ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem,
                       const wchar_t* lpszNewItem) {
    return ::ModifyMenuW(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
}

BOOL CMenu::RemoveMenu(UINT nPosition, UINT nFlags) {
    return ::RemoveMenu(m_hMenu, nPosition, nFlags);
}
BOOL CMenu::DeleteMenu(UINT nPosition, UINT nFlags) {
    return ::DeleteMenu(m_hMenu, nPosition, nFlags);
}

UINT CMenu::EnableMenuItem(UINT nIDEnableItem, UINT nEnable) {
    return static_cast<UINT>(::EnableMenuItem(m_hMenu, nIDEnableItem, nEnable));
}

UINT CMenu::CheckMenuItem(UINT nIDCheckItem, UINT nCheck) {
    return static_cast<UINT>(::CheckMenuItem(m_hMenu, nIDCheckItem, nCheck));
}

BOOL CMenu::SetDefaultItem(UINT uItem, BOOL fByPos) {
    return ::SetMenuDefaultItem(m_hMenu, uItem, fByPos);
}

BOOL CMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, const RECT* lpRect) {
    return ::TrackPopupMenu(m_hMenu, nFlags, x, y, 0, pWnd != nullptr ? pWnd->m_hWnd : nullptr,
                            lpRect);
}

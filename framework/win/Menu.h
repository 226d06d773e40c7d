#pragma once
// CMenu: an owned menu handle (destroyed with the object unless detached).
#include <windows.h>

#include "framework/CString.h"
#include "framework/Object.h"

class CWnd;

class CMenu : public CObject {
public:
    CMenu() = default;
    ~CMenu() override { DestroyMenu(); }
    CMenu(const CMenu&) = delete;
    CMenu& operator=(const CMenu&) = delete;

    // Attributes
    HMENU m_hMenu = nullptr;
    operator HMENU() const { return m_hMenu; }
    HMENU GetSafeHmenu() const { return m_hMenu; }
    static CMenu* FromHandle(HMENU hMenu);
    int GetMenuItemCount() const;
    UINT GetMenuItemID(int nPos) const;
    UINT GetMenuState(UINT nID, UINT nFlags) const;
    int GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const;
    CMenu* GetSubMenu(int nPos) const;

    // Operations
    BOOL CreateMenu();
    BOOL CreatePopupMenu();
    BOOL LoadMenu(UINT nIDResource); // through the resource chain
    BOOL Attach(HMENU hMenu);
    HMENU Detach();
    BOOL DestroyMenu();
    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem = 0, const wchar_t* lpszNewItem = nullptr);
    BOOL InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0,
                    const wchar_t* lpszNewItem = nullptr);
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0,
                    const wchar_t* lpszNewItem = nullptr);
    BOOL RemoveMenu(UINT nPosition, UINT nFlags);
    BOOL DeleteMenu(UINT nPosition, UINT nFlags);
    UINT EnableMenuItem(UINT nIDEnableItem, UINT nEnable);
    UINT CheckMenuItem(UINT nIDCheckItem, UINT nCheck);
    BOOL SetDefaultItem(UINT uItem, BOOL fByPos = FALSE);
    // Shows the menu; with TPM_RETURNCMD returns the chosen command.
    BOOL TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, const RECT* lpRect = nullptr);
};

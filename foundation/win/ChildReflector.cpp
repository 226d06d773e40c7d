#include "foundation/win/ChildReflector.h"

#include <unordered_map>

#include "framework/win/ParentWatch.h"
#include "framework/win/Wnd.h"

namespace {

std::unordered_map<HWND, CChildReflector*>& Reflectors() {
    static std::unordered_map<HWND, CChildReflector*> reflectors;
    return reflectors;
}

// A child with this control id, found among the parent's children or, while
// it is being created and not yet linked, among the framework's windows.
HWND FindChildById(HWND hWndParent, UINT nID) {
    if (HWND hWnd = GetDlgItem(hWndParent, static_cast<int>(nID)))
        return hWnd;
    for (HWND hWnd = GetWindow(hWndParent, GW_CHILD); hWnd != nullptr;
         hWnd = GetWindow(hWnd, GW_HWNDNEXT)) {
        if (static_cast<UINT>(GetDlgCtrlID(hWnd)) == nID)
            return hWnd;
    }
    return nullptr;
}

// The framework reports the parents of its controls through this.
class ReflectorWatch final : public CParentWatch {
public:
    void Acquire(HWND hWndParent) override { CChildReflector::Acquire(hWndParent); }
    void Release(HWND hWndParent) override { CChildReflector::Release(hWndParent); }
};
ReflectorWatch g_reflectorWatch;

} // namespace

void CChildReflector::Install() {
    AfxSetParentWatch(&g_reflectorWatch);
}

CChildReflector::CChildReflector(HWND hWndParent) : m_hWndParent(hWndParent) {}

CChildReflector::~CChildReflector() {
    StopListening();
}

void CChildReflector::Acquire(HWND hWndParent) {
    auto& map = Reflectors();
    auto it = map.find(hWndParent);
    if (it == map.end()) {
        auto* reflector = new CChildReflector(hWndParent);
        reflector->ListenTo(hWndParent);
        it = map.emplace(hWndParent, reflector).first;
    }
    ++it->second->m_nRefs;
}

void CChildReflector::Release(HWND hWndParent) {
    auto& map = Reflectors();
    auto it = map.find(hWndParent);
    if (it == map.end())
        return;
    if (--it->second->m_nRefs > 0)
        return;
    CChildReflector* reflector = it->second;
    map.erase(it);
    delete reflector;
}

BOOL CChildReflector::IsWatching(HWND hWndParent) {
    return Reflectors().count(hWndParent) != 0;
}

HWND CChildReflector::ChildOfNotification(HWND hWndParent, UINT message, WPARAM, LPARAM lParam) {
    switch (message) {
    case WM_DRAWITEM: {
        auto* dis = reinterpret_cast<DRAWITEMSTRUCT*>(lParam);
        return dis->CtlType == ODT_MENU ? nullptr : dis->hwndItem;
    }
    case WM_MEASUREITEM: {
        auto* mis = reinterpret_cast<MEASUREITEMSTRUCT*>(lParam);
        return mis->CtlType == ODT_MENU ? nullptr : FindChildById(hWndParent, mis->CtlID);
    }
    case WM_COMPAREITEM:
        return reinterpret_cast<COMPAREITEMSTRUCT*>(lParam)->hwndItem;
    case WM_DELETEITEM:
        return reinterpret_cast<DELETEITEMSTRUCT*>(lParam)->hwndItem;
    case WM_NOTIFY:
        return reinterpret_cast<NMHDR*>(lParam)->hwndFrom;
    case WM_COMMAND: // lParam is null for menus and accelerators
    case WM_HSCROLL:
    case WM_VSCROLL: // null for the parent's own scroll bars
    case WM_CTLCOLORMSGBOX:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORSCROLLBAR:
    case WM_CTLCOLORSTATIC:
        return reinterpret_cast<HWND>(lParam);
    default:
        return nullptr;
    }
}

LRESULT CChildReflector::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    HWND hWndChild = ChildOfNotification(m_hWndParent, message, wParam, lParam);
    if (hWndChild == nullptr || hWndChild == m_hWndParent)
        return 0;
    CWnd* pChild = CWnd::FromHandlePermanent(hWndChild);
    if (pChild == nullptr)
        return 0;
    LRESULT result = 0;
    BOOL handled = FALSE;
    try {
        handled = pChild->OnChildNotify(message, wParam, lParam, &result);
    } catch (...) {
        handled = FALSE;
    }
    return handled ? result : 0;
}

LRESULT CChildReflector::AfterMessage(UINT message, WPARAM, LPARAM) {
    // Children are destroyed before their parent's last message; any that
    // were only attached leave their reflector behind, which goes now.
    if (message == WM_NCDESTROY) {
        auto& map = Reflectors();
        auto it = map.find(m_hWndParent);
        if (it != map.end() && it->second == this) {
            map.erase(it);
            delete this;
        }
    }
    return 0;
}

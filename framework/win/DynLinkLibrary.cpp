#include "framework/win/DynLinkLibrary.h"

#include <algorithm>
#include <vector>

namespace {

std::vector<CDynLinkLibrary*>& Chain() {
    static std::vector<CDynLinkLibrary*> chain;
    return chain;
}

// Strings live in blocks of 16: block (id / 16) + 1 holds string id as a
// counted string; the block is read in place.
bool ReadString(HINSTANCE hModule, UINT nID, CString& rString) {
    HRSRC hInfo = FindResourceW(hModule, MAKEINTRESOURCEW((nID >> 4) + 1), RT_STRING);
    if (hInfo == nullptr)
        return false;
    HGLOBAL hData = LoadResource(hModule, hInfo);
    auto* p = static_cast<const WORD*>(LockResource(hData));
    if (p == nullptr)
        return false;
    const WORD* end = p + SizeofResource(hModule, hInfo) / sizeof(WORD);
    for (UINT i = 0; i < (nID & 15) && p < end; ++i)
        p += 1 + *p;
    if (p >= end || *p == 0)
        return false;
    rString = CString(reinterpret_cast<const wchar_t*>(p + 1), static_cast<int>(*p));
    return true;
}

} // namespace

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state)
    : m_hModule(state.hModule), m_hResource(state.hResource) {
    Chain().push_back(this);
}

CDynLinkLibrary::~CDynLinkLibrary() {
    auto& chain = Chain();
    chain.erase(std::remove(chain.begin(), chain.end(), this), chain.end());
}

BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule) {
    if (hModule == nullptr)
        return FALSE;
    state.hModule = hModule;
    state.hResource = hModule;
    state.bInitialized = TRUE;
    return TRUE;
}

HINSTANCE AfxGetInstanceHandle() {
    HMODULE hModule = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                           GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&AfxGetInstanceHandle), &hModule);
    return hModule;
}

HINSTANCE AfxGetHostHandle() {
    return GetModuleHandleW(nullptr);
}

int AfxGetResourceChain(HINSTANCE* pModules, int nMax) {
    int count = 0;
    auto add = [&](HINSTANCE h) {
        for (int i = 0; i < count; ++i) {
            if (pModules[i] == h)
                return;
        }
        if (count < nMax)
            pModules[count++] = h;
    };
    add(AfxGetHostHandle());
    for (CDynLinkLibrary* pLibrary : Chain())
        add(pLibrary->m_hResource);
    return count;
}

HINSTANCE AfxFindResourceHandle(LPCWSTR lpszName, LPCWSTR lpszType) {
    HINSTANCE modules[64];
    int count = AfxGetResourceChain(modules, 64);
    for (int i = 0; i < count; ++i) {
        if (FindResourceW(modules[i], lpszName, lpszType) != nullptr)
            return modules[i];
    }
    return nullptr;
}

BOOL AfxLoadString(UINT nID, CString& rString) {
    HINSTANCE modules[64];
    int count = AfxGetResourceChain(modules, 64);
    for (int i = 0; i < count; ++i) {
        if (ReadString(modules[i], nID, rString))
            return TRUE;
    }
    rString.Empty();
    return FALSE;
}

HBITMAP AfxLoadBitmap(UINT nID) {
    HINSTANCE hModule = AfxFindResourceHandle(MAKEINTRESOURCEW(nID), RT_BITMAP);
    return hModule != nullptr ? LoadBitmapW(hModule, MAKEINTRESOURCEW(nID)) : nullptr;
}

HCURSOR AfxLoadCursor(UINT nID) {
    HINSTANCE hModule = AfxFindResourceHandle(MAKEINTRESOURCEW(nID), RT_GROUP_CURSOR);
    return hModule != nullptr ? LoadCursorW(hModule, MAKEINTRESOURCEW(nID)) : nullptr;
}

HMENU AfxLoadMenu(UINT nID) {
    HINSTANCE hModule = AfxFindResourceHandle(MAKEINTRESOURCEW(nID), RT_MENU);
    return hModule != nullptr ? LoadMenuW(hModule, MAKEINTRESOURCEW(nID)) : nullptr;
}

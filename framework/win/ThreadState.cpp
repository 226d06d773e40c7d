#include "framework/win/ThreadState.h"

#include <algorithm>
#include <mutex>
#include <vector>

#include "framework/win/WinThread.h"

namespace {

// States are kept in a TLS slot rather than thread_local objects so that
// unloading the module frees them and leaves no destructor behind in a
// thread that outlives it.
DWORD g_tlsIndex = TLS_OUT_OF_INDEXES;
std::once_flag g_tlsOnce;
std::mutex g_statesLock;
std::vector<AFX_THREAD_STATE*>& AllStates() {
    static std::vector<AFX_THREAD_STATE*> states;
    return states;
}

DWORD TlsIndex() {
    std::call_once(g_tlsOnce, [] { g_tlsIndex = TlsAlloc(); });
    return g_tlsIndex;
}

} // namespace

AFX_THREAD_STATE::AFX_THREAD_STATE() = default;

AFX_THREAD_STATE::~AFX_THREAD_STATE() {
    DeleteTempMaps();
    delete m_pThread;
}

CHandleMap& AFX_THREAD_STATE::TempMap(AfxTempMapKind kind, CHandleMap::IsAliveFn isAlive,
                                      CHandleMap::DetachFn detach) {
    if (m_tempMaps[kind] == nullptr)
        m_tempMaps[kind] = new CHandleMap(isAlive, detach);
    return *m_tempMaps[kind];
}

void AFX_THREAD_STATE::DeleteTempMaps() {
    for (CHandleMap*& map : m_tempMaps) {
        delete map;
        map = nullptr;
    }
}

AFX_THREAD_STATE* AfxGetThreadState() {
    DWORD index = TlsIndex();
    auto* state = static_cast<AFX_THREAD_STATE*>(TlsGetValue(index));
    if (state != nullptr)
        return state;
    state = new AFX_THREAD_STATE;
    TlsSetValue(index, state);
    std::lock_guard<std::mutex> lock(g_statesLock);
    AllStates().push_back(state);
    return state;
}

void AfxTermThreadState() {
    if (g_tlsIndex == TLS_OUT_OF_INDEXES)
        return;
    auto* state = static_cast<AFX_THREAD_STATE*>(TlsGetValue(g_tlsIndex));
    if (state == nullptr)
        return;
    TlsSetValue(g_tlsIndex, nullptr);
    {
        std::lock_guard<std::mutex> lock(g_statesLock);
        auto& states = AllStates();
        states.erase(std::remove(states.begin(), states.end(), state), states.end());
    }
    delete state;
}

void AfxTermAllThreadStates() {
    if (g_tlsIndex == TLS_OUT_OF_INDEXES)
        return;
    std::vector<AFX_THREAD_STATE*> states;
    {
        std::lock_guard<std::mutex> lock(g_statesLock);
        states.swap(AllStates());
    }
    for (AFX_THREAD_STATE* state : states)
        delete state;
    TlsFree(g_tlsIndex);
    g_tlsIndex = TLS_OUT_OF_INDEXES;
}

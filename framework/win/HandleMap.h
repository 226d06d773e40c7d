#pragma once
// Maps from a system handle to the framework object that wraps it. A
// temporary map owns its wrappers (made on demand by FromHandle) and drops
// those whose handle has died once the map grows; wrappers are stateless, so
// a reused handle value may keep its old wrapper.
#include <unordered_map>

#include "framework/Object.h"

class CHandleMap {
public:
    typedef bool (*IsAliveFn)(void* handle);
    typedef void (*DetachFn)(CObject* wrapper); // clears the wrapper's handle

    CHandleMap(IsAliveFn isAlive, DetachFn detach) : m_isAlive(isAlive), m_detach(detach) {}
    ~CHandleMap() { DeleteAll(); }
    CHandleMap(const CHandleMap&) = delete;
    CHandleMap& operator=(const CHandleMap&) = delete;

    CObject* Lookup(void* handle) const;
    void Add(void* handle, CObject* wrapper); // takes ownership
    void DeleteAll();
    void PruneDead();
    int GetCount() const { return static_cast<int>(m_map.size()); }

private:
    std::unordered_map<void*, CObject*> m_map;
    IsAliveFn m_isAlive;
    DetachFn m_detach;
    std::size_t m_pruneAt = 64; // size at which dead handles are dropped
};

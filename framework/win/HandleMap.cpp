#include "framework/win/HandleMap.h"

CObject* CHandleMap::Lookup(void* handle) const {
    auto it = m_map.find(handle);
    return it == m_map.end() ? nullptr : it->second;
}

void CHandleMap::Add(void* handle, CObject* wrapper) {
    if (m_map.size() >= m_pruneAt) {
        PruneDead();
        m_pruneAt = m_map.size() * 2 > 64 ? m_map.size() * 2 : 64;
    }
    m_map[handle] = wrapper;
}

void CHandleMap::PruneDead() {
    for (auto it = m_map.begin(); it != m_map.end();) {
        if (m_isAlive(it->first)) {
            ++it;
            continue;
        }
        m_detach(it->second);
        delete it->second;
        it = m_map.erase(it);
    }
}

void CHandleMap::DeleteAll() {
    for (auto& entry : m_map) {
        m_detach(entry.second);
        delete entry.second;
    }
    m_map.clear();
}

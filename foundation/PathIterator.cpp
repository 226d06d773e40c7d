#include "foundation/PathIterator.h"

#include "foundation/SplitPath.h"

#include <string>

AF_CPathIterator::AF_CPathIterator(const WCHAR* path) {
    SetPath(path);
}

void AF_CPathIterator::SetPath(const WCHAR* path) {
    m_path.clear();
    m_current.clear();
    m_rest = kDone;
    if (path == nullptr || *path == 0)
        return;
    m_path = path;
    if (m_path.size() >= kMaxPath) {
        m_path.clear();
        return;
    }
    if (!vu::IsDirSeparator(m_path.back()))
        m_path += vu::kDirSeparator;
    First();
}

std::size_t AF_CPathIterator::NextSeparator(std::size_t from) const {
    while (from < m_path.size() && !vu::IsDirSeparator(m_path[from]))
        ++from;
    return from;
}

void AF_CPathIterator::SetCurrent(std::size_t end) {
    m_current.assign(m_path, 0, end);
}

const WCHAR* AF_CPathIterator::First() {
    m_current.clear();
    m_rest = kDone;
    if (m_path.size() < 3)
        return Current();
    std::size_t rest = 3;
    if (m_path[0] == VU_T('\\') && m_path[1] == VU_T('\\')) {
        const std::size_t end = NextSeparator(2);
        rest = end == m_path.size() ? end : end + 1; // '\\machine\'
    }
    SetCurrent(rest);
    m_rest = rest == m_path.size() ? kDone : rest;
    return Current();
}

const WCHAR* AF_CPathIterator::operator++(int) {
    m_current.clear();
    if (m_rest == kDone)
        return Current();
    if (m_rest == m_path.size()) {
        m_rest = kDone;
        return Current();
    }
    const std::size_t end = NextSeparator(m_rest);
    SetCurrent(end);
    m_rest = end == m_path.size() ? end : end + 1;
    return Current();
}

#include "foundation/PathIterator.h"

#include "foundation/FileSystem.h"

#include <cstring>
#include <string>

using vu::FileSystem;

namespace {

std::size_t Length(const WCHAR* s) {
    return std::char_traits<WCHAR>::length(s);
}

const WCHAR* NextSeparator(const WCHAR* p) {
    while (*p != 0 && !FileSystem::IsSeparator(*p))
        ++p;
    return p;
}

} // namespace

AF_CPathIterator::AF_CPathIterator() : m_rest(nullptr) {
    m_path[0] = 0;
    m_current[0] = 0;
}

AF_CPathIterator::AF_CPathIterator(const WCHAR* path) : AF_CPathIterator() {
    SetPath(path);
}

AF_CPathIterator::AF_CPathIterator(const AF_CPathIterator& other) : m_rest(nullptr) {
    *this = other;
}

AF_CPathIterator& AF_CPathIterator::operator=(const AF_CPathIterator& other) {
    if (this != &other) {
        std::memcpy(m_path, other.m_path, sizeof(m_path));
        std::memcpy(m_current, other.m_current, sizeof(m_current));
        // The rest points into our own buffer, at the same place.
        m_rest = other.m_rest == nullptr ? nullptr : m_path + (other.m_rest - other.m_path);
    }
    return *this;
}

void AF_CPathIterator::SetPath(const WCHAR* path) {
    m_path[0] = 0;
    m_current[0] = 0;
    m_rest = nullptr;
    if (path == nullptr || *path == 0)
        return;
    std::size_t length = Length(path);
    const bool needsSeparator = !FileSystem::IsSeparator(path[length - 1]);
    if (length + (needsSeparator ? 1 : 0) >= static_cast<std::size_t>(kBufferUnits))
        return;
    std::memcpy(m_path, path, length * sizeof(WCHAR));
    if (needsSeparator) {
        const WCHAR separator = FileSystem::SeparatorFor(vu::StringView(path, length));
        m_path[length++] = separator;
    }
    m_path[length] = 0;
    First();
}

void AF_CPathIterator::SetCurrent(const WCHAR* end) {
    const std::size_t n = static_cast<std::size_t>(end - m_path);
    std::memcpy(m_current, m_path, n * sizeof(WCHAR));
    m_current[n] = 0;
}

const WCHAR* AF_CPathIterator::First() {
    m_current[0] = 0;
    m_rest = nullptr;
    const std::size_t length = Length(m_path);
    const WCHAR* rest = nullptr;
    if (FileSystem::IsRootedWithoutDrive(vu::StringView(m_path, length))) {
        rest = m_path + 1; // the root alone
    } else if (length < 3) {
        return m_current;
    } else if (m_path[0] == VU_T('\\') && m_path[1] == VU_T('\\')) {
        const WCHAR* end = NextSeparator(m_path + 2);
        rest = *end == 0 ? end : end + 1; // '\\machine\'
    } else {
        rest = m_path + 3;
    }
    SetCurrent(rest);
    m_rest = *rest == 0 ? nullptr : rest;
    return m_current;
}

const WCHAR* AF_CPathIterator::operator++(int) {
    m_current[0] = 0;
    if (m_rest == nullptr)
        return m_current;
    if (*m_rest == 0) {
        m_rest = nullptr;
        return m_current;
    }
    const WCHAR* end = NextSeparator(m_rest);
    SetCurrent(end);
    m_rest = *end == 0 ? end : end + 1;
    return m_current;
}

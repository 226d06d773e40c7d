#include "foundation/UStr.h"

#include <cstdlib>
#include <cstring>

namespace {

// The Windows runtime's "C" locale: one unit per byte, 0-255 both ways.
constexpr unsigned kLastByteUnit = 0xFF;

std::size_t WideLength(const WCHAR* s) {
    std::size_t n = 0;
    while (s[n] != 0)
        ++n;
    return n;
}

} // namespace

AF_CUStr::AF_CUStr(const char* narrow)
    : m_wide(nullptr), m_narrow(const_cast<char*>(narrow)), m_fromWide(0) {}

AF_CUStr::AF_CUStr(const WCHAR* wide)
    : m_wide(const_cast<WCHAR*>(wide)), m_narrow(nullptr), m_fromWide(1) {}

AF_CUStr::AF_CUStr(const AF_CUStr& other) : m_wide(nullptr), m_narrow(nullptr), m_fromWide(0) {
    CopyFrom(other);
}

AF_CUStr::AF_CUStr(AF_CUStr&& other) noexcept
    : m_wide(other.m_wide), m_narrow(other.m_narrow), m_fromWide(other.m_fromWide) {
    // The source keeps the caller's string but gives up the copy it owned.
    if (m_fromWide)
        other.m_narrow = nullptr;
    else
        other.m_wide = nullptr;
}

AF_CUStr& AF_CUStr::operator=(const AF_CUStr& other) {
    if (this != &other) {
        FreeOwnCopy();
        CopyFrom(other);
    }
    return *this;
}

AF_CUStr& AF_CUStr::operator=(AF_CUStr&& other) noexcept {
    if (this != &other) {
        FreeOwnCopy();
        m_wide = other.m_wide;
        m_narrow = other.m_narrow;
        m_fromWide = other.m_fromWide;
        if (m_fromWide)
            other.m_narrow = nullptr;
        else
            other.m_wide = nullptr;
    }
    return *this;
}

AF_CUStr::~AF_CUStr() {
    FreeOwnCopy();
}

void AF_CUStr::FreeOwnCopy() {
    if (m_fromWide) {
        std::free(m_narrow);
        m_narrow = nullptr;
    } else {
        std::free(m_wide);
        m_wide = nullptr;
    }
}

void AF_CUStr::CopyFrom(const AF_CUStr& other) {
    m_fromWide = other.m_fromWide;
    if (m_fromWide) {
        m_wide = other.m_wide;
        m_narrow = nullptr;
        if (other.m_narrow != nullptr) {
            const std::size_t bytes = std::strlen(other.m_narrow) + 1;
            m_narrow = static_cast<char*>(std::malloc(bytes));
            if (m_narrow != nullptr)
                std::memcpy(m_narrow, other.m_narrow, bytes);
        }
    } else {
        m_narrow = other.m_narrow;
        m_wide = nullptr;
        if (other.m_wide != nullptr) {
            const std::size_t bytes = (WideLength(other.m_wide) + 1) * sizeof(WCHAR);
            m_wide = static_cast<WCHAR*>(std::malloc(bytes));
            if (m_wide != nullptr)
                std::memcpy(m_wide, other.m_wide, bytes);
        }
    }
}

WCHAR* AF_CUStr::Wide() const {
    if (m_wide == nullptr && !m_fromWide)
        m_wide = uxdup(m_narrow);
    return m_wide;
}

char* AF_CUStr::Narrow() const {
    if (m_narrow == nullptr && m_fromWide)
        m_narrow = uxdup(m_wide);
    return m_narrow;
}

WCHAR* AF_CUStr::uxdup(const char* narrow) {
    if (narrow == nullptr)
        return nullptr;
    const std::size_t length = std::strlen(narrow);
    auto* wide = static_cast<WCHAR*>(std::malloc((length + 1) * sizeof(WCHAR)));
    if (wide == nullptr)
        return nullptr;
    for (std::size_t i = 0; i < length; ++i)
        wide[i] = static_cast<unsigned char>(narrow[i]);
    wide[length] = 0;
    return wide;
}

char* AF_CUStr::uxdup(const WCHAR* wide) {
    if (wide == nullptr)
        return nullptr;
    const std::size_t length = WideLength(wide);
    auto* narrow = static_cast<char*>(std::malloc(length + 1));
    if (narrow == nullptr)
        return nullptr;
    std::size_t i = 0;
    for (; i < length; ++i) {
        if (wide[i] > kLastByteUnit)
            break;
        narrow[i] = static_cast<char>(wide[i]);
    }
    narrow[i] = 0;
    return narrow;
}

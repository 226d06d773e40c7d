#pragma once
// The base of objects a dictionary can index: a virtual destructor and one
// 32-bit key that the dictionary assigns (zero until it does). The layout
// engine itself never reads the key.
#include "framework/Types.h"

class VU_CDictionaryEntry {
public:
    VU_CDictionaryEntry() = default;
    VU_CDictionaryEntry(const VU_CDictionaryEntry&) = default;
    VU_CDictionaryEntry& operator=(const VU_CDictionaryEntry&) = default;
    virtual ~VU_CDictionaryEntry() = default;

    // Attributes
    DWORD GetDictionaryKey() const { return m_dwKey; }
    void SetDictionaryKey(DWORD key) { m_dwKey = key; }

private:
    DWORD m_dwKey = 0;
};

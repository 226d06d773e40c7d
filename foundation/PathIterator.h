#pragma once
// AF_CPathIterator: walks a path prefix by prefix. 'c:\a\b' yields 'c:\',
// then 'c:\a', then 'c:\a\b'; one more step yields an empty item and the
// walk is done. A UNC path starts with '\\machine\'. Natively a path rooted
// at '/' starts with '/' (the root stands for the drive).
//
// The walk works in fixed buffers of 261 units: a path that does not fit
// with its terminating separator gives an empty walk.
#include "framework/Types.h"

class AF_CPathIterator {
public:
    // Construction
    AF_CPathIterator();
    AF_CPathIterator(const char16_t* path);
    // Copies continue the walk independently, at the same place.
    AF_CPathIterator(const AF_CPathIterator& other);
    AF_CPathIterator& operator=(const AF_CPathIterator& other);

    // Operations
    // Restarts the walk on path (empty for a null, empty or too long path).
    void SetPath(const char16_t* path);
    // Restarts the walk and returns the first item: the root ('c:\',
    // '\\machine\'; for a relative path its first three units), or an empty
    // item for a path shorter than three units.
    const char16_t* First();
    // Moves on and returns the new item, a longer prefix of the path; empty
    // once nothing is left.
    const char16_t* operator++(int);

    // Attributes
    const char16_t* Current() const { return m_current; }
    BOOL Done() const { return m_rest == nullptr ? TRUE : FALSE; }

    static constexpr int kBufferUnits = 261;

private:
    void SetCurrent(const char16_t* end);

    char16_t m_path[kBufferUnits];    // the path, ending in a separator
    char16_t m_current[kBufferUnits]; // the current item
    const char16_t* m_rest;           // into m_path: still to walk; null when done
};

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
    AF_CPathIterator(const WCHAR* path);
    // Copies continue the walk independently, at the same place.
    AF_CPathIterator(const AF_CPathIterator& other);
    AF_CPathIterator& operator=(const AF_CPathIterator& other);

    // Operations
    // Restarts the walk on path (empty for a null, empty or too long path).
    void SetPath(const WCHAR* path);
    // Restarts the walk and returns the first item: the root ('c:\',
    // '\\machine\'; for a relative path its first three units), or an empty
    // item for a path shorter than three units.
    const WCHAR* First();
    // Moves on and returns the new item, a longer prefix of the path; empty
    // once nothing is left.
    const WCHAR* operator++(int);

    // Attributes
    const WCHAR* Current() const { return m_current; }
    BOOL Done() const { return m_rest == nullptr ? TRUE : FALSE; }

    static constexpr int kBufferUnits = 261;

private:
    void SetCurrent(const WCHAR* end);

    WCHAR m_path[kBufferUnits];    // the path, ending in a separator
    WCHAR m_current[kBufferUnits]; // the current item
    const WCHAR* m_rest;           // into m_path: still to walk; null when done
};

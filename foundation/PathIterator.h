#pragma once
// AF_CPathIterator: walks a path prefix by prefix. 'c:\a\b' yields 'c:\',
// then 'c:\a', then 'c:\a\b'; one more step yields an empty item and the
// walk is done. A UNC path starts with '\\machine\'. The walk follows
// Windows rules on every platform: only '\' separates.
//
// Every path shorter than 261 units is walked (a separator is appended
// when it does not end in one); a longer path gives an empty walk.
#include "framework/Types.h"

#include <cstddef>

class AF_CPathIterator {
public:
    // Construction (copies continue the walk independently, at the same
    // place)
    AF_CPathIterator() = default;
    AF_CPathIterator(const WCHAR* path);

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
    const WCHAR* Current() const { return m_current.c_str(); }
    BOOL Done() const { return m_rest == kDone ? TRUE : FALSE; }

    // Paths of this many units or more are not walked.
    static constexpr std::size_t kMaxPath = 261;

private:
    static constexpr std::size_t kDone = static_cast<std::size_t>(-1);
    void SetCurrent(std::size_t end);
    std::size_t NextSeparator(std::size_t from) const;

    vu::String m_path;          // the path, ending in a separator
    vu::String m_current;       // the current item
    std::size_t m_rest = kDone; // index into m_path still to walk; kDone when done
};

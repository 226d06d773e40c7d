#pragma once
// CSize: an extent (cx, cy), laid out like the Win32 SIZE.
#include "framework/GeometryTraits.h"
#include "framework/Types.h"

class CSize {
public:
    LONG cx = 0;
    LONG cy = 0;

    // Construction
    CSize() = default;
    CSize(int initCX, int initCY) : cx(initCX), cy(initCY) {}
    // From a packed DWORD: cx is the low word, cy the high word, both signed.
    explicit CSize(DWORD dw)
        : cx(static_cast<short>(dw & 0xFFFF)), cy(static_cast<short>((dw >> 16) & 0xFFFF)) {}
    // From the system's SIZE (any struct with LONG cx, cy).
    template <class S>
    requires vu::SizeLike<S, CSize> CSize(const S& s) : cx(s.cx), cy(s.cy) {}

    // The system's SIZE view of this extent.
    template <class S>
    requires vu::SizeLike<S, CSize>
    operator S*() { return reinterpret_cast<S*>(this); }
    template <class S>
    requires vu::SizeLike<S, CSize>
    operator const S*() const { return reinterpret_cast<const S*>(this); }

    // Operations
    void SetSize(int newCX, int newCY) {
        cx = newCX;
        cy = newCY;
    }
    bool operator==(const CSize& s) const { return cx == s.cx && cy == s.cy; }
    bool operator!=(const CSize& s) const { return !(*this == s); }
    CSize& operator+=(const CSize& s) {
        cx += s.cx;
        cy += s.cy;
        return *this;
    }
    CSize& operator-=(const CSize& s) {
        cx -= s.cx;
        cy -= s.cy;
        return *this;
    }
    CSize operator+(const CSize& s) const { return CSize(cx + s.cx, cy + s.cy); }
    CSize operator-(const CSize& s) const { return CSize(cx - s.cx, cy - s.cy); }
    CSize operator-() const { return CSize(-cx, -cy); }
};

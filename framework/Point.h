#pragma once
// CPoint: a position (x, y), laid out like the Win32 POINT.
#include "framework/GeometryTraits.h"
#include "framework/Size.h"
#include "framework/Types.h"

class CPoint {
public:
    LONG x = 0;
    LONG y = 0;

    // Construction
    CPoint() = default;
    CPoint(int initX, int initY) : x(initX), y(initY) {}
    explicit CPoint(const CSize& s) : x(s.cx), y(s.cy) {}
    // From a packed DWORD (as in mouse messages): x is the low word, y the
    // high word, both signed.
    explicit CPoint(DWORD dw)
        : x(static_cast<short>(dw & 0xFFFF)), y(static_cast<short>((dw >> 16) & 0xFFFF)) {}
    // From the system's POINT (any struct with LONG x, y).
    template <class P>
    requires vu::PointLike<P, CPoint> CPoint(const P& p) : x(p.x), y(p.y) {}

    // The system's POINT view of this point.
    template <class P>
    requires vu::PointLike<P, CPoint>
    operator P*() { return reinterpret_cast<P*>(this); }
    template <class P>
    requires vu::PointLike<P, CPoint>
    operator const P*() const { return reinterpret_cast<const P*>(this); }

    // Operations
    void Offset(int xOffset, int yOffset) {
        x += xOffset;
        y += yOffset;
    }
    void Offset(const CPoint& p) { Offset(p.x, p.y); }
    void Offset(const CSize& s) { Offset(s.cx, s.cy); }
    void SetPoint(int newX, int newY) {
        x = newX;
        y = newY;
    }

    bool operator==(const CPoint& p) const { return x == p.x && y == p.y; }
    bool operator!=(const CPoint& p) const { return !(*this == p); }
    CPoint& operator+=(const CSize& s) {
        Offset(s);
        return *this;
    }
    CPoint& operator-=(const CSize& s) {
        Offset(-s.cx, -s.cy);
        return *this;
    }
    CPoint& operator+=(const CPoint& p) {
        Offset(p);
        return *this;
    }
    CPoint& operator-=(const CPoint& p) {
        Offset(-p.x, -p.y);
        return *this;
    }
    CPoint operator+(const CSize& s) const { return CPoint(x + s.cx, y + s.cy); }
    CPoint operator-(const CSize& s) const { return CPoint(x - s.cx, y - s.cy); }
    CPoint operator+(const CPoint& p) const { return CPoint(x + p.x, y + p.y); }
    // The difference of two points is an extent.
    CSize operator-(const CPoint& p) const { return CSize(x - p.x, y - p.y); }
    CPoint operator-() const { return CPoint(-x, -y); }
};

inline CPoint operator+(const CSize& s, const CPoint& p) {
    return CPoint(s.cx + p.x, s.cy + p.y);
}
inline CPoint operator-(const CSize& s, const CPoint& p) {
    return CPoint(s.cx - p.x, s.cy - p.y);
}

#pragma once
// CRect: a rectangle (left, top, right, bottom), laid out like the Win32
// RECT. Right and bottom are exclusive: a rectangle holds the points with
// left <= x < right and top <= y < bottom, and is empty when its width or
// height is not positive. Intersection and union follow the system's rules:
// an empty result is stored as all zeros.
#include "framework/GeometryTraits.h"
#include "framework/Point.h"
#include "framework/Size.h"
#include "framework/Types.h"

class CRect {
public:
    LONG left = 0;
    LONG top = 0;
    LONG right = 0;
    LONG bottom = 0;

    // Construction
    CRect() = default;
    CRect(int l, int t, int r, int b) : left(l), top(t), right(r), bottom(b) {}
    CRect(const CPoint& topLeft, const CSize& size)
        : left(topLeft.x), top(topLeft.y), right(topLeft.x + size.cx), bottom(topLeft.y + size.cy) {
    }
    CRect(const CPoint& topLeft, const CPoint& bottomRight)
        : left(topLeft.x), top(topLeft.y), right(bottomRight.x), bottom(bottomRight.y) {}
    // From the system's RECT (any struct with LONG left, top, right, bottom).
    template <class R>
    requires vu::RectLike<R, CRect> CRect(const R& r)
        : left(r.left), top(r.top), right(r.right), bottom(r.bottom) {}

    // The system's RECT view of this rectangle, for calls such as
    // GetClientRect(hwnd, rect).
    template <class R>
    requires vu::RectLike<R, CRect>
    operator R*() { return reinterpret_cast<R*>(this); }
    template <class R>
    requires vu::RectLike<R, CRect>
    operator const R*() const { return reinterpret_cast<const R*>(this); }

    // Attributes
    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    CSize Size() const { return CSize(Width(), Height()); }
    CPoint TopLeft() const { return CPoint(left, top); }
    CPoint BottomRight() const { return CPoint(right, bottom); }
    CPoint CenterPoint() const { return CPoint((left + right) / 2, (top + bottom) / 2); }
    bool IsRectEmpty() const { return right <= left || bottom <= top; }
    bool IsRectNull() const { return left == 0 && top == 0 && right == 0 && bottom == 0; }
    bool PtInRect(const CPoint& pt) const {
        return pt.x >= left && pt.x < right && pt.y >= top && pt.y < bottom;
    }
    bool EqualRect(const CRect& r) const {
        return left == r.left && top == r.top && right == r.right && bottom == r.bottom;
    }

    // Operations
    void SetRect(int l, int t, int r, int b) {
        left = l;
        top = t;
        right = r;
        bottom = b;
    }
    void SetRect(const CPoint& topLeft, const CPoint& bottomRight) {
        SetRect(topLeft.x, topLeft.y, bottomRight.x, bottomRight.y);
    }
    void SetRectEmpty() { SetRect(0, 0, 0, 0); }
    void CopyRect(const CRect& r) { *this = r; }
    // Swaps the sides where left > right or top > bottom.
    void NormalizeRect();

    void InflateRect(int x, int y) { InflateRect(x, y, x, y); }
    void InflateRect(const CSize& s) { InflateRect(s.cx, s.cy); }
    // Moves each side outward by the matching field of r.
    void InflateRect(const CRect& r) { InflateRect(r.left, r.top, r.right, r.bottom); }
    void InflateRect(int l, int t, int r, int b) {
        left -= l;
        top -= t;
        right += r;
        bottom += b;
    }
    void DeflateRect(int x, int y) { InflateRect(-x, -y); }
    void DeflateRect(const CSize& s) { InflateRect(-s.cx, -s.cy); }
    void DeflateRect(const CRect& r) { InflateRect(-r.left, -r.top, -r.right, -r.bottom); }
    void DeflateRect(int l, int t, int r, int b) { InflateRect(-l, -t, -r, -b); }

    void OffsetRect(int x, int y) {
        left += x;
        top += y;
        right += x;
        bottom += y;
    }
    void OffsetRect(const CPoint& p) { OffsetRect(p.x, p.y); }
    void OffsetRect(const CSize& s) { OffsetRect(s.cx, s.cy); }
    void MoveToX(int x) {
        right = Width() + x;
        left = x;
    }
    void MoveToY(int y) {
        bottom = Height() + y;
        top = y;
    }
    void MoveToXY(int x, int y) {
        MoveToX(x);
        MoveToY(y);
    }
    void MoveToXY(const CPoint& p) { MoveToXY(p.x, p.y); }

    // Sets this to the overlap of r1 and r2; false (all zeros) when empty.
    bool IntersectRect(const CRect& r1, const CRect& r2);
    // Sets this to the bounding box of r1 and r2, ignoring an empty one;
    // false (all zeros) when both are empty.
    bool UnionRect(const CRect& r1, const CRect& r2);
    // Sets this to r1 less r2 where r2 cuts off a whole side of r1, else r1;
    // false (all zeros) when nothing is left.
    bool SubtractRect(const CRect& r1, const CRect& r2);

    bool operator==(const CRect& r) const { return EqualRect(r); }
    bool operator!=(const CRect& r) const { return !EqualRect(r); }
    CRect& operator+=(const CPoint& p) {
        OffsetRect(p);
        return *this;
    }
    CRect& operator+=(const CSize& s) {
        OffsetRect(s);
        return *this;
    }
    CRect& operator+=(const CRect& r) {
        InflateRect(r);
        return *this;
    }
    CRect& operator-=(const CPoint& p) {
        OffsetRect(-p.x, -p.y);
        return *this;
    }
    CRect& operator-=(const CSize& s) {
        OffsetRect(-s.cx, -s.cy);
        return *this;
    }
    CRect& operator-=(const CRect& r) {
        DeflateRect(r);
        return *this;
    }
    CRect& operator&=(const CRect& r) {
        IntersectRect(*this, r);
        return *this;
    }
    CRect& operator|=(const CRect& r) {
        UnionRect(*this, r);
        return *this;
    }
    CRect operator+(const CPoint& p) const { return CRect(*this) += p; }
    CRect operator+(const CSize& s) const { return CRect(*this) += s; }
    CRect operator+(const CRect& r) const { return CRect(*this) += r; }
    CRect operator-(const CPoint& p) const { return CRect(*this) -= p; }
    CRect operator-(const CSize& s) const { return CRect(*this) -= s; }
    CRect operator-(const CRect& r) const { return CRect(*this) -= r; }
    CRect operator&(const CRect& r) const { return CRect(*this) &= r; }
    CRect operator|(const CRect& r) const { return CRect(*this) |= r; }
};

// A point or extent plus a rectangle: the rectangle moved.
inline CRect operator+(const CPoint& p, const CRect& r) {
    return r + p;
}
inline CRect operator+(const CSize& s, const CRect& r) {
    return r + s;
}

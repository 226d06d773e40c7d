#pragma once
// CRect, CPoint and CSize have the layout of RECT, POINT and SIZE; these
// helpers cross the Win32 boundary without copying (pointers) or by value.
#include <windows.h>

#include <cstddef>

#include "framework/Point.h"
#include "framework/Rect.h"
#include "framework/Size.h"

static_assert(sizeof(CRect) == sizeof(RECT) && offsetof(CRect, left) == offsetof(RECT, left) &&
                  offsetof(CRect, top) == offsetof(RECT, top) &&
                  offsetof(CRect, right) == offsetof(RECT, right) &&
                  offsetof(CRect, bottom) == offsetof(RECT, bottom),
              "CRect must have the layout of RECT");
static_assert(sizeof(CPoint) == sizeof(POINT) && offsetof(CPoint, x) == offsetof(POINT, x) &&
                  offsetof(CPoint, y) == offsetof(POINT, y),
              "CPoint must have the layout of POINT");
static_assert(sizeof(CSize) == sizeof(SIZE) && offsetof(CSize, cx) == offsetof(SIZE, cx) &&
                  offsetof(CSize, cy) == offsetof(SIZE, cy),
              "CSize must have the layout of SIZE");

namespace vu {

inline RECT* AsRECT(CRect* r) {
    return reinterpret_cast<RECT*>(r);
}
inline const RECT* AsRECT(const CRect* r) {
    return reinterpret_cast<const RECT*>(r);
}
inline CRect* AsCRect(RECT* r) {
    return reinterpret_cast<CRect*>(r);
}
inline const CRect* AsCRect(const RECT* r) {
    return reinterpret_cast<const CRect*>(r);
}
inline POINT* AsPOINT(CPoint* p) {
    return reinterpret_cast<POINT*>(p);
}
inline const POINT* AsPOINT(const CPoint* p) {
    return reinterpret_cast<const POINT*>(p);
}
inline SIZE* AsSIZE(CSize* s) {
    return reinterpret_cast<SIZE*>(s);
}

inline RECT ToRECT(const CRect& r) {
    return RECT{r.left, r.top, r.right, r.bottom};
}
inline CRect ToCRect(const RECT& r) {
    return CRect(r.left, r.top, r.right, r.bottom);
}
inline POINT ToPOINT(const CPoint& p) {
    return POINT{p.x, p.y};
}
inline CPoint ToCPoint(const POINT& p) {
    return CPoint(p.x, p.y);
}
inline SIZE ToSIZE(const CSize& s) {
    return SIZE{s.cx, s.cy};
}
inline CSize ToCSize(const SIZE& s) {
    return CSize(s.cx, s.cy);
}

} // namespace vu

#include "framework/Rect.h"

#include <algorithm>
#include <utility>

void CRect::NormalizeRect() {
    if (left > right)
        std::swap(left, right);
    if (top > bottom)
        std::swap(top, bottom);
}

bool CRect::IntersectRect(const CRect& r1, const CRect& r2) {
    const CRect overlap(std::max(r1.left, r2.left), std::max(r1.top, r2.top),
                        std::min(r1.right, r2.right), std::min(r1.bottom, r2.bottom));
    if (overlap.IsRectEmpty()) {
        SetRectEmpty();
        return false;
    }
    *this = overlap;
    return true;
}

bool CRect::UnionRect(const CRect& r1, const CRect& r2) {
    const bool empty1 = r1.IsRectEmpty();
    const bool empty2 = r2.IsRectEmpty();
    if (empty1 && empty2) {
        SetRectEmpty();
        return false;
    }
    if (empty1) {
        *this = r2;
        return true;
    }
    if (empty2) {
        *this = r1;
        return true;
    }
    *this = CRect(std::min(r1.left, r2.left), std::min(r1.top, r2.top),
                  std::max(r1.right, r2.right), std::max(r1.bottom, r2.bottom));
    return true;
}

bool CRect::SubtractRect(const CRect& r1, const CRect& r2) {
    if (r1.IsRectEmpty()) {
        SetRectEmpty();
        return false;
    }
    CRect result = r1;
    CRect overlap;
    if (overlap.IntersectRect(r1, r2)) {
        if (overlap == r1) {
            SetRectEmpty();
            return false;
        }
        if (overlap.top == r1.top && overlap.bottom == r1.bottom) {
            if (overlap.left == r1.left)
                result.left = overlap.right;
            else if (overlap.right == r1.right)
                result.right = overlap.left;
        } else if (overlap.left == r1.left && overlap.right == r1.right) {
            if (overlap.top == r1.top)
                result.top = overlap.bottom;
            else if (overlap.bottom == r1.bottom)
                result.bottom = overlap.top;
        }
    }
    *this = result;
    return true;
}

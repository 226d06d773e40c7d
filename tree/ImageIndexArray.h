#pragma once
// Image-list indices of a tree node, one pair per display state s:
// entry 2*s is the normal image, entry 2*s+1 the image of a selected row.
#include "framework/Array.h"

class VU_CImageIndexArray : public CArray<int, int> {
public:
    VU_CImageIndexArray() = default;
    VU_CImageIndexArray(const VU_CImageIndexArray& other);
    VU_CImageIndexArray& operator=(const VU_CImageIndexArray& other);
    virtual ~VU_CImageIndexArray() = default;

    // Convenience for the common single-state node.
    static VU_CImageIndexArray Pair(int image, int selectedImage);
};

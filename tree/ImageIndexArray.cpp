#include "tree/ImageIndexArray.h"

VU_CImageIndexArray::VU_CImageIndexArray(const VU_CImageIndexArray& other) : CArray<int, int>() {
    *this = other;
}

VU_CImageIndexArray& VU_CImageIndexArray::operator=(const VU_CImageIndexArray& other) {
    if (this == &other)
        return *this;
    RemoveAll();
    SetSize(other.GetSize());
    for (INT_PTR i = 0; i < other.GetSize(); ++i)
        SetAt(i, other.GetAt(i));
    return *this;
}

VU_CImageIndexArray VU_CImageIndexArray::Pair(int image, int selectedImage) {
    VU_CImageIndexArray images;
    images.Add(image);
    images.Add(selectedImage);
    return images;
}

#include "foundation/SortingStringArray.h"

#include <algorithm>

AF_CSortingStringArray::~AF_CSortingStringArray() = default;

void AF_CSortingStringArray::Sort(CompareFunction compare) {
    if (compare == nullptr)
        compare = &AF_CSortingStringArray::Compare;
    CString* first = GetData();
    if (first == nullptr)
        return;
    std::stable_sort(first, first + GetSize(),
                     [compare](const CString& a, const CString& b) { return compare(&a, &b) < 0; });
}

int AF_CSortingStringArray::Compare(const CString* a, const CString* b) {
    return a->Compare(*b);
}

#pragma once
// AF_CSortingStringArray: a string array that sorts itself in place with a
// comparison function (negative, zero or positive, like CString::Compare).
#include "framework/StringArray.h"

class AF_CSortingStringArray : public CStringArray {
public:
    typedef int (*CompareFunction)(const CString* a, const CString* b);

    AF_CSortingStringArray() = default;
    virtual ~AF_CSortingStringArray();

    // Sorts the elements by compare (Compare when null). Elements that
    // compare equal keep their order.
    void Sort(CompareFunction compare);

    // Case-sensitive order by CString::Compare.
    static int Compare(const CString* a, const CString* b);
};

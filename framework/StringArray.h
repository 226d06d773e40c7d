#pragma once
// CStringArray: a CArray of CString with the same index rules; string
// literals can be added directly.
#include "framework/Array.h"
#include "framework/CString.h"

class CStringArray : public CArray<CString, const CString&> {
public:
    using CArray::CArray;

    using CArray::Add;
    INT_PTR Add(const WCHAR* psz) { return CArray::Add(CString(psz)); }
    using CArray::SetAt;
    void SetAt(INT_PTR index, const WCHAR* psz) { CArray::SetAt(index, CString(psz)); }
    using CArray::SetAtGrow;
    void SetAtGrow(INT_PTR index, const WCHAR* psz) { CArray::SetAtGrow(index, CString(psz)); }
};

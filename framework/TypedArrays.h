#pragma once
// The framework's ready-made arrays of scalars and object pointers. They
// behave exactly as CArray; CObArray does not own the objects it points to.
#include "framework/Array.h"
#include "framework/Object.h"
#include "framework/Types.h"

class CUIntArray : public CArray<UINT, UINT> {
public:
    using CArray::CArray;
};

class CWordArray : public CArray<WORD, WORD> {
public:
    using CArray::CArray;
};

class CByteArray : public CArray<BYTE, BYTE> {
public:
    using CArray::CArray;
};

class CDWordArray : public CArray<DWORD, DWORD> {
public:
    using CArray::CArray;
};

class CPtrArray : public CArray<void*, void*> {
public:
    using CArray::CArray;
};

class CObArray : public CArray<CObject*, CObject*> {
public:
    using CArray::CArray;
};

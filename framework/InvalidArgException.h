#pragma once
// The framework's invalid-argument exception, raised for array indices out
// of range.
//
// It is thrown by value (not as a heap pointer, as the classic framework
// did), so callers catch `const CInvalidArgException&` and nothing leaks.
#include "framework/Char.h"
#include "framework/Object.h"

class CException : public CObject {
public:
    // Copies the description into buf (at most maxChars units including the
    // terminator); returns false when there is nothing to copy.
    virtual bool GetErrorMessage(WCHAR* buf, unsigned maxChars) const;
};

class CInvalidArgException : public CException {
public:
    bool GetErrorMessage(WCHAR* buf, unsigned maxChars) const override;
};

[[noreturn]] void AfxThrowInvalidArgException();

#pragma once
// The framework's resource exception: a window, window class or other system
// resource could not be made. Thrown by value like CInvalidArgException;
// callers catch `const CResourceException&`.
#include "framework/InvalidArgException.h"

class CResourceException : public CException {
public:
    bool GetErrorMessage(WCHAR* buf, unsigned maxChars) const override;
};

[[noreturn]] void AfxThrowResourceException();

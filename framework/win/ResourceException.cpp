#include "framework/win/ResourceException.h"

#include <cwchar>

bool CResourceException::GetErrorMessage(WCHAR* buf, unsigned maxChars) const {
    if (buf == nullptr || maxChars == 0)
        return false;
    wcsncpy(buf, L"A required resource was unavailable.", maxChars - 1);
    buf[maxChars - 1] = 0;
    return true;
}

void AfxThrowResourceException() {
    throw CResourceException();
}

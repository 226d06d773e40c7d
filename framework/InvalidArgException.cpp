#include "framework/InvalidArgException.h"

namespace {

bool CopyMessage(const WCHAR* text, WCHAR* buf, unsigned maxChars) {
    if (buf == nullptr || maxChars == 0)
        return false;
    unsigned i = 0;
    for (; i + 1 < maxChars && text[i] != 0; ++i)
        buf[i] = text[i];
    buf[i] = 0;
    return true;
}

} // namespace

bool CException::GetErrorMessage(WCHAR* buf, unsigned maxChars) const {
    if (buf != nullptr && maxChars > 0)
        buf[0] = 0;
    return false;
}

bool CInvalidArgException::GetErrorMessage(WCHAR* buf, unsigned maxChars) const {
    return CopyMessage(VU_T("Invalid argument."), buf, maxChars);
}

void AfxThrowInvalidArgException() {
    throw CInvalidArgException();
}

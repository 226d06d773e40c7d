#include "framework/InvalidArgException.h"

namespace {

bool CopyMessage(const char16_t* text, char16_t* buf, unsigned maxChars) {
    if (buf == nullptr || maxChars == 0)
        return false;
    unsigned i = 0;
    for (; i + 1 < maxChars && text[i] != 0; ++i)
        buf[i] = text[i];
    buf[i] = 0;
    return true;
}

} // namespace

bool CException::GetErrorMessage(char16_t* buf, unsigned maxChars) const {
    if (buf != nullptr && maxChars > 0)
        buf[0] = 0;
    return false;
}

bool CInvalidArgException::GetErrorMessage(char16_t* buf, unsigned maxChars) const {
    return CopyMessage(u"Invalid argument.", buf, maxChars);
}

void AfxThrowInvalidArgException() {
    throw CInvalidArgException();
}

#include "framework/CaseMap.h"

namespace vu {

int CompareNoCase(std::u16string_view a, std::u16string_view b) {
    const std::size_t n = a.size() < b.size() ? a.size() : b.size();
    for (std::size_t i = 0; i < n; ++i) {
        if (a[i] == b[i])
            continue;
        const char16_t la = ToLower(a[i]);
        const char16_t lb = ToLower(b[i]);
        if (la != lb)
            return la < lb ? -1 : 1;
    }
    if (a.size() == b.size())
        return 0;
    return a.size() < b.size() ? -1 : 1;
}

bool EqualNoCase(std::u16string_view a, std::u16string_view b) {
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (a[i] != b[i] && ToLower(a[i]) != ToLower(b[i]))
            return false;
    }
    return true;
}

void MakeLower(char16_t* s, std::size_t n) {
    for (std::size_t i = 0; i < n; ++i)
        s[i] = ToLower(s[i]);
}

void MakeUpper(char16_t* s, std::size_t n) {
    for (std::size_t i = 0; i < n; ++i)
        s[i] = ToUpper(s[i]);
}

} // namespace vu

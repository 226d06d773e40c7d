#include "framework/CaseMap.h"

namespace vu {

int CompareNoCase(vu::StringView a, vu::StringView b) {
    const std::size_t n = a.size() < b.size() ? a.size() : b.size();
    for (std::size_t i = 0; i < n; ++i) {
        if (a[i] == b[i])
            continue;
        const WCHAR la = ToLower(a[i]);
        const WCHAR lb = ToLower(b[i]);
        if (la != lb)
            return la < lb ? -1 : 1;
    }
    if (a.size() == b.size())
        return 0;
    return a.size() < b.size() ? -1 : 1;
}

bool EqualNoCase(vu::StringView a, vu::StringView b) {
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (a[i] != b[i] && ToLower(a[i]) != ToLower(b[i]))
            return false;
    }
    return true;
}

void MakeLower(WCHAR* s, std::size_t n) {
    for (std::size_t i = 0; i < n; ++i)
        s[i] = ToLower(s[i]);
}

void MakeUpper(WCHAR* s, std::size_t n) {
    for (std::size_t i = 0; i < n; ++i)
        s[i] = ToUpper(s[i]);
}

} // namespace vu

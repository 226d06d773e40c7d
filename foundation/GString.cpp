#include "foundation/GString.h"

#include "framework/CString.h"
#include "framework/CaseMap.h"

AF_GString::AF_GString(const WCHAR* s) {
    if (s != nullptr)
        assign(s);
}

AF_GString::AF_GString(const CString& s) : vu::String(s.GetString()) {}

// ---- counting ------------------------------------------------------------

AF_GString::size_type AF_GString::count(const AF_GString& set, size_type pos) const {
    return count(set, pos, npos);
}

AF_GString::size_type AF_GString::count(const AF_GString& set, size_type pos, size_type n) const {
    const size_type limit = Limit(pos, n);
    size_type found = 0;
    for (size_type p = find_first_of(set, pos); p != npos && p < limit;
         p = find_first_of(set, p + 1))
        ++found;
    return found;
}

// ---- set edits -------------------------------------------------------------

AF_GString& AF_GString::convert(const AF_GString& set, const AF_GString& replacement,
                                size_type pos) {
    return ConvertBelow(set, replacement, pos, npos);
}

AF_GString& AF_GString::convert(const AF_GString& set, const AF_GString& replacement, size_type pos,
                                size_type n) {
    return ConvertBelow(set, replacement, pos, Limit(pos, n));
}

AF_GString& AF_GString::ConvertBelow(const AF_GString& set, const AF_GString& replacement,
                                     size_type pos, size_type limit) {
    for (size_type p = find_first_of(set, pos); p != npos && p < limit;
         p = find_first_of(set, p + replacement.size()))
        replace(p, set.size(), replacement);
    return *this;
}

AF_GString& AF_GString::filter(const AF_GString& set, size_type pos) {
    return FilterBelow(set, pos, npos);
}

AF_GString& AF_GString::filter(const AF_GString& set, size_type pos, size_type n) {
    return FilterBelow(set, pos, Limit(pos, n));
}

AF_GString& AF_GString::FilterBelow(const AF_GString& set, size_type pos, size_type limit) {
    for (size_type p = find_first_not_of(set, pos); p != npos && p < limit;
         p = find_first_not_of(set, p))
        erase(p, 1);
    return *this;
}

AF_GString& AF_GString::remove(const AF_GString& set, size_type pos) {
    return RemoveBelow(set, pos, npos);
}

AF_GString& AF_GString::remove(const AF_GString& set, size_type pos, size_type n) {
    return RemoveBelow(set, pos, Limit(pos, n));
}

AF_GString& AF_GString::RemoveBelow(const AF_GString& set, size_type pos, size_type limit) {
    for (size_type p = find_first_of(set, pos); p != npos && p < limit; p = find_first_of(set, p))
        erase(p, 1);
    return *this;
}

// ---- substring edits -----------------------------------------------------

AF_GString& AF_GString::remove_substr(const AF_GString& sub, size_type pos) {
    return RemoveSubstrBelow(sub, pos, npos);
}

AF_GString& AF_GString::remove_substr(const AF_GString& sub, size_type pos, size_type n) {
    return RemoveSubstrBelow(sub, pos, Limit(pos, n));
}

AF_GString& AF_GString::RemoveSubstrBelow(const AF_GString& sub, size_type pos, size_type limit) {
    if (sub.empty()) // an empty string is found everywhere and never goes away
        return *this;
    for (size_type p = find(sub, pos); p != npos && p < limit; p = find(sub, p))
        erase(p, sub.size());
    return *this;
}

AF_GString& AF_GString::reduce_repeat(const AF_GString& sub, size_type pos) {
    if (sub.empty())
        return *this;
    const size_type len = sub.size();
    size_type p = find(sub, pos);
    while (p != npos) {
        if (compare(p + len, len, sub) == 0)
            erase(p + len, len); // look again at the same place
        else
            p = find(sub, p + len);
    }
    return *this;
}

AF_GString& AF_GString::mnemonic(const AF_GString& set, size_type n) {
    erase(0, std::min(size(), find_first_not_of(set)));
    size_type w = 0;
    for (size_type s = find_first_of(set); s != npos; s = find_first_of(set)) {
        w = Limit(w, n);
        if (s < w)
            w = s;
        erase(w, s - w + 1);
    }
    const size_type cut = Limit(w, n);
    if (size() > cut)
        resize(cut);
    return *this;
}

// ---- extraction -----------------------------------------------------------

AF_GString AF_GString::substr(const AF_GString& open, const AF_GString& close) const {
    const size_type o = find_first_of(open);
    if (o == npos)
        return AF_GString();
    const size_type c = find_first_of(close, o);
    if (c == npos)
        return substr(o + 1);
    // o == c gives a count of -1, which the standard substring reads as
    // "to the end".
    return substr(o + 1, c - o - 1);
}

AF_GString AF_GString::substr(size_type pos, size_type n) const {
    if (pos > size())
        return AF_GString();
    return AF_GString(vu::String::substr(pos, n));
}

AF_GString& AF_GString::trim(const AF_GString& set) {
    const size_type last = find_last_not_of(set);
    if (last == npos) {
        clear();
        return *this;
    }
    erase(last + 1);
    erase(0, find_first_not_of(set));
    return *this;
}

// ---- case ------------------------------------------------------------------

AF_GString& AF_GString::MapCase(size_type pos, WCHAR (*map)(WCHAR)) {
    if (empty() || pos > size())
        return *this;
    for (size_type i = pos; i < size(); ++i)
        (*this)[i] = map((*this)[i]);
    return *this;
}

AF_GString& AF_GString::tolower(size_type pos) {
    return MapCase(pos, vu::ToLower);
}

AF_GString& AF_GString::tolower(size_type pos, size_type /*n*/) {
    return MapCase(pos, vu::ToLower);
}

AF_GString& AF_GString::toupper(size_type pos) {
    return MapCase(pos, vu::ToUpper);
}

AF_GString& AF_GString::toupper(size_type pos, size_type /*n*/) {
    return MapCase(pos, vu::ToUpper);
}

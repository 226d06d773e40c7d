#pragma once
// AF_GString: the library's value string of UTF-16 code units, a
// vu::String with character-set, case and search operations. A "set"
// argument is a string whose units form a set. Every modifying operation
// works in place and returns the string itself.
//
// The ranged forms (pos, n) fix their limit pos+n once, before anything is
// erased: erasures pull later units towards that fixed limit, so the range
// covers the units found below it, not the first n units of the original.
#include "framework/Types.h"

#include <string>

class CString;

class AF_GString : public vu::String {
public:
    // Construction
    AF_GString() = default;
    AF_GString(const vu::String& s) : vu::String(s) {}
    AF_GString(vu::String&& s) : vu::String(std::move(s)) {}
    AF_GString(const WCHAR* s);   // null gives an empty string
    AF_GString(const CString& s); // up to the first 0 unit, like a C string
    AF_GString(const AF_GString&) = default;
    AF_GString(AF_GString&&) noexcept = default;
    AF_GString& operator=(const AF_GString&) = default;
    AF_GString& operator=(AF_GString&&) noexcept = default;
    using vu::String::operator=;

    // Counting: units at or after pos that belong to set (before pos+n).
    size_type count(const AF_GString& set, size_type pos = 0) const;
    size_type count(const AF_GString& set, size_type pos, size_type n) const;

    // At each unit of set, replaces a run as long as set with replacement and
    // searches on after the inserted text.
    AF_GString& convert(const AF_GString& set, const AF_GString& replacement, size_type pos = 0);
    AF_GString& convert(const AF_GString& set, const AF_GString& replacement, size_type pos,
                        size_type n);

    // Erases every unit that does not belong to set.
    AF_GString& filter(const AF_GString& set, size_type pos = 0);
    AF_GString& filter(const AF_GString& set, size_type pos, size_type n);

    // Erases every unit that belongs to set.
    AF_GString& remove(const AF_GString& set, size_type pos = 0);
    AF_GString& remove(const AF_GString& set, size_type pos, size_type n);

    // Erases every occurrence of the whole string sub (an empty sub erases
    // nothing).
    AF_GString& remove_substr(const AF_GString& sub, size_type pos = 0);
    AF_GString& remove_substr(const AF_GString& sub, size_type pos, size_type n);

    // Collapses immediate repetitions of sub into one occurrence.
    AF_GString& reduce_repeat(const AF_GString& sub, size_type pos = 0);

    // Abbreviates: the words separated by units of set, each cut to at most
    // n units, joined without separators ("Main Task Routine" -> "MaiTasRou").
    AF_GString& mnemonic(const AF_GString& set, size_type n);

    // The text between the first unit of open and the next unit of close
    // (searched from the opening unit itself); empty when no unit opens, to
    // the end when none closes.
    AF_GString substr(const AF_GString& open, const AF_GString& close) const;
    // The standard substring, as an AF_GString.
    AF_GString substr(size_type pos = 0, size_type n = npos) const;

    // Erases leading and trailing units that belong to set.
    AF_GString& trim(const AF_GString& set);

    // Case conversion through the library's case map, from pos to the end.
    // The ranged forms run while below pos+n or not yet at the end, so
    // within the string they too convert everything from pos on.
    AF_GString& tolower(size_type pos = 0);
    AF_GString& tolower(size_type pos, size_type n);
    AF_GString& toupper(size_type pos = 0);
    AF_GString& toupper(size_type pos, size_type n);

private:
    // pos+n, saturated so that npos and large counts do not wrap.
    static size_type Limit(size_type pos, size_type n) { return n > npos - pos ? npos : pos + n; }
    AF_GString& ConvertBelow(const AF_GString& set, const AF_GString& replacement, size_type pos,
                             size_type limit);
    AF_GString& FilterBelow(const AF_GString& set, size_type pos, size_type limit);
    AF_GString& RemoveBelow(const AF_GString& set, size_type pos, size_type limit);
    AF_GString& RemoveSubstrBelow(const AF_GString& sub, size_type pos, size_type limit);
    AF_GString& MapCase(size_type pos, WCHAR (*map)(WCHAR));
};

// Orders string pointers by the strings' standard operator< (unit by unit,
// case-sensitive), for containers of AF_GString pointers.
struct AF_GString_Sort {
    BOOL operator()(const AF_GString* a, const AF_GString* b) const {
        return *a < *b ? TRUE : FALSE;
    }
};

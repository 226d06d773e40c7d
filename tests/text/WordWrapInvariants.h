#pragma once

// What every wrapping keeps, shared by the property test and the fuzz target:
// the lines give back the text, a line passes the limit only by a hanging
// space or its hard break, hard breaks only end lines, and the joined forms
// add nothing but their markers.

#include "text/WordWrappedString.h"

#include <algorithm>
#include <string>

// The first broken rule, or an empty string.
inline std::string BrokenWrapRule(const VU_CWordWrappedString& w, const vu::String& text,
                                  int length) {
    const long long max = length == -1 ? 2147483647LL : std::max(length, 1);
    vu::String joined;
    for (int i = 0; i < w.GetNumLines(); ++i) {
        const vu::String line = w.GetLine(i).Str();
        const long long size = static_cast<long long>(line.size());
        const bool hard = line.ends_with(VU_T("\r\n"));
        if (size > max && !(size == max + 1 && line.back() == VU_T(' ')) &&
            !(hard && size - 2 <= max))
            return "line " + std::to_string(i) + " too long";
        if (line.find(VU_T("\r\n")) != (hard ? static_cast<size_t>(size - 2) : vu::String::npos))
            return "hard break inside line " + std::to_string(i);
        joined += line;
    }
    if (joined != text || w.GetFullString(false, true).Str() != text)
        return "lines lose or add characters";
    if (w.GetLine(w.GetNumLines()) != VU_T("INVALID_LINE_NUMBER"))
        return "a line past the last";
    // Joining adds two characters per hard break it inserts, three per soft.
    const size_t hard = w.GetFullString(true, true).GetLength() - text.size();
    const size_t soft = w.GetFullString(true, false).GetLength() - text.size();
    if (hard % 2 != 0 || soft / 3 != hard / 2 || soft % 3 != 0)
        return "joining adds more than breaks";
    if (text.find(VU_T("\r\r\n")) == vu::String::npos) {
        vu::String unmarked = w.GetFullString(true, false).Str();
        for (size_t p = 0; (p = unmarked.find(VU_T("\r\r\n"), p)) != vu::String::npos;)
            unmarked.erase(p, 3);
        if (unmarked != text)
            return "soft breaks are more than markers";
    }
    return {};
}

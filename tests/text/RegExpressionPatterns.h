#pragma once

// Helpers of the regular-expression tests: readable text for failure
// messages, and random patterns and texts for the cross-checks (small
// alphabets so that matches are frequent, every construct of the dialect,
// occasionally an invalid pattern).

#include "framework/Char.h"
#include <cstdint>
#include <cstdio>
#include <random>
#include <string>
#include <string_view>

namespace RegExpressionTestSupport {

// ASCII as is, other units as \uXXXX.
inline std::string Show(vu::StringView s) {
    std::string out;
    for (WCHAR c : s) {
        char buf[8];
        std::snprintf(buf, sizeof buf, "\\u%04X", static_cast<unsigned>(c));
        out += (c >= 0x20 && c < 0x7F) ? std::string(1, static_cast<char>(c)) : buf;
    }
    return out;
}

// Empty when `found` and every group agree with the expected index and
// groups (start, end; -1 when unset), else what differs first.
template <class Re, class Start, class End>
std::string Differences(const Re& re, int found, int expected, Start start, End end) {
    if (found != expected)
        return "index " + std::to_string(found) + " expected " + std::to_string(expected);
    for (int n = 0; n < 10 && expected >= 0; ++n)
        if (re.GetGroupStart(n) != start(n) || re.GetGroupEnd(n) != end(n))
            return "group " + std::to_string(n) + " (" + std::to_string(re.GetGroupStart(n)) + "," +
                   std::to_string(re.GetGroupEnd(n)) + ") expected (" + std::to_string(start(n)) +
                   "," + std::to_string(end(n)) + ")";
    return {};
}

} // namespace RegExpressionTestSupport

class RegExpressionPatternGenerator {
public:
    explicit RegExpressionPatternGenerator(uint32_t seed) : m_random(seed) {}

    vu::String Pattern() {
        m_groups = 0;
        return Alternation(0);
    }

    // A text over a..d with a few specials, 0..maxLength units.
    vu::String Text(size_t maxLength) {
        vu::String text(Below(maxLength + 1), VU_T('a'));
        for (WCHAR& c : text)
            c = Pick(VU_T("aaaabbbbccd-]\n."));
        return text;
    }

    size_t Below(size_t n) { return n ? size_t(m_random() % n) : 0; }
    bool Chance(int percent) { return int(Below(100)) < percent; }

private:
    WCHAR Pick(vu::StringView units) { return units[Below(units.size())]; }

    vu::String Alternation(int depth) {
        vu::String s = Branch(depth);
        while (Chance(depth == 0 ? 25 : 30))
            s += VU_T('|') + Branch(depth);
        return s;
    }

    vu::String Branch(int depth) {
        vu::String s;
        for (size_t pieces = Below(depth == 0 ? 5 : 4); pieces > 0; --pieces) {
            s += Atom(depth);
            const size_t r = Below(100);
            if (r < 40)
                s += r < 15 ? VU_T('*') : r < 28 ? VU_T('+') : VU_T('?');
        }
        return s;
    }

    vu::String Atom(int depth) {
        const size_t r = Below(100);
        if (r < 50)
            return r < 40 ? vu::String(1, Letter()) : vu::String{Letter(), Letter()};
        if (r < 57)
            return VU_T(".");
        if (r < 70)
            return Set();
        if (r < 84 && depth < 3 && m_groups < 9) {
            ++m_groups;
            vu::String group(1, VU_T('('));
            return (group += Alternation(depth + 1)) += VU_T(')');
        }
        if (r < 92)
            return r < 88 ? VU_T("^") : VU_T("$");
        return vu::String{VU_T('\\'), Pick(VU_T("abd.*+?()[]|^$\\-{"))};
    }

    vu::String Set() {
        vu::String s = VU_T("[");
        if (Chance(30))
            s += VU_T('^');
        if (Chance(10))
            s += Chance(50) ? VU_T(']') : VU_T('-');
        for (size_t members = 1 + Below(3); members > 0; --members) {
            if (Chance(25)) {
                const WCHAR lo = WCHAR(VU_T('a') + Below(3));
                s += vu::String{lo, VU_T('-'), WCHAR(lo + Below(3))};
            } else {
                s += Pick(VU_T("abcd-b^.\\")); // ']' is a member only first
            }
        }
        if (Chance(10))
            s += VU_T('-');
        if (!Chance(3))
            s += VU_T(']');
        return s;
    }

    WCHAR Letter() { return Pick(VU_T("aaabbbcd-]{\n")); }

    std::mt19937 m_random;
    int m_groups = 0;
};

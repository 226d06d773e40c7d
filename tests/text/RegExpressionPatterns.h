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
        if (c >= 0x20 && c < 0x7F) {
            out.push_back(static_cast<char>(c));
        } else {
            char buf[8];
            std::snprintf(buf, sizeof buf, "\\u%04X", static_cast<unsigned>(c));
            out += buf;
        }
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
        static const WCHAR kUnits[] = VU_T("aaaabbbbccd-]\n.");
        vu::String text(Below(maxLength + 1), VU_T('a'));
        for (WCHAR& c : text)
            c = kUnits[Below(sizeof kUnits / sizeof kUnits[0] - 1)];
        return text;
    }

    size_t Below(size_t n) { return n ? size_t(m_random() % n) : 0; }
    bool Chance(int percent) { return int(Below(100)) < percent; }

private:
    vu::String Alternation(int depth) {
        vu::String s = Branch(depth);
        while (Chance(depth == 0 ? 25 : 30)) {
            s += VU_T('|');
            s += Branch(depth);
        }
        return s;
    }

    vu::String Branch(int depth) {
        vu::String s;
        const size_t pieces = Below(depth == 0 ? 5 : 4);
        for (size_t i = 0; i < pieces; ++i)
            s += Piece(depth);
        return s;
    }

    vu::String Piece(int depth) {
        vu::String s = Atom(depth);
        const size_t r = Below(100);
        if (r < 15)
            s += VU_T('*');
        else if (r < 28)
            s += VU_T('+');
        else if (r < 40)
            s += VU_T('?');
        return s;
    }

    vu::String Atom(int depth) {
        const size_t r = Below(100);
        if (r < 40)
            return vu::String(1, Letter());
        if (r < 50) {
            vu::String two(1, Letter());
            two += Letter();
            return two;
        }
        if (r < 57)
            return VU_T(".");
        if (r < 70)
            return Set();
        if (r < 84 && depth < 3 && m_groups < 9) {
            ++m_groups;
            vu::String group = VU_T("(");
            group += Alternation(depth + 1);
            group += VU_T(')');
            return group;
        }
        if (r < 88)
            return VU_T("^");
        if (r < 92)
            return VU_T("$");
        static const WCHAR kEscaped[] = VU_T("abd.*+?()[]|^$\\-{");
        vu::String escape = VU_T("\\");
        escape += kEscaped[Below(sizeof kEscaped / 2 - 1)];
        return escape;
    }

    vu::String Set() {
        static const WCHAR kMembers[] = VU_T("abcd-]^.\\");
        vu::String s = VU_T("[");
        if (Chance(30))
            s += VU_T('^');
        if (Chance(10))
            s += Chance(50) ? VU_T(']') : VU_T('-');
        const size_t members = 1 + Below(3);
        for (size_t i = 0; i < members; ++i) {
            if (Chance(25)) {
                const WCHAR lo = WCHAR(VU_T('a') + Below(3));
                s += lo;
                s += VU_T('-');
                s += WCHAR(lo + Below(3));
            } else {
                WCHAR c = kMembers[Below(sizeof kMembers / 2 - 1)];
                if (c == VU_T(']'))
                    c = VU_T('b'); // only first, where it is a member
                s += c;
            }
        }
        if (Chance(10))
            s += VU_T('-');
        if (!Chance(3))
            s += VU_T(']');
        return s;
    }

    WCHAR Letter() {
        static const WCHAR kLetters[] = VU_T("aaabbbcd-]{\n");
        return kLetters[Below(sizeof kLetters / 2 - 1)];
    }

    std::mt19937 m_random;
    int m_groups = 0;
};

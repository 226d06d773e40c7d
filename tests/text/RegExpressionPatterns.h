#pragma once

// Helpers of the regular-expression tests: readable text for failure
// messages, and random patterns and texts for the cross-checks (small
// alphabets so that matches are frequent, every construct of the dialect,
// occasionally an invalid pattern).

#include <cstdint>
#include <cstdio>
#include <random>
#include <string>
#include <string_view>

namespace RegExpressionTestSupport {

// ASCII as is, other units as \uXXXX.
inline std::string Show(std::u16string_view s) {
    std::string out;
    for (char16_t c : s) {
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

} // namespace RegExpressionTestSupport

class RegExpressionPatternGenerator {
public:
    explicit RegExpressionPatternGenerator(uint32_t seed) : m_random(seed) {}

    std::u16string Pattern() {
        m_groups = 0;
        return Alternation(0);
    }

    // A text over a..d with a few specials, 0..maxLength units.
    std::u16string Text(size_t maxLength) {
        static const char16_t kUnits[] = u"aaaabbbbccd-]\n.";
        std::u16string text(Below(maxLength + 1), u'a');
        for (char16_t& c : text)
            c = kUnits[Below(sizeof kUnits / sizeof kUnits[0] - 1)];
        return text;
    }

    size_t Below(size_t n) { return n ? size_t(m_random() % n) : 0; }
    bool Chance(int percent) { return int(Below(100)) < percent; }

private:
    std::u16string Alternation(int depth) {
        std::u16string s = Branch(depth);
        while (Chance(depth == 0 ? 25 : 30)) {
            s += u'|';
            s += Branch(depth);
        }
        return s;
    }

    std::u16string Branch(int depth) {
        std::u16string s;
        const size_t pieces = Below(depth == 0 ? 5 : 4);
        for (size_t i = 0; i < pieces; ++i)
            s += Piece(depth);
        return s;
    }

    std::u16string Piece(int depth) {
        std::u16string s = Atom(depth);
        const size_t r = Below(100);
        if (r < 15)
            s += u'*';
        else if (r < 28)
            s += u'+';
        else if (r < 40)
            s += u'?';
        return s;
    }

    std::u16string Atom(int depth) {
        const size_t r = Below(100);
        if (r < 40)
            return std::u16string(1, Letter());
        if (r < 50) {
            std::u16string two(1, Letter());
            two += Letter();
            return two;
        }
        if (r < 57)
            return u".";
        if (r < 70)
            return Set();
        if (r < 84 && depth < 3 && m_groups < 9) {
            ++m_groups;
            std::u16string group = u"(";
            group += Alternation(depth + 1);
            group += u')';
            return group;
        }
        if (r < 88)
            return u"^";
        if (r < 92)
            return u"$";
        static const char16_t kEscaped[] = u"abd.*+?()[]|^$\\-{";
        std::u16string escape = u"\\";
        escape += kEscaped[Below(sizeof kEscaped / 2 - 1)];
        return escape;
    }

    std::u16string Set() {
        static const char16_t kMembers[] = u"abcd-]^.\\";
        std::u16string s = u"[";
        if (Chance(30))
            s += u'^';
        if (Chance(10))
            s += Chance(50) ? u']' : u'-';
        const size_t members = 1 + Below(3);
        for (size_t i = 0; i < members; ++i) {
            if (Chance(25)) {
                const char16_t lo = char16_t(u'a' + Below(3));
                s += lo;
                s += u'-';
                s += char16_t(lo + Below(3));
            } else {
                char16_t c = kMembers[Below(sizeof kMembers / 2 - 1)];
                if (c == u']')
                    c = u'b'; // only first, where it is a member
                s += c;
            }
        }
        if (Chance(10))
            s += u'-';
        if (!Chance(3))
            s += u']';
        return s;
    }

    char16_t Letter() {
        static const char16_t kLetters[] = u"aaabbbcd-]{\n";
        return kLetters[Below(sizeof kLetters / 2 - 1)];
    }

    std::mt19937 m_random;
    int m_groups = 0;
};

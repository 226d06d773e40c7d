// The matcher against a straightforward recursive reference that runs the
// same compiled program, and on subjects of several megabytes, which the
// recursive form could not survive.
#include "text/RegExpression.h"

#include "RegExpressionPatterns.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using RegExpressionTestSupport::Show;

// The classic recursive matcher over a compiled program, every position
// tried from 0 to the terminating NUL, without any search hint.
class ReferenceMatcher {
public:
    explicit ReferenceMatcher(const char16_t* program) : m_program(program) {}

    int Find(const char16_t* s) {
        m_bol = s;
        for (const char16_t* p = s;; ++p) {
            if (Try(p))
                return int(p - s);
            if (!*p)
                return -1;
        }
    }
    int Start(int n) const { return m_start[n] ? int(m_start[n] - m_bol) : -1; }
    int End(int n) const { return m_end[n] ? int(m_end[n] - m_bol) : -1; }

private:
    using R = VU_CRegExpression;

    static const char16_t* Next(const char16_t* p) {
        const uint32_t link = R::ReadLink(p);
        if (!link)
            return nullptr;
        return *p == R::OpLoopBack ? p - link : p + link;
    }
    static const char16_t* Operand(const char16_t* p) { return p + 3; }
    static bool InList(const char16_t* list, char16_t c) {
        for (; *list; ++list)
            if (*list == c)
                return true;
        return false;
    }

    bool Try(const char16_t* p) {
        m_input = p;
        for (int i = 0; i < 10; ++i)
            m_start[i] = m_end[i] = nullptr;
        if (!Match(m_program))
            return false;
        m_start[0] = p;
        m_end[0] = m_input;
        return true;
    }

    size_t Repeat(const char16_t* node) const {
        const char16_t* s = m_input;
        size_t n = 0;
        switch (*node) {
        case R::OpAnyChar:
            while (s[n])
                ++n;
            break;
        case R::OpInSet:
            while (s[n] && InList(Operand(node), s[n]))
                ++n;
            break;
        case R::OpNotInSet:
            while (s[n] && !InList(Operand(node), s[n]))
                ++n;
            break;
        case R::OpLiteral:
            while (s[n] == *Operand(node))
                ++n;
            break;
        }
        return n;
    }

    bool Match(const char16_t* scan) {
        while (scan) {
            const char16_t* next = Next(scan);
            const char16_t op = *scan;
            switch (op) {
            case R::OpAtStart:
                if (m_input != m_bol)
                    return false;
                break;
            case R::OpAtEnd:
                if (*m_input)
                    return false;
                break;
            case R::OpAnyChar:
                if (!*m_input)
                    return false;
                ++m_input;
                break;
            case R::OpInSet:
            case R::OpNotInSet:
                if (!*m_input || InList(Operand(scan), *m_input) != (op == R::OpInSet))
                    return false;
                ++m_input;
                break;
            case R::OpLiteral: {
                const char16_t* lit = Operand(scan);
                for (; *lit; ++lit, ++m_input)
                    if (*lit != *m_input)
                        return false;
                break;
            }
            case R::OpEmpty:
            case R::OpLoopBack:
                break;
            case R::OpAlternative:
                if (!next || *next != R::OpAlternative) {
                    next = Operand(scan);
                    break;
                }
                do {
                    const char16_t* save = m_input;
                    if (Match(Operand(scan)))
                        return true;
                    m_input = save;
                    scan = Next(scan);
                } while (scan && *scan == R::OpAlternative);
                return false;
            case R::OpStar:
            case R::OpPlus: {
                const char16_t nextCh = next && *next == R::OpLiteral ? *Operand(next) : 0;
                const long minimum = op == R::OpStar ? 0 : 1;
                const char16_t* save = m_input;
                for (long k = long(Repeat(Operand(scan))); k >= minimum; --k) {
                    m_input = save + k;
                    if ((!nextCh || *m_input == nextCh) && Match(next))
                        return true;
                }
                return false;
            }
            case R::OpEnd:
                return true;
            default:
                if (op > R::OpGroupOpen && op < R::OpGroupOpen + 10) {
                    const char16_t* save = m_input;
                    if (!Match(next))
                        return false;
                    if (!m_start[op - R::OpGroupOpen])
                        m_start[op - R::OpGroupOpen] = save;
                    return true;
                }
                if (op > R::OpGroupClose && op < R::OpGroupClose + 10) {
                    const char16_t* save = m_input;
                    if (!Match(next))
                        return false;
                    if (!m_end[op - R::OpGroupClose])
                        m_end[op - R::OpGroupClose] = save;
                    return true;
                }
                return false;
            }
            scan = next;
        }
        return false;
    }

    const char16_t* m_program;
    const char16_t* m_bol = nullptr;
    const char16_t* m_input = nullptr;
    const char16_t* m_start[10] = {};
    const char16_t* m_end[10] = {};
};

TEST(RegExpressionMatcher, AgreesWithTheRecursiveReference) {
    RegExpressionPatternGenerator gen(20240611);
    int compared = 0, matched = 0, failures = 0;
    for (int i = 0; i < 4000 && failures < 10; ++i) {
        const std::u16string pattern = gen.Pattern();
        VU_CRegExpression re;
        if (!re.RegComp(pattern.c_str()))
            continue;
        ReferenceMatcher reference(re.GetProgram());
        for (int t = 0; t < 8; ++t) {
            const std::u16string text = gen.Text(12);
            const int expected = reference.Find(text.c_str());
            const int found = re.RegFind(text.c_str());
            ++compared;
            std::string diff;
            if (found != expected)
                diff = "index " + std::to_string(found) + " expected " + std::to_string(expected);
            for (int n = 0; n < 10 && expected >= 0 && diff.empty(); ++n)
                if (re.GetGroupStart(n) != reference.Start(n) ||
                    re.GetGroupEnd(n) != reference.End(n))
                    diff = "group " + std::to_string(n) + " (" +
                           std::to_string(re.GetGroupStart(n)) + "," +
                           std::to_string(re.GetGroupEnd(n)) + ") expected (" +
                           std::to_string(reference.Start(n)) + "," +
                           std::to_string(reference.End(n)) + ")";
            if (!diff.empty()) {
                ++failures;
                ADD_FAILURE() << "case " << i << ": pattern " << Show(pattern) << " on "
                              << Show(text) << ": " << diff;
            }
            matched += expected >= 0;
        }
    }
    EXPECT_GT(compared, 10000);
    EXPECT_GT(matched, compared / 5); // the generator must produce real matches
}

TEST(RegExpressionMatcher, AgreesWithTheReferenceWhereChoicesLieFarApart) {
    // Choices and group boundaries far from the previous record exercise the
    // long-distance form of the backtracking records.
    const char16_t* patterns[] = {u"a?c*d?e",         u"(c*)(d|dc)a", u"x*(c+)(d|dd)b",
                                  u"([abc]*)(a|b)*d", u"(.)*-(a|b)?", u"b?[^d]*(d|da)+"};
    // Backtracking over a choice 20 units above the record below it.
    const std::u16string c20(20, u'c');
    const std::pair<std::u16string, std::u16string> pairs[] = {
        {u"(a?)" + c20 + u"d?(e|dx)", u"a" + c20 + u"dx"},
        {u"(a?)" + c20 + u"d?(e|dx)", u"-" + c20 + u"dx"},
        {u"(b|a)" + c20 + u"(d|dx)?y", u"a" + c20 + u"dxy"},
    };
    for (const auto& [pattern, text] : pairs) {
        SCOPED_TRACE("pattern " + Show(pattern) + " on " + Show(text));
        VU_CRegExpression re;
        ASSERT_NE(re.RegComp(pattern.c_str()), nullptr);
        ReferenceMatcher reference(re.GetProgram());
        const int expected = reference.Find(text.c_str());
        ASSERT_GE(expected, 0);
        ASSERT_EQ(re.RegFind(text.c_str()), expected);
        for (int n = 0; n < 10; ++n) {
            EXPECT_EQ(re.GetGroupStart(n), reference.Start(n)) << "group " << n;
            EXPECT_EQ(re.GetGroupEnd(n), reference.End(n)) << "group " << n;
        }
    }
    RegExpressionPatternGenerator gen(5);
    for (const char16_t* pattern : patterns) {
        VU_CRegExpression re;
        ASSERT_NE(re.RegComp(pattern), nullptr);
        ReferenceMatcher reference(re.GetProgram());
        for (int t = 0; t < 300; ++t) {
            std::u16string text = gen.Text(60);
            text.insert(gen.Below(text.size() + 1), std::u16string(gen.Below(40), u'c'));
            SCOPED_TRACE("pattern " + Show(pattern) + " on " + Show(text));
            const int expected = reference.Find(text.c_str());
            ASSERT_EQ(re.RegFind(text.c_str()), expected);
            for (int n = 0; n < 10 && expected >= 0; ++n) {
                ASSERT_EQ(re.GetGroupStart(n), reference.Start(n)) << "group " << n;
                ASSERT_EQ(re.GetGroupEnd(n), reference.End(n)) << "group " << n;
            }
        }
    }
}

// ---- Subjects of several megabytes -------------------------------------------

constexpr size_t kUnits = 5 * 1024 * 1024; // 10 MB of UTF-16

std::u16string Repeat(std::u16string_view unit, size_t units) {
    std::u16string s;
    s.reserve(units + unit.size());
    while (s.size() + unit.size() <= units)
        s += unit;
    return s;
}

TEST(RegExpressionMatcher, LongSubjectsDoNotExhaustTheStack) {
    std::u16string mixed(kUnits, u'a');
    for (size_t i = 0; i < mixed.size(); ++i)
        mixed[i] = (i * 2654435761u >> 7) & 1 ? u'a' : u'b';
    struct Row {
        const char* name;
        const char16_t* pattern;
        std::u16string text;
        int index, length, groupStart, groupEnd;
    } rows[] = {
        {"(ab)*", u"(ab)*", Repeat(u"ab", kUnits), 0, int(kUnits), int(kUnits) - 2, int(kUnits)},
        {"(a|b)*c", u"(a|b)*c", mixed + u"c", 0, int(kUnits) + 1, int(kUnits) - 1, int(kUnits)},
        {"(xy?)+", u"(xy?)+", Repeat(u"xyx", kUnits - 2), 0, int(kUnits - 2) / 3 * 3,
         int(kUnits - 2) / 3 * 3 - 1, int(kUnits - 2) / 3 * 3},
        {"(ab)*c backtracks", u"(ab)*abc", Repeat(u"ab", kUnits) + u"c", 0, int(kUnits) + 1,
         int(kUnits) - 4, int(kUnits) - 2},
        {".*z at the end", u"(.)*z", mixed + u"z", 0, int(kUnits) + 1, int(kUnits) - 1,
         int(kUnits)},
        // A group boundary more than 2^25 units after the previous record.
        {"far boundary", u"(a)[^z]*(z)", Repeat(u"ab", 7 * kUnits) + u"z", 0, int(7 * kUnits) + 1,
         0, 1},
    };
    for (Row& row : rows) {
        SCOPED_TRACE(row.name);
        VU_CRegExpression re;
        ASSERT_NE(re.RegComp(row.pattern), nullptr);
        EXPECT_EQ(re.RegFind(row.text.c_str()), row.index);
        EXPECT_EQ(re.GetFindLen(), row.length);
        EXPECT_EQ(re.GetGroupStart(1), row.groupStart);
        EXPECT_EQ(re.GetGroupEnd(1), row.groupEnd);
    }
}

TEST(RegExpressionMatcher, LongRunsUnderAStepBudget) {
    // A budget large enough for a linear scan lets the search finish.
    const std::u16string text = Repeat(u"ab", kUnits) + u"c";
    VU_CRegExpression re;
    ASSERT_NE(re.RegComp(u"(ab)*c"), nullptr);
    re.SetStepLimit(100 * kUnits);
    EXPECT_EQ(re.RegFind(text.c_str()), 0);
    EXPECT_FALSE(re.IsStepLimitExceeded());
    re.SetStepLimit(1000);
    EXPECT_EQ(re.RegFind(text.c_str()), -1);
    EXPECT_TRUE(re.IsStepLimitExceeded());
}

} // namespace

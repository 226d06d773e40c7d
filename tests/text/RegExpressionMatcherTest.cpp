// The matcher against a straightforward recursive reference that runs the
// same compiled program, and on subjects of several megabytes, which the
// recursive form could not survive.
#include "text/RegExpression.h"

#include "RegExpressionPatterns.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using RegExpressionTestSupport::Differences;
using RegExpressionTestSupport::Show;

// The classic recursive matcher over a compiled program, every position
// tried from 0 to the terminating NUL, without any search hint.
class ReferenceMatcher {
public:
    explicit ReferenceMatcher(const WCHAR* program) : m_program(program) {}

    int Find(const WCHAR* s) {
        m_bol = s;
        for (const WCHAR* p = s;; ++p) {
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

    static const WCHAR* Next(const WCHAR* p) {
        const uint32_t link = R::ReadLink(p);
        if (!link)
            return nullptr;
        return *p == R::OpLoopBack ? p - link : p + link;
    }
    static const WCHAR* Operand(const WCHAR* p) { return p + 3; }
    static bool InList(const WCHAR* list, WCHAR c) {
        for (; *list; ++list)
            if (*list == c)
                return true;
        return false;
    }

    bool Try(const WCHAR* p) {
        m_input = p;
        for (int i = 0; i < 10; ++i)
            m_start[i] = m_end[i] = nullptr;
        if (!Match(m_program))
            return false;
        m_start[0] = p;
        m_end[0] = m_input;
        return true;
    }

    size_t Repeat(const WCHAR* node) const {
        const WCHAR* s = m_input;
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

    bool Match(const WCHAR* scan) {
        while (scan) {
            const WCHAR* next = Next(scan);
            const WCHAR op = *scan;
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
                const WCHAR* lit = Operand(scan);
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
                    const WCHAR* save = m_input;
                    if (Match(Operand(scan)))
                        return true;
                    m_input = save;
                    scan = Next(scan);
                } while (scan && *scan == R::OpAlternative);
                return false;
            case R::OpStar:
            case R::OpPlus: {
                const WCHAR nextCh = next && *next == R::OpLiteral ? *Operand(next) : 0;
                const long minimum = op == R::OpStar ? 0 : 1;
                const WCHAR* save = m_input;
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
                    const WCHAR* save = m_input;
                    if (!Match(next))
                        return false;
                    if (!m_start[op - R::OpGroupOpen])
                        m_start[op - R::OpGroupOpen] = save;
                    return true;
                }
                if (op > R::OpGroupClose && op < R::OpGroupClose + 10) {
                    const WCHAR* save = m_input;
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

    const WCHAR* m_program;
    const WCHAR* m_bol = nullptr;
    const WCHAR* m_input = nullptr;
    const WCHAR* m_start[10] = {};
    const WCHAR* m_end[10] = {};
};

TEST(RegExpressionMatcher, AgreesWithTheRecursiveReference) {
    RegExpressionPatternGenerator gen(20240611);
    int compared = 0, matched = 0, failures = 0;
    for (int i = 0; i < 4000 && failures < 10; ++i) {
        const vu::String pattern = gen.Pattern();
        // The same program searched plainly and with the failure memo on
        // from the first choice (under an ample step budget): both must give
        // the reference's results.
        VU_CRegExpression plain, memo;
        memo.SetFailureMemoThreshold(0);
        memo.SetStepLimit(1'000'000);
        if (!plain.RegComp(pattern.c_str()) || !memo.RegComp(pattern.c_str()))
            continue;
        ReferenceMatcher reference(plain.GetProgram());
        for (int t = 0; t < 8; ++t) {
            const vu::String text = gen.Text(12);
            const int expected = reference.Find(text.c_str());
            for (VU_CRegExpression* re : {&plain, &memo}) {
                const std::string diff = Differences(
                    *re, re->RegFind(text.c_str()), expected,
                    [&](int n) { return reference.Start(n); },
                    [&](int n) { return reference.End(n); });
                if (!diff.empty() && ++failures)
                    ADD_FAILURE() << "case " << i << (re == &memo ? " (memo)" : "") << ": pattern "
                                  << Show(pattern) << " on " << Show(text) << ": " << diff;
            }
            ++compared;
            matched += expected >= 0;
        }
    }
    EXPECT_GT(compared, 10000);
    EXPECT_GT(matched, compared / 5); // the generator must produce real matches
}

TEST(RegExpressionMatcher, AgreesWithTheReferenceWhereChoicesLieFarApart) {
    // Choices and group boundaries far from the previous record exercise the
    // long-distance form of the backtracking records.
    const WCHAR* patterns[] = {VU_T("a?c*d?e"),       VU_T("(c*)(d|dc)a"),
                               VU_T("x*(c+)(d|dd)b"), VU_T("([abc]*)(a|b)*d"),
                               VU_T("(.)*-(a|b)?"),   VU_T("b?[^d]*(d|da)+")};
    RegExpressionPatternGenerator gen(5);
    for (int i = 0; i < 2 * int(std::size(patterns)); ++i) {
        const WCHAR* pattern = patterns[i / 2];
        VU_CRegExpression re;
        ASSERT_NE(re.RegComp(pattern), nullptr);
        if (i % 2)
            re.SetFailureMemoThreshold(0); // the memo's records lie far apart too
        ReferenceMatcher reference(re.GetProgram());
        for (int t = 0; t < 300; ++t) {
            vu::String text = gen.Text(60);
            text.insert(gen.Below(text.size() + 1), vu::String(gen.Below(40), VU_T('c')));
            SCOPED_TRACE("pattern " + Show(pattern) + " on " + Show(text));
            const int expected = reference.Find(text.c_str());
            ASSERT_EQ(Differences(
                          re, re.RegFind(text.c_str()), expected,
                          [&](int n) { return reference.Start(n); },
                          [&](int n) { return reference.End(n); }),
                      "");
        }
    }
}

// ---- Subjects of several megabytes -------------------------------------------

constexpr size_t kUnits = 5 * 1024 * 1024; // 10 MB of UTF-16

vu::String Repeat(vu::StringView unit, size_t units) {
    vu::String s;
    s.reserve(units + unit.size());
    while (s.size() + unit.size() <= units)
        s += unit;
    return s;
}

TEST(RegExpressionMatcher, LongSubjectsDoNotExhaustTheStack) {
    vu::String mixed(kUnits, VU_T('a'));
    for (size_t i = 0; i < mixed.size(); ++i)
        mixed[i] = (i * 2654435761u >> 7) & 1 ? VU_T('a') : VU_T('b');
    struct Row {
        const char* name;
        const WCHAR* pattern;
        vu::String text;
        int index, length, groupStart, groupEnd;
    } rows[] = {
        {"(ab)*", VU_T("(ab)*"), Repeat(VU_T("ab"), kUnits), 0, int(kUnits), int(kUnits) - 2,
         int(kUnits)},
        {"(a|b)*c", VU_T("(a|b)*c"), mixed + VU_T("c"), 0, int(kUnits) + 1, int(kUnits) - 1,
         int(kUnits)},
        {"(xy?)+", VU_T("(xy?)+"), Repeat(VU_T("xyx"), kUnits - 2), 0, int(kUnits - 2) / 3 * 3,
         int(kUnits - 2) / 3 * 3 - 1, int(kUnits - 2) / 3 * 3},
        {"(ab)*c backtracks", VU_T("(ab)*abc"), Repeat(VU_T("ab"), kUnits) + VU_T("c"), 0,
         int(kUnits) + 1, int(kUnits) - 4, int(kUnits) - 2},
        {".*z at the end", VU_T("(.)*z"), mixed + VU_T("z"), 0, int(kUnits) + 1, int(kUnits) - 1,
         int(kUnits)},
        // A group boundary more than 2^25 units after the previous record.
        {"far boundary", VU_T("(a)[^z]*(z)"), Repeat(VU_T("ab"), 7 * kUnits) + VU_T("z"), 0,
         int(7 * kUnits) + 1, 0, 1},
    };
    for (Row& row : rows) {
        SCOPED_TRACE(row.name);
        VU_CRegExpression re;
        ASSERT_NE(re.RegComp(row.pattern), nullptr);
        EXPECT_EQ(re.RegFind(row.text.c_str()), row.index);
        EXPECT_EQ(re.GetFindLen(), row.length);
        EXPECT_EQ(re.GetGroupStart(1), row.groupStart);
        EXPECT_EQ(re.GetGroupEnd(1), row.groupEnd);
        // The backtracking stack of megabytes is not kept after the search.
        EXPECT_LE(re.GetScratchBytes(), 64u * 1024);
    }
}

TEST(RegExpressionMatcher, BacktrackingTrapsCostTextTimesProgram) {
    // Each fails after trying every path; plain backtracking costs n^2, n^3
    // or 2^n steps here. The budget is the memo's threshold, its linear
    // allowance, and a small multiple of text length x program length.
    struct Row {
        const WCHAR* pattern;
        size_t length;
    } rows[] = {{VU_T("(x|a+y)"), 1'000'000}, {VU_T("a*a*y|zz"), 100'000},
                {VU_T("(a+)+b"), 10'000},     {VU_T("(a|aa)*b"), 10'000},
                {VU_T("(a*b|a)*c"), 10'000},  {VU_T("((a|b)*(a|c))*d"), 10'000}};
    for (const Row& row : rows) {
        SCOPED_TRACE(Show(row.pattern));
        const vu::String text(row.length, VU_T('a'));
        VU_CRegExpression re;
        ASSERT_NE(re.RegComp(row.pattern), nullptr);
        const unsigned long long n = row.length + 1;
        re.SetStepLimit(re.GetFailureMemoThreshold() + 8 * n + 4 * n * re.GetProgramSize());
        EXPECT_EQ(re.RegFind(text.c_str()), -1);
        EXPECT_FALSE(re.IsStepLimitExceeded());
        EXPECT_LE(re.GetScratchBytes(), 64u * 1024) << "the memo is released";
    }
}

} // namespace

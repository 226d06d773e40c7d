// The matcher against a straightforward recursive reference that runs the
// same compiled program, and on subjects of several megabytes, which the
// recursive form could not survive.
#include "text/RegExpression.h"

#include "RegExpressionPatterns.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace {

using RegExpressionTestSupport::Differences;
using RegExpressionTestSupport::Show;
using R = VU_CRegExpression;

// The classic recursive matcher over a compiled program, every position
// tried from 0 to the terminating NUL, without any search hint.
class ReferenceMatcher {
public:
    explicit ReferenceMatcher(const WCHAR* program) : m_program(program) {}

    int Find(const WCHAR* s) {
        m_bol = s;
        for (const WCHAR* p = s;; ++p) {
            m_input = p;
            std::fill(&m_group[0][0], &m_group[0][0] + 20, nullptr);
            if (Match(m_program)) {
                m_group[0][0] = p;
                m_group[0][1] = m_input;
                return int(p - s);
            }
            if (!*p)
                return -1;
        }
    }
    int Start(int n) const { return m_group[n][0] ? int(m_group[n][0] - m_bol) : -1; }
    int End(int n) const { return m_group[n][1] ? int(m_group[n][1] - m_bol) : -1; }

private:
    static const WCHAR* Next(const WCHAR* p) {
        const uint32_t link = R::ReadLink(p);
        return !link ? nullptr : *p == R::OpLoopBack ? p - link : p + link;
    }
    static bool Accepts(const WCHAR* node, WCHAR c) {
        const WCHAR* operand = node + 3;
        switch (*node) {
        case R::OpAnyChar:
            return c;
        case R::OpLiteral:
            return c == *operand;
        default: // the sets
            return c && (vu::StringView(operand).find(c) != vu::StringView::npos) ==
                            (*node == R::OpInSet);
        }
    }

    bool Match(const WCHAR* scan) {
        while (scan) {
            const WCHAR op = *scan;
            const WCHAR* next = Next(scan);
            if (op == R::OpAtStart || op == R::OpAtEnd) {
                if (op == R::OpAtStart ? m_input != m_bol : *m_input != 0)
                    return false;
            } else if (op == R::OpAnyChar || op == R::OpInSet || op == R::OpNotInSet) {
                if (!Accepts(scan, *m_input++))
                    return false;
            } else if (op == R::OpLiteral) {
                for (const WCHAR* lit = scan + 3; *lit; ++lit, ++m_input)
                    if (*lit != *m_input)
                        return false;
            } else if (op == R::OpAlternative) {
                if (next && *next == R::OpAlternative) {
                    for (; scan && *scan == R::OpAlternative; scan = Next(scan)) {
                        const WCHAR* save = m_input;
                        if (Match(scan + 3))
                            return true;
                        m_input = save;
                    }
                    return false;
                }
                next = scan + 3; // a lone branch
            } else if (op == R::OpStar || op == R::OpPlus) {
                const WCHAR nextCh = next && *next == R::OpLiteral ? next[3] : 0;
                const WCHAR* save = m_input;
                long k = 0;
                while (Accepts(scan + 3, save[k]))
                    ++k;
                for (; k >= (op == R::OpStar ? 0 : 1); --k) {
                    m_input = save + k;
                    if ((!nextCh || *m_input == nextCh) && Match(next))
                        return true;
                }
                return false;
            } else if (op == R::OpEnd) {
                return true;
            } else if (op > R::OpGroupOpen && op < R::OpGroupOpen + 10) {
                return Bound(op - R::OpGroupOpen, 0, next);
            } else if (op > R::OpGroupClose && op < R::OpGroupClose + 10) {
                return Bound(op - R::OpGroupClose, 1, next);
            } else if (op != R::OpEmpty && op != R::OpLoopBack) {
                return false;
            }
            scan = next;
        }
        return false;
    }
    // A group boundary takes the position of the innermost success.
    bool Bound(int n, int side, const WCHAR* next) {
        const WCHAR* save = m_input;
        if (!Match(next))
            return false;
        if (!m_group[n][side])
            m_group[n][side] = save;
        return true;
    }

    const WCHAR* m_program;
    const WCHAR* m_bol = nullptr;
    const WCHAR* m_input = nullptr;
    const WCHAR* m_group[10][2] = {};
};

// Empty when the search of `text` agrees with the reference on re's program.
std::string Disagreement(R& re, const vu::String& text) {
    ReferenceMatcher reference(re.GetProgram());
    const int expected = reference.Find(text.c_str());
    return Differences(
        re, re.RegFind(text.c_str()), expected, [&](int n) { return reference.Start(n); },
        [&](int n) { return reference.End(n); });
}

TEST(RegExpressionMatcher, AgreesWithTheRecursiveReference) {
    RegExpressionPatternGenerator gen(20240611);
    int compared = 0, matched = 0, failures = 0;
    for (int i = 0; i < 4000 && failures < 10; ++i) {
        const vu::String pattern = gen.Pattern();
        // The same program searched plainly and with the failure memo on
        // from the first choice (under an ample step budget): both must give
        // the reference's results.
        R plain, memo;
        memo.SetFailureMemoThreshold(0);
        memo.SetStepLimit(1'000'000);
        if (!plain.RegComp(pattern.c_str()) || !memo.RegComp(pattern.c_str()))
            continue;
        for (int t = 0; t < 8; ++t, ++compared) {
            const vu::String text = gen.Text(12);
            for (R* re : {&plain, &memo}) {
                const std::string diff = Disagreement(*re, text);
                if (!diff.empty() && ++failures)
                    ADD_FAILURE() << "case " << i << (re == &memo ? " (memo)" : "") << ": pattern "
                                  << Show(pattern) << " on " << Show(text) << ": " << diff;
            }
            matched += plain.GetFoundText() != nullptr;
        }
    }
    EXPECT_GT(compared, 10000);
    EXPECT_GT(matched, compared / 5); // the generator must produce real matches
}

TEST(RegExpressionMatcher, AgreesWithTheReferenceWhereChoicesLieFarApart) {
    // Choices and group boundaries far from the previous record exercise the
    // long-distance form of the backtracking records (the memo's too).
    const WCHAR* patterns[] = {VU_T("a?c*d?e"), VU_T("(c*)(d|dc)a"), VU_T("x*(c+)(d|dd)b"),
                               VU_T("([abc]*)(a|b)*d"), VU_T("b?[^d]*(d|da)+")};
    RegExpressionPatternGenerator gen(5);
    for (int i = 0; i < 2 * int(std::size(patterns)); ++i) {
        R re;
        ASSERT_NE(re.RegComp(patterns[i / 2]), nullptr);
        if (i % 2)
            re.SetFailureMemoThreshold(0);
        for (int t = 0; t < 300; ++t) {
            vu::String text = gen.Text(60);
            text.insert(gen.Below(text.size() + 1), vu::String(gen.Below(40), VU_T('c')));
            ASSERT_EQ(Disagreement(re, text), "") << Show(patterns[i / 2]) << " on " << Show(text);
        }
    }
}

vu::String Repeat(vu::StringView unit, size_t units) {
    vu::String s;
    while (s.size() + unit.size() <= units)
        s += unit;
    return s;
}

TEST(RegExpressionMatcher, LongSubjectsDoNotExhaustTheStack) {
    constexpr int n = 5 * 1024 * 1024; // 10 MB of UTF-16
    const struct {
        const WCHAR* pattern;
        vu::String text;
        int length, groupStart, groupEnd;
    } rows[] = {
        {VU_T("(ab)*"), Repeat(VU_T("ab"), n), n, n - 2, n},
        {VU_T("(ab)*abc"), Repeat(VU_T("ab"), n) + VU_T("c"), n + 1, n - 4, n - 2},
        // A group boundary more than 2^25 units after the previous record.
        {VU_T("(a)[^z]*(z)"), Repeat(VU_T("ab"), 7 * n) + VU_T("z"), 7 * n + 1, 0, 1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(Show(row.pattern));
        R re;
        ASSERT_NE(re.RegComp(row.pattern), nullptr);
        EXPECT_EQ(re.RegFind(row.text.c_str()), 0);
        EXPECT_EQ(re.GetFindLen(), row.length);
        EXPECT_EQ(re.GetGroupStart(1), row.groupStart);
        EXPECT_EQ(re.GetGroupEnd(1), row.groupEnd);
        EXPECT_LE(re.GetScratchBytes(), 64u * 1024) << "the stack of megabytes is released";
    }
}

TEST(RegExpressionMatcher, BacktrackingTrapsCostTextTimesProgram) {
    // Each fails after trying every path; plain backtracking costs n^2, n^3
    // or 2^n steps here. The budget is the memo's threshold, its linear
    // allowance, and a small multiple of text length x program length.
    const struct {
        const WCHAR* pattern;
        size_t length;
    } rows[] = {{VU_T("(x|a+y)"), 1'000'000}, {VU_T("a*a*y|zz"), 100'000},
                {VU_T("(a+)+b"), 10'000},     {VU_T("(a|aa)*b"), 10'000},
                {VU_T("(a*b|a)*c"), 10'000},  {VU_T("((a|b)*(a|c))*d"), 10'000}};
    for (const auto& row : rows) {
        R re;
        ASSERT_NE(re.RegComp(row.pattern), nullptr);
        const unsigned long long n = row.length + 1;
        re.SetStepLimit(re.GetFailureMemoThreshold() + 8 * n + 4 * n * re.GetProgramSize());
        EXPECT_EQ(re.RegFind(vu::String(row.length, VU_T('a')).c_str()), -1) << Show(row.pattern);
        EXPECT_FALSE(re.IsStepLimitExceeded()) << Show(row.pattern);
    }
}

} // namespace

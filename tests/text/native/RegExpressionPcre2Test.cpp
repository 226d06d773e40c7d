// The regular-expression engine against PCRE2's 16-bit library as an oracle,
// over generated patterns and texts. Patterns are translated to PCRE2's
// syntax: every literal as \x{...} (so nothing is read as an escape class or
// a quantifier), sets expanded member by member, `$` with DOLLAR_ENDONLY and
// `.` with DOTALL. In that subset both engines are leftmost, greedy,
// first-alternative-first backtrackers that keep the last iteration's groups,
// so position, length and every group must agree.
#define PCRE2_CODE_UNIT_WIDTH 16
#include <pcre2.h>

#include "text/RegExpression.h"

#include "../RegExpressionPatterns.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

using RegExpressionTestSupport::Differences;
using RegExpressionTestSupport::Show;

void AppendCodeUnit(vu::String& out, WCHAR c) {
    char buf[16];
    std::snprintf(buf, sizeof buf, "\\x{%x}", unsigned(c));
    for (const char* p = buf; *p; ++p)
        out += WCHAR(*p);
}

// Translates a pattern that our engine accepted.
vu::String ToPcre2(const vu::String& p) {
    vu::String out;
    size_t i = 0;
    while (i < p.size()) {
        const WCHAR c = p[i++];
        switch (c) {
        case VU_T('^'):
        case VU_T('$'):
            // PCRE2 does not quantify a bare assertion (our `^?` is valid).
            out += VU_T("(?:");
            out += c;
            out += VU_T(')');
            break;
        case VU_T('.'):
        case VU_T('('):
        case VU_T(')'):
        case VU_T('|'):
        case VU_T('*'):
        case VU_T('+'):
        case VU_T('?'):
            out += c;
            break;
        case VU_T('\\'):
            AppendCodeUnit(out, p[i++]);
            break;
        case VU_T('['): {
            out += VU_T('[');
            if (p[i] == VU_T('^')) {
                out += VU_T('^');
                ++i;
            }
            std::vector<WCHAR> members;
            if (p[i] == VU_T(']') || p[i] == VU_T('-'))
                members.push_back(p[i++]);
            while (i < p.size() && p[i] != VU_T(']')) {
                if (p[i] != VU_T('-')) {
                    members.push_back(p[i++]);
                    continue;
                }
                ++i;
                if (i >= p.size() || p[i] == VU_T(']')) {
                    members.push_back(VU_T('-'));
                    continue;
                }
                for (unsigned m = unsigned(p[i - 2]) + 1; m <= p[i]; ++m)
                    members.push_back(WCHAR(m));
                ++i;
            }
            ++i; // ']'
            for (WCHAR m : members)
                AppendCodeUnit(out, m);
            out += VU_T(']');
            break;
        }
        default:
            AppendCodeUnit(out, c);
            break;
        }
    }
    return out;
}

struct Pcre2Code {
    pcre2_code_16* code = nullptr;
    pcre2_match_data_16* data = nullptr;
    explicit Pcre2Code(const vu::String& pattern) {
        int error = 0;
        PCRE2_SIZE offset = 0;
        code = pcre2_compile_16(reinterpret_cast<PCRE2_SPTR16>(pattern.c_str()), pattern.size(),
                                PCRE2_DOLLAR_ENDONLY | PCRE2_DOTALL, &error, &offset, nullptr);
        if (code)
            data = pcre2_match_data_create_from_pattern_16(code, nullptr);
    }
    ~Pcre2Code() {
        pcre2_match_data_free_16(data);
        pcre2_code_free_16(code);
    }
    // Group n as (start, end), (-1, -1) when unset; rc <= 0: no match.
    int Match(const vu::String& text, std::pair<int, int> groups[10]) {
        const int rc = pcre2_match_16(code, reinterpret_cast<PCRE2_SPTR16>(text.c_str()),
                                      text.size(), 0, 0, data, nullptr);
        const PCRE2_SIZE* ov = pcre2_get_ovector_pointer_16(data);
        for (int n = 0; n < 10; ++n) {
            groups[n] = {-1, -1};
            if (n < rc && ov[2 * n] != PCRE2_UNSET)
                groups[n] = {int(ov[2 * n]), int(ov[2 * n + 1])};
        }
        return rc;
    }
};

// What GetReplaceString should give for `templ` with these groups.
vu::String Expand(const vu::String& text, const std::pair<int, int> groups[10],
                  vu::StringView templ) {
    vu::String out;
    for (size_t i = 0; i < templ.size();) {
        const WCHAR c = templ[i++];
        int n = -1;
        if (c == VU_T('&'))
            n = 0;
        else if (c == VU_T('\\') && i < templ.size() && templ[i] >= VU_T('0') &&
                 templ[i] <= VU_T('9'))
            n = templ[i++] - VU_T('0');
        if (n < 0) {
            if (c == VU_T('\\') && i < templ.size() &&
                (templ[i] == VU_T('\\') || templ[i] == VU_T('&')))
                out += templ[i++];
            else
                out += c;
        } else if (groups[n].first >= 0 && groups[n].second > groups[n].first) {
            out += text.substr(size_t(groups[n].first), size_t(groups[n].second - groups[n].first));
        }
    }
    return out;
}

TEST(RegExpressionPcre2, AgreesOnGeneratedPatterns) {
    RegExpressionPatternGenerator gen(0x5eed2024);
    const vu::String templ = VU_T("<&|\\1|\\2\\\\\\&>");
    int compared = 0, matched = 0, withGroups = 0, failures = 0;
    for (int i = 0; i < 8000 && failures < 10; ++i) {
        const vu::String pattern = gen.Pattern();
        VU_CRegExpression re;
        if (!re.RegComp(pattern.c_str()))
            continue;
        const vu::String translated = ToPcre2(pattern);
        Pcre2Code oracle(translated);
        if (!oracle.code) {
            ++failures; // the translation must cover every accepted pattern
            ADD_FAILURE() << "PCRE2 rejects " << Show(translated) << " from " << Show(pattern);
            continue;
        }
        for (int t = 0; t < 6; ++t) {
            const vu::String text = gen.Text(14);
            std::pair<int, int> expected[10];
            const int rc = oracle.Match(text, expected);
            ++compared;
            std::string diff = Differences(
                re, re.RegFind(text.c_str()), rc > 0 ? expected[0].first : -1,
                [&](int n) { return expected[n].first; },
                [&](int n) { return expected[n].second; });
            if (rc > 0 && diff.empty()) {
                std::unique_ptr<WCHAR[]> replaced(re.GetReplaceString(templ.c_str()));
                const vu::String want = Expand(text, expected, templ);
                if (!replaced || replaced.get() != want)
                    diff = "replacement " + (replaced ? Show(replaced.get()) : "null") +
                           ", expected " + Show(want);
            }
            if (!diff.empty()) {
                ++failures;
                ADD_FAILURE() << "case " << i << ": pattern " << Show(pattern) << " (PCRE2 "
                              << Show(translated) << ") on " << Show(text) << ": " << diff;
            }
            matched += rc > 0;
            withGroups += rc > 1;
        }
    }
    EXPECT_GT(compared, 20000);
    EXPECT_GT(matched, compared / 5);
    EXPECT_GT(withGroups, compared / 20);
}

// Longer subjects: the search hints and the scans must not change a result.
TEST(RegExpressionPcre2, AgreesOnLongerTexts) {
    RegExpressionPatternGenerator gen(77);
    const WCHAR* patterns[] = {VU_T("abc"),   VU_T("x*abc"),      VU_T("[ab]+c"), VU_T("(ab|ba)+d"),
                               VU_T("a|b|c"), VU_T("[^ab]+"),     VU_T("c.*d$"),  VU_T("^a*b"),
                               VU_T("(a)+"),  VU_T("bcd|abd|dd"), VU_T("a-]\\."), VU_T("[]a]+d")};
    for (const WCHAR* pattern : patterns) {
        VU_CRegExpression re;
        ASSERT_NE(re.RegComp(pattern), nullptr) << Show(pattern);
        Pcre2Code oracle(ToPcre2(pattern));
        ASSERT_NE(oracle.code, nullptr);
        for (int t = 0; t < 200; ++t) {
            const vu::String text = gen.Text(300);
            std::pair<int, int> expected[10];
            const int rc = oracle.Match(text, expected);
            SCOPED_TRACE("pattern " + Show(pattern) + " on " + Show(text));
            ASSERT_EQ(re.RegFind(text.c_str()), rc > 0 ? expected[0].first : -1);
            if (rc > 0) {
                ASSERT_EQ(re.GetFindLen(), expected[0].second - expected[0].first);
            }
        }
    }
}

} // namespace

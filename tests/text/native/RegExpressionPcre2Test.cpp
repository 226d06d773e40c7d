// The regular-expression engine against PCRE2's 16-bit library as an oracle,
// over generated patterns and texts. Patterns are translated to PCRE2's
// syntax: every literal as \x{...} (so nothing is read as an escape class or
// a quantifier), sets expanded member by member, `$` with DOLLAR_ENDONLY and
// `.` with DOTALL. In that subset both engines are leftmost, greedy,
// first-alternative-first backtrackers that keep the last iteration's groups,
// so position, length, every group and the replacement must agree.
#define PCRE2_CODE_UNIT_WIDTH 16
#include <pcre2.h>

#include "text/RegExpression.h"

#include "../RegExpressionPatterns.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <string>

namespace {

using RegExpressionTestSupport::Differences;
using RegExpressionTestSupport::Show;

void AppendCodeUnit(vu::String& out, unsigned c) {
    char buf[16];
    std::snprintf(buf, sizeof buf, "\\x{%x}", c);
    out.append(buf, buf + std::strlen(buf));
}

// Translates a pattern that our engine accepted.
vu::String ToPcre2(const vu::String& p) {
    vu::String out;
    for (size_t i = 0; i < p.size();) {
        const WCHAR c = p[i++];
        if (c == VU_T('^') || c == VU_T('$')) {
            out += VU_T("(?:") + vu::String(1, c) + VU_T(")"); // PCRE2 quantifies no bare anchor
        } else if (vu::StringView(VU_T(".()|*+?")).find(c) != vu::StringView::npos) {
            out += c;
        } else if (c == VU_T('\\')) {
            AppendCodeUnit(out, p[i++]);
        } else if (c != VU_T('[')) {
            AppendCodeUnit(out, c);
        } else {
            out += c;
            if (p[i] == VU_T('^'))
                out += p[i++];
            // A first ']' or '-' and a '-' before the closing ']' are members.
            for (bool first = true; i < p.size() && (first || p[i] != VU_T(']')); first = false) {
                if (p[i] != VU_T('-') || first || p[i + 1] == VU_T(']')) {
                    AppendCodeUnit(out, p[i++]);
                    continue;
                }
                for (unsigned m = unsigned(p[i - 1]) + 1; m <= p[i + 1]; ++m)
                    AppendCodeUnit(out, m);
                i += 2;
            }
            out += VU_T(']');
            ++i;
        }
    }
    return out;
}

// PCRE2's match as (start, end) per group, (-1, -1) when unset: all unset
// when nothing matches. False when PCRE2 rejects the pattern.
bool Pcre2Match(const vu::String& pattern, const vu::String& text, std::pair<int, int> groups[10]) {
    int error = 0;
    PCRE2_SIZE offset = 0;
    pcre2_code_16* code =
        pcre2_compile_16(reinterpret_cast<PCRE2_SPTR16>(pattern.c_str()), pattern.size(),
                         PCRE2_DOLLAR_ENDONLY | PCRE2_DOTALL, &error, &offset, nullptr);
    if (!code)
        return false;
    pcre2_match_data_16* data = pcre2_match_data_create_from_pattern_16(code, nullptr);
    const int rc = pcre2_match_16(code, reinterpret_cast<PCRE2_SPTR16>(text.c_str()), text.size(),
                                  0, 0, data, nullptr);
    const PCRE2_SIZE* ov = pcre2_get_ovector_pointer_16(data);
    for (int n = 0; n < 10; ++n)
        groups[n] = n < rc && ov[2 * n] != PCRE2_UNSET
                        ? std::pair<int, int>(ov[2 * n], ov[2 * n + 1])
                        : std::pair<int, int>(-1, -1);
    pcre2_match_data_free_16(data);
    pcre2_code_free_16(code);
    return true;
}

// What GetReplaceString should give for `templ` with these groups: & and \n
// insert groups, \\ and \& stand for themselves.
vu::String Expand(const vu::String& text, const std::pair<int, int> groups[10],
                  const vu::String& templ) {
    vu::String out;
    for (size_t i = 0; i < templ.size();) {
        const WCHAR c = templ[i++], d = templ[i]; // d is the NUL at the end
        const int n = c == VU_T('&') ? 0 : c == VU_T('\\') && d >= '0' && d <= '9' ? d - '0' : -1;
        if (c == VU_T('\\') && n >= 0)
            ++i;
        if (n >= 0 && groups[n].first >= 0)
            out += text.substr(groups[n].first, groups[n].second - groups[n].first);
        else if (n < 0)
            out += c == VU_T('\\') && (d == VU_T('\\') || d == VU_T('&')) ? templ[i++] : c;
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
        // Mostly short texts; some long enough for the search hints and scans.
        for (int t = 0; t < 6; ++t, ++compared) {
            const vu::String text = gen.Text(t == 5 ? 300 : 14);
            std::pair<int, int> expected[10];
            if (!Pcre2Match(translated, text, expected) && ++failures) {
                ADD_FAILURE() << "PCRE2 rejects " << Show(translated) << " from " << Show(pattern);
                break; // the translation must cover every accepted pattern
            }
            std::string diff = Differences(
                re, re.RegFind(text.c_str()), expected[0].first,
                [&](int n) { return expected[n].first; },
                [&](int n) { return expected[n].second; });
            if (expected[0].first >= 0 && diff.empty()) {
                std::unique_ptr<WCHAR[]> replaced(re.GetReplaceString(templ.c_str()));
                const vu::String want = Expand(text, expected, templ);
                if (!replaced || replaced.get() != want)
                    diff = "replacement " + (replaced ? Show(replaced.get()) : "null") +
                           ", expected " + Show(want);
            }
            if (!diff.empty() && ++failures)
                ADD_FAILURE() << "case " << i << ": pattern " << Show(pattern) << " (PCRE2 "
                              << Show(translated) << ") on " << Show(text) << ": " << diff;
            matched += expected[0].first >= 0;
            withGroups +=
                std::any_of(expected + 1, expected + 10, [](auto g) { return g.first >= 0; });
        }
    }
    EXPECT_GT(compared, 20000);
    EXPECT_GT(matched, compared / 5);
    EXPECT_GT(withGroups, compared / 20);
}

} // namespace

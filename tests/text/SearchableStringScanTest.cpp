// The searches scan many positions at a time; these tests check them against
// plain one-position-at-a-time loops over generated texts whose lengths cross
// the block boundaries, for every start, case mode and whole-word mode.
#include "text/SearchableString.h"

#include "framework/CaseMap.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

namespace {

using Text = vu::String;

bool IsDelimiter(WCHAR c) {
    return Text(VU_CSearchableString::c_DEFAULT_TOKEN_DELIMITERS).find(c) != Text::npos;
}

Text Lower(Text s) {
    std::ranges::transform(s, s.begin(), vu::ToLower);
    return s;
}

bool Whole(const Text& s, int p, int m) {
    const int n = static_cast<int>(s.size());
    return (p == 0 || IsDelimiter(s[p - 1])) && (p + m >= n || IsDelimiter(s[p + m]));
}

// Forward: occurrences from start; a rejected one is skipped whole. The
// case-blind form runs on lowered copies (whole-word test included).
int ReferenceFind(Text s, Text f, int start, bool wholeWord, bool noCase) {
    if (noCase) {
        s = Lower(s);
        f = Lower(f);
    }
    const int n = static_cast<int>(s.size()), m = static_cast<int>(f.size());
    for (int p = std::max(start, 0); m > 0 && p + m <= n; ++p) {
        if (s.compare(p, m, f) != 0)
            continue;
        if (!wholeWord || Whole(s, p, m))
            return p;
        p += m - 1;
    }
    return -1;
}

// Backward: the case-blind form compares lowered characters in place and
// tests whole words on the real text.
int ReferenceReverseFind(const Text& s, const Text& f, int start, bool wholeWord, bool noCase) {
    const int n = static_cast<int>(s.size()), m = static_cast<int>(f.size());
    if (m == 0 || n == 0 || start < -1)
        return -1;
    if (start == -1 || start >= n)
        start = n - 1;
    const Text ls = noCase ? Lower(s) : s, lf = noCase ? Lower(f) : f;
    for (int p = start; p >= 0; --p)
        if (p + m <= n && ls.compare(p, m, lf) == 0 && (!wholeWord || Whole(s, p, m)))
            return p;
    return -1;
}

Text Random(std::mt19937& rng, int length, vu::StringView alphabet) {
    std::uniform_int_distribution<std::size_t> pick(0, alphabet.size() - 1);
    Text s(length, VU_T(' '));
    for (WCHAR& c : s)
        c = alphabet[pick(rng)];
    return s;
}

TEST(SearchableStringScan, AgreesWithReferenceLoops) {
    std::mt19937 rng(77);
    // Letters in both cases, delimiters, characters whose lower case is an
    // ASCII letter (KELVIN SIGN) and other non-ASCII letters.
    const vu::StringView alphabet = VU_T("aaabAB -.\u212Ak\u00E4\u00C4");
    for (int round = 0; round < 400 && !HasFailure(); ++round) {
        const int length = std::uniform_int_distribution<int>(0, 70)(rng);
        const Text text = Random(rng, length, alphabet);
        const Text find = Random(rng, std::uniform_int_distribution<int>(1, 4)(rng), alphabet);
        VU_CSearchableString s(text.c_str());
        for (int start = -2; start <= length + 1; ++start)
            for (const bool noCase : {false, true})
                for (const BOOL wholeWord : {FALSE, TRUE}) {
                    SCOPED_TRACE(testing::Message()
                                 << "round " << round << " start " << start << " wholeWord "
                                 << wholeWord << " noCase " << noCase);
                    EXPECT_EQ(noCase ? s.FindNoCase(find.c_str(), start, wholeWord)
                                     : s.Find(find.c_str(), start, wholeWord),
                              ReferenceFind(text, find, start, wholeWord, noCase));
                    EXPECT_EQ(noCase ? s.ReverseFindNoCase(find.c_str(), start, wholeWord)
                                     : s.ReverseFind(find.c_str(), start, wholeWord),
                              ReferenceReverseFind(text, find, start, wholeWord, noCase));
                }
    }
}

TEST(SearchableStringScan, CharacterSearchesAgreeWithReferenceLoops) {
    std::mt19937 rng(78);
    const vu::StringView alphabet = VU_T("abAB ,\u212Ak");
    for (int round = 0; round < 300 && !HasFailure(); ++round) {
        const int length = std::uniform_int_distribution<int>(0, 50)(rng);
        const Text text = Random(rng, length, alphabet);
        const WCHAR ch = alphabet[round % alphabet.size()];
        VU_CSearchableString s(text.c_str());
        SCOPED_TRACE("round " + std::to_string(round));
        // npos converts to -1 (C++20 integral conversion is modular).
        EXPECT_EQ(s.ReverseFind(ch), static_cast<int>(text.rfind(ch)));
        for (int start = 0; start <= length; ++start) {
            EXPECT_EQ(s.Find(ch, start, FALSE), static_cast<int>(text.find(ch, start)));
            for (int to = start; to <= length; to += 7) {
                const Text upTo = text.substr(0, std::max(to, start + 1));
                EXPECT_EQ(s.FindN(ch, start, to, FALSE), static_cast<int>(upTo.find(ch, start)))
                    << "from " << start << " to " << to;
            }
        }
    }
}

} // namespace

// The searches scan many positions at a time; this test checks them against
// plain one-position-at-a-time loops over generated texts whose lengths cross
// the block boundaries, for every start, case mode and whole-word mode, and
// the character forms against the standard string's searches.
#include "text/SearchableString.h"

#include "framework/CaseMap.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

namespace {

using Text = vu::String;

Text Lower(Text s) {
    std::ranges::transform(s, s.begin(), vu::ToLower);
    return s;
}

bool Whole(const Text& s, int p, int m) {
    const vu::StringView delimiters = VU_CSearchableString::c_DEFAULT_TOKEN_DELIMITERS;
    const auto delimiter = [&](int i) { return delimiters.find(s[i]) != vu::StringView::npos; };
    return (p == 0 || delimiter(p - 1)) && (p + m >= int(s.size()) || delimiter(p + m));
}

// Forward: occurrences from start; a rejected one is skipped whole. The
// case-blind form runs on lowered copies (whole-word test included).
int ReferenceFind(Text s, Text f, int start, bool wholeWord, bool noCase) {
    if (noCase) {
        s = Lower(s);
        f = Lower(f);
    }
    const int n = static_cast<int>(s.size()), m = static_cast<int>(f.size());
    for (int p = std::max(start, 0); p + m <= n; ++p) {
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
    if (n == 0 || start < -1)
        return -1;
    const Text ls = noCase ? Lower(s) : s, lf = noCase ? Lower(f) : f;
    for (int p = start == -1 || start >= n ? n - 1 : start; p >= 0; --p)
        if (p + m <= n && ls.compare(p, m, lf) == 0 && (!wholeWord || Whole(s, p, m)))
            return p;
    return -1;
}

Text Random(std::mt19937& rng, int from, int to, vu::StringView alphabet) {
    Text s(std::uniform_int_distribution<int>(from, to)(rng), VU_T(' '));
    for (WCHAR& c : s)
        c = alphabet[rng() % alphabet.size()];
    return s;
}

TEST(SearchableStringScan, AgreesWithReferenceLoops) {
    std::mt19937 rng(77);
    // Letters in both cases, delimiters, characters whose lower case is an
    // ASCII letter (KELVIN SIGN) and other non-ASCII letters.
    const vu::StringView alphabet = VU_T("aaabAB -.\u212Ak\u00E4\u00C4");
    for (int round = 0; round < 400 && !HasFailure(); ++round) {
        const Text text = Random(rng, 0, 70, alphabet), find = Random(rng, 1, 4, alphabet);
        VU_CSearchableString s(text.c_str());
        const WCHAR ch = find[0];
        const int n = static_cast<int>(text.size()), to = int(round % 9);
        EXPECT_EQ(s.ReverseFind(ch), static_cast<int>(text.rfind(ch))); // npos converts to -1
        for (int start = -2; start <= n + 1; ++start) {
            SCOPED_TRACE(testing::Message() << "round " << round << " start " << start);
            if (start >= 0 && start <= n) { // the character forms
                EXPECT_EQ(s.Find(ch, start, FALSE), static_cast<int>(text.find(ch, start)));
                EXPECT_EQ(
                    s.FindN(ch, start, start + to, FALSE),
                    static_cast<int>(text.substr(0, start + std::max(to, 1)).find(ch, start)));
            }
            for (const bool noCase : {false, true})
                for (const BOOL whole : {FALSE, TRUE}) {
                    SCOPED_TRACE(testing::Message() << "whole " << whole << " noCase " << noCase);
                    const WCHAR* f = find.c_str();
                    EXPECT_EQ(noCase ? s.FindNoCase(f, start, whole) : s.Find(f, start, whole),
                              ReferenceFind(text, find, start, whole, noCase));
                    EXPECT_EQ(noCase ? s.ReverseFindNoCase(f, start, whole)
                                     : s.ReverseFind(f, start, whole),
                              ReferenceReverseFind(text, find, start, whole, noCase));
                }
        }
    }
}

} // namespace

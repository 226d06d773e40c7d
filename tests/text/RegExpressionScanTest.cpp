// The vectorised scans behind the search hints against plain loops, at every
// alignment and length near the block sizes, with decoys before the start
// and after the terminating NUL that a scan must not report.
#include "text/RegExpScan.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace {

const WCHAR* NaiveFindUnit(const WCHAR* s, WCHAR c) {
    for (; *s; ++s)
        if (*s == c)
            return s;
    return nullptr;
}

const WCHAR* NaiveFindLiteral(const WCHAR* s, vu::StringView lit) {
    for (; *s; ++s) {
        size_t i = 0;
        while (i < lit.size() && s[i] == lit[i])
            ++i;
        if (i == lit.size())
            return s;
    }
    return nullptr;
}

const WCHAR* NaiveFindInRanges(const WCHAR* s, const vu::String& lo, const vu::String& hi) {
    for (; *s; ++s)
        for (size_t i = 0; i < lo.size(); ++i)
            if (*s >= lo[i] && *s <= hi[i])
                return s;
    return nullptr;
}

// A buffer with decoys (the wanted units, and NULs) around the string.
struct Subject {
    std::vector<WCHAR> buffer;
    const WCHAR* s = nullptr;
    Subject(size_t offset, const vu::String& text, WCHAR decoy) {
        buffer.assign(offset + text.size() + 80, decoy);
        for (size_t i = 0; i < offset; i += 3)
            buffer[i] = 0;
        std::copy(text.begin(), text.end(), buffer.begin() + long(offset));
        buffer[offset + text.size()] = 0;
        s = buffer.data() + offset;
    }
};

TEST(RegExpressionScan, AgreesWithPlainLoopsAtEveryAlignment) {
    std::mt19937 random(99);
    auto text = [&](size_t n) {
        vu::String t(n, VU_T('a'));
        for (WCHAR& c : t)
            c = VU_T("abcxyz\u00e9\uffff")[random() % 8];
        return t;
    };
    const vu::String literals[] = {
        VU_T("xy"),       VU_T("abc"),      VU_T("zzz"), VU_T("\u00e9\uffff"),
        VU_T("abcxyzab"), VU_T("cabxaybz"), VU_T("a")};
    int failures = 0;
    for (size_t offset = 0; offset < 40 && failures < 5; ++offset) {
        for (size_t length : {0, 1, 2, 7, 8, 9, 15, 16, 31, 32, 33, 63, 64, 65, 100, 130, 257}) {
            const vu::String t = text(length);
            const std::string where =
                "offset " + std::to_string(offset) + " length " + std::to_string(length);
            SCOPED_TRACE(where);
            Subject subject(offset, t, VU_T('x'));
            const WCHAR* s = subject.s;
            EXPECT_EQ(VU_CRegExpScan::Length(s), length);
            for (WCHAR c : {VU_T('a'), VU_T('x'), VU_T('\uffff'), VU_T('q')})
                EXPECT_EQ(VU_CRegExpScan::FindUnit(s, c), NaiveFindUnit(s, c)) << int(c);
            for (const auto& lit : literals) {
                const bool ok = VU_CRegExpScan::FindLiteral(s, lit.data(), lit.size()) ==
                                NaiveFindLiteral(s, lit);
                EXPECT_TRUE(ok) << "literal of length " << lit.size();
                failures += !ok;
            }
            const vu::String lo = VU_T("xz\u00e9"), hi = VU_T("xz\u00ff");
            EXPECT_EQ(VU_CRegExpScan::FindInRanges(s, lo.data(), hi.data(), 3),
                      NaiveFindInRanges(s, lo, hi));
            const vu::String lo2 = VU_T("b"), hi2 = VU_T("c");
            EXPECT_EQ(VU_CRegExpScan::FindInRanges(s, lo2.data(), hi2.data(), 1),
                      NaiveFindInRanges(s, lo2, hi2));
            size_t run = 0;
            while (s[run] == VU_T('a'))
                ++run;
            EXPECT_EQ(VU_CRegExpScan::RunOf(s, VU_T('a')), run);
        }
    }
}

TEST(RegExpressionScan, LiteralOccurrencesNearTheEnd) {
    // A literal that starts before the NUL but would need units past it.
    for (size_t length = 1; length < 80; ++length) {
        SCOPED_TRACE(length);
        vu::String t(length, VU_T('-'));
        t.replace(length - 1, 1, VU_T("a"));
        Subject subject(length % 13, t, VU_T('b')); // "ab" continues past the NUL
        EXPECT_EQ(VU_CRegExpScan::FindLiteral(subject.s, VU_T("ab"), 2), nullptr);
        EXPECT_EQ(VU_CRegExpScan::FindLiteral(subject.s, VU_T("a"), 1), subject.s + length - 1);
        const vu::String full = t + VU_T("b");
        Subject whole(length % 13, full, VU_T('b'));
        EXPECT_EQ(VU_CRegExpScan::FindLiteral(whole.s, VU_T("ab"), 2), whole.s + length - 1);
    }
}

TEST(RegExpressionScan, LongLiteralsWithTheRareUnitLate) {
    // The scan keys on the rarest unit, which may lie far from the start.
    std::mt19937 random(7);
    const vu::String literal = VU_T("etaetaetaetaetaetaQ");
    vu::String nearMiss = literal;
    nearMiss.front() = VU_T('x');
    for (size_t offset = 0; offset < 16; ++offset) {
        for (size_t at = 0; at < 300; at += 7) {
            SCOPED_TRACE("offset " + std::to_string(offset) + " at " + std::to_string(at));
            vu::String t(at + 100, VU_T('e'));
            for (WCHAR& c : t)
                c = VU_T("eta Q")[random() % 5];
            if (at >= nearMiss.size())
                t.replace(at - nearMiss.size(), nearMiss.size(), nearMiss);
            t.replace(at, literal.size(), literal);
            Subject subject(offset, t, VU_T('Q'));
            EXPECT_EQ(VU_CRegExpScan::FindLiteral(subject.s, literal.data(), literal.size()),
                      NaiveFindLiteral(subject.s, literal));
            // Cut just before the literal ends: it must not be found there.
            Subject cut(offset, t.substr(0, at + literal.size() - 1), VU_T('Q'));
            EXPECT_EQ(VU_CRegExpScan::FindLiteral(cut.s, literal.data(), literal.size()),
                      NaiveFindLiteral(cut.s, literal));
        }
    }
}

TEST(RegExpressionScan, LiteralsAcrossPagesWithTextAfterTheNul) {
    // Several pages of text; a NUL somewhere, and occurrences of the literal
    // on both sides of it. Units above 0x7FFF make the scan re-examine pages.
    std::mt19937 random(11);
    const vu::String literal = VU_T("taQe");
    for (int round = 0; round < 300; ++round) {
        vu::String t(9000 + random() % 200, VU_T('e'));
        const bool high = round % 2 == 1;
        for (WCHAR& c : t)
            c = high ? VU_T("eta \u9000")[random() % 5]
                     : VU_T("eta ")[random() % 4]; // Q only in the literal
        for (int k = 0; k < 3; ++k) {
            const size_t at = random() % (t.size() - literal.size());
            std::copy(literal.begin(), literal.end(), t.begin() + long(at));
        }
        const size_t nul = random() % t.size();
        t[nul] = 0;
        const size_t offset = random() % 40;
        SCOPED_TRACE("round " + std::to_string(round) + ", NUL at " + std::to_string(nul));
        Subject subject(offset, t, VU_T('Q'));
        EXPECT_EQ(VU_CRegExpScan::FindLiteral(subject.s, literal.data(), literal.size()),
                  NaiveFindLiteral(subject.s, literal));
    }
}

TEST(RegExpressionScan, RunsOfAllRepetitions) {
    const vu::String run(1000, VU_T('q'));
    Subject subject(5, run, VU_T('q'));
    EXPECT_EQ(VU_CRegExpScan::RunOf(subject.s, VU_T('q')), 1000u);
    EXPECT_EQ(VU_CRegExpScan::RunOf(subject.s + 999, VU_T('q')), 1u);
    EXPECT_EQ(VU_CRegExpScan::RunOf(subject.s + 1000, VU_T('q')), 0u);
}

} // namespace

// The vectorised scans behind the search hints against plain loops, at every
// alignment and length near the block sizes, with decoys before the start
// and after the terminating NUL that a scan must not report.
#include "text/RegExpScan.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace {

const char16_t* NaiveFindUnit(const char16_t* s, char16_t c) {
    for (; *s; ++s)
        if (*s == c)
            return s;
    return nullptr;
}

const char16_t* NaiveFindLiteral(const char16_t* s, std::u16string_view lit) {
    for (; *s; ++s) {
        size_t i = 0;
        while (i < lit.size() && s[i] == lit[i])
            ++i;
        if (i == lit.size())
            return s;
    }
    return nullptr;
}

const char16_t* NaiveFindInRanges(const char16_t* s, const std::u16string& lo,
                                  const std::u16string& hi) {
    for (; *s; ++s)
        for (size_t i = 0; i < lo.size(); ++i)
            if (*s >= lo[i] && *s <= hi[i])
                return s;
    return nullptr;
}

// A buffer with decoys (the wanted units, and NULs) around the string.
struct Subject {
    std::vector<char16_t> buffer;
    const char16_t* s = nullptr;
    Subject(size_t offset, const std::u16string& text, char16_t decoy) {
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
        std::u16string t(n, u'a');
        for (char16_t& c : t)
            c = u"abcxyz\u00e9\uffff"[random() % 8];
        return t;
    };
    const std::u16string literals[] = {u"xy",       u"abc",      u"zzz", u"\u00e9\uffff",
                                       u"abcxyzab", u"cabxaybz", u"a"};
    int failures = 0;
    for (size_t offset = 0; offset < 40 && failures < 5; ++offset) {
        for (size_t length : {0, 1, 2, 7, 8, 9, 15, 16, 31, 32, 33, 63, 64, 65, 100, 130, 257}) {
            const std::u16string t = text(length);
            const std::string where =
                "offset " + std::to_string(offset) + " length " + std::to_string(length);
            SCOPED_TRACE(where);
            Subject subject(offset, t, u'x');
            const char16_t* s = subject.s;
            EXPECT_EQ(VU_CRegExpScan::Length(s), length);
            for (char16_t c : {u'a', u'x', u'\uffff', u'q'})
                EXPECT_EQ(VU_CRegExpScan::FindUnit(s, c), NaiveFindUnit(s, c)) << int(c);
            for (const auto& lit : literals) {
                const bool ok = VU_CRegExpScan::FindLiteral(s, lit.data(), lit.size()) ==
                                NaiveFindLiteral(s, lit);
                EXPECT_TRUE(ok) << "literal of length " << lit.size();
                failures += !ok;
            }
            const std::u16string lo = u"xz\u00e9", hi = u"xz\u00ff";
            EXPECT_EQ(VU_CRegExpScan::FindInRanges(s, lo.data(), hi.data(), 3),
                      NaiveFindInRanges(s, lo, hi));
            const std::u16string lo2 = u"b", hi2 = u"c";
            EXPECT_EQ(VU_CRegExpScan::FindInRanges(s, lo2.data(), hi2.data(), 1),
                      NaiveFindInRanges(s, lo2, hi2));
            size_t run = 0;
            while (s[run] == u'a')
                ++run;
            EXPECT_EQ(VU_CRegExpScan::RunOf(s, u'a'), run);
        }
    }
}

TEST(RegExpressionScan, LiteralOccurrencesNearTheEnd) {
    // A literal that starts before the NUL but would need units past it.
    for (size_t length = 1; length < 80; ++length) {
        SCOPED_TRACE(length);
        std::u16string t(length, u'-');
        t.replace(length - 1, 1, u"a");
        Subject subject(length % 13, t, u'b'); // "ab" continues past the NUL
        EXPECT_EQ(VU_CRegExpScan::FindLiteral(subject.s, u"ab", 2), nullptr);
        EXPECT_EQ(VU_CRegExpScan::FindLiteral(subject.s, u"a", 1), subject.s + length - 1);
        const std::u16string full = t + u"b";
        Subject whole(length % 13, full, u'b');
        EXPECT_EQ(VU_CRegExpScan::FindLiteral(whole.s, u"ab", 2), whole.s + length - 1);
    }
}

TEST(RegExpressionScan, LongLiteralsWithTheRareUnitLate) {
    // The scan keys on the rarest unit, which may lie far from the start.
    std::mt19937 random(7);
    const std::u16string literal = u"etaetaetaetaetaetaQ";
    std::u16string nearMiss = literal;
    nearMiss.front() = u'x';
    for (size_t offset = 0; offset < 16; ++offset) {
        for (size_t at = 0; at < 300; at += 7) {
            SCOPED_TRACE("offset " + std::to_string(offset) + " at " + std::to_string(at));
            std::u16string t(at + 100, u'e');
            for (char16_t& c : t)
                c = u"eta Q"[random() % 5];
            if (at >= nearMiss.size())
                t.replace(at - nearMiss.size(), nearMiss.size(), nearMiss);
            t.replace(at, literal.size(), literal);
            Subject subject(offset, t, u'Q');
            EXPECT_EQ(VU_CRegExpScan::FindLiteral(subject.s, literal.data(), literal.size()),
                      NaiveFindLiteral(subject.s, literal));
            // Cut just before the literal ends: it must not be found there.
            Subject cut(offset, t.substr(0, at + literal.size() - 1), u'Q');
            EXPECT_EQ(VU_CRegExpScan::FindLiteral(cut.s, literal.data(), literal.size()),
                      NaiveFindLiteral(cut.s, literal));
        }
    }
}

TEST(RegExpressionScan, LiteralsAcrossPagesWithTextAfterTheNul) {
    // Several pages of text; a NUL somewhere, and occurrences of the literal
    // on both sides of it. Units above 0x7FFF make the scan re-examine pages.
    std::mt19937 random(11);
    const std::u16string literal = u"taQe";
    for (int round = 0; round < 300; ++round) {
        std::u16string t(9000 + random() % 200, u'e');
        const bool high = round % 2 == 1;
        for (char16_t& c : t)
            c = high ? u"eta \u9000"[random() % 5] : u"eta "[random() % 4]; // Q only in the literal
        for (int k = 0; k < 3; ++k) {
            const size_t at = random() % (t.size() - literal.size());
            std::copy(literal.begin(), literal.end(), t.begin() + long(at));
        }
        const size_t nul = random() % t.size();
        t[nul] = 0;
        const size_t offset = random() % 40;
        SCOPED_TRACE("round " + std::to_string(round) + ", NUL at " + std::to_string(nul));
        Subject subject(offset, t, u'Q');
        EXPECT_EQ(VU_CRegExpScan::FindLiteral(subject.s, literal.data(), literal.size()),
                  NaiveFindLiteral(subject.s, literal));
    }
}

TEST(RegExpressionScan, RunsOfAllRepetitions) {
    const std::u16string run(1000, u'q');
    Subject subject(5, run, u'q');
    EXPECT_EQ(VU_CRegExpScan::RunOf(subject.s, u'q'), 1000u);
    EXPECT_EQ(VU_CRegExpScan::RunOf(subject.s + 999, u'q'), 1u);
    EXPECT_EQ(VU_CRegExpScan::RunOf(subject.s + 1000, u'q'), 0u);
}

} // namespace

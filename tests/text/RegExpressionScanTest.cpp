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

TEST(RegExpressionScan, PlantedLiteralsAcrossPagesAndTheNul) {
    // Texts of up to a few pages with occurrences and near misses of the
    // literal planted on both sides of a NUL, some straddling it; the literal
    // keys on a rare unit late in it, and units above 0x7FFF make the scan
    // re-examine blocks.
    std::mt19937 random(7);
    const vu::String literals[] = {VU_T("ab"), VU_T("taQe"), VU_T("etaetaetaetaetaetaQ")};
    for (int round = 0; round < 900; ++round) {
        const vu::String& literal = literals[round % 3];
        const bool high = round % 2 == 1;
        vu::String t(random() % (round < 600 ? 300 : 9000) + literal.size(), VU_T('e'));
        for (WCHAR& c : t)
            c = high ? VU_T("eta \u9000")[random() % 5] : VU_T("eta ")[random() % 4];
        for (int k = 0; k < 3; ++k) {
            vu::String planted = literal;
            if (k == 0)
                planted.front() = VU_T('x'); // a near miss
            const size_t at = random() % (t.size() - planted.size() + 1);
            std::copy(planted.begin(), planted.end(), t.begin() + long(at));
        }
        const size_t nul = random() % (t.size() + 1);
        if (nul < t.size())
            t[nul] = 0;
        const size_t offset = random() % 40;
        SCOPED_TRACE("round " + std::to_string(round) + ", NUL at " + std::to_string(nul));
        Subject subject(offset, t, literal.back()); // the decoys continue the literal
        ASSERT_EQ(VU_CRegExpScan::FindLiteral(subject.s, literal.data(), literal.size()),
                  NaiveFindLiteral(subject.s, literal));
    }
    const Subject run(5, vu::String(1000, VU_T('q')), VU_T('q'));
    EXPECT_EQ(VU_CRegExpScan::RunOf(run.s, VU_T('q')), 1000u);
    EXPECT_EQ(VU_CRegExpScan::RunOf(run.s + 1000, VU_T('q')), 0u);
}

} // namespace

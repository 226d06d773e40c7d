// The vectorised scans behind the search hints against plain loops, at every
// alignment and length near the block sizes, with decoys before the start
// and after the terminating NUL that a scan must not report.
#include "text/RegExpScan.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace {

using Scan = VU_CRegExpScan;

const WCHAR* At(const WCHAR* s, size_t p) {
    return p == vu::StringView::npos ? nullptr : s + p;
}

const WCHAR* NaiveFindInRanges(const WCHAR* s, vu::StringView lo, vu::StringView hi) {
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
    const vu::String literals[] = {VU_T("xy"),       VU_T("zzz"),      VU_T("\u00e9\uffff"),
                                   VU_T("abcxyzab"), VU_T("cabxaybz"), VU_T("a")};
    for (size_t offset = 0; offset < 40 && !HasFailure(); ++offset) {
        for (size_t length : {0, 1, 7, 8, 9, 15, 16, 31, 32, 33, 63, 64, 65, 130, 257}) {
            vu::String t(length, VU_T('a'));
            for (WCHAR& c : t)
                c = VU_T("abcxyz\u00e9\uffff")[random() % 8];
            SCOPED_TRACE("offset " + std::to_string(offset) + " length " + std::to_string(length));
            const Subject subject(offset, t, VU_T('x'));
            const WCHAR* s = subject.s;
            const vu::StringView view(s);
            EXPECT_EQ(Scan::Length(s), length);
            for (WCHAR c : {VU_T('a'), VU_T('x'), VU_T('\uffff'), VU_T('q')})
                EXPECT_EQ(Scan::FindUnit(s, c), At(s, view.find(c))) << int(c);
            for (const auto& lit : literals)
                EXPECT_EQ(Scan::FindLiteral(s, lit.data(), lit.size()), At(s, view.find(lit)))
                    << "literal of length " << lit.size();
            EXPECT_EQ(Scan::FindInRanges(s, VU_T("xz\u00e9"), VU_T("xz\u00ff"), 3),
                      NaiveFindInRanges(s, VU_T("xz\u00e9"), VU_T("xz\u00ff")));
            EXPECT_EQ(Scan::RunOf(s, VU_T('a')),
                      std::min(view.find_first_not_of(VU_T('a')), length));
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
    for (int round = 0; round < 900 && !HasFailure(); ++round) {
        const vu::String& literal = literals[round % 3];
        vu::String t(random() % (round < 600 ? 300 : 9000) + literal.size(), VU_T('e'));
        for (WCHAR& c : t)
            c = VU_T("eta \u9000")[random() % (round % 2 ? 5 : 4)];
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
        SCOPED_TRACE("round " + std::to_string(round) + ", NUL at " + std::to_string(nul));
        const Subject subject(random() % 40, t, literal.back()); // the decoys continue the literal
        EXPECT_EQ(Scan::FindLiteral(subject.s, literal.data(), literal.size()),
                  At(subject.s, vu::StringView(subject.s).find(literal)));
    }
}

} // namespace

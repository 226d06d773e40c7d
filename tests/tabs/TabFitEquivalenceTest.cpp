// The fitting against the loop it replaces, step by step as first written:
// measure the total, shorten the longest tab by one character, repeat.
#include "FakeTabView.h"

#include <gtest/gtest.h>

#include <random>

using vutest::FakeBeam;

namespace {

// Returns the truncated flag the loop leaves.
bool LiteralFit(VU_CTabBeamModel& beam, bool truncated) {
    int available = beam.CalcAvailableWidth();
    while (beam.CalcTotalTabWidth() > available) {
        if (!beam.CheckTabsForExcess()) {
            beam.RestoreTabsToOriginal();
            return false;
        }
        beam.ShortenLongestTab();
        truncated = true;
    }
    return truncated;
}

struct ImageTab : VU_CTabRecord {
    int GetImageWidth() const override { return 16; }
};

vu::String RandomText(std::mt19937& rng) {
    static const WCHAR pieces[] = VU_T("abcdefghijklmnopqrstuvwxyzABCDEFGH.*\n");
    vu::String text;
    int length = std::uniform_int_distribution<int>(0, 24)(rng);
    int alphabet = rng() % 8 == 0 ? 37 : 34; // now and then dots, stars, newlines
    for (int i = 0; i < length; ++i)
        text.push_back(pieces[rng() % alphabet]);
    if (rng() % 4 == 0)
        text += VU_T("*"); // a modified document
    if (rng() % 5 == 0)
        text.insert(text.size() / 2, 1, VU_T('\n'));
    return text;
}

TEST(TabFitEquivalence, SameTextsWidthsAndFlagAsTheStepwiseLoop) {
    std::mt19937 rng(20261124);
    for (int round = 0; round < 400; ++round) {
        FakeBeam fast, literal;
        bool rounded = rng() % 3 == 0;
        int tabs = std::uniform_int_distribution<int>(0, 30)(rng);
        int right = std::uniform_int_distribution<int>(10, 2500)(rng);
        for (FakeBeam* beam : {&fast, &literal}) {
            if (rounded)
                beam->SetDisplayStyle(VU_CTabBeamModel::RoundedTabs);
            beam->view.client.right = right;
        }
        for (int i = 0; i < tabs; ++i) {
            vu::String text = RandomText(rng);
            bool image = rng() % 4 == 0;
            for (FakeBeam* beam : {&fast, &literal}) {
                VU_CTabRecord* pTab = image ? new ImageTab : new VU_CTabRecord;
                pTab->SetText(CString(text.c_str()));
                beam->InsertTabRecord(FALSE, pTab, -1);
            }
        }
        if (tabs > 0) {
            int active = static_cast<int>(rng() % tabs);
            fast.SetCurSel(active);
            literal.SetCurSel(active);
        }
        SCOPED_TRACE(round);
        fast.RestoreTabsToOriginal();
        literal.RestoreTabsToOriginal();
        fast.DetermineTextForTabs();
        bool truncated = LiteralFit(literal, literal.IsTruncated());
        ASSERT_EQ(truncated, fast.IsTruncated());
        for (int i = 0; i < tabs; ++i) {
            SCOPED_TRACE(i);
            const VU_CTabRecord* a = fast.GetTabRecord(i);
            const VU_CTabRecord* b = literal.GetTabRecord(i);
            ASSERT_EQ(b->m_strLine1, a->m_strLine1);
            ASSERT_EQ(b->m_strLine2, a->m_strLine2);
            ASSERT_EQ(b->m_nWidth, a->m_nWidth);
        }
    }
}

} // namespace

// The tab texts: lines, countable characters, shortening and the fitting
// of all texts into the client area, also against the stepwise loop.
#include "FakeTabView.h"
#include "tests/support/TabLiteralFit.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

using vutest::FakeBeam;

namespace {

TEST(TabText, LinesCountsAndShrinking) {
    VU_CTabRecord tab;
    tab.SetText(CString(VU_T("Main\nProg*\nx")));
    EXPECT_EQ(CString(VU_T("Main")), tab.m_strLine1);
    EXPECT_EQ(CString(VU_T("Prog*\nx")), tab.m_strLine2);
    EXPECT_EQ(6, tab.GetNumChars()); // "Prog*\nx": 7 units, less the star

    struct Row {
        const WCHAR *text, *shrunk; // shrunk null: nothing left to remove
        int chars;
    } rows[] = {
        {VU_T("Routine"), VU_T("Routin..."), 7},
        {VU_T("Routin..."), VU_T("Routi..."), 6},
        {VU_T("Main*"), VU_T("Mai...*"), 4},
        {VU_T("a"), VU_T("..."), 1},
        {VU_T(""), nullptr, 0},
        {VU_T("..."), nullptr, 0},
        {VU_T("*"), nullptr, 0},
        {VU_T("...*"), nullptr, 0},
    };
    for (const Row& r : rows) {
        CString text(r.text);
        SCOPED_TRACE(r.chars);
        EXPECT_EQ(r.chars, VU_CTabRecord::GetNumChars(text));
        EXPECT_EQ(r.shrunk != nullptr, VU_CTabRecord::ShrinkText(text));
        EXPECT_EQ(CString(r.shrunk != nullptr ? r.shrunk : r.text), text);
    }
}

// Tabs are 17 pixels wider than their text (6 per character, 7 in bold
// for the active tab 0), plus the overlap of 7 each: 246 in full.
TEST(TabText, FittingShortensTheLongestOneCharacterAtATime) {
    FakeBeam beam;
    beam.InsertTab(FALSE, VU_T("RoutineAlpha"), nullptr, 0, -1);
    beam.InsertTab(FALSE, VU_T("MainRoutine*"), nullptr, 0, -1);
    beam.InsertTab(FALSE, VU_T("Abc"), nullptr, 0, -1);
    struct Row {
        const char* name;
        int available, total;
        const WCHAR *line0, *line1;
        bool truncated;
    } rows[] = {
        {"everything fits", 246, 246, VU_T("RoutineAlpha"), VU_T("MainRoutine*"), false},
        {"ties go to the later tab", 220, 220, VU_T("Routine..."), VU_T("MainRo...*"), true},
        {"down to 3 and 4 characters", 180, 174, VU_T("Rou..."), VU_T("Mai...*"), true},
        {"still too wide at 3 characters: full texts", 170, 246, VU_T("RoutineAlpha"),
         VU_T("MainRoutine*"), false},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        beam.view.client.right = 21 + r.available;
        beam.RestoreTabsToOriginal();
        beam.DetermineTextForTabs();
        EXPECT_EQ(CString(r.line0), beam.Line1(0));
        EXPECT_EQ(CString(r.line1), beam.Line1(1));
        EXPECT_EQ(CString(VU_T("Abc")), beam.Line1(2));
        EXPECT_EQ(r.truncated, beam.IsTruncated());
        EXPECT_EQ(r.total, beam.CalcTotalTabWidth());
    }
}

// Line 2 of "Main" / "Prog*" is chosen while it is not shorter than line 1
// (raw length); once it is "...*" the step must go to line 1.
TEST(TabText, TwoLineTextWhoseSecondLineRunsOutStillEnds) {
    FakeBeam beam;
    beam.SetDisplayStyle(VU_CTabBeamModel::RoundedTabs);
    beam.InsertTab(FALSE, VU_T("OtherRoutine"), nullptr, 0, -1);
    beam.InsertTab(FALSE, VU_T("Main\nProg*"), nullptr, 0, -1);
    // Tab 1 becomes the longest with line 2 at "...*" while line 1 still
    // has 4 characters, and the tabs still overflow.
    beam.view.client.right = 21 + 90;
    beam.DetermineTextForTabs();
    EXPECT_FALSE(beam.IsTruncated());
    EXPECT_EQ(CString(VU_T("Main")), beam.Line1(1));
    EXPECT_EQ(CString(VU_T("Prog*")), beam.GetTabRecord(1)->m_strLine2);
}

TEST(TabText, ResizeRestoresFullTextsFrom15FreePixels) {
    for (int slack : {14, 15}) {
        SCOPED_TRACE(slack);
        FakeBeam beam;
        beam.InsertTab(FALSE, VU_T("Routine"), nullptr, 0, 50); // widths given
        beam.InsertTab(FALSE, VU_T("Ab"), nullptr, 0, 50);
        beam.GetTabRecord(0)->m_strLine1 = CString(VU_T("Rout..."));
        beam.view.client.right = 21 + 114 + slack;
        beam.DetermineTextForResizeRoutine();
        EXPECT_EQ(CString(slack >= 15 ? VU_T("Routine") : VU_T("Rout...")), beam.Line1(0));
    }
}

// Each tab's lines and width, and the truncated flag.
std::string State(const VU_CTabBeamModel& beam) {
    std::string state = beam.IsTruncated() ? "truncated" : "full";
    for (int i = 0; i < beam.GetCount(); ++i) {
        const VU_CTabRecord* tab = beam.GetTabRecord(i);
        for (const CString& line : {tab->m_strLine1, tab->m_strLine2, CString(VU_T("|"))})
            for (int c = 0; c < line.GetLength(); ++c)
                state += static_cast<char>(line[c]);
        state += std::to_string(tab->m_nWidth) + ";";
    }
    return state;
}

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
            fast.InsertTab(FALSE, text.c_str(), nullptr, 0, -1);
            literal.InsertTab(FALSE, text.c_str(), nullptr, 0, -1);
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
        literal.SetTruncatedForTest(vu::reference::LiteralFit(literal, literal.IsTruncated()));
        ASSERT_EQ(State(literal), State(fast));
    }
}

} // namespace

// The tab texts: lines, countable characters, shortening and the fitting
// of all texts into the client area.
#include "FakeTabView.h"

#include <gtest/gtest.h>

using vutest::FakeBeam;

namespace {

TEST(TabText, LinesCountsAndShrinking) {
    VU_CTabRecord tab;
    tab.SetText(CString(VU_T("Main\nProg*\nx")));
    EXPECT_EQ(CString(VU_T("Main")), tab.m_strLine1);
    EXPECT_EQ(CString(VU_T("Prog*\nx")), tab.m_strLine2);
    EXPECT_EQ(6, tab.GetNumChars()); // "Prog*\nx": 7 units, less the star

    struct Row {
        const WCHAR* text;
        int chars;
        const WCHAR* shrunk; // null: nothing left to remove
    } rows[] = {
        {VU_T("Routine"), 7, VU_T("Routin...")},
        {VU_T("Routin..."), 6, VU_T("Routi...")},
        {VU_T("Main*"), 4, VU_T("Mai...*")},
        {VU_T("Mai...*"), 3, VU_T("Ma...*")},
        {VU_T("a"), 1, VU_T("...")},
        {VU_T("a*"), 1, VU_T("...*")},
        {VU_T(""), 0, nullptr},
        {VU_T("..."), 0, nullptr},
        {VU_T("*"), 0, nullptr},
        {VU_T("...*"), 0, nullptr},
    };
    for (const Row& r : rows) {
        CString text(r.text);
        SCOPED_TRACE(testing::PrintToString(text));
        EXPECT_EQ(r.chars, VU_CTabRecord::GetNumChars(text));
        EXPECT_EQ(r.shrunk != nullptr, VU_CTabRecord::ShrinkText(text));
        EXPECT_EQ(CString(r.shrunk != nullptr ? r.shrunk : r.text), text);
    }
}

TEST(TabText, LongestTabTiesGoToTheLaterTab) {
    FakeBeam beam;
    EXPECT_EQ(0, beam.FindLongestTab());
    beam.InsertTab(FALSE, VU_T("abcdefgh"), nullptr, 0, -1);
    EXPECT_EQ(0, beam.FindLongestTab()); // one tab
    beam.InsertTab(FALSE, VU_T("abcd...*"), nullptr, 0, -1);
    beam.InsertTab(FALSE, VU_T("wxyz"), nullptr, 0, -1);
    beam.InsertTab(FALSE, VU_T("a\nabcdefgh"), nullptr, 0, -1);
    EXPECT_EQ(3, beam.FindLongestTab());
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
        int available;
        const WCHAR *line0, *line1;
        bool truncated;
        int total;
    } rows[] = {
        {"everything fits", 246, VU_T("RoutineAlpha"), VU_T("MainRoutine*"), false, 246},
        {"ties go to the later tab", 220, VU_T("Routine..."), VU_T("MainRo...*"), true, 220},
        {"a wider ellipsis needs one more step", 210, VU_T("Routin..."), VU_T("MainR...*"), true,
         207},
        {"down to 3 and 4 characters", 180, VU_T("Rou..."), VU_T("Mai...*"), true, 174},
        {"still too wide at 3 characters: full texts", 170, VU_T("RoutineAlpha"),
         VU_T("MainRoutine*"), false, 246},
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
    beam.view.client.right = 21 + 100;
    beam.DetermineTextForTabs();
    EXPECT_TRUE(beam.IsTruncated());
    EXPECT_EQ(CString(VU_T("Othe...")), beam.Line1(0));
    // Narrower, the second tab becomes the longest with line 2 at "...*".
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

TEST(TabText, SetTabTextRefitsAndKeepsTheFullText) {
    FakeBeam beam;
    CObject data;
    beam.InsertTab(FALSE, VU_T("Main"), &data, 0, -1);
    beam.InsertTab(FALSE, VU_T("Other"), nullptr, 0, -1);
    beam.view.client.right = 21 + 150;
    EXPECT_EQ(CString(VU_T("Main")), beam.DetermineTextForTabs(CString(VU_T("Main")), 0));
    beam.SetTabText(&data, CString(VU_T("MainRoutine*")));
    EXPECT_EQ(CString(VU_T("MainRoutine*")), beam.GetTabText(&data));
    EXPECT_EQ(CString(VU_T("MainRo...*")), beam.Line1(0));
    EXPECT_EQ(CString(VU_T("Other")), beam.Line1(1));
    EXPECT_THROW(beam.GetTabText(2), CInvalidArgException);
}

} // namespace

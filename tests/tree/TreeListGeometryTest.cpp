#include "tree/TreeListGeometry.h"

#include <gtest/gtest.h>

#include <string>

using namespace vu::treelist;

namespace {

TEST(TreeListGeometry, ScrollAdvancesOneRowPerWholePage) {
    struct Row {
        const char* name;
        int top, row, height, client, expected;
    } rows[] = {
        {"15 below the top of a 10-row page", 5, 20, 16, 160, 6},
        {"above the top truncates toward zero", 20, 5, 16, 160, 19},
        {"partial page counts whole rows only", 0, 30, 16, 175, 3},
        {"zero row height", 4, 100, 0, 160, 4},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        EXPECT_EQ(r.expected, ScrollTopForRow(r.top, r.row, r.height, r.client));
    }
}

// Rows written as a string: 'n' normal, 'h' header, 's' separator.
KeyStep Step(const std::string& rows, int selection, int step) {
    return StepOverUnselectable(selection, static_cast<int>(rows.size()), step,
                                [&](int row) { return rows[row] != 'n'; });
}

TEST(TreeListGeometry, KeyboardStepsOverHeadersAndSeparators) {
    struct Row {
        const char* name;
        const char* rows;
        int selection, step;
        bool swallow;
        int preselect;
    } rows[] = {
        {"down over header and separator", "nhsn", 0, 1, false, 2},
        {"down before a trailing run", "nnss", 1, 1, true, -1},
        {"up with headers up to row 0", "hsn", 2, -1, true, -1},
        {"no selection", "nhn", -1, 1, false, -1},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        const KeyStep s = Step(r.rows, r.selection, r.step);
        EXPECT_EQ(r.swallow, s.swallow);
        EXPECT_EQ(r.preselect, s.preselect);
    }
}

TEST(TreeListGeometry, SplitColumnsLikeWcstok) {
    struct Row {
        const WCHAR* text;
        std::vector<vu::String> parts;
    } rows[] = {
        {VU_T(""), {}},
        {VU_T("Motor\tBOOL\tStart button"), {VU_T("Motor"), VU_T("BOOL"), VU_T("Start button")}},
        {VU_T("a\t\tb"), {VU_T("a"), VU_T("b")}},
        {VU_T("\ta\t"), {VU_T("a")}},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(std::string(r.text, r.text + vu::StringView(r.text).size()));
        const auto parts = SplitColumns(r.text);
        ASSERT_EQ(r.parts.size(), parts.size());
        for (size_t i = 0; i < parts.size(); ++i)
            EXPECT_EQ(r.parts[i], vu::String(parts[i]));
    }
}

TEST(TreeListGeometry, ColumnStartsFollowTheTabStops) {
    EXPECT_EQ((std::vector<int>{0, 66, 198}), ColumnStarts(3, {11, 33}, 6));
    EXPECT_EQ((std::vector<int>{0, 66, 198, 330}), ColumnStarts(4, {11, 33}, 6))
        << "past the last stop, the last spacing repeats";
    EXPECT_EQ((std::vector<int>{0, 50, 90}), ColumnStarts(3, {10, 4}, 5))
        << "a stop left of the previous one gives its column the default spacing";
    EXPECT_EQ((std::vector<int>{0, 50, 90}), ColumnStarts(3, {10, 10}, 5)) << "equal stops";
    EXPECT_TRUE(ColumnStarts(0, {11}, 6).empty());
    const std::vector<int> starts{0, 66, 198};
    EXPECT_EQ(0, ColumnAt(65, starts));
    EXPECT_EQ(1, ColumnAt(66, starts));
    EXPECT_EQ(-1, ColumnAt(-1, starts));
}

TEST(TreeListGeometry, FitTextKeepsTheLongestPrefixWithTheMarker) {
    const MeasureText fixed = [](vu::StringView s) { return static_cast<int>(s.size()) * 5; };
    struct Row {
        const char* name;
        const WCHAR* text;
        int width;
        vu::String expected;
    } rows[] = {
        {"one pixel short", VU_T("Motors"), 29, VU_T(" ... ")},
        {"prefix and marker", VU_T("Conveyor_Speed"), 45, VU_T("Conv ... ")},
        {"not even the marker", VU_T("Conveyor"), 24, VU_T("")},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        EXPECT_EQ(r.expected, FitText(r.text, r.width, fixed));
    }
    // Proportional widths: 'W' is wide, the rest narrow.
    const MeasureText proportional = [](vu::StringView s) {
        int w = 0;
        for (WCHAR c : s)
            w += c == VU_T('W') ? 12 : 4;
        return w;
    };
    const vu::String fitted = FitText(VU_T("abWWWWcd"), 40, proportional);
    EXPECT_EQ(VU_T("abW ... "), fitted);
    EXPECT_LE(proportional(fitted), 40);
}

} // namespace

// The summary list box on a real window: its rows, texts and what it draws.
#include "TreeFixture.h"

#include "tree/win/SummaryListBox.h"

#include <gtest/gtest.h>

namespace treetest {
namespace {

constexpr int kRow = kRowHeight;

class SummaryTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(CreateList(list, parent, 200)); }
    ParentWindow parent;
    VU_CSummaryListBox list;
};

TEST_F(SummaryTest, LinesAndTheirTexts) {
    EXPECT_EQ(0, list.AddItem(CString(L"Controller"), true));
    EXPECT_EQ(1, list.AddItem(CString(L"Name: Line_3"), false));
    EXPECT_TRUE(list.GetDisplayText(2).IsEmpty());
    EXPECT_TRUE(list.GetCurSelDisplayText().IsEmpty()) << "nothing selected";
    list.SetDisplayText(1, CString(L"Name: Line_4"));
    list.SetDisplayText(5, CString(L"ignored"));
    list.SetCurSel(1);
    EXPECT_EQ(CString(L"Name: Line_4"), list.GetCurSelDisplayText());
    EXPECT_EQ(2, list.GetLineCount());
}

TEST_F(SummaryTest, HeaderAndLineWithTheSameTextStartTwelvePixelsApart) {
    SendMessageW(list.m_hWnd, WM_SETFONT,
                 reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), FALSE);
    list.AddItem(CString(L"HHH"), true);
    list.AddItem(CString(L"HHH"), false);
    ClientPicture picture(list.m_hWnd);
    const COLORREF background = picture.At(picture.Width() - 1, 1);
    const int header = picture.InkSpan(0, kRow, 0, background).first;
    const int line = picture.InkSpan(kRow, 2 * kRow, 0, background).first;
    ASSERT_GE(header, 3);
    EXPECT_EQ(12, line - header);
}

TEST_F(SummaryTest, SelectedLinesLookTheSame) {
    list.AddItem(CString(L"Tags: 120"), false);
    list.AddItem(CString(L"Tags: 120"), false);
    list.SetCurSel(1);
    ClientPicture picture(list.m_hWnd);
    for (int y = 0; y < kRow; ++y)
        for (int x = 0; x < picture.Width(); ++x)
            ASSERT_EQ(picture.At(x, y), picture.At(x, y + kRow)) << x << "," << y;
}

} // namespace
} // namespace treetest

// What the tree list box draws, read back from a picture of its client area,
// and the tool tip text for rows that do not fit.
#include "TreeFixture.h"

#include "tree/TreeImages.h"
#include "tree/TreeListGeometry.h"

namespace treetest {
namespace {

const COLORREF kLineGrey = RGB(128, 128, 128);

TEST_F(TreeListTest, DrawsBackgroundsLinesButtonsAndImages) {
    // Header and separator first: AddHeader finds its node by row + 1.
    list->AddHeader(S(L"Header")); // row 0
    list->AddSeparator();          // row 1
    BuildSample();
    const int a = 2; // rows: Header, sep, A, A1, A2, B, C
    list->Expand(a);
    Select(a + 1);
    ClientPicture picture(Hwnd());
    const int right = picture.Width() - 2;

    SCOPED_TRACE("backgrounds");
    EXPECT_EQ(GetSysColor(COLOR_WINDOW), picture.At(right, MidY(a + 2)));
    EXPECT_EQ(GetSysColor(COLOR_BTNFACE), picture.At(right, MidY(0)));

    SCOPED_TRACE("tree lines of level 1 at x = 23");
    const int x1 = vu::treelist::TreeLineX(1, 0);
    const int a2Top = (a + 2) * kRowHeight;
    EXPECT_EQ(kLineGrey, picture.At(x1, a2Top + 1)) << "A2's line from the top";
    EXPECT_EQ(kLineGrey, picture.At(x1, a2Top - 1))
        << "A1 is not the last child: its line goes on through the row";
    EXPECT_NE(kLineGrey, picture.At(x1, a2Top + kRowHeight - 2))
        << "A2 is the last child: its line stops in the middle";

    SCOPED_TRACE("expand buttons at x = 7");
    const int x0 = vu::treelist::TreeLineX(0, 0);
    EXPECT_EQ(kLineGrey, picture.At(x0 - 4, MidY(a))) << "button frame";
    EXPECT_EQ(GetSysColor(COLOR_WINDOWTEXT), picture.At(x0, MidY(a))) << "minus";
    EXPECT_EQ(GetSysColor(COLOR_WINDOWTEXT), picture.At(x0, MidY(a + 3) - 2))
        << "B collapsed: plus";
    EXPECT_NE(kLineGrey, picture.At(x0 - 4, MidY(a + 4))) << "C, a leaf, has no button";

    EXPECT_TRUE(picture.HasColour(10, kRowHeight, picture.Width(), 2 * kRowHeight,
                                  GetSysColor(COLOR_BTNSHADOW)))
        << "separator";

    SCOPED_TRACE("images from the own list");
    const int imageLeft = vu::treelist::ImageLeft(0, 0);
    EXPECT_TRUE(picture.HasColour(imageLeft, a * kRowHeight, imageLeft + 16, (a + 1) * kRowHeight,
                                  RGB(250, 214, 104)))
        << "A shows the folder image";
}

TEST_F(TreeListTest, HeaderTextIsBold) {
    list->AddItem(S(L"WWWW"), -1, -1, 0);
    list->AddHeader(S(L"WWWW"));
    ClientPicture picture(Hwnd());
    const auto [first0, last0] =
        picture.InkSpan(0, kRowHeight, list->GetTextLeft(0), GetSysColor(COLOR_WINDOW));
    const auto [first1, last1] = picture.InkSpan(kRowHeight, 2 * kRowHeight, list->GetTextLeft(1),
                                                 GetSysColor(COLOR_BTNFACE));
    EXPECT_GT(last1 - first1, last0 - first0);
}

class GreyList : public VU_CTreeListBox {
public:
    BOOL IsItemEnabled(int row, long) override { return row != 1; }
    BOOL HasFocus() override { return focus; }
    BOOL focus = TRUE;
};

// Disabled rows are grey; the selected row is highlighted only while the
// control has the focus (as a derived HasFocus tells), else it keeps a quiet
// background.
TEST(TreeListDrawing, DisabledRowsAndTheSelectionFollowTheOverrides) {
    ParentWindow parent;
    GreyList list;
    ASSERT_TRUE(CreateList(list, parent));
    list.AddItem(S(L"Selected row"), -1, -1, 0);
    list.AddItem(S(L"Disabled row"), -1, -1, 0);
    list.AddItem(S(L"Enabled row"), -1, -1, 0);
    SendMessageW(list.m_hWnd, LB_SETCURSEL, 0, 0);
    const COLORREF grey = GetSysColor(COLOR_GRAYTEXT), text = GetSysColor(COLOR_WINDOWTEXT);
    for (BOOL focus : {TRUE, FALSE}) {
        SCOPED_TRACE(focus ? "focus" : "no focus");
        list.focus = focus;
        ClientPicture picture(list.m_hWnd);
        const int w = picture.Width();
        EXPECT_EQ(GetSysColor(focus ? COLOR_HIGHLIGHT : COLOR_BTNFACE), picture.At(w - 2, MidY(0)));
        EXPECT_TRUE(picture.HasColour(list.GetTextLeft(0), 0, w, kRowHeight,
                                      focus ? GetSysColor(COLOR_HIGHLIGHTTEXT) : text));
        EXPECT_TRUE(picture.HasColour(0, kRowHeight, w, 2 * kRowHeight, grey));
        EXPECT_FALSE(picture.HasColour(0, kRowHeight, w, 2 * kRowHeight, text));
        EXPECT_FALSE(picture.HasColour(0, 2 * kRowHeight, w, 3 * kRowHeight, grey));
    }
}

TEST(TreeListDrawing, ColumnsKeepToTheirTabStops) {
    ParentWindow parent;
    VU_CTreeListBox list;
    ASSERT_TRUE(CreateList(list, parent, 400));
    SendMessageW(list.m_hWnd, WM_SETFONT,
                 reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), FALSE);
    CWordArray stops;
    stops.Add(20);
    list.SetTabStops(stops);
    list.AddItem(S(L"x\tTYPE"), -1, -1, 0);
    list.AddItem(S(L"WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW\tTYPE"), -1, -1, 0);
    // Both rows start their second column at the same x.
    ClientPicture picture(list.m_hWnd);
    const COLORREF background = GetSysColor(COLOR_WINDOW);
    HDC dc = GetDC(list.m_hWnd);
    SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(list.m_hWnd, WM_GETFONT, 0, 0)));
    TEXTMETRICW tm{};
    GetTextMetricsW(dc, &tm);
    ReleaseDC(list.m_hWnd, dc);
    const int column = list.GetTextLeft(0) + 20 * tm.tmAveCharWidth;
    const auto firstInkFrom = [&](int row, int from) {
        return picture.InkSpan(row * kRowHeight, (row + 1) * kRowHeight, from, background).first;
    };
    const int gapStart = column - 3; // the long first column stops short of the stop
    EXPECT_EQ(firstInkFrom(0, gapStart), firstInkFrom(1, gapStart));
    EXPECT_GE(firstInkFrom(0, gapStart), column);
}

// The tool tip text the control gives with the mouse at x in the row.
std::wstring TipAt(VU_CTreeListBox& list, int x, int row) {
    POINT p{x, MidY(row)};
    ClientToScreen(list.m_hWnd, &p);
    SetCursorPos(p.x, p.y);
    NMTTDISPINFOW info{};
    LRESULT result = 0;
    EXPECT_TRUE(list.GetToolTipText(&info, &result));
    return std::wstring(info.lpszText);
}

TEST(TreeListToolTip, TheTipIsTheTextOrColumnUnderTheMouseThatDoesNotFit) {
    ParentWindow parent(300, 200);
    ShowWindow(parent.Handle(), SW_SHOWNOACTIVATE);
    {
        VU_CTreeListBox list;
        ASSERT_TRUE(CreateList(list, parent, 150, 4));
        list.DisplayInColumns(false);
        list.AddItem(S(L"Short"), -1, -1, 0);
        list.AddItem(S(L"A much longer text than the control is wide, by far"), -1, -1, 0);
        UpdateWindow(parent.Handle());
        EXPECT_EQ(L"", TipAt(list, 60, 0)) << "a text that fits gets no tip";
        EXPECT_EQ(L"A much longer text than the control is wide, by far", TipAt(list, 60, 1));
    }

    SCOPED_TRACE("with columns, the column under the mouse");
    VU_CTreeListBox columns;
    ASSERT_TRUE(CreateList(columns, parent, 200, 4));
    CWordArray stops;
    stops.Add(8);
    columns.SetTabStops(stops);
    columns.AddItem(S(L"Tag\tA long description of the tag that cannot fit"), -1, -1, 0);
    UpdateWindow(parent.Handle());
    columns.AddItem(S(L"Tag\tfits"), -1, -1, 0);
    columns.AddItem(S(L"A name far too long for its column\tfits"), -1, -1, 0);
    UpdateWindow(parent.Handle());
    const int second = columns.GetTextLeft(0) + 100;
    EXPECT_EQ(L"A long description of the tag that cannot fit", TipAt(columns, second, 0));
    EXPECT_EQ(L"", TipAt(columns, columns.GetTextLeft(0) + 2, 0)) << "the first column fits";
    EXPECT_EQ(L"", TipAt(columns, second, 1)) << "nothing is cut";
    EXPECT_EQ(L"", TipAt(columns, second, 2)) << "only the other column is cut";
    EXPECT_EQ(L"A name far too long for its column", TipAt(columns, 4, 2))
        << "over the button: the first column, without tabs";
}

// Counts the list-box queries a row search costs.
LRESULT CALLBACK CountingProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* counts = reinterpret_cast<int*>(GetPropW(hWnd, L"counts"));
    counts[0] += message == LB_GETCOUNT ? 1 : 0;
    counts[1] += message == LB_GETITEMDATA ? 1 : 0;
    return CallWindowProcW(reinterpret_cast<WNDPROC>(GetPropW(hWnd, L"next")), hWnd, message,
                           wParam, lParam);
}

TEST_F(TreeListTest, RowSearchesAskOneQueryPerRow) {
    for (int i = 0; i < 50; ++i)
        list->AddItem(S(L"row"), -1, -1, static_cast<unsigned long>(i));
    int counts[2] = {0, 0};
    SetPropW(Hwnd(), L"counts", counts);
    SetPropW(Hwnd(), L"next",
             reinterpret_cast<HANDLE>(SetWindowLongPtrW(Hwnd(), GWLP_WNDPROC,
                                                        reinterpret_cast<LONG_PTR>(CountingProc))));
    EXPECT_EQ(-1, list->FindNoCaseChildString(S(L"none"), 4, 1));
    EXPECT_LE(counts[0] + counts[1], 50 + 2);
    SetWindowLongPtrW(Hwnd(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(GetPropW(Hwnd(), L"next")));
}

} // namespace
} // namespace treetest

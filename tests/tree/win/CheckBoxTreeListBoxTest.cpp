// The check-box tree list boxes driven with real messages: check clicks in
// and beside the check column, the space key with single and multiple
// selection, and the images the rows draw.
#include "TreeFixture.h"

#include "tree/CheckImages.h"
#include "tree/win/CheckBoxTreeListBox.h"
#include "tree/win/CheckColumn.h"
#include "tree/win/ExCheckBoxTreeListBox.h"

namespace treetest {
namespace {

using vu::checklist::GetCheckColumnWidth;
using Names = std::vector<CString>;

template <class List> Names CheckedLeaves(List& list) {
    CArray<CString, CString> names;
    if constexpr (std::is_same_v<List, VU_CExCheckBoxTreeListBox>)
        list.GetCheckedLeafItemNames(&names);
    else
        list.GetCheckedItemNames(&names);
    return Names(names.begin(), names.end());
}

// Rows: Group (expanded), a, b, Twin, Twin, a separator, a header, Single.
template <class List> struct CheckList {
    explicit CheckList(DWORD extraStyle = 0) {
        EXPECT_TRUE(CreateList(list, parent, 300, 10, kTreeStyle | extraStyle));
        int group = 0;
        list.AddItem(S(L"Group"), -1, -1, 1, -1, &group);
        list.AddItem(S(L"a"), -1, -1, 2, group, nullptr, true);
        list.AddItem(S(L"b"), -1, -1, 3, group, nullptr, true);
        list.AddItem(S(L"Twin"), -1, -1, 4);
        list.AddItem(S(L"Twin"), -1, -1, 5);
        list.AddSeparator();
        list.AddHeader(S(L"Header"));
        list.AddItem(S(L"Single"), -1, -1, 8);
    }
    ParentWindow parent;
    List list;
};

// ---- Clicks and keys (propagating list) -------------------------------------

TEST(ExCheckBoxTreeListBox, ClicksLeftOfTheCheckColumnEdgeToggleAndSelect) {
    CheckList<VU_CExCheckBoxTreeListBox> t;
    const int width = GetCheckColumnWidth();
    Click(t.list.m_hWnd, width, MidY(1)); // on the tree, not the box
    EXPECT_EQ(Names{}, CheckedLeaves(t.list));
    EXPECT_EQ(1, t.list.GetSelectedRow());
    Click(t.list.m_hWnd, 0, MidY(1));
    EXPECT_EQ(VU_CHECKIMAGE_SOME, t.list.GetCheckImage(0));
    Click(t.list.m_hWnd, width - 1, MidY(2));
    EXPECT_EQ(VU_CHECKIMAGE_ALL, t.list.GetCheckImage(0));
    Click(t.list.m_hWnd, 0, MidY(0));
    EXPECT_EQ(Names{}, CheckedLeaves(t.list)) << "a full parent clears its children";
}

TEST(ExCheckBoxTreeListBox, SpaceTogglesTheSelectionAndTwinsOnlyWithSingleSelection) {
    struct Case {
        const char* name;
        DWORD style;
        std::vector<int> selected;
        Names checked;
    } cases[] = {
        {"single selection: the row and its twin", 0, {3}, {L"Twin", L"Twin"}},
        {"single selection on a header: nothing", 0, {6}, {}},
        {"multiple: each row, no twin", LBS_MULTIPLESEL, {1, 3}, {L"a", L"Twin"}},
        {"multiple: parent then child", LBS_MULTIPLESEL, {0, 2}, {L"a"}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        CheckList<VU_CExCheckBoxTreeListBox> t(c.style);
        for (int row : c.selected)
            SendMessageW(t.list.m_hWnd, c.style ? LB_SETSEL : LB_SETCURSEL, c.style ? TRUE : row,
                         row);
        Key(t.list.m_hWnd, VK_SPACE);
        SendMessageW(t.list.m_hWnd, WM_CHAR, L' ', 1);
        SendMessageW(t.list.m_hWnd, WM_CHAR, L'x', 1);
        EXPECT_EQ(c.checked, CheckedLeaves(t.list));
    }
}

// ---- Drawing --------------------------------------------------------------------

TEST(ExCheckBoxTreeListBox, RowsDrawTheImageOfTheirStateAndSeparatorsTwoGreyLines) {
    const auto CheckInk = [](const ClientPicture& p, int r) { return p.At(7, MidY(r) - 1); };
    CheckList<VU_CExCheckBoxTreeListBox> t;
    CArray<CString, CString> texts;
    texts.Add(S(L"a"));
    t.list.CheckItems(&texts);
    Click(t.list.m_hWnd, 0, MidY(7)); // Single, which gets the selection
    {
        ClientPicture p(t.list.m_hWnd);
        EXPECT_EQ(RGB(70, 110, 170), CheckInk(p, 0)) << "partial square";
        EXPECT_EQ(RGB(24, 24, 24), CheckInk(p, 1)) << "check mark";
        EXPECT_EQ(RGB(250, 250, 250), CheckInk(p, 2)) << "empty box";
        EXPECT_EQ(RGB(24, 24, 24), CheckInk(p, 7)) << "opaque on the selected row";
        EXPECT_EQ(GetSysColor(COLOR_BTNFACE), CheckInk(p, 6)) << "no box on a header";
        const COLORREF grey = GetSysColor(COLOR_GRAYTEXT);
        for (int y : {6, 8})
            EXPECT_EQ(grey, p.At(150, 5 * kRowHeight + y));
        EXPECT_NE(grey, p.At(150, 5 * kRowHeight + 7));
    }
    t.list.IncludeParentChecks(false);
    EXPECT_EQ(GetSysColor(COLOR_WINDOW), CheckInk(ClientPicture(t.list.m_hWnd), 0));
}

// ---- The two-state list ----------------------------------------------------------

TEST(CheckBoxTreeListBox, ChecksStayOnTheirRowsAndOnlyLeavesDrawABox) {
    CheckList<VU_CCheckBoxTreeListBox> t;
    Click(t.list.m_hWnd, 0, MidY(3));
    Click(t.list.m_hWnd, 0, MidY(1));
    EXPECT_EQ((Names{L"a", L"Twin"}), CheckedLeaves(t.list)) << "no twin follows";
    EXPECT_FALSE(t.list.IsItemChecked(0)) << "nor the parent";
    t.list.SetCurSel(0);
    SendMessageW(t.list.m_hWnd, WM_CHAR, L' ', 1);
    EXPECT_TRUE(t.list.IsItemChecked(0));
    EXPECT_FALSE(t.list.IsItemChecked(2));

    t.list.SetCurSel(-1);
    ClientPicture p(t.list.m_hWnd);
    const auto boxInk = [&](int row) { // inside the edges, where a focus rectangle may lie
        return p.InkSpan(MidY(row) - 6, MidY(row) + 6, 1, GetSysColor(COLOR_WINDOW)).first;
    };
    EXPECT_LT(boxInk(1), GetCheckColumnWidth()) << "a leaf draws its box in the column";
    EXPECT_GE(boxInk(0), GetCheckColumnWidth()) << "a parent draws none";
}

} // namespace
} // namespace treetest

// Notifications that Windows sends to a plain Win32 parent reach the child's
// framework object: owner-draw (the list box the tree controls build on),
// control notifications, WM_NOTIFY and WM_CTLCOLOR*. What the child does
// not claim still reaches the parent.
#include <gtest/gtest.h>

#include <vector>

#include <windows.h>

#include <commctrl.h>

#include "foundation/win/ChildReflector.h"
#include "foundation/win/MessageFilter.h"
#include "framework/win/DC.h"
#include "framework/win/ListBox.h"
#include "support/TestWindow.h"

namespace {

const int kListId = 1001;

// An owner-drawn list box that records the owner-draw calls.
class DrawingListBox : public CListBox {
public:
    void DrawItem(LPDRAWITEMSTRUCT dis) override {
        drawn.push_back(static_cast<int>(dis->itemID));
        drawnData.push_back(dis->itemData);
        CDC* dc = CDC::FromHandle(dis->hDC);
        dcMatches = dcMatches && dc != nullptr && dc->m_hDC == dis->hDC;
    }
    void MeasureItem(LPMEASUREITEMSTRUCT mis) override {
        ++measured;
        mis->itemHeight = 21;
    }
    int CompareItem(LPCOMPAREITEMSTRUCT cis) override {
        ++compared;
        return cis->itemData1 < cis->itemData2 ? -1 : (cis->itemData1 > cis->itemData2 ? 1 : 0);
    }
    void DeleteItem(LPDELETEITEMSTRUCT dis) override { deleted.push_back(dis->itemData); }

    std::vector<int> drawn;
    std::vector<ULONG_PTR> drawnData;
    std::vector<ULONG_PTR> deleted;
    int measured = 0;
    int compared = 0;
    bool dcMatches = true;
};

// Claims selection changes and colours its background.
class ClaimingListBox : public CListBox {
public:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override {
        if (message == WM_COMMAND && HIWORD(wParam) == LBN_DBLCLK) {
            ++doubleClicks;
            *pResult = 1;
            return TRUE;
        }
        if (message == WM_CTLCOLORLISTBOX) {
            *pResult = reinterpret_cast<LRESULT>(GetStockObject(BLACK_BRUSH));
            return TRUE;
        }
        if (message == WM_NOTIFY) {
            ++notifies;
            *pResult = 33;
            return TRUE;
        }
        return CListBox::OnChildNotify(message, wParam, lParam, pResult);
    }
    int doubleClicks = 0;
    int notifies = 0;
};

HWND MakeOwnerDrawList(HWND parent, DWORD extraStyle = 0) {
    return CreateWindowExW(0, L"LISTBOX", L"",
                           WS_CHILD | WS_VISIBLE | LBS_OWNERDRAWFIXED | extraStyle, 0, 0, 200, 150,
                           parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(kListId)),
                           GetModuleHandleW(nullptr), nullptr);
}

// Owner-drawn items carry their data in place of a string.
const wchar_t* Data(UINT_PTR value) {
    return reinterpret_cast<const wchar_t*>(value);
}

bool CreateList(CListBox& box, HWND parent, DWORD style, const CRect& rect = CRect(0, 0, 200, 150),
                int id = kListId) {
    return box.Create(WS_VISIBLE | style, rect, parent, id);
}

void Repaint(HWND hwnd) {
    RedrawWindow(hwnd, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
}

// ---- owner-draw ------------------------------------------------------------------

TEST(ReflectionTest, SubclassedOwnerDrawListBoxOnAPlainParentGetsDrawItem) {
    vutest::PlainWindow parent(vutest::Stage(), WS_VISIBLE);
    HWND list = MakeOwnerDrawList(parent.hwnd);
    ASSERT_NE(list, nullptr);
    DrawingListBox box;
    ASSERT_TRUE(box.SubclassWindow(list));
    EXPECT_TRUE(CChildReflector::IsWatching(parent.hwnd));

    for (UINT_PTR data : {0xA1, 0xA2, 0xA3})
        box.AddString(Data(data));
    box.drawn.clear();
    box.drawnData.clear();
    Repaint(list);

    EXPECT_EQ(box.drawn, (std::vector<int>{0, 1, 2}));
    EXPECT_EQ(box.drawnData, (std::vector<ULONG_PTR>{0xA1, 0xA2, 0xA3}));
    EXPECT_TRUE(box.dcMatches);
    EXPECT_EQ(parent.Count(WM_DRAWITEM), 0); // claimed by the child

    DestroyWindow(list);
    EXPECT_EQ(box.m_hWnd, nullptr);
    EXPECT_FALSE(CChildReflector::IsWatching(parent.hwnd)); // the last child left
    EXPECT_FALSE(VU_CMessageFilter::Lookup(parent.hwnd, nullptr));
}

TEST(ReflectionTest, CreatedSortedListBoxIsMeasuredComparedAndDeletedThroughTheChild) {
    vutest::PlainWindow parent(vutest::Stage(), WS_VISIBLE);
    DrawingListBox box;
    ASSERT_TRUE(CreateList(box, parent.hwnd, LBS_OWNERDRAWFIXED | LBS_SORT));
    EXPECT_EQ(box.measured, 1); // during creation
    EXPECT_EQ(box.GetItemHeight(0), 21);
    for (UINT_PTR data : {30u, 10u, 20u})
        box.AddString(Data(data));
    EXPECT_GT(box.compared, 0);
    EXPECT_EQ(box.GetItemData(0), 10u);
    EXPECT_EQ(box.GetItemData(1), 20u);
    EXPECT_EQ(box.GetItemData(2), 30u);
    box.DeleteString(1);
    EXPECT_EQ(box.deleted, (std::vector<ULONG_PTR>{20u}));
    for (UINT message : {WM_MEASUREITEM, WM_COMPAREITEM, WM_DELETEITEM})
        EXPECT_EQ(parent.Count(message), 0) << message;
}

TEST(ReflectionTest, ChildWithoutOwnerDrawHandlersLeavesThemToTheParent) {
    vutest::PlainWindow parent(vutest::Stage(), WS_VISIBLE);
    HWND list = MakeOwnerDrawList(parent.hwnd);
    CListBox box; // no DrawItem of its own
    ASSERT_TRUE(box.SubclassWindow(list));
    box.AddString(Data(1));
    Repaint(list);
    EXPECT_GT(parent.Count(WM_DRAWITEM), 0);
    box.UnsubclassWindow();
    EXPECT_FALSE(CChildReflector::IsWatching(parent.hwnd));
}

TEST(ReflectionTest, MenuOwnerDrawIsNotReflected) {
    vutest::PlainWindow parent(vutest::Stage(), WS_VISIBLE);
    DrawingListBox box;
    ASSERT_TRUE(box.SubclassWindow(MakeOwnerDrawList(parent.hwnd)));
    DRAWITEMSTRUCT dis{};
    dis.CtlType = ODT_MENU;
    dis.hwndItem = reinterpret_cast<HWND>(CreatePopupMenu());
    box.drawn.clear();
    SendMessageW(parent.hwnd, WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&dis));
    EXPECT_TRUE(box.drawn.empty());
    EXPECT_EQ(parent.Count(WM_DRAWITEM), 1);
    DestroyMenu(reinterpret_cast<HMENU>(dis.hwndItem));
}

// ---- notifications -----------------------------------------------------------------

TEST(ReflectionTest, ControlNotificationsGoToTheChildFirst) {
    vutest::PlainWindow parent(vutest::Stage(), WS_VISIBLE);
    ClaimingListBox box;
    ASSERT_TRUE(CreateList(box, parent.hwnd, LBS_NOTIFY | LBS_HASSTRINGS));
    box.AddString(L"alpha");

    // Claimed: the parent never sees the double click.
    SendMessageW(parent.hwnd, WM_COMMAND, MAKEWPARAM(kListId, LBN_DBLCLK),
                 reinterpret_cast<LPARAM>(box.m_hWnd));
    EXPECT_EQ(box.doubleClicks, 1);
    EXPECT_EQ(parent.Count(WM_COMMAND), 0);

    // Not claimed: the parent gets the selection change as usual.
    SendMessageW(parent.hwnd, WM_COMMAND, MAKEWPARAM(kListId, LBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(box.m_hWnd));
    EXPECT_EQ(parent.Count(WM_COMMAND), 1);

    // Menu commands (no control) are the parent's.
    SendMessageW(parent.hwnd, WM_COMMAND, MAKEWPARAM(kListId, 0), 0);
    EXPECT_EQ(parent.Count(WM_COMMAND), 2);

    // Colours and WM_NOTIFY.
    HDC dc = GetDC(box.m_hWnd);
    EXPECT_EQ(SendMessageW(parent.hwnd, WM_CTLCOLORLISTBOX, reinterpret_cast<WPARAM>(dc),
                           reinterpret_cast<LPARAM>(box.m_hWnd)),
              reinterpret_cast<LRESULT>(GetStockObject(BLACK_BRUSH)));
    ReleaseDC(box.m_hWnd, dc);
    EXPECT_EQ(parent.Count(WM_CTLCOLORLISTBOX), 0);

    NMHDR hdr{box.m_hWnd, static_cast<UINT_PTR>(kListId), static_cast<UINT>(NM_CLICK)};
    EXPECT_EQ(SendMessageW(parent.hwnd, WM_NOTIFY, kListId, reinterpret_cast<LPARAM>(&hdr)), 33);
    EXPECT_EQ(box.notifies, 1);
    EXPECT_EQ(parent.Count(WM_NOTIFY), 0);
}

TEST(ReflectionTest, TwoChildrenShareOneWatchOnTheParent) {
    vutest::PlainWindow parent(vutest::Stage(), WS_VISIBLE);
    auto* first = new DrawingListBox;
    DrawingListBox second;
    ASSERT_TRUE(CreateList(*first, parent.hwnd, LBS_OWNERDRAWFIXED, CRect(0, 0, 100, 100), 1));
    ASSERT_TRUE(CreateList(second, parent.hwnd, LBS_OWNERDRAWFIXED, CRect(100, 0, 200, 100), 2));
    VU_CMessageFilterArray* filters = nullptr;
    ASSERT_TRUE(VU_CMessageFilter::Lookup(parent.hwnd, &filters));
    EXPECT_EQ(filters->GetSize(), 1);

    delete first; // destroys its window; the watch stays for the second
    EXPECT_TRUE(CChildReflector::IsWatching(parent.hwnd));
    second.AddString(Data(7));
    second.drawn.clear();
    Repaint(second.m_hWnd);
    EXPECT_EQ(second.drawn, (std::vector<int>{0}));
}

} // namespace

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

// An owner-drawn list box that records the owner-draw calls; claims double
// clicks, WM_NOTIFY and its background colour.
class ReflectedListBox : public CListBox {
public:
    void DrawItem(LPDRAWITEMSTRUCT dis) override {
        drawn.push_back(dis->itemData);
        CDC* dc = CDC::FromHandle(dis->hDC);
        dcMatches = dcMatches && dc != nullptr && dc->m_hDC == dis->hDC;
    }
    void MeasureItem(LPMEASUREITEMSTRUCT mis) override { ++measured, mis->itemHeight = 21; }
    int CompareItem(LPCOMPAREITEMSTRUCT cis) override {
        return cis->itemData1 < cis->itemData2 ? -1 : (cis->itemData1 > cis->itemData2 ? 1 : 0);
    }
    void DeleteItem(LPDELETEITEMSTRUCT dis) override { deleted.push_back(dis->itemData); }
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override {
        if (message == WM_COMMAND && HIWORD(wParam) == LBN_DBLCLK)
            *pResult = 1;
        else if (message == WM_CTLCOLORLISTBOX)
            *pResult = reinterpret_cast<LRESULT>(GetStockObject(BLACK_BRUSH));
        else if (message == WM_NOTIFY)
            *pResult = 33;
        else
            return CListBox::OnChildNotify(message, wParam, lParam, pResult);
        ++claimed;
        return TRUE;
    }

    std::vector<ULONG_PTR> drawn, deleted;
    int measured = 0, claimed = 0;
    bool dcMatches = true;
};

// Owner-drawn items carry their data in place of a string.
const wchar_t* Data(UINT_PTR value) {
    return reinterpret_cast<const wchar_t*>(value);
}

TEST(ReflectionTest, OwnerDrawMessagesReachTheChildThroughOneWatchOnTheParent) {
    vutest::PlainWindow parent(vutest::Stage(), WS_VISIBLE);
    auto* other = new ReflectedListBox;
    ASSERT_TRUE(
        other->Create(WS_VISIBLE | LBS_OWNERDRAWFIXED, CRect(200, 0, 300, 100), parent.hwnd, 2));
    ReflectedListBox box;
    ASSERT_TRUE(box.Create(WS_VISIBLE | LBS_OWNERDRAWFIXED | LBS_SORT, CRect(0, 0, 200, 150),
                           parent.hwnd, kListId));
    VU_CMessageFilterArray* filters = nullptr;
    ASSERT_TRUE(VU_CMessageFilter::Lookup(parent.hwnd, &filters));
    EXPECT_EQ(filters->GetSize(), 1) << "two children share one watch";
    delete other; // the watch stays for the second

    EXPECT_EQ(box.measured, 1); // during creation
    EXPECT_EQ(box.GetItemHeight(0), 21);
    for (UINT_PTR data : {30u, 10u, 20u})
        box.AddString(Data(data));
    box.DeleteString(1);
    EXPECT_EQ(box.deleted, (std::vector<ULONG_PTR>{20u}));
    box.drawn.clear();
    RedrawWindow(box.m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    EXPECT_EQ(box.drawn, (std::vector<ULONG_PTR>{10u, 30u})) << "sorted through CompareItem";
    EXPECT_TRUE(box.dcMatches);
    for (UINT message : {WM_MEASUREITEM, WM_COMPAREITEM, WM_DELETEITEM, WM_DRAWITEM})
        EXPECT_EQ(parent.Count(message), 0) << message;

    box.DestroyWindow();
    EXPECT_FALSE(CChildReflector::IsWatching(parent.hwnd)); // the last child left
    EXPECT_FALSE(VU_CMessageFilter::Lookup(parent.hwnd, nullptr));
}

TEST(ReflectionTest, NotificationsGoToTheChildFirstAndTheRestToTheParent) {
    vutest::PlainWindow parent(vutest::Stage(), WS_VISIBLE);
    ReflectedListBox box;
    ASSERT_TRUE(box.Create(WS_VISIBLE | LBS_NOTIFY | LBS_HASSTRINGS, CRect(0, 0, 200, 150),
                           parent.hwnd, kListId));
    const LPARAM from = reinterpret_cast<LPARAM>(box.m_hWnd);
    SendMessageW(parent.hwnd, WM_COMMAND, MAKEWPARAM(kListId, LBN_DBLCLK), from); // claimed
    SendMessageW(parent.hwnd, WM_COMMAND, MAKEWPARAM(kListId, LBN_SELCHANGE), from);
    SendMessageW(parent.hwnd, WM_COMMAND, MAKEWPARAM(kListId, 0), 0); // a menu command
    EXPECT_EQ(parent.Count(WM_COMMAND), 2);

    HDC dc = GetDC(box.m_hWnd);
    EXPECT_EQ(SendMessageW(parent.hwnd, WM_CTLCOLORLISTBOX, reinterpret_cast<WPARAM>(dc), from),
              reinterpret_cast<LRESULT>(GetStockObject(BLACK_BRUSH)));
    ReleaseDC(box.m_hWnd, dc);
    NMHDR hdr{box.m_hWnd, static_cast<UINT_PTR>(kListId), static_cast<UINT>(NM_CLICK)};
    EXPECT_EQ(SendMessageW(parent.hwnd, WM_NOTIFY, kListId, reinterpret_cast<LPARAM>(&hdr)), 33);
    EXPECT_EQ(box.claimed, 3);
    EXPECT_EQ(parent.Count(WM_CTLCOLORLISTBOX) + parent.Count(WM_NOTIFY), 0);
}

} // namespace

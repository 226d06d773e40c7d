#pragma once
// A tree list box on a plain Win32 parent, ten 16-pixel rows high, with
// helpers that build trees and compare the rows with the model.
#include "TreeTestHost.h"

#include "tree/win/TreeListBox.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace treetest {

constexpr int kRowHeight = 16;
constexpr int kControlId = 1234;
constexpr DWORD kTreeStyle =
    WS_CHILD | WS_VISIBLE | WS_VSCROLL | LBS_OWNERDRAWFIXED | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT;

inline CString S(const wchar_t* text) {
    return CString(text);
}

// y in the middle of a row, for the rows on the first page.
inline int MidY(int row) {
    return row * kRowHeight + kRowHeight / 2;
}

// Creates `list` as a child of `parent` with a client area `rows` rows high.
inline bool CreateList(CListBox& list, ParentWindow& parent, int width = 300, int rows = 10,
                       DWORD style = kTreeStyle) {
    if (!list.Create(style, CRect(0, 0, width, rows * kRowHeight), parent.Handle(), kControlId))
        return false;
    SendMessageW(list.m_hWnd, LB_SETITEMHEIGHT, 0, kRowHeight);
    // The client area must hold exactly `rows` rows, whatever the border.
    RECT client{};
    GetClientRect(list.m_hWnd, &client);
    RECT window{};
    GetWindowRect(list.m_hWnd, &window);
    const int extraHeight = (window.bottom - window.top) - client.bottom;
    SetWindowPos(list.m_hWnd, nullptr, 0, 0, width, rows * kRowHeight + extraHeight,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    return true;
}

class TreeListTest : public ::testing::Test {
protected:
    void SetUp() override {
        parent = std::make_unique<ParentWindow>();
        list = std::make_unique<VU_CTreeListBox>();
        ASSERT_TRUE(CreateList(*list, *parent));
    }
    void TearDown() override {
        list.reset();
        parent.reset();
    }

    HWND Hwnd() const { return list->m_hWnd; }
    std::vector<std::wstring> Rows() const { return RowTexts(list->m_hWnd); }
    int Selected() const { return static_cast<int>(SendMessageW(Hwnd(), LB_GETCURSEL, 0, 0)); }
    void Select(int row) { SendMessageW(Hwnd(), LB_SETCURSEL, row, 0); }

    // A (1)
    //   A1 (2)
    //     A1a (3)
    //     A1b (4)
    //   A2 (5)
    // B (6)
    //   B1 (7)
    // C (8)
    // All collapsed: only A, B, C show.
    void BuildSample() {
        int a = 0, a1 = 0, b = 0;
        list->AddItem(S(L"A"), 0, 1, 100, -1, &a);
        list->AddItem(S(L"A1"), 0, 1, 110, a, &a1);
        list->AddItem(S(L"A1a"), 6, 6, 111, a1);
        list->AddItem(S(L"A1b"), 6, 6, 112, a1);
        list->AddItem(S(L"A2"), 6, 6, 120, a);
        list->AddItem(S(L"B"), 0, 1, 200, -1, &b);
        list->AddItem(S(L"B1"), 6, 6, 210, b);
        list->AddItem(S(L"C"), 6, 6, 300, -1);
    }

    std::unique_ptr<ParentWindow> parent;
    std::unique_ptr<VU_CTreeListBox> list;
};

using RowList = std::vector<std::wstring>;

} // namespace treetest

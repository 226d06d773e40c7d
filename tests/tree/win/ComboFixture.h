#pragma once
// A tree combo box on a plain Win32 parent, with the tree Line (Motor 11,
// Valve 12, Sensors (Temp 14)), Spare 20: item data after the leaves.
#include "TreeTestHost.h"

#include "tree/win/TreeComboBoxEx.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace treetest {

constexpr int kComboId = 77;

// Refuses the rows carrying one item data, as a host would.
class RefusingCombo : public AF_CTreeComboBoxEx {
public:
    unsigned long refusedData = 0;
    bool IsItemAllowedToBeSelected(int row) override {
        return AF_CTreeComboBoxEx::IsItemAllowedToBeSelected(row) &&
               GetIndexItemData(row) != refusedData;
    }
};

inline std::wstring WindowText(HWND hWnd) {
    wchar_t buffer[256] = {};
    GetWindowTextW(hWnd, buffer, 256);
    return std::wstring(buffer);
}

class ComboTest : public ::testing::Test {
protected:
    void SetUp() override {
        parent = std::make_unique<ParentWindow>(400, 320);
        combo = std::make_unique<RefusingCombo>();
        ASSERT_TRUE(combo->Create(CBS_DROPDOWN | WS_VISIBLE | WS_TABSTOP, CRect(10, 10, 260, 210),
                                  parent->Handle(), kComboId));
        ASSERT_TRUE(combo->IsListSubclassed());
        BuildSample();
    }
    void BuildSample() {
        const auto add = [this](const wchar_t* text, unsigned long data, int parent) {
            CString item(text);
            return combo->AddItem(item, 6, 6, data, parent);
        };
        const int line = add(L"Line", 10, -1);
        add(L"Motor", 11, line);
        add(L"Valve", 12, line);
        add(L"Temp", 14, add(L"Sensors", 13, line));
        add(L"Spare", 20, -1);
    }

    HWND List() const { return combo->GetListBox().m_hWnd; }
    HWND Edit() const { return combo->GetEditControl()->m_hWnd; }
    bool Dropped() const { return combo->GetDroppedState() != FALSE; }
    std::wstring EditText() const { return WindowText(Edit()); }
    std::vector<std::wstring> Rows() const { return RowTexts(List()); }
    int RowOf(const wchar_t* text) const {
        const std::vector<std::wstring> rows = Rows();
        const auto it = std::find(rows.begin(), rows.end(), text);
        return it == rows.end() ? -1 : static_cast<int>(it - rows.begin());
    }
    void Open() {
        combo->ShowDropDown(TRUE);
        PumpMessages();
    }
    // A click in the dropped list at x on the row showing text.
    void ClickRow(const wchar_t* text, int x) {
        RECT item{};
        ASSERT_NE(LB_ERR, SendMessageW(List(), LB_GETITEMRECT, RowOf(text),
                                       reinterpret_cast<LPARAM>(&item)));
        Click(List(), x, (item.top + item.bottom) / 2);
        PumpMessages();
    }
    void Choose(const wchar_t* leaf) {
        Open();
        ClickRow(leaf, 60);
    }

    std::unique_ptr<ParentWindow> parent;
    std::unique_ptr<RefusingCombo> combo; // destroyed before its parent
};

} // namespace treetest

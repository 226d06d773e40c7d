#pragma once
// A tree combo box on a plain Win32 parent, with a small tree:
//   Line           (parent)
//     Motor        (leaf, data 11)
//     Valve        (leaf, data 12)
//     Sensors      (parent)
//       Temp       (leaf, data 14)
//   Spare          (leaf, data 20)
#include "TreeTestHost.h"

#include "tree/win/TreeComboBoxEx.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace treetest {

constexpr int kComboId = 77;
constexpr int kComboRow = 16;

// Refuses the rows whose item data is in the refused set (as a host would).
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
    void TearDown() override {
        combo.reset();
        parent.reset();
    }

    void BuildSample() {
        CString line(L"Line"), motor(L"Motor"), valve(L"Valve"), sensors(L"Sensors"), temp(L"Temp"),
            spare(L"Spare");
        const int l = combo->AddItem(line, 0, 1, 10);
        combo->AddItem(motor, 6, 6, 11, l);
        combo->AddItem(valve, 6, 6, 12, l);
        const int s = combo->AddItem(sensors, 0, 1, 13, l);
        combo->AddItem(temp, 6, 6, 14, s);
        combo->AddItem(spare, 6, 6, 20);
    }

    HWND List() const { return combo->GetListBox().m_hWnd; }
    HWND Edit() const { return combo->GetEditControl()->m_hWnd; }
    bool Dropped() const { return combo->GetDroppedState() != FALSE; }
    std::wstring EditText() const { return WindowText(Edit()); }
    std::vector<std::wstring> Rows() const { return RowTexts(List()); }
    int RowOf(const wchar_t* text) const {
        const std::vector<std::wstring> rows = Rows();
        for (size_t i = 0; i < rows.size(); ++i)
            if (rows[i] == text)
                return static_cast<int>(i);
        return -1;
    }
    void Open() {
        combo->ShowDropDown(TRUE);
        PumpMessages();
    }
    // A click in the dropped list at x on the row showing text.
    void ClickRow(const wchar_t* text, int x) {
        const int row = RowOf(text);
        ASSERT_GE(row, 0) << "no row "
                          << std::string(text, text + std::char_traits<wchar_t>::length(text));
        RECT item{};
        SendMessageW(List(), LB_GETITEMRECT, row, reinterpret_cast<LPARAM>(&item));
        Click(List(), x, (item.top + item.bottom) / 2);
        PumpMessages();
    }
    void Choose(const wchar_t* leaf) {
        Open();
        ClickRow(leaf, 60);
    }

    std::unique_ptr<ParentWindow> parent;
    std::unique_ptr<RefusingCombo> combo;
};

} // namespace treetest

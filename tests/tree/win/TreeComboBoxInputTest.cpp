// The tree combo box under real input: xdotool moves the X server's pointer
// and clicks, Wine turns that into the messages a user's mouse makes.
#include "ComboFixture.h"

#include <string>

namespace treetest {
namespace {

// Clicks at a point of a window's client area: xdotool (a Unix program,
// started through Wine's start /unix with the DISPLAY that xvfb-run set)
// moves the pointer there and clicks.
bool RealClick(HWND hWnd, int x, int y) {
    POINT point{x, y};
    ClientToScreen(hWnd, &point);
    std::wstring command = L"start.exe /unix /usr/bin/xdotool mousemove " +
                           std::to_wstring(point.x) + L" " + std::to_wstring(point.y) + L" click 1";
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &startup, &process))
        return false;
    WaitForSingleObject(process.hProcess, 5000);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return true;
}

// Pumps until the condition holds or five seconds pass.
template <typename Condition> bool WaitFor(Condition condition) {
    for (int i = 0; i < 250; ++i) {
        PumpMessages();
        if (condition())
            return true;
        Sleep(20);
    }
    return false;
}

TEST_F(ComboTest, RealClicksOpenExpandAndChooseALeaf) {
    ShowWindow(parent->Handle(), SW_SHOW);
    COMBOBOXINFO info{};
    info.cbSize = sizeof(info);
    ASSERT_TRUE(GetComboBoxInfo(combo->m_hWnd, &info));
    const RECT& b = info.rcButton;
    ASSERT_TRUE(RealClick(combo->m_hWnd, (b.left + b.right) / 2, (b.top + b.bottom) / 2));
    ASSERT_TRUE(WaitFor([&] { return Dropped(); })) << "the button did not open the list";

    RECT item{};
    SendMessageW(List(), LB_GETITEMRECT, RowOf(L"Line"), reinterpret_cast<LPARAM>(&item));
    ASSERT_TRUE(RealClick(List(), 6, (item.top + item.bottom) / 2));
    ASSERT_TRUE(WaitFor([&] { return Rows().size() == 5; })) << "Line did not open";
    EXPECT_TRUE(Dropped());
    EXPECT_EQ(0, parent->CountCommands(CBN_SELENDOK));

    SendMessageW(List(), LB_GETITEMRECT, RowOf(L"Valve"), reinterpret_cast<LPARAM>(&item));
    ASSERT_TRUE(RealClick(List(), 60, (item.top + item.bottom) / 2));
    ASSERT_TRUE(WaitFor([&] { return parent->CountCommands(CBN_SELENDOK) > 0; }))
        << "no CBN_SELENDOK at the parent";
    EXPECT_FALSE(Dropped());
    EXPECT_EQ(L"Valve", EditText());
    const auto chosen = std::find_if(parent->commands.begin(), parent->commands.end(),
                                     [](const Command& c) { return c.code == CBN_SELENDOK; });
    EXPECT_EQ(kComboId, chosen->id);
}

} // namespace
} // namespace treetest

// One real drag, as a user makes it: xdotool presses the button on a tab,
// moves through the X server onto the left half of another tab and
// releases; the beam's own drag (DoDragDrop) and drop target do the rest.
#include "TabBeamTestHost.h"

#include <string>

using namespace tabtest;

namespace {

// Starts xdotool with args through Wine's start /unix; false if it could
// not be started.
bool StartXdotool(const std::wstring& args) {
    std::wstring command = L"start.exe /unix /usr/bin/xdotool " + args;
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &startup, &process))
        return false;
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return true;
}

TEST_F(BeamTest, RealDragMovesTheTabAndTellsTheOwner) {
    if (GetFileAttributesW(L"Z:\\usr\\bin\\xdotool") == INVALID_FILE_ATTRIBUTES)
        GTEST_SKIP() << "xdotool is not installed";
    CObject data[7];
    for (int i = 0; i < 7; ++i)
        beam->InsertTab(FALSE, L"Tab", &data[i], 0, 50, nullptr, nullptr);
    beam->SetTabMoveNotifyWnd(&parent);
    beam->SetCurSel(2); // activation re-measures the tabs: the press then changes nothing
    SetForegroundWindow(Host().hwnd);
    vutest::PumpPending();

    POINT from{beam->CalcTabMidpoint(2), 8}, to{beam->CalcTabMidpoint(5) - 10, 8};
    ClientToScreen(beam->m_hWnd, &from);
    ClientToScreen(beam->m_hWnd, &to);
    std::wstring args =
        L"mousemove " + std::to_wstring(from.x) + L" " + std::to_wstring(from.y) +
        L" sleep 0.4 mousedown 1 sleep 0.3 mousemove " + std::to_wstring(from.x + 6) + L" " +
        std::to_wstring(from.y) + L" sleep 0.3 mousemove " + std::to_wstring(to.x) + L" " +
        std::to_wstring(to.y) + L" sleep 0.3 mousemove " + std::to_wstring(to.x + 1) + L" " +
        std::to_wstring(to.y) + L" sleep 0.4 mouseup 1";
    ASSERT_TRUE(StartXdotool(args));
    double until = vutest::NowMs() + 10000;
    while (LastSent(WM_VU_TAB_MOVED) < 0 && vutest::NowMs() < until) {
        vutest::PumpPending(); // the drag loop runs inside a dispatched mouse move
        Sleep(10);
    }
    std::string order;
    for (int i = 0; i < beam->GetCount(); ++i)
        order += char('0' + (beam->GetTab(i)->m_pData - data));
    EXPECT_EQ(4, LastSent(WM_VU_TAB_MOVED));
    EXPECT_EQ("0134256", order);
    EXPECT_EQ(7, beam->GetCount());
    EXPECT_FALSE(beam->IsDragging());
}

} // namespace

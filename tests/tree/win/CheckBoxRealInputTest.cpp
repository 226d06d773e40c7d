// A user's click through the X server: xdotool (a Unix program, started
// through Wine's start /unix) clicks the check box of one child on the Xvfb
// display, and the parent row then shows the partly checked image on screen.
#include "TreeFixture.h"

#include "tree/CheckImages.h"
#include "tree/win/ExCheckBoxTreeListBox.h"

#include <string>

namespace treetest {
namespace {

// Runs xdotool with the arguments and waits for it; false when it could not run.
bool Xdotool(const std::wstring& arguments) {
    std::wstring command = L"start /wait /unix /usr/bin/xdotool " + arguments;
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW, nullptr,
                        nullptr, &startup, &process))
        return false;
    WaitForSingleObject(process.hProcess, 10000);
    DWORD code = 1;
    GetExitCodeProcess(process.hProcess, &code);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return code == 0;
}

// Pumps messages until done() or about `seconds` have passed.
template <class Done> bool PumpUntil(Done done, int seconds = 5) {
    for (int i = 0; i < seconds * 50 && !done(); ++i) {
        PumpMessages();
        Sleep(20);
    }
    return done();
}

TEST(CheckBoxRealInput, ClickingAChildsBoxShowsTheParentPartlyChecked) {
    HWND frame = CreateWindowExW(WS_EX_TOPMOST, L"STATIC", L"VuLib check box input test",
                                 WS_POPUP | WS_VISIBLE, 120, 120, 300, 10 * kRowHeight, nullptr,
                                 nullptr, GetModuleHandleW(nullptr), nullptr);
    ASSERT_NE(nullptr, frame);
    VU_CExCheckBoxTreeListBox list;
    ASSERT_TRUE(list.Create(kTreeStyle, CRect(0, 0, 300, 10 * kRowHeight), frame, kControlId));
    SendMessageW(list.m_hWnd, LB_SETITEMHEIGHT, 0, kRowHeight);
    int group = 0;
    list.AddItem(S(L"Conveyor"), -1, -1, 1, -1, &group);
    list.AddItem(S(L"Motor"), -1, -1, 2, group, nullptr, true);
    list.AddItem(S(L"Brake"), -1, -1, 3, group, nullptr, true);
    PumpUntil([] { return false; }, 1); // let the window map and paint

    POINT box{7, MidY(1)}; // Motor's check box
    ClientToScreen(list.m_hWnd, &box);
    ASSERT_TRUE(Xdotool(L"mousemove " + std::to_wstring(box.x) + L" " + std::to_wstring(box.y) +
                        L" click 1"))
        << "xdotool did not run";
    EXPECT_TRUE(PumpUntil([&] { return list.GetCheckImage(0) == VU_CHECKIMAGE_SOME; }));
    EXPECT_EQ(1, list.GetSelectedRow()) << "the click selects the row too";

    UpdateWindow(list.m_hWnd);
    POINT parentBox{7, 7};
    ClientToScreen(list.m_hWnd, &parentBox);
    HDC screen = GetDC(nullptr);
    const COLORREF seen = GetPixel(screen, parentBox.x, parentBox.y);
    ReleaseDC(nullptr, screen);
    EXPECT_EQ(RGB(70, 110, 170), seen) << "the partial square on the screen";

    list.DestroyWindow();
    DestroyWindow(frame);
}

} // namespace
} // namespace treetest

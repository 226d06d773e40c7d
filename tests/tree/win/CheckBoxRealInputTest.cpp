// A user's click through the X server: xdotool (a Unix program, started
// through Wine's start /unix) clicks a child's check box on the Xvfb display,
// and the parent row then shows the partly checked image on the screen.
#include "TreeFixture.h"

#include "tree/CheckImages.h"
#include "tree/win/ExCheckBoxTreeListBox.h"

#include <cstdlib>
#include <string>

namespace treetest {
namespace {

// Runs xdotool with the arguments through cmd and waits for it; true when it
// succeeded. Without the program start would wait on an error box: fail first.
bool Xdotool(const std::wstring& arguments) {
    if (GetFileAttributesW(L"Z:\\usr\\bin\\xdotool") == INVALID_FILE_ATTRIBUTES)
        return false;
    return _wsystem((L"start /wait /unix /usr/bin/xdotool " + arguments).c_str()) == 0;
}

// Pumps messages until done() or about `seconds` have passed.
template <class Done> bool PumpUntil(Done done, int seconds) {
    for (int i = 0; i < seconds * 50 && !done(); ++i) {
        PumpMessages();
        Sleep(20);
    }
    return done();
}

TEST(CheckBoxRealInput, ClickingAChildsBoxShowsTheParentPartlyChecked) {
    HWND frame =
        CreateWindowExW(WS_EX_TOPMOST, L"STATIC", L"VuLib check input", WS_POPUP | WS_VISIBLE, 120,
                        120, 300, 10 * kRowHeight, nullptr, nullptr, nullptr, nullptr);
    VU_CExCheckBoxTreeListBox list;
    ASSERT_TRUE(list.Create(kTreeStyle, CRect(0, 0, 300, 10 * kRowHeight), frame, kControlId));
    SendMessageW(list.m_hWnd, LB_SETITEMHEIGHT, 0, kRowHeight);
    int group = 0;
    list.AddItem(S(L"Conveyor"), -1, -1, 1, -1, &group);
    list.AddItem(S(L"Motor"), -1, -1, 2, group, nullptr, true);
    list.AddItem(S(L"Brake"), -1, -1, 3, group, nullptr, true);
    PumpUntil([] { return false; }, 1); // the window maps and paints

    POINT box{7, MidY(1)}, parentBox{7, 7}; // Motor's and Conveyor's boxes
    ClientToScreen(list.m_hWnd, &box);
    ClientToScreen(list.m_hWnd, &parentBox);
    ASSERT_TRUE(Xdotool(L"mousemove " + std::to_wstring(box.x) + L" " + std::to_wstring(box.y) +
                        L" click 1"));
    EXPECT_TRUE(PumpUntil([&] { return list.GetCheckImage(0) == VU_CHECKIMAGE_SOME; }, 5));
    UpdateWindow(list.m_hWnd);
    HDC screen = GetDC(nullptr);
    EXPECT_EQ(RGB(70, 110, 170), GetPixel(screen, parentBox.x, parentBox.y)) << "partial square";
    ReleaseDC(nullptr, screen);
    list.DestroyWindow();
    DestroyWindow(frame);
}

} // namespace
} // namespace treetest

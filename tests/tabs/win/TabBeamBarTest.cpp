// The beam bar in a real frame: its place and its children's at several
// widths, a real splitter drag writing the profile at every move and read by
// a new host process, and scroll events and accessors reaching tab data.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "foundation/win/HostServices.h"
#include "framework/win/FrameWnd.h"
#include "framework/win/Geometry.h"
#include "support/TestWindow.h"
#include "tabs/win/TabBeamBar.h"

namespace {

// ---- real input: xdotool (through Wine's start.exe /unix) on the test's
// display, while this thread pumps its messages

// Pumps messages until done() holds or timeoutMs pass; returns done().
template <class Predicate> bool PumpUntil(Predicate done, DWORD timeoutMs = 3000) {
    const DWORD deadline = GetTickCount() + timeoutMs;
    while (!done() && GetTickCount() < deadline) {
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
        vutest::PumpPending();
    }
    return done();
}

// Runs a command line while pumping; its exit code, -1 if it failed or hung.
long RunPumping(std::wstring command, DWORD timeoutMs = 20000) {
    STARTUPINFOW si{};
    si.cb = sizeof(si);
    PROCESS_INFORMATION pi{};
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW, nullptr,
                        nullptr, &si, &pi))
        return -1;
    PumpUntil([&] { return WaitForSingleObject(pi.hProcess, 0) == WAIT_OBJECT_0; }, timeoutMs);
    DWORD code = STILL_ACTIVE;
    if (!GetExitCodeProcess(pi.hProcess, &code) || code == STILL_ACTIVE)
        TerminateProcess(pi.hProcess, code = static_cast<DWORD>(-1));
    CloseHandle(pi.hThread);
    CloseHandle(pi.hProcess);
    return static_cast<long>(code);
}

bool XdoTool(const std::wstring& args) {
    return RunPumping(L"start.exe /wait /unix /usr/bin/xdotool " + args) == 0;
}

std::wstring ScreenArgs(HWND hWnd, int x, int y) {
    POINT p{x, y};
    ClientToScreen(hWnd, &p);
    return std::to_wstring(p.x) + L" " + std::to_wstring(p.y);
}

// ---- the bar

const UINT kBarId = 0xE810;
const wchar_t* const kChildEnv = L"VU_BAR_EXPECTED_SPLITTER";
const int kUnset = -12345;

const wchar_t* const kSection = AF_CTabBeamBar::kProfileSection;
const wchar_t* const kEntry = AF_CTabBeamBar::kProfileEntry;
int StoredPosition() {
    return static_cast<int>(VuGetHostServices()->GetProfileInt(kSection, kEntry, kUnset));
}
// Stores pos in the profile, or removes the entry for kUnset.
void Store(int pos) {
    if (pos == kUnset)
        VuGetHostServices()->WriteProfileString(kSection, kEntry, nullptr);
    else
        VuGetHostServices()->WriteProfileInt(kSection, kEntry, pos);
}

CRect RectIn(HWND parent, HWND child) {
    CRect r;
    ::GetWindowRect(child, r);
    ::MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&r), 2);
    return r;
}

// Records what the bar hands a tab's data object.
struct RecordingExtra : AF_CTabExtra {
    explicit RecordingExtra(DWORD id) : uid(id) {}
    void OnHScroll(UINT code, UINT, CScrollBar* bar) override {
        codes.push_back(code);
        lastBar = bar;
    }
    void ScrollbarActivated() override { ++activations; }
    DWORD GetRoutineUID() const override { return uid; }
    DWORD uid;
    std::vector<UINT> codes;
    CScrollBar* lastBar = nullptr;
    int activations = 0;
};

// A frame on the stage with a beam bar along its bottom and a pane.
struct BarFrame {
    CFrameWnd frame;
    AF_CTabBeamBar bar;
    CWnd pane;
    BarFrame(int width, int height, int barHeight = 20) {
        CWnd* stage = CWnd::FromHandle(vutest::Stage());
        frame.Create(nullptr, L"routine editor", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN,
                     CRect(0, 0, width, height), stage);
        bar.Create(0, CRect(0, 0, width, barHeight), &frame, kBarId);
        pane.CreateEx(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 1, 1), &frame,
                      AFX_IDW_PANE_FIRST);
        frame.RecalcLayout();
    }
    HWND Child(int id) const { return ::GetDlgItem(bar.m_hWnd, id); }
};

TEST(TabBeamBarTest, FramePlacesTheBarAndTheBarItsChildren) {
    const int m = 4 * GetSystemMetrics(SM_CXHTHUMB) + 20;
    const int cxv = GetSystemMetrics(SM_CXVSCROLL);
    Store(250);
    BarFrame f(600, 300, 23);
    wchar_t className[64] = {};
    GetClassNameW(f.bar.m_hWnd, className, 64);
    EXPECT_STREQ(L"AfxControlBar70u", className);
    EXPECT_EQ(CBRS_ALIGN_BOTTOM, f.bar.GetBarStyle());
    for (int id : {1, 2, 257})
        ASSERT_NE(f.Child(id), nullptr) << "child " << id;
    const HWND splitter = f.Child(257);
    EXPECT_EQ(static_cast<ULONG_PTR>(CS_HREDRAW | CS_VREDRAW),
              GetClassLongPtrW(splitter, GCL_STYLE));
    EXPECT_EQ(reinterpret_cast<ULONG_PTR>(GetStockObject(LTGRAY_BRUSH)),
              GetClassLongPtrW(splitter, GCLP_HBRBACKGROUND));
    EXPECT_NE(0u, GetClassLongPtrW(splitter, GCLP_HCURSOR)) << "cursor 30980";

    // The bar is the frame's client width + 1 wide; the splitter stays at the
    // stored position unless the bar is too narrow for it.
    struct Row {
        const char* name;
        int width, x;
    } rows[] = {{"wide", 700, 250},
                {"right pane too narrow", 300, 301 - m},
                {"narrower than two panes", 2 * m - 10, m - 9}};
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        f.frame.SetWindowPos(static_cast<HWND>(nullptr), 0, 0, r.width, 300, SWP_NOZORDER);
        EXPECT_EQ(CRect(0, 277, r.width + 1, 300), RectIn(f.frame.m_hWnd, f.bar.m_hWnd));
        EXPECT_EQ(CRect(0, 0, r.width, 277), RectIn(f.frame.m_hWnd, f.pane.m_hWnd));
        EXPECT_EQ(CRect(0, 0, r.x, 23), RectIn(f.bar.m_hWnd, f.Child(1)));
        EXPECT_EQ(CRect(r.x, 0, r.x + 10, 23), RectIn(f.bar.m_hWnd, f.Child(257)));
        EXPECT_EQ(CRect(r.x + 12, 0, r.width + 3 - cxv, 23), RectIn(f.bar.m_hWnd, f.Child(2)));
        EXPECT_EQ(250, f.bar.GetSplitterPosition()) << "layout leaves the stored value alone";
    }

    // At creation: the profile's value, or half the bar's client width.
    struct Start {
        const char* name;
        int stored, pos, x;
    } starts[] = {{"nothing stored", kUnset, 301, 301}, {"-1 stored", -1, -1, m}};
    for (const Start& s : starts) {
        SCOPED_TRACE(s.name);
        Store(s.stored);
        BarFrame g(600, 200);
        EXPECT_EQ(s.pos, g.bar.GetSplitterPosition());
        EXPECT_EQ(s.x, RectIn(g.bar.m_hWnd, g.Child(257)).left);
    }
}

// Drags the splitter with the X server's mouse: every move is in the
// profile at once, the release leaves it where it was dropped.
TEST(TabBeamBarTest, RealDragWritesTheProfileAtEveryMove) {
    const int m = 4 * GetSystemMetrics(SM_CXHTHUMB) + 20;
    Store(300);
    BarFrame f(600, 300);
    f.frame.UpdateWindow();
    const HWND splitter = f.Child(257);
    ASSERT_TRUE(XdoTool(L"mousemove " + ScreenArgs(splitter, 5, 10)));
    ASSERT_TRUE(XdoTool(L"mousedown 1"));
    ASSERT_TRUE(PumpUntil([&] { return f.bar.GetSplitter()->IsTracking(); }))
        << "the splitter did not see the button go down";

    // {dx, expected}: the last two stop at the panes.
    for (auto [dx, expected] : {std::pair{40, 340}, {-100, 240}, {-400, m}, {700, 601 - m}}) {
        SCOPED_TRACE(dx);
        ASSERT_TRUE(XdoTool(L"mousemove_relative -- " + std::to_wstring(dx) + L" 0"));
        PumpUntil([&] { return f.bar.GetSplitterPosition() == expected; });
        EXPECT_EQ(expected, f.bar.GetSplitterPosition());
        EXPECT_EQ(expected, StoredPosition()) << "profile after the move";
        EXPECT_EQ(expected, RectIn(f.bar.m_hWnd, splitter).left);
    }
    // Back inside the range: the splitter follows the pointer at the grab offset.
    ASSERT_TRUE(XdoTool(L"mousemove_relative -- -250 0"));
    ASSERT_TRUE(XdoTool(L"mouseup 1"));
    PumpUntil([&] { return !f.bar.GetSplitter()->IsTracking(); });
    EXPECT_TRUE(!f.bar.GetSplitter()->IsTracking() && ::GetCapture() == nullptr);
    CPoint pointer;
    GetCursorPos(vu::AsPOINT(&pointer));
    f.bar.ScreenToClient(&pointer);
    const int dropped = f.bar.GetSplitterPosition();
    EXPECT_EQ(pointer.x - 5, dropped);
    EXPECT_EQ(dropped, StoredPosition());

    // A new host process reads the dropped position at its start.
    wchar_t exe[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, exe, MAX_PATH);
    std::wstring command = L"\"" + std::wstring(exe) + L"\" --gtest_filter=TabBeamBarRestart.*";
    SetEnvironmentVariableW(kChildEnv, std::to_wstring(dropped).c_str());
    const long code = RunPumping(command, 60000);
    SetEnvironmentVariableW(kChildEnv, nullptr);
    EXPECT_EQ(0, code) << "the restarted host did not find the splitter at " << dropped;
}

// Runs only in the process the drag test starts.
TEST(TabBeamBarRestart, NewProcessFindsTheStoredPosition) {
    wchar_t expected[32] = {};
    if (GetEnvironmentVariableW(kChildEnv, expected, 32) == 0)
        GTEST_SKIP() << "started by RealDragWritesTheProfileAtEveryMove";
    BarFrame f(600, 300);
    EXPECT_EQ(_wtoi(expected), f.bar.GetSplitterPosition());
    EXPECT_EQ(_wtoi(expected), RectIn(f.bar.m_hWnd, f.Child(257)).left);
}

TEST(TabBeamBarTest, ScrollEventsAndAccessorsReachTheRightTabData) {
    Store(200);
    BarFrame f(600, 300);
    HMENU menu = CreatePopupMenu(), sub = CreatePopupMenu();
    AppendMenuW(sub, MF_STRING | MF_CHECKED, 511, L"Ladder");
    AppendMenuW(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(sub), L"View");
    auto* first = new RecordingExtra(11);
    auto* second = new RecordingExtra(22);
    CObject plain; // data that is not a tab extra
    f.bar.InsertTab(FALSE, L"MainRoutine", first, TRUE, -1, menu);
    f.bar.InsertTab(FALSE, L"Fill", second, TRUE);
    f.bar.GetTabBeam()->InsertTab(FALSE, L"Plain", &plain, FALSE, -1, nullptr, nullptr);
    f.bar.SetHScrollRange(0, 100);
    f.bar.SetCurSel(1);
    f.frame.UpdateWindow();

    // A key on the scroll bar makes it scroll its parent, the bar.
    const HWND scroll = f.Child(2);
    ::SendMessageW(scroll, WM_KEYDOWN, VK_RIGHT, 0);
    EXPECT_EQ((std::vector<UINT>{SB_LINERIGHT}), second->codes);
    EXPECT_EQ(f.bar.GetHScrollBar(), second->lastBar);
    // A real click on the scroll bar's page area: activation, then the scroll.
    CRect sb;
    ::GetClientRect(scroll, sb);
    ASSERT_TRUE(XdoTool(L"mousemove " + ScreenArgs(scroll, sb.right - 40, 8) + L" click 1"));
    PumpUntil([&] { return second->codes.back() == SB_ENDSCROLL; });
    EXPECT_EQ(1, second->activations);
    ASSERT_GE(second->codes.size(), 3u);
    EXPECT_EQ(SB_PAGERIGHT, second->codes[1]);
    EXPECT_TRUE(first->codes.empty() && first->activations == 0);
    // A tab whose data is no tab extra ignores both.
    f.bar.SetCurSel(2);
    const size_t before = second->codes.size();
    ::SendMessageW(scroll, WM_KEYDOWN, VK_LEFT, 0);
    f.bar.ScrollbarActivated();
    EXPECT_EQ(before, second->codes.size());
    EXPECT_EQ(1, second->activations);
    EXPECT_EQ(2, f.bar.GetMenuTabIndex());

    struct Row {
        int index;
        AF_CTabExtra* data;
        DWORD uid;
        BOOL hasMenu;
    } rows[] = {{0, first, 11, TRUE},
                {1, second, 22, FALSE},
                {2, nullptr, 0, FALSE},
                {-1, nullptr, 0, FALSE}};
    for (const Row& r : rows) {
        SCOPED_TRACE(r.index);
        EXPECT_EQ(r.data, f.bar.GetTabExtraData(r.index));
        EXPECT_EQ(r.uid, f.bar.GetRoutineUID(r.index));
        CMenu copy;
        EXPECT_EQ(r.hasMenu, f.bar.GetPopupMenu(r.index, copy));
    }
    // The caller gets a menu of its own, submenus copied too.
    CMenu copy;
    ASSERT_TRUE(f.bar.GetPopupMenu(0, copy));
    HMENU copiedSub = ::GetSubMenu(copy.m_hMenu, 0);
    ASSERT_NE(nullptr, copiedSub);
    EXPECT_EQ(511u, ::GetMenuItemID(copiedSub, 0));
    EXPECT_EQ(static_cast<UINT>(MF_CHECKED), ::GetMenuState(copiedSub, 0, MF_BYPOSITION));
    EXPECT_FALSE(f.bar.GetPopupMenu(0, copy)) << "a CMenu already holding one";
    copy.DestroyMenu();
    EXPECT_TRUE(IsMenu(menu) && IsMenu(sub)) << "the tab keeps its menu";
}

} // namespace

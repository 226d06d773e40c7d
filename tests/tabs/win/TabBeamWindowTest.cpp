// The beam's window with real messages: creation, painting read back,
// clicks with modifiers, the scroll bar and tooltips.
#include "TabBeamTestHost.h"

#include "foundation/win/HostServices.h"

#include <commctrl.h>

#include <string>

using namespace tabtest;

namespace {

std::string Marks(const Vu_CTabBeam& beam) {
    std::string marks;
    for (int i = 0; i < beam.GetCount(); ++i)
        marks += beam.IsTabMarked(i) ? '1' : '0';
    return marks;
}

TEST_F(BeamTest, CreationFromCodeAndFromTheWindowClass) {
    EXPECT_EQ(WS_CHILD | WS_CLIPSIBLINGS,
              GetWindowLongW(beam->m_hWnd, GWL_STYLE) & (WS_CHILD | WS_CLIPSIBLINGS));
    RECT r{};
    GetClientRect(beam->m_hWnd, &r);
    EXPECT_EQ(beam->GetHeight(), r.bottom);
    EXPECT_GT(beam->GetHeight(), 10);
    HWND bar = GetDlgItem(beam->m_hWnd, Vu_CTabBeam::kScrollBarId);
    ASSERT_NE(nullptr, bar);
    EXPECT_FALSE(IsWindowEnabled(bar));
    AddTabs({L"Main"});
    EXPECT_TRUE(IsWindowEnabled(bar));

    // As a dialog template creates it: by class name only.
    HWND made = CreateWindowExW(0, Vu_CTabBeam::RegisterClassW(), L"", WS_CHILD, 0, 40, 300, 30,
                                Host().hwnd, nullptr, GetModuleHandleW(nullptr), nullptr);
    ASSERT_NE(nullptr, made);
    auto* hooked = dynamic_cast<Vu_CTabBeam*>(CWnd::FromHandlePermanent(made));
    ASSERT_NE(nullptr, hooked);
    EXPECT_NE(nullptr, GetDlgItem(made, Vu_CTabBeam::kScrollBarId));
    hooked->InsertTab(FALSE, L"Template", nullptr, 0, -1, nullptr, nullptr);
    EXPECT_EQ(1, hooked->GetCount());
    DestroyWindow(made); // the beam object goes with it
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(made));
}

TEST_F(BeamTest, ActiveTabIsDrawnOnTopAndOpenToTheDocument) {
    AddTabs({L"Main", L"Routine", L"Other"});
    beam->SetCurSel(1);
    Picture picture(beam->m_hWnd);
    int h = beam->GetHeight(), ov = beam->GetOverlap();
    int x1 = beam->CalcTabOffset(1), x2 = beam->CalcTabOffset(2);
    COLORREF window = GetSysColor(COLOR_WINDOW), face = GetSysColor(COLOR_3DFACE);
    EXPECT_EQ(window, picture.At(x1 + ov + 5, 0)); // the active tab breaks the edge
    EXPECT_EQ(RGB(0, 0, 0), picture.At(beam->CalcTabOffset(0) + ov + 5, 0));
    // Where tabs 1 and 2 overlap, tab 1 (active, drawn last) shows.
    EXPECT_EQ(window, picture.At(x2 + 2, 2));
    EXPECT_EQ(face, picture.At(x2 + ov + 4, h / 2));
    // Text ink inside the active tab; background right of the last tab.
    RECT text{x1 + ov + 2, 1, x1 + ov + beam->GetTab(1)->m_nWidth - 2, h - 2};
    EXPECT_GT(picture.Count(text, RGB(0, 0, 0)), 10);
    EXPECT_EQ(GetSysColor(COLOR_SCROLLBAR), picture.At(590, h / 2));
}

TEST_F(BeamTest, NarrowBeamShowsShortenedTextsThatFit) {
    AddTabs({L"MainRoutine", L"Conveyor_Control*", L"AlarmHandling", L"Diagnostics"});
    Resize(340);
    beam->DetermineTextForResizeRoutine();
    EXPECT_TRUE(beam->IsTruncated());
    EXPECT_EQ(CString(L"MainRoutine"), beam->GetTabText(0));
    EXPECT_EQ(L"...*", std::wstring(beam->GetTab(1)->m_strLine1.View())
                           .substr(beam->GetTab(1)->m_strLine1.GetLength() - 4));
    // The last tab ends inside the beam (only its right slant may be cut).
    int right = beam->CalcTabOffset(3) + beam->GetTab(3)->m_nWidth + beam->GetOverlap();
    EXPECT_LE(right, 340);
    Picture picture(beam->m_hWnd);
    RECT last{right - beam->GetTab(3)->m_nWidth + 4, 1, right - 4, beam->GetHeight() - 2};
    EXPECT_GT(picture.Count(last, RGB(0, 0, 0)), 10);
    Resize(600); // 15 pixels or more to spare: full texts again
    beam->DetermineTextForResizeRoutine();
    EXPECT_EQ(CString(L"Conveyor_Control*"), beam->GetTab(1)->m_strLine1);
}

TEST_F(BeamTest, ClicksWithModifiersAndTheMessagesToTheOwner) {
    AddTabs({L"Main", L"Routine", L"Other", L"Last"});
    struct Row {
        const char* name;
        UINT message;
        WPARAM keys;
        int tab;
        const char* marks;
        int active;
        UINT sent;
        long long wParam;
    } rows[] = {
        {"left click activates", WM_LBUTTONDOWN, 0, 2, "0000", 2, WM_VU_TAB_SELCHANGED, 2},
        {"shift+left marks up to the active tab", WM_LBUTTONDOWN, MK_SHIFT, 0, "1100", 2, 0, 0},
        {"ctrl+right toggles one tab", WM_RBUTTONDOWN, MK_CONTROL, 3, "1101", 2, 0, 0},
        {"ctrl+right again untoggles it", WM_RBUTTONDOWN, MK_CONTROL, 3, "1100", 2, 0, 0},
        {"a marked tab keeps the marks", WM_LBUTTONDOWN, 0, 1, "1100", 1, WM_VU_TAB_SELCHANGED, 1},
        {"plain right activates and clears", WM_RBUTTONDOWN, 0, 3, "0000", 3, WM_VU_TAB_SELCHANGED,
         3},
        {"double click reports the active tab", WM_LBUTTONDBLCLK, 0, 0, "0000", 3, WM_VU_TAB_DBLCLK,
         3},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        Host().received.clear();
        CPoint p = Middle(r.tab);
        SendMessageW(beam->m_hWnd, r.message, r.keys, At(p.x, p.y));
        EXPECT_EQ(r.marks, Marks(*beam));
        EXPECT_EQ(r.active, beam->GetCurSel());
        if (r.sent != 0)
            EXPECT_EQ(r.wParam, LastSent(r.sent));
        else
            EXPECT_EQ(0, Host().Count(WM_VU_TAB_SELCHANGED) + Host().Count(WM_VU_TAB_DBLCLK));
    }
}

TEST_F(BeamTest, ScrollBarStepsOneTabAndIsEnabledOnlyWhenTabsOverflow) {
    AddTabs({L"Main", L"Routine"});
    HWND bar = GetDlgItem(beam->m_hWnd, Vu_CTabBeam::kScrollBarId);
    RedrawWindow(beam->m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_FALSE(IsWindowEnabled(bar)); // everything fits
    AddTabs({L"Third_Routine", L"Fourth_Routine", L"Fifth_Routine", L"Sixth_Routine",
             L"Seventh_Routine", L"Eighth_Routine"});
    Resize(300);
    RedrawWindow(beam->m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_TRUE(IsWindowEnabled(bar));
    struct Row {
        WPARAM code;
        LPARAM from;
        int first;
    } rows[] = {{SB_LINERIGHT, 1, 1}, {SB_RIGHT, 1, 2},     {SB_THUMBTRACK, 1, 2},
                {SB_LINELEFT, 1, 1},  {SB_LINERIGHT, 0, 1}, {SB_LEFT, 1, 0}};
    for (const Row& r : rows) {
        SCOPED_TRACE(r.code);
        SendMessageW(beam->m_hWnd, WM_HSCROLL, r.code, r.from ? reinterpret_cast<LPARAM>(bar) : 0);
        EXPECT_EQ(r.first, beam->GetFirstVisible());
    }
}

TEST_F(BeamTest, ToolTipTextComesFromTheTopLevelWindow) {
    AddTabs({L"Main", L"Routine", L"Other"});
    std::vector<NMHDR> asked;
    Host().onMessage = [&](UINT message, WPARAM, LPARAM lParam, LRESULT*) {
        auto* info = reinterpret_cast<NMTTDISPINFOW*>(lParam);
        if (message != WM_NOTIFY || info->hdr.code != TTN_GETDISPINFOW)
            return false;
        asked.push_back(info->hdr);
        if (info->hdr.idFrom == 1)
            info->lpszText = const_cast<wchar_t*>(L"Routine: scans the conveyor");
        else
            wcscpy(info->szText, L"from the buffer");
        return true;
    };
    VuGetHostServices()->SetMainWindow(Host().hwnd);
    auto tipText = [&] {
        wchar_t text[80] = L"";
        TOOLINFOW tool{};
        tool.cbSize = sizeof(tool);
        tool.hwnd = beam->m_hWnd;
        tool.uId = 1;
        tool.lpszText = text;
        SendMessageW(beam->m_toolTip.m_hWnd, TTM_GETTEXTW, 80, reinterpret_cast<LPARAM>(&tool));
        return std::wstring(text);
    };
    CPoint p = Middle(1);
    SendMessageW(beam->m_hWnd, WM_MOUSEMOVE, 0, At(p.x, p.y));
    ASSERT_EQ(1u, asked.size());
    EXPECT_EQ(1u, asked[0].idFrom);
    EXPECT_EQ(Host().hwnd, asked[0].hwndFrom);
    EXPECT_EQ(L"Routine: scans the conveyor", tipText());
    SendMessageW(beam->m_hWnd, WM_MOUSEMOVE, 0, At(p.x + 1, p.y)); // same tab: not asked again
    EXPECT_EQ(1u, asked.size());
    p = Middle(2);
    SendMessageW(beam->m_hWnd, WM_MOUSEMOVE, 0, At(p.x, p.y));
    EXPECT_EQ(L"from the buffer", tipText());
    SendMessageW(beam->m_hWnd, WM_MOUSELEAVE, 0, 0);
    EXPECT_EQ(0, SendMessageW(beam->m_toolTip.m_hWnd, TTM_GETTOOLCOUNT, 0, 0));
    vutest::PumpPending();
    EXPECT_EQ(0xE001, LastSent(0x0362)); // the status bar's idle text
    VuGetHostServices()->SetMainWindow(nullptr);
}

} // namespace

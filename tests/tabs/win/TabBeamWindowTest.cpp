// The beam's window with real messages: creation, painting read back
// (with a tab's bitmap and the library's bitmap object), clicks with
// modifiers, the scroll bar and tooltips.
#include "TabBeamTestHost.h"

#include "foundation/win/Bitmap.h"
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

TEST_F(BeamTest, PaintingShowsTheActiveTabOnTopAndShortenedTexts) {
    AddTabs({L"MainRoutine", L"Conveyor_Control*", L"AlarmHandling", L"Diagnostics"});
    beam->SetCurSel(1);
    int h = beam->GetHeight(), ov = beam->GetOverlap();
    int x1 = beam->CalcTabOffset(1), x2 = beam->CalcTabOffset(2);
    COLORREF window = GetSysColor(COLOR_WINDOW), face = GetSysColor(COLOR_3DFACE);
    {
        Picture picture(beam->m_hWnd);
        EXPECT_EQ(window, picture.At(x1 + ov + 5, 0)); // the active tab breaks the edge
        EXPECT_EQ(RGB(0, 0, 0), picture.At(beam->CalcTabOffset(0) + ov + 5, 0));
        EXPECT_EQ(window, picture.At(x2 + 2, 2)); // over tab 2 where they overlap
        EXPECT_EQ(face, picture.At(x2 + ov + 4, h / 2));
        RECT text{x1 + ov + 2, 1, x1 + ov + beam->GetTab(1)->m_nWidth - 2, h - 2};
        EXPECT_GT(picture.Count(text, RGB(0, 0, 0)), 10); // ink
        EXPECT_EQ(GetSysColor(COLOR_SCROLLBAR), picture.At(590, h / 2));
    }
    Resize(340);
    beam->DetermineTextForResizeRoutine();
    EXPECT_TRUE(beam->IsTruncated());
    EXPECT_EQ(L"...*", std::wstring(beam->GetTab(1)->m_strLine1.Right(4).View()));
    // The last tab ends inside the beam (only its right slant may be cut).
    int right = beam->CalcTabOffset(3) + beam->GetTab(3)->m_nWidth + ov;
    EXPECT_LE(right, 340);
    Picture picture(beam->m_hWnd);
    RECT last{right - beam->GetTab(3)->m_nWidth + 4, 1, right - 4, h - 2};
    EXPECT_GT(picture.Count(last, RGB(0, 0, 0)), 10);
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
        UINT sent; // the message to the owner, with wParam active (0: none)
    } rows[] = {
        {"left click activates", WM_LBUTTONDOWN, 0, 2, "0000", 2, WM_VU_TAB_SELCHANGED},
        {"shift+left marks up to the active tab", WM_LBUTTONDOWN, MK_SHIFT, 0, "1100", 2, 0},
        {"ctrl+right toggles one tab", WM_RBUTTONDOWN, MK_CONTROL, 3, "1101", 2, 0},
        {"right on a marked tab keeps the marks", WM_RBUTTONDOWN, 0, 3, "1101", 3,
         WM_VU_TAB_SELCHANGED},
        {"left on an unmarked tab clears them", WM_LBUTTONDOWN, 0, 2, "0000", 2,
         WM_VU_TAB_SELCHANGED},
        {"double click reports the active tab", WM_LBUTTONDBLCLK, 0, 0, "0000", 2,
         WM_VU_TAB_DBLCLK},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        Host().received.clear();
        CPoint p = Middle(r.tab);
        SendMessageW(beam->m_hWnd, r.message, r.keys, MAKELPARAM(p.x, p.y));
        EXPECT_EQ(r.marks, Marks(*beam));
        EXPECT_EQ(r.active, beam->GetCurSel());
        if (r.sent != 0)
            EXPECT_EQ(r.active, LastSent(r.sent));
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
    // code, from the bar (else from no control), first visible after it
    int rows[][3] = {{SB_LINERIGHT, 1, 1}, {SB_RIGHT, 1, 2},     {SB_THUMBTRACK, 1, 2},
                     {SB_LINELEFT, 1, 1},  {SB_LINERIGHT, 0, 1}, {SB_LEFT, 1, 0}};
    for (const auto& r : rows) {
        SendMessageW(beam->m_hWnd, WM_HSCROLL, r[0], r[1] ? reinterpret_cast<LPARAM>(bar) : 0);
        EXPECT_EQ(r[2], beam->GetFirstVisible()) << r[0];
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
    SendMessageW(beam->m_hWnd, WM_MOUSEMOVE, 0, MAKELPARAM(p.x, p.y));
    ASSERT_EQ(1u, asked.size());
    EXPECT_EQ(1u, asked[0].idFrom);
    EXPECT_EQ(Host().hwnd, asked[0].hwndFrom);
    EXPECT_EQ(L"Routine: scans the conveyor", tipText());
    p = Middle(2);
    SendMessageW(beam->m_hWnd, WM_MOUSEMOVE, 0, MAKELPARAM(p.x, p.y));
    EXPECT_EQ(L"from the buffer", tipText());
    SendMessageW(beam->m_hWnd, WM_MOUSELEAVE, 0, 0);
    EXPECT_EQ(0, SendMessageW(beam->m_toolTip.m_hWnd, TTM_GETTOOLCOUNT, 0, 0));
    vutest::PumpPending();
    EXPECT_EQ(0xE001, LastSent(0x0362)); // the status bar's idle text
    VuGetHostServices()->SetMainWindow(nullptr);
}

const COLORREF kKey = Vu_CTabBeam::kBitmapKey, kRed = RGB(255, 0, 0);

// 12 x 12 pixels of the key colour around a red 4 x 4 square.
HBITMAP KeyedBitmap() {
    HDC screen = GetDC(nullptr), dc = CreateCompatibleDC(screen);
    HBITMAP bitmap = CreateCompatibleBitmap(screen, 12, 12);
    ReleaseDC(nullptr, screen);
    HGDIOBJ old = SelectObject(dc, bitmap);
    for (int i = 0; i < 144; ++i)
        SetPixel(dc, i % 12, i / 12, (i % 12) / 4 == 1 && (i / 12) / 4 == 1 ? kRed : kKey);
    SelectObject(dc, old);
    DeleteDC(dc);
    return bitmap;
}

// A tab's bitmap, through the library's bitmap object.
TEST_F(BeamTest, TabBitmapSitsLeftOfTheTextWithoutItsKeyColour) {
    VU_CBitmap loaded;
    EXPECT_FALSE(loaded.LoadBitmap(60999)); // no such resource
    EXPECT_TRUE(loaded.LoadBitmap(2336));   // the library's tree images, through the chain
    AddTabs({L"Main"});
    beam->InsertTab(FALSE, L"Routine", nullptr, 0, -1, nullptr, KeyedBitmap());
    EXPECT_EQ(beam->MeasureTabTextForTest(L"Routine", false) + 12 + beam->GetOverlap() + 10,
              beam->GetTab(1)->m_nWidth);
    Picture picture(beam->m_hWnd);
    int x = beam->CalcTabOffset(1) + beam->GetOverlap();
    RECT image{x, 0, x + 12, beam->GetHeight()};
    EXPECT_EQ(16, picture.Count(image, kRed));
    EXPECT_EQ(0, picture.Count(image, kKey));
    VU_CBitmap& own = beam->GetTab(1)->m_bitmap;
    EXPECT_TRUE(own.Draw(&picture.dc, CRect(0, 0, 24, 24))); // stretched twice
    EXPECT_EQ(kRed, picture.At(9, 9));
    EXPECT_EQ(kKey, picture.At(7, 7));
    HGDIOBJ handle = own.Detach();
    EXPECT_NE(0, GetObjectType(handle)); // given up, not deleted
    DeleteObject(handle);
}

} // namespace

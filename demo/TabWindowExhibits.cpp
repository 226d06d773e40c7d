// The routine editor: a frame with one mock ladder view per open routine and
// the tab beam bar along its bottom (tabs, splitter, the active routine's
// scroll bar). The exhibit switches routines with a click on a tab, drags the
// splitter to the right, scrolls the ladder, and saves the frame.
#include "Gallery.h"

#include <algorithm>
#include <string>
#include <vector>

#include "foundation/win/HostServices.h"
#include "framework/win/DC.h"
#include "framework/win/FrameWnd.h"
#include "framework/win/View.h"
#include "tabs/win/TabBeamBar.h"
#include "tabs/win/TabWnd.h"

namespace gallery {
namespace {

const UINT kBarId = 0xE810;
const int kRungHeight = 64;
const int kLadderWidth = 900; // wider than the view: the scroll bar has work

struct Rung {
    std::vector<std::wstring> contacts; // "XIC Tag" or "XIO Tag"
    std::wstring coil;                  // "OTE Tag"
    std::wstring comment;
};

struct Routine {
    const wchar_t* name;
    DWORD uid;
    std::vector<Rung> rungs;
};

const std::vector<Routine>& Routines() {
    static const std::vector<Routine> routines = {
        {L"MainRoutine",
         1001,
         {{{L"XIC Start_PB", L"XIO Stop_PB", L"XIO Fault"}, L"OTE Line_Run", L"Line start/stop"},
          {{L"XIC Line_Run", L"XIC Infeed_PE"}, L"OTE Infeed_Motor", L"Infeed conveyor"},
          {{L"XIC Line_Run", L"XIO Case_Full"}, L"OTE Filler_Enable", L"Filler interlock"},
          {{L"XIC Estop_OK"}, L"OTE Safety_Relay", L"Safety chain"}}},
        {L"Fill_Sequence",
         1002,
         {{{L"XIC Filler_Enable", L"XIC Bottle_Present"}, L"OTE Valve_Open", L"Open the valve"},
          {{L"XIC Level_High"}, L"OTU Valve_Open", L"Close at level"}}},
        {L"Palletize",
         1003,
         {{{L"XIC Case_Ready", L"XIO Robot_Busy"}, L"OTE Pick_Request", L"Request a pick"},
          {{L"XIC Layer_Done"}, L"OTE Slip_Sheet", L"Slip sheet between layers"}}},
        {L"Alarm_Handling",
         1004,
         {{{L"XIC Fault", L"XIO Ack_PB"}, L"OTE Horn", L"Horn until acknowledged"}}},
        {L"Recipe_Select", 1005, {{{L"XIC Recipe_Change"}, L"OTE Load_Recipe", L"Load recipe"}}},
    };
    return routines;
}

// A ladder routine drawn as a controller editor shows it: two rails, one rung
// per row with its number, contacts and a coil at the right rail.
class LadderView : public CView {
public:
    explicit LadderView(const Routine& routine) : m_routine(routine) {}
    int m_scrollX = 0;

    // Scrolls as a scroll bar asks and moves the bar's thumb along.
    void Scroll(UINT code, UINT pos, CScrollBar* bar) {
        int x = m_scrollX;
        switch (code) {
        case SB_LINELEFT:
            x -= 20;
            break;
        case SB_LINERIGHT:
            x += 20;
            break;
        case SB_PAGELEFT:
            x -= 200;
            break;
        case SB_PAGERIGHT:
            x += 200;
            break;
        case SB_THUMBTRACK:
        case SB_THUMBPOSITION:
            x = static_cast<int>(pos);
            break;
        default:
            return;
        }
        CRect client;
        GetClientRect(&client);
        m_scrollX = std::max(0, std::min(x, kLadderWidth - client.Width()));
        if (bar != nullptr)
            bar->SetScrollPos(m_scrollX);
        Invalidate();
    }
    // The scroll bar's range for this view's width.
    void SetUpScrollBar(CScrollBar* bar) {
        CRect client;
        GetClientRect(&client);
        SCROLLINFO si{};
        si.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
        si.nMax = kLadderWidth - 1;
        si.nPage = static_cast<UINT>(client.Width());
        si.nPos = m_scrollX;
        bar->SetScrollInfo(&si);
    }

    void OnDraw(CDC* pDC) override {
        CRect client;
        GetClientRect(&client);
        pDC->FillSolidRect(client, RGB(255, 255, 255));
        HGDIOBJ oldFont = pDC->SelectObject(GetStockObject(DEFAULT_GUI_FONT));
        pDC->SetBkMode(TRANSPARENT);
        const int left = 64 - m_scrollX;
        const int right = kLadderWidth - 20 - m_scrollX;
        const int bottom = 16 + kRungHeight * static_cast<int>(m_routine.rungs.size());
        pDC->FillSolidRect(left, 8, 2, bottom - 8, RGB(0, 0, 0));
        pDC->FillSolidRect(right, 8, 2, bottom - 8, RGB(0, 0, 0));
        for (size_t i = 0; i < m_routine.rungs.size(); ++i)
            DrawRung(pDC, m_routine.rungs[i], static_cast<int>(i), left, right,
                     16 + kRungHeight * static_cast<int>(i));
        pDC->SelectObject(oldFont);
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_HSCROLL) {
            Scroll(LOWORD(wParam), HIWORD(wParam),
                   static_cast<CScrollBar*>(
                       CWnd::FromHandlePermanent(reinterpret_cast<HWND>(lParam))));
            return 0;
        }
        if (message == WM_VU_TABWND_ACTIVATED) { // shown in a tab window
            auto* tabs = dynamic_cast<Vu_CTabWnd*>(GetParent());
            if (tabs != nullptr && tabs->GetScrollBarCtrl(SB_HORZ) != nullptr)
                SetUpScrollBar(tabs->GetScrollBarCtrl(SB_HORZ));
            return 0;
        }
        return CView::WindowProc(message, wParam, lParam);
    }

private:
    void DrawRung(CDC* pDC, const Rung& rung, int number, int left, int right, int top) {
        const int y = top + 44;
        pDC->SetTextColor(RGB(0, 0, 0));
        pDC->TextOut(left - 30, y - 7, std::to_wstring(number).c_str(),
                     static_cast<int>(std::to_wstring(number).size()));
        pDC->SetTextColor(RGB(0, 110, 0));
        pDC->TextOut(left + 8, top + 2, rung.comment.c_str(),
                     static_cast<int>(rung.comment.size()));
        pDC->FillSolidRect(left, y, right - left, 1, RGB(0, 0, 0));
        int x = left + 30;
        for (const std::wstring& contact : rung.contacts) {
            DrawElement(pDC, x, y, contact, contact.rfind(L"XIO", 0) == 0 ? L"]/[" : L"] [");
            x += 150;
        }
        DrawElement(pDC, right - 120, y, rung.coil,
                    rung.coil.rfind(L"OTU", 0) == 0 ? L"(U)" : L"( )");
    }

    void DrawElement(CDC* pDC, int x, int y, const std::wstring& text, const wchar_t* symbol) {
        const std::wstring tag = text.substr(4);
        pDC->FillSolidRect(x, y - 8, 30, 17, RGB(255, 255, 255));
        pDC->SetTextColor(RGB(0, 0, 0));
        CRect box(x, y - 8, x + 30, y + 9);
        pDC->DrawText(symbol, -1, &box, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
        pDC->SetTextColor(RGB(0, 0, 160));
        CRect label(x - 40, y - 25, x + 70, y - 10);
        pDC->DrawText(tag.c_str(), -1, &label, DT_CENTER | DT_SINGLELINE);
    }

    const Routine& m_routine;
};

// What the bar's scroll bar does to the active routine: scroll its ladder.
class RoutineExtra : public AF_CTabExtra {
public:
    RoutineExtra(LadderView* view, DWORD uid) : m_view(view), m_uid(uid) {}
    void OnHScroll(UINT code, UINT pos, CScrollBar* bar) override {
        m_view->Scroll(code, pos, bar);
    }
    void ScrollbarActivated() override { m_view->SetFocus(); }
    DWORD GetRoutineUID() const override { return m_uid; }
    LadderView* View() const { return m_view; }

private:
    LadderView* m_view;
    DWORD m_uid;
};

// The editor frame: shows the view of the tab the beam activates.
class EditorFrame : public CFrameWnd {
public:
    AF_CTabBeamBar bar;

    void ShowRoutine(int index) {
        auto* extra = static_cast<RoutineExtra*>(bar.GetTabExtraData(index));
        if (extra == nullptr)
            return;
        for (int i = 0; i < bar.GetCount(); ++i) {
            LadderView* view = static_cast<RoutineExtra*>(bar.GetTabExtraData(i))->View();
            view->SetDlgCtrlID(view == extra->View() ? AFX_IDW_PANE_FIRST
                                                     : AFX_IDW_PANE_FIRST + 1 + i);
            view->ShowWindow(view == extra->View() ? SW_SHOW : SW_HIDE);
        }
        RecalcLayout();
        SetActiveView(extra->View());
        extra->View()->SetUpScrollBar(bar.GetHScrollBar());
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_VU_TAB_SELCHANGED) {
            ShowRoutine(static_cast<int>(wParam));
            return 0;
        }
        return CFrameWnd::WindowProc(message, wParam, lParam);
    }
};

void RoutineEditor(Context& c) {
    const int width = 760, height = 420;
    HWND host = c.CreateFrame(L"VuLib gallery - routine editor", width, height);
    // Where this host last left the splitter; the exhibit starts from a fixed one.
    VuGetHostServices()->WriteProfileInt(AF_CTabBeamBar::kProfileSection,
                                         AF_CTabBeamBar::kProfileEntry, 300);

    EditorFrame frame;
    c.Check(frame.Create(nullptr, L"editor", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN,
                         CRect(0, 0, width, height), CWnd::FromHandle(host)) != FALSE,
            "creating the editor frame");
    c.Check(frame.bar.Create(0, CRect(0, 0, width, 20), &frame, kBarId) != FALSE,
            "creating the beam bar");

    std::vector<LadderView*> views;
    for (const Routine& routine : Routines()) {
        auto* view = new LadderView(routine);
        view->Create(nullptr, routine.name, WS_CHILD, CRect(0, 0, 10, 10), &frame,
                     AFX_IDW_PANE_FIRST + 1 + static_cast<UINT>(views.size()));
        views.push_back(view);
        const std::wstring title = std::wstring(routine.name) + (routine.uid == 1003 ? L"*" : L"");
        frame.bar.InsertTab(FALSE, title.c_str(), new RoutineExtra(view, routine.uid), TRUE);
    }
    frame.bar.ShrinkTextForTab();
    frame.ShowRoutine(0);
    c.Pump();

    // A click on the second tab shows its routine.
    Vu_CTabBeam* beam = frame.bar.GetTabBeam();
    c.Click(beam->m_hWnd, beam->CalcTabMidpoint(1) + beam->GetOverlap(), 10);
    c.Check(frame.GetActiveView() == views[1], "a click on a tab shows its routine");
    c.Click(beam->m_hWnd, beam->CalcTabMidpoint(0) + beam->GetOverlap(), 10);
    c.Check(frame.GetActiveView() == views[0], "and back to the main routine");

    // The splitter dragged 170 pixels to the right, as a user's mouse does it.
    HWND splitter = frame.bar.GetSplitter()->m_hWnd;
    SendMessageW(splitter, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(4, 8));
    SendMessageW(splitter, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(174, 8));
    SendMessageW(splitter, WM_LBUTTONUP, 0, MAKELPARAM(4, 8));
    c.Pump();
    c.Check(frame.bar.GetSplitterPosition() == 470, "the splitter moved to 470");

    // One line right on the active routine's scroll bar.
    SendMessageW(frame.bar.GetHScrollBar()->m_hWnd, WM_KEYDOWN, VK_RIGHT, 0);
    c.Pump();
    c.Check(views[0]->m_scrollX == 20, "the scroll bar scrolls the active ladder");

    c.SaveClientPng(host, L"routine_editor");

    frame.DestroyWindow();
    for (LadderView* view : views)
        delete view;
    c.DestroyFrame(host);
}

// The same routines in a tab window: one pane shown at a time, the beam and
// the window's own scroll bars along the bottom and the right.
void TabWindow(Context& c) {
    const int width = 640, height = 300;
    HWND host = c.CreateFrame(L"VuLib gallery - tab window", width, height);
    CFrameWnd frame;
    c.Check(frame.Create(nullptr, L"tab frame", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN,
                         CRect(0, 0, width, height), CWnd::FromHandle(host)) != FALSE,
            "creating the frame");
    Vu_CTabWnd tabs;
    c.Check(tabs.Create(&frame, WS_CHILD | WS_VISIBLE | WS_HSCROLL | WS_VSCROLL) != FALSE,
            "creating the tab window");
    frame.RecalcLayout();
    std::vector<LadderView*> views;
    for (size_t i = 0; i < 3; ++i) {
        const Routine& routine = Routines()[i];
        auto* view = new LadderView(routine);
        view->Create(nullptr, routine.name, WS_CHILD | WS_VISIBLE, CRect(0, 0, 10, 10), &tabs,
                     static_cast<UINT>(i + 1));
        views.push_back(view);
        tabs.AttachWnd(view, routine.name);
    }
    views[0]->SetUpScrollBar(tabs.GetScrollBarCtrl(SB_HORZ));
    c.Pump();

    // A click on the third tab, then the divider dragged 80 pixels to the right.
    Vu_CTabBeam* beam = tabs.GetTabBeam();
    c.Click(beam->m_hWnd, beam->CalcTabMidpoint(2) + beam->GetOverlap(), 8);
    c.Check(tabs.GetActiveWnd() == views[2], "a click on a tab shows its pane");
    CRect beamRect;
    beam->GetWindowRect(&beamRect);
    tabs.ScreenToClient(&beamRect);
    const int y = beamRect.CenterPoint().y;
    SendMessageW(tabs.m_hWnd, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(beamRect.right + 2, y));
    SendMessageW(tabs.m_hWnd, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(beamRect.right + 2 + 80, y));
    SendMessageW(tabs.m_hWnd, WM_LBUTTONUP, 0, MAKELPARAM(beamRect.right + 2 + 80, y));
    c.Check(tabs.GetDividerPos() == beamRect.right + 80, "the divider moved 80 pixels right");
    SendMessageW(tabs.GetScrollBarCtrl(SB_HORZ)->m_hWnd, WM_KEYDOWN, VK_RIGHT, 0);
    c.Pump();
    c.Check(views[2]->m_scrollX == 20, "the window's scroll bar scrolls the shown pane");

    c.SaveClientPng(host, L"tab_window");
    frame.DestroyWindow();
    for (LadderView* view : views)
        delete view;
    c.DestroyFrame(host);
}

} // namespace
} // namespace gallery

VU_GALLERY_EXHIBIT("routine editor: tab beam bar with splitter and scroll bar",
                   gallery::RoutineEditor);
VU_GALLERY_EXHIBIT("tab window: panes, beam, divider and scroll bars", gallery::TabWindow);

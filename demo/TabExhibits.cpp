// The tab beam: a routine editor's tabs along the bottom of its document,
// too many for the window (shortened, scrolled, marked, one modified), and
// the rounded two-line style.
#include "Gallery.h"

#include "tabs/win/TabBeam.h"

#include <string>

namespace gallery {
namespace {

const wchar_t* const kRoutines[] = {L"MainRoutine",       L"Conveyor_Control*", L"Filler_Sequence",
                                    L"Capper_Torque",     L"Labeler_Sync",      L"Alarm_Handling",
                                    L"Recipe_Download",   L"Motion_Homing",     L"Palletizer_Stack",
                                    L"Safety_Interlocks", L"Diagnostics_Log",   L"Shift_Counters"};

// Wine's own palette paints scroll bars, faces and windows nearly alike
// white; the beam is shown in the classic Windows colours, which make the
// faces, marks and background tell apart. The palette is restored after.
class ClassicColours {
public:
    ClassicColours() {
        for (int i = 0; i < 3; ++i)
            m_old[i] = GetSysColor(kElements[i]);
        const COLORREF classic[3] = {RGB(212, 208, 200), RGB(200, 200, 200), RGB(128, 128, 128)};
        SetSysColors(3, kElements, classic);
    }
    ~ClassicColours() { SetSysColors(3, kElements, m_old); }

private:
    static constexpr INT kElements[3] = {COLOR_3DFACE, COLOR_SCROLLBAR, COLOR_BTNSHADOW};
    COLORREF m_old[3];
};

// The document above the beam: a white page the active tab merges with.
HWND MakeDocument(HWND frame, int width, int height, const wchar_t* text) {
    HWND page = CreateWindowExW(0, L"EDIT", text, WS_CHILD | WS_VISIBLE | ES_MULTILINE, 0, 0, width,
                                height, frame, nullptr, GetModuleHandleW(nullptr), nullptr);
    SendMessageW(page, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)),
                 FALSE);
    return page;
}

std::wstring Lines(const Vu_CTabBeam& beam) {
    std::wstring text;

    for (int i = 0; i < beam.GetCount(); ++i) {
        const Vu_CTabInfo* tab = beam.GetTab(i);
        text += std::to_wstring(i) + L"\t" + std::wstring(tab->m_strLine1.View()) + L"\t" +
                std::to_wstring(tab->m_nWidth) + (tab->m_bMarked ? L"\tmarked" : L"") +
                (i == beam.GetCurSel() ? L"\tactive" : L"") + L"\n";
    }
    return text;
}

void RoutineTabs(Context& c) {
    ClassicColours colours;
    const int width = 860, pageHeight = 90;
    HWND frame = c.CreateFrame(L"VuLib gallery - tab beam", width, pageHeight + 40);
    MakeDocument(frame, width, pageHeight,
                 L"  Rung 0: XIC(Start) OTE(Motor_Run)\r\n  Rung 1: TON(Fill_Timer,2000,0)");
    CWnd parent;
    parent.Attach(frame);
    Vu_CTabBeam beam;
    c.Check(beam.Create(WS_VISIBLE, CRect(0, pageHeight, width, pageHeight + 20), &parent, 1) !=
                FALSE,
            "creating the beam");
    beam.SetResizeTabs(TRUE);
    beam.SetTabMoveNotifyWnd(&parent);
    for (const wchar_t* routine : kRoutines)
        beam.InsertTab(FALSE, routine, nullptr, 0, -1, nullptr, nullptr);
    c.Check(beam.IsTruncated(), "twelve routines are shortened to fit");
    // The user walks to the last tabs and marks two with ctrl+right clicks.
    beam.Scroll(Vu_CTabBeam::ScrollLast);
    CPoint last(beam.CalcTabMidpoint(10), 8);
    c.Click(beam.m_hWnd, last.x, last.y);
    for (int tab : {8, 9}) {
        int x = beam.CalcTabMidpoint(tab);
        SendMessageW(beam.m_hWnd, WM_RBUTTONDOWN, MK_RBUTTON | MK_CONTROL, MAKELPARAM(x, 8));
    }
    c.Pump();
    c.Check(beam.GetCurSel() == 10, "a click activates the diagnostics tab");
    c.Check(beam.IsTabMarked(8) && beam.IsTabMarked(9), "two tabs are marked");
    c.SaveText(L"tab_beam.txt", Lines(beam), L"The tabs: index, shown text, width, state");
    c.SaveClientPng(frame, L"tab_beam",
                    L"Vu_CTabBeam: twelve routines in a narrow window, shortened with \"...\" (the "
                    L"modified one keeps its \"*\"), the active tab bold and open to the document, "
                    L"two marked tabs, the scroll bar at the left");
    beam.DestroyWindow();
    parent.Detach();
    c.DestroyFrame(frame);
}

void RoundedTabs(Context& c) {
    ClassicColours colours;
    const int width = 520, pageHeight = 60;
    HWND frame = c.CreateFrame(L"VuLib gallery - rounded tabs", width, pageHeight + 40);
    MakeDocument(frame, width, pageHeight, L"  Program: Filler");
    CWnd parent;
    parent.Attach(frame);
    Vu_CTabBeam beam;
    beam.SetDisplayStyle(Vu_CTabBeam::RoundedTabs);
    c.Check(beam.Create(WS_VISIBLE, CRect(0, pageHeight, width, pageHeight + 38), &parent, 1) !=
                FALSE,
            "creating the rounded beam");
    const wchar_t* tabs[] = {L"Filler\nMainRoutine", L"Filler\nSequence*", L"Capper\nTorque",
                             L"Alarms\nHandling"};
    for (const wchar_t* text : tabs)
        beam.InsertTab(FALSE, text, nullptr, 0, -1, nullptr, nullptr);
    beam.SetCurSel(1);
    beam.SetCurSel(1);
    c.Pump();
    c.Check(beam.GetHeight() == 36, "the rounded beam is the rectangle's height less 2");
    c.SaveClientPng(frame, L"tab_beam_rounded",
                    L"Vu_CTabBeam in the rounded two-line style: two lines per tab, the active "
                    L"tab open to the document");
    beam.DestroyWindow();
    parent.Detach();
    c.DestroyFrame(frame);
}

} // namespace
} // namespace gallery

VU_GALLERY_EXHIBIT("tab beam: routine tabs", gallery::RoutineTabs);
VU_GALLERY_EXHIBIT("tab beam: rounded two-line tabs", gallery::RoundedTabs);

// A ladder diagram laid out by the layout engine: three rungs on a grid
// whose columns line up across the rungs, each instruction a small column
// of a tag name over its icon or bitmap. The grid carries a decorator that
// draws the power rails and the rung wires beneath the instructions; one
// contact is hidden (its place stays, the wire runs through it). Icons are
// shared; one timer is a plain bitmap and one a shared bitmap.
#include "Gallery.h"

#include "framework/win/ClientDC.h"
#include "framework/win/DC.h"
#include "framework/win/PaintDC.h"
#include "framework/win/Wnd.h"
#include "layout/BoundingRectVisitor.h"
#include "layout/HitTestVisitor.h"
#include "layout/LayoutCell.h"
#include "layout/LayoutContainerDecorator.h"
#include "layout/LayoutGrid.h"
#include "layout/OrderedLayoutContainer.h"
#include "layout/win/LayoutBitmap.h"
#include "layout/win/LayoutWithSharedBitmap.h"
#include "layout/win/LayoutWithSharedIcon.h"
#include "resources/resource.h"

#include <string>

namespace gallery {
namespace {

using D = VU_LayoutDefs;

// A line of text in the default GUI font, measured with the device context
// when the tree is laid out.
class TextLeaf : public VU_CConcreteElement {
public:
    TextLeaf(std::wstring text, COLORREF colour) : m_text(std::move(text)), m_colour(colour) {
        SetFlexible(0, 0);
    }
    void RecalcLayout(CDC* pDC) override {
        HGDIOBJ old = SelectObject(pDC->GetSafeHdc(), GetStockObject(DEFAULT_GUI_FONT));
        SIZE extent{};
        GetTextExtentPoint32W(pDC->GetSafeHdc(), m_text.c_str(), int(m_text.size()), &extent);
        SelectObject(pDC->GetSafeHdc(), old);
        m_size = CSize(extent.cx, extent.cy);
    }
    CSize RecalcSize() override { return GetVisibility() == D::VISIBLE ? m_size : CSize(); }
    CRect GetObjectRect() const override { return m_rect; }
    void SetObjectRect(CRect rect) override { m_rect = rect; }
    void OnDraw(CDC* pDC) override {
        if (GetVisibility() != D::VISIBLE)
            return;
        HDC dc = pDC->GetSafeHdc();
        HGDIOBJ old = SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT));
        SetBkMode(dc, TRANSPARENT);
        SetTextColor(dc, m_colour);
        RECT r = {m_rect.left, m_rect.top, m_rect.right, m_rect.bottom};
        DrawTextW(dc, m_text.c_str(), int(m_text.size()), &r, DT_SINGLELINE | DT_NOPREFIX);
        SelectObject(dc, old);
    }

private:
    std::wstring m_text;
    COLORREF m_colour;
    CSize m_size;
    CRect m_rect;
};

// Draws the rails at the grid's left and right edges and one wire through
// the middle of each row, before the instructions draw over them.
class RungDecorator : public VU_CLayoutContainerDecorator {
public:
    void DrawBefore(CDC* pDC, VU_CLayoutElementContainer* container) override {
        auto* grid = static_cast<VU_CLayoutGrid*>(container);
        const CRect r = grid->GetLayoutRect();
        const vu::layout::Tracks& tracks = grid->GetTracks();
        HDC dc = pDC->GetSafeHdc();
        pDC->FillSolidRect(r, RGB(250, 250, 244));
        for (size_t row = 0; row < tracks.tops.size(); ++row) {
            // Through the symbols' middle: 8 above the row's bottom, half of 32.
            const int y = r.top + tracks.tops[row] + tracks.heights[row] - 8 - 16;
            pDC->FillSolidRect(CRect(r.left, y - 1, r.right, y + 1), RGB(40, 40, 40));
            wchar_t number[8];
            wsprintfW(number, L"%d", int(row));
            SetBkMode(dc, TRANSPARENT);
            SetTextColor(dc, RGB(120, 120, 120));
            TextOutW(dc, r.left - 22, y - 7, number, lstrlenW(number));
        }
        pDC->FillSolidRect(CRect(r.left - 4, r.top, r.left, r.bottom), RGB(30, 70, 170));
        pDC->FillSolidRect(CRect(r.right, r.top, r.right + 4, r.bottom), RGB(30, 70, 170));
    }
    void DrawAfter(CDC*, VU_CLayoutElementContainer*) override {}
};

// A tag name over its symbol, both centred, the stack placed at the bottom
// of its grid cell (so that the symbols of a rung line up on its wire) and
// at `align` across it.
VU_CLayoutCell* Instruction(const wchar_t* tag, VU_CLayoutElement* symbol,
                            UINT align = D::ALIGN_HCENTER) {
    auto* stack = new VU_COrderedLayoutContainer(D::VERTICAL, 2);
    stack->Add(new VU_CLayoutCell(new TextLeaf(tag, RGB(0, 0, 0)), D::ALIGN_HCENTER));
    stack->Add(new VU_CLayoutCell(symbol, D::ALIGN_HCENTER | D::ALIGN_VCENTER));
    stack->SetFlexible(0, 0);
    return new VU_CLayoutCell(
        stack, VU_CELLLAYOUT(align | D::ALIGN_BOTTOM, CRect(6, 8, 6, 8), 0, 0, D::INTERNAL));
}

VU_CLayoutElement* Icon(UINT id) {
    return new VU_CLayoutWithSharedIcon(id, CSize(32, 32));
}

struct Diagram {
    VU_COrderedLayoutContainer root{D::VERTICAL, 10};
    VU_CLayoutGrid* grid = new VU_CLayoutGrid(new RungDecorator);
    VU_CLayoutElement* hidden = nullptr;
    VU_CLayoutElement* motor = nullptr;
    VU_CLayoutElement* timer = nullptr;

    Diagram() {
        root.Add(new VU_CLayoutCell(
            new TextLeaf(L"MainRoutine - conveyor start/stop, laid out by the layout engine",
                         RGB(30, 70, 170))));
        const int last = 4;
        grid->SetAt(Instruction(L"Start_PB", Icon(IDI_VU_LAYOUT_CONTACT)), 0, 0);
        grid->SetAt(Instruction(L"Stop_PB", Icon(IDI_VU_LAYOUT_CONTACT)), 0, 1);
        grid->SetAt(Instruction(L"E_Stop_OK", Icon(IDI_VU_LAYOUT_CONTACT)), 0, 2);
        motor = Icon(IDI_VU_LAYOUT_COIL);
        grid->SetAt(Instruction(L"Motor_Run", motor, D::ALIGN_RIGHT), 0, last);

        grid->SetAt(Instruction(L"Motor_Run", Icon(IDI_VU_LAYOUT_CONTACT)), 1, 0);
        timer = new VU_CLayoutBitmap(IDB_VU_LAYOUT_TIMER);
        grid->SetAt(Instruction(L"Jam_Timer", timer), 1, 1);
        grid->SetAt(Instruction(L"Jam_Alarm", Icon(IDI_VU_LAYOUT_COIL), D::ALIGN_RIGHT), 1, last);

        grid->SetAt(Instruction(L"Jam_Alarm", Icon(IDI_VU_LAYOUT_CONTACT)), 2, 0);
        hidden = Icon(IDI_VU_LAYOUT_CONTACT);
        grid->SetAt(Instruction(L"Test_Mode", hidden), 2, 1);
        grid->SetAt(
            Instruction(L"Dwell_Timer", new VU_CLayoutWithSharedBitmap(IDB_VU_LAYOUT_TIMER)), 2, 2);
        grid->SetAt(Instruction(L"Alarm_Lamp", Icon(IDI_VU_LAYOUT_LAMP), D::ALIGN_RIGHT), 2, last);
        root.Add(grid);
        hidden->SetVisibility(D::HIDDEN);
    }
};

LRESULT CALLBACK DiagramProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_PAINT) {
        CPaintDC dc(CWnd::FromHandle(hWnd));
        CRect client;
        GetClientRect(hWnd, client);
        dc.FillSolidRect(client, RGB(255, 255, 255));
        if (auto* root =
                reinterpret_cast<VU_CLayoutElement*>(GetWindowLongPtrW(hWnd, GWLP_USERDATA)))
            root->Draw(&dc);
        return 0;
    }
    return DefWindowProcW(hWnd, message, wParam, lParam);
}

void LadderDiagram(Context& c) {
    const int width = 640, height = 250;
    HWND frame = c.CreateFrame(L"VuLib gallery - ladder diagram", width, height);
    WNDCLASSW wc{};
    wc.lpfnWndProc = DiagramProc;
    wc.hInstance = GetModuleHandleW(nullptr);
    wc.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    wc.lpszClassName = L"VuLayoutDiagram";
    RegisterClassW(&wc);
    HWND view = CreateWindowExW(0, wc.lpszClassName, L"", WS_CHILD | WS_VISIBLE, 0, 0, width,
                                height, frame, nullptr, wc.hInstance, nullptr);

    Diagram d;
    {
        CClientDC dc(CWnd::FromHandle(view));
        d.root.SetLayoutRect(CRect(40, 16, width - 24, 16));
        d.root.RecalcLayout(&dc);
    }
    SetWindowLongPtrW(view, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&d.root));
    InvalidateRect(view, nullptr, TRUE);
    c.Pump();

    VU_CBoundingRectVisitor bounds;
    d.root.Accept(&bounds);
    c.Check(bounds.GetBoundingRect().right <= width && bounds.GetBoundingRect().bottom <= height,
            "the diagram fits the window");
    const CRect motorRect = static_cast<VU_CConcreteElement*>(d.motor)->GetObjectRect();
    VU_CHitTestVisitor onMotor(motorRect.CenterPoint());
    d.root.Accept(&onMotor);
    c.Check(onMotor.GetHit() == d.motor, "a hit at the motor coil finds it");
    VU_CHitTestVisitor onHidden(
        static_cast<VU_CConcreteElement*>(d.hidden)->GetObjectRect().CenterPoint());
    d.root.Accept(&onHidden);
    c.Check(onHidden.GetHit() == nullptr, "the hidden contact is not hit");
    const CRect timerRect = static_cast<VU_CConcreteElement*>(d.timer)->GetObjectRect();
    c.Check(timerRect.Width() == 48 && timerRect.Height() == 32, "the timer keeps its size");
    VU_CHitTestVisitor onTimer(timerRect.CenterPoint());
    d.root.Accept(&onTimer);
    c.Check(onTimer.GetHit() == d.timer, "a hit on the timer bitmap finds it");

    c.SaveClientPng(
        frame, L"layout_ladder_diagram",
        L"A ladder diagram laid out by the layout engine: three rungs on a grid whose "
        L"columns line up, tag names over shared icons and bitmaps, the rails and wires "
        L"drawn by the grid's decorator, the Test_Mode contact hidden");
    SetWindowLongPtrW(view, GWLP_USERDATA, 0);
    DestroyWindow(view);
    c.DestroyFrame(frame);
}

} // namespace
} // namespace gallery

VU_GALLERY_EXHIBIT("layout engine: a ladder diagram on a grid", gallery::LadderDiagram);

// The drop side through the IDropTarget the beam registers for its window,
// with real data objects (the beam's own tab format and a foreign one);
// then one real drag as a user makes it: xdotool presses the button on a
// tab, moves through the X server onto the left half of another tab and
// releases, and the beam's own drag (DoDragDrop) and drop target do the rest.
#include "TabBeamTestHost.h"

#include "framework/win/OleDataSource.h"

#include <string>

using namespace tabtest;

namespace {

// A data object offering `bytes` under format, as the beam's drags do.
IDataObject* Data(CLIPFORMAT format, const void* bytes, size_t size) {
    auto* source = new COleDataSource;
    HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, size);
    memcpy(GlobalLock(block), bytes, size);
    GlobalUnlock(block);
    source->CacheGlobalData(format, block);
    return source;
}
IDataObject* TabData(DWORD index) {
    return Data(Vu_CTabBeam::GetTabIdFormat(), &index, sizeof(index));
}

class DropTest : public BeamTest {
protected:
    void SetUp() override {
        BeamTest::SetUp();
        beam->SetTabMoveNotifyWnd(&parent);
        for (int i = 0; i < 7; ++i)
            beam->InsertTab(FALSE, L"Tab", &data[i], 0, 50, nullptr, nullptr);
        target = &beam->m_dropTarget;
    }
    // x 10 pixels left or right of tab k's midpoint, in screen coordinates.
    POINTL OnTab(int k, bool rightHalf) const {
        POINT p{beam->CalcTabMidpoint(k) + (rightHalf ? 10 : -10), 8};
        ClientToScreen(beam->m_hWnd, &p);
        return POINTL{p.x, p.y};
    }
    // DragEnter with object, or DragOver without; returns the answer.
    DWORD Effect(POINTL p, IDataObject* enterWith = nullptr) {
        DWORD effect = DROPEFFECT_MOVE | DROPEFFECT_COPY;
        if (enterWith != nullptr)
            target->DragEnter(enterWith, MK_LBUTTON, p, &effect);
        else
            target->DragOver(MK_LBUTTON, p, &effect);
        return effect;
    }
    std::string Order() const {
        std::string order;
        for (int i = 0; i < beam->GetCount(); ++i)
            order += char('0' + (beam->GetTab(i)->m_pData - data));
        return order;
    }

    CObject data[7];
    IDropTarget* target = nullptr;
};

TEST_F(DropTest, AnswersPinTheFirstTabAndRefusedDropsMoveNothing) {
    EXPECT_EQ(DRAGDROP_E_ALREADYREGISTERED, RegisterDragDrop(beam->m_hWnd, target));
    struct Row {
        const char* name;
        int dragged, over; // dragged -1: text instead of a tab
        DWORD enter, effect;
    } rows[] = {
        {"tab 3 over tab 5", 3, 5, DROPEFFECT_MOVE, DROPEFFECT_MOVE},
        {"tab 3 over tab 0", 3, 0, DROPEFFECT_NONE, DROPEFFECT_NONE},
        {"tab 0 over tab 4", 0, 4, DROPEFFECT_MOVE, DROPEFFECT_NONE},
        {"text over tab 2", -1, 2, DROPEFFECT_NONE, DROPEFFECT_NONE},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        IDataObject* object =
            r.dragged >= 0 ? TabData(r.dragged) : Data(CF_UNICODETEXT, L"Main*", 12);
        EXPECT_EQ(r.enter, Effect(OnTab(r.over, false), object));
        DWORD effect = Effect(OnTab(r.over, false));
        EXPECT_EQ(r.effect, effect);
        if (effect == DROPEFFECT_NONE) {
            target->Drop(object, 0, OnTab(r.over, false), &effect);
            EXPECT_EQ("0123456", Order());
        }
        target->DragLeave();
        object->Release();
    }
    beam->SetTabMoveNotifyWnd(nullptr); // dragging tabs is off
    IDataObject* object = TabData(3);
    EXPECT_EQ(DROPEFFECT_NONE, Effect(OnTab(5, false), object));
    target->DragLeave();
    object->Release();
}

TEST_F(DropTest, DropLandsBesideTheHalfOfTheTabUnderIt) {
    struct Row {
        const char *name, *order;
        int from, over, moved;
        bool rightHalf;
    } rows[] = {
        {"2 on the left half of 5", "0134256", 2, 5, 4, false},
        {"4 on the right half of 1", "0142356", 4, 1, 2, true},
        {"2 on the right half of 1", "0123456", 2, 1, -1, true},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        SetUp();                 // a fresh beam
        beam->SetDragging(true); // as inside the beam's own drag
        IDataObject* object = TabData(r.from);
        DWORD effect = Effect(OnTab(r.over, r.rightHalf), object);
        target->Drop(object, 0, OnTab(r.over, r.rightHalf), &effect);
        object->Release();
        EXPECT_EQ(DROPEFFECT_NONE, effect); // the beam moved the tab itself
        EXPECT_EQ(r.order, Order());
        EXPECT_EQ(7, beam->GetCount());
        EXPECT_EQ(r.moved, LastSent(WM_VU_TAB_MOVED));
        if (r.moved >= 0) {
            EXPECT_EQ(r.from, beam->GetPrevSel());
        }
        TearDown();
    }
}

TEST_F(DropTest, HoveringOverTheScrollBarScrollsEveryHalfSecond) {
    Resize(250);
    beam->Scroll(Vu_CTabBeam::ScrollLast);
    int scrolled = beam->GetFirstVisible();
    ASSERT_GT(scrolled, 1);
    RedrawWindow(beam->m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    IDataObject* object = TabData(3);
    Effect(OnTab(scrolled, false), object);
    POINT arrow{3, 8}; // the left arrow
    ClientToScreen(beam->m_hWnd, &arrow);
    EXPECT_EQ(DROPEFFECT_SCROLL, Effect(POINTL{arrow.x, arrow.y}));
    for (double until = vutest::NowMs() + 1150; vutest::NowMs() < until; Sleep(20))
        vutest::PumpPending();
    EXPECT_EQ(scrolled - 2, beam->GetFirstVisible()); // two ticks
    // Back over a tab: the timer stops and that tab becomes active.
    int tab = beam->GetFirstVisible() + 1;
    EXPECT_EQ(DROPEFFECT_MOVE, Effect(OnTab(tab, false)));
    EXPECT_EQ(0u, beam->m_nAutoScrollTimer);
    EXPECT_EQ(tab, beam->GetCurSel());
    target->DragLeave();
    object->Release();
}

TEST_F(DropTest, RealDragMovesTheTabAndTellsTheOwner) {
    if (GetFileAttributesW(L"Z:\\usr\\bin\\xdotool") == INVALID_FILE_ATTRIBUTES)
        GTEST_SKIP() << "xdotool is not installed";
    beam->SetCurSel(2); // activation re-measures the tabs: the press then changes nothing
    POINT from{beam->CalcTabMidpoint(2), 8}, to{beam->CalcTabMidpoint(5) - 10, 8};
    ClientToScreen(beam->m_hWnd, &from);
    ClientToScreen(beam->m_hWnd, &to);
    auto move = [](LONG x, LONG y) {
        return L" mousemove " + std::to_wstring(x) + L" " + std::to_wstring(y);
    };
    std::wstring command = L"start.exe /unix /usr/bin/xdotool" + move(from.x, from.y) +
                           L" sleep 0.4 mousedown 1 sleep 0.3" + move(from.x + 6, from.y) +
                           L" sleep 0.3" + move(to.x, to.y) + L" sleep 0.3" + move(to.x + 1, to.y) +
                           L" sleep 0.4 mouseup 1";
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process{};
    ASSERT_TRUE(CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr,
                               nullptr, &startup, &process));
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    // The drag loop runs inside a dispatched mouse move.
    for (double until = vutest::NowMs() + 10000;
         LastSent(WM_VU_TAB_MOVED) < 0 && vutest::NowMs() < until; Sleep(10))
        vutest::PumpPending();
    EXPECT_EQ(4, LastSent(WM_VU_TAB_MOVED));
    EXPECT_EQ("0134256", Order());
    EXPECT_FALSE(beam->IsDragging());
}

} // namespace

// The drop side through the IDropTarget the beam registers for its window,
// with real data objects: the beam's own tab format and a foreign one.
#include "TabBeamTestHost.h"

#include "framework/win/OleDataSource.h"

using namespace tabtest;

namespace {

// A data object carrying a tab index, as the beam's own drags make it.
IDataObject* TabData(DWORD index) {
    auto* source = new COleDataSource;
    HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, sizeof(DWORD));
    *static_cast<DWORD*>(GlobalLock(block)) = index;
    GlobalUnlock(block);
    source->CacheGlobalData(Vu_CTabBeam::GetTabIdFormat(), block);
    return source;
}

IDataObject* TextData() {
    auto* source = new COleDataSource;
    HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, 6 * sizeof(wchar_t));
    wcscpy(static_cast<wchar_t*>(GlobalLock(block)), L"Main*");
    GlobalUnlock(block);
    source->CacheGlobalData(CF_UNICODETEXT, block);
    return source;
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
    POINTL Screen(CPoint p) const {
        POINT s{p.x, p.y};
        ClientToScreen(beam->m_hWnd, &s);
        return POINTL{s.x, s.y};
    }
    // Hit area of tab k: (28 + 57k + scroll area, ...); x in client pixels.
    CPoint OnTab(int k, bool rightHalf) const {
        int mid = beam->CalcTabMidpoint(k);
        return CPoint(rightHalf ? mid + 10 : mid - 10, 8);
    }
    DWORD Enter(IDataObject* object, CPoint p) {
        DWORD effect = DROPEFFECT_MOVE | DROPEFFECT_COPY;
        target->DragEnter(object, MK_LBUTTON, Screen(p), &effect);
        return effect;
    }
    DWORD Over(CPoint p) {
        DWORD effect = DROPEFFECT_MOVE | DROPEFFECT_COPY;
        target->DragOver(MK_LBUTTON, Screen(p), &effect);
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

TEST_F(DropTest, EnterAndOverAnswersPinTheFirstTab) {
    EXPECT_EQ(DRAGDROP_E_ALREADYREGISTERED, RegisterDragDrop(beam->m_hWnd, target));
    struct Row {
        const char* name;
        DWORD dragged;
        int over;
        bool foreign;
        DWORD enter, effect;
    } rows[] = {
        {"tab 3 over tab 5", 3, 5, false, DROPEFFECT_MOVE, DROPEFFECT_MOVE},
        {"tab 3 over tab 0", 3, 0, false, DROPEFFECT_NONE, DROPEFFECT_NONE},
        {"tab 0 over tab 4", 0, 4, false, DROPEFFECT_MOVE, DROPEFFECT_NONE},
        {"text over tab 2", 0, 2, true, DROPEFFECT_NONE, DROPEFFECT_NONE},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        IDataObject* object = r.foreign ? TextData() : TabData(r.dragged);
        CPoint p = OnTab(r.over, false);
        EXPECT_EQ(r.enter, Enter(object, p));
        EXPECT_EQ(r.effect, Over(p));
        if (r.effect == DROPEFFECT_NONE) { // a refused drop moves nothing
            DWORD effect = DROPEFFECT_MOVE;
            target->Drop(object, 0, Screen(p), &effect);
            EXPECT_EQ(DROPEFFECT_NONE, effect);
            EXPECT_EQ("0123456", Order());
        } else {
            target->DragLeave();
        }
        object->Release();
    }
    beam->SetTabMoveNotifyWnd(nullptr); // dragging tabs is off
    IDataObject* object = TabData(3);
    EXPECT_EQ(DROPEFFECT_NONE, Enter(object, OnTab(5, false)));
    target->DragLeave();
    object->Release();
}

TEST_F(DropTest, DropLandsBesideTheHalfOfTheTabUnderIt) {
    struct Row {
        const char* name;
        DWORD from;
        int over;
        bool rightHalf;
        const char* order;
        long long moved;
    } rows[] = {
        {"2 on the left half of 5", 2, 5, false, "0134256", 4},
        {"4 on the right half of 1", 4, 1, true, "0142356", 2},
        {"2 on the right half of 1", 2, 1, true, "0123456", -1},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        SetUp(); // a fresh beam
        Host().received.clear();
        // Inside the beam's own drag, as when it started the drag itself.
        beam->SetDragging(true);
        IDataObject* object = TabData(r.from);
        CPoint p = OnTab(r.over, r.rightHalf);
        EXPECT_EQ(DROPEFFECT_MOVE, Enter(object, p));
        DWORD effect = Over(p);
        target->Drop(object, 0, Screen(p), &effect);
        object->Release();
        beam->SetDragging(false);
        EXPECT_EQ(r.order, Order());
        EXPECT_EQ(7, beam->GetCount());
        EXPECT_EQ(r.moved, LastSent(WM_VU_TAB_MOVED));
        if (r.moved >= 0) {
            EXPECT_EQ(r.moved, beam->GetCurSel());
            EXPECT_EQ(static_cast<int>(r.from), beam->GetPrevSel());
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
    Enter(object, OnTab(scrolled, false));
    EXPECT_EQ(DROPEFFECT_SCROLL, Over(CPoint(3, 8))); // the left arrow
    EXPECT_NE(0u, beam->m_nAutoScrollTimer);
    double until = vutest::NowMs() + 1150;
    while (vutest::NowMs() < until) {
        vutest::PumpPending();
        Sleep(20);
    }
    EXPECT_EQ(scrolled - 2, beam->GetFirstVisible()); // two ticks
    // Back over a tab: the timer stops and that tab becomes active.
    int tab = beam->GetFirstVisible() + 1;
    EXPECT_EQ(DROPEFFECT_MOVE, Over(OnTab(tab, false)));
    EXPECT_EQ(0u, beam->m_nAutoScrollTimer);
    EXPECT_EQ(tab, beam->GetCurSel());
    target->DragLeave();
    object->Release();
}

} // namespace

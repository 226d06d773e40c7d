#include "tabs/win/TabBeam.h"

#include <commctrl.h>

#include <vector>

#include "framework/win/AppServices.h"
#include "framework/win/DC.h"
#include "framework/win/DynLinkLibrary.h"
#include "framework/win/OleDataObject.h"
#include "framework/win/OleDataSource.h"
#include "framework/win/PaintDC.h"

namespace {
const wchar_t kClassName[] = L"Vu_CTabBeam";
const wchar_t kTabIdFormatName[] = L"VuLib Tab ID Drag Format";
constexpr UINT kSetMessageString = 0x0362; // the frame's status-bar text request
constexpr WPARAM kIdleMessageId = 0xE001;  // its "Ready" text
constexpr UINT_PTR kToolId = 1;
} // namespace

int Vu_CTabBeam::ms_nLastToolTipTab = -1;

Vu_CTabBeam::Vu_CTabBeam() {
    SetView(this);
}

Vu_CTabBeam::~Vu_CTabBeam() {
    // Destroyed here, while the handlers of this class still run.
    if (m_hWnd != nullptr && ::IsWindow(m_hWnd))
        DestroyWindow();
    DestroyFonts();
    if (m_hMeasureDC != nullptr)
        ::DeleteDC(m_hMeasureDC);
}

// ---- setup ----------------------------------------------------------------------

const wchar_t* Vu_CTabBeam::RegisterClassW() {
    WNDCLASSW wc{};
    if (::GetClassInfoW(AfxGetInstanceHandle(), kClassName, &wc))
        return kClassName;
    wc.style = CS_DBLCLKS | CS_GLOBALCLASS;
    wc.lpfnWndProc = &Vu_CTabBeam::ClassHookProc;
    wc.hInstance = AfxGetInstanceHandle();
    wc.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
    wc.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    wc.lpszClassName = kClassName;
    return ::RegisterClassW(&wc) != 0 ? kClassName : nullptr;
}

void Vu_CTabBeam::UnregisterClassW() {
    ::UnregisterClassW(kClassName, AfxGetInstanceHandle());
}

// Windows made from a dialog template arrive here first: they get a beam
// object that routes them through the framework from then on.
LRESULT CALLBACK Vu_CTabBeam::ClassHookProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (CWnd::FromHandlePermanent(hWnd) != nullptr)
        return ::DefWindowProcW(hWnd, message, wParam, lParam);
    auto* pBeam = new Vu_CTabBeam;
    pBeam->m_bCreatedByClassHook = true;
    if (!pBeam->SubclassWindow(hWnd)) {
        delete pBeam;
        return ::DefWindowProcW(hWnd, message, wParam, lParam);
    }
    return CWnd::AfxWndProc(hWnd, message, wParam, lParam);
}

BOOL Vu_CTabBeam::Create(DWORD dwStyle, const CRect& rect, CWnd* pParentWnd, UINT nID) {
    if (RegisterClassW() == nullptr)
        return FALSE;
    CRect r(rect);
    if (!CWnd::CreateEx(0, kClassName, L"", dwStyle | WS_CHILD | WS_CLIPSIBLINGS, r, pParentWnd,
                        nID))
        return FALSE;
    FinishCreate(r);
    return TRUE;
}

void Vu_CTabBeam::FinishCreate(const CRect& rect) {
    SetupResources();
    if (GetDisplayStyle() == RoundedTabs)
        m_nHeight = rect.Height() - 2;
    SetWindowPos(static_cast<HWND>(nullptr), 0, 0, rect.Width(), m_nHeight,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    CRect client;
    GetClientRect(&client);
    if (m_scrollBar.m_hWnd == nullptr)
        m_scrollBar.Create(WS_CHILD | WS_VISIBLE | SBS_HORZ,
                           CRect(client.left, client.top, GetScrollArea() - 1, client.bottom), this,
                           kScrollBarId);
    m_scrollBar.EnableWindow(FALSE);
    m_toolTip.Activate(TRUE);
}

BOOL Vu_CTabBeam::PreCreateWindow(CREATESTRUCTW& cs) {
    cs.style &= ~static_cast<LONG>(3);
    return TRUE;
}

void Vu_CTabBeam::SetDisplayStyle(TabDisplayStyles style) {
    VU_CTabBeamModel::SetDisplayStyle(style);
    m_crBackground = ::GetSysColor(style == RoundedTabs ? COLOR_BTNSHADOW : COLOR_SCROLLBAR);
    RestoreTabsToOriginal();
    DetermineTextForTabs();
}

void Vu_CTabBeam::SetupResources() {
    m_crActiveText = RGB(0, 0, 0);
    m_crInactiveText = RGB(0, 0, 0);
    m_crInactiveFace = ::GetSysColor(COLOR_3DFACE);
    m_crActiveFace = ::GetSysColor(COLOR_WINDOW);
    m_crBackground =
        ::GetSysColor(GetDisplayStyle() == RoundedTabs ? COLOR_BTNSHADOW : COLOR_SCROLLBAR);
    CreateBrushes();
    m_brBlack.DeleteObject();
    m_brBlack.CreateSolidBrush(RGB(0, 0, 0));
    m_penShadow.DeleteObject();
    m_penShadow.CreatePen(PS_SOLID, 1, ::GetSysColor(COLOR_BTNSHADOW));
    m_nArrowWidth = ::GetSystemMetrics(SM_CXHSCROLL);
    SetScrollArea(2 * m_nArrowWidth + 1, true);
    CreateFonts();
}

void Vu_CTabBeam::CreateBrushes() {
    m_brInactiveFace.DeleteObject();
    m_brInactiveFace.CreateSolidBrush(m_crInactiveFace);
    m_brActiveFace.DeleteObject();
    m_brActiveFace.CreateSolidBrush(m_crActiveFace);
}

void Vu_CTabBeam::CreateFonts() {
    DestroyFonts();
    HDC screen = ::GetDC(nullptr);
    int height = -::MulDiv(8, ::GetDeviceCaps(screen, LOGPIXELSY), 72);
    ::ReleaseDC(nullptr, screen);
    m_pNormalFont = new CFont;
    m_pNormalFont->CreateFont(height, 0, 0, 0, FW_NORMAL, 0, 0, 0, 0, 0, 18, 0, FF_SWISS, L"Arial");
    m_pBoldFont = new CFont;
    m_pBoldFont->CreateFont(height, 0, 0, 0, FW_BOLD, 0, 0, 0, 0, 0, 18, 0, FF_SWISS, L"Arial");
    m_widthCache.Clear();
    if (m_hMeasureDC == nullptr)
        m_hMeasureDC = ::CreateCompatibleDC(nullptr);
    HGDIOBJ old = ::SelectObject(m_hMeasureDC, *m_pNormalFont);
    TEXTMETRICW metrics{};
    ::GetTextMetricsW(m_hMeasureDC, &metrics);
    SIZE t{};
    ::GetTextExtentPoint32W(m_hMeasureDC, L"t", 1, &t);
    ::SelectObject(m_hMeasureDC, old);
    m_nHeight = metrics.tmHeight + 2;
    m_nTextHeight = t.cy;
}

void Vu_CTabBeam::DestroyFonts() {
    delete m_pBoldFont;
    delete m_pNormalFont;
    m_pBoldFont = m_pNormalFont = nullptr;
}

BOOL Vu_CTabBeam::RegisterAsDropTarget() {
    return m_dropTarget.Register(this);
}

// ---- tabs -------------------------------------------------------------------------

void Vu_CTabBeam::InsertTab(int bAtCurrent, const wchar_t* text, CObject* data, int ownsData,
                            int width, HMENU menu, HBITMAP bitmap) {
    auto* pTab = new Vu_CTabInfo;
    pTab->SetText(CString(text));
    pTab->m_pData = data;
    pTab->m_bOwnsData = ownsData;
    pTab->m_hMenu = menu;
    pTab->m_bitmap.SetHandle(bitmap);
    InsertTabRecord(bAtCurrent, pTab, width);
}

void Vu_CTabBeam::SetTabBitmap(int i, HBITMAP hBitmap) {
    GetTab(i)->m_bitmap.SetHandle(hBitmap);
    AdjustTabSize(i);
}

// ---- the view of the logic ------------------------------------------------------------

int Vu_CTabBeam::MeasureTabText(vu::StringView text, bool bBold) {
    return m_widthCache.Get(text, bBold, [this, bBold](vu::StringView t) {
        if (m_hMeasureDC == nullptr)
            m_hMeasureDC = ::CreateCompatibleDC(nullptr);
        CFont* pFont = bBold ? m_pBoldFont : m_pNormalFont;
        HGDIOBJ old = pFont != nullptr ? ::SelectObject(m_hMeasureDC, *pFont) : nullptr;
        SIZE size{};
        ::GetTextExtentPoint32W(m_hMeasureDC, t.data(), static_cast<int>(t.size()), &size);
        if (old != nullptr)
            ::SelectObject(m_hMeasureDC, old);
        return static_cast<int>(size.cx);
    });
}

CRect Vu_CTabBeam::GetTabClientRect() const {
    CRect client;
    if (m_hWnd != nullptr)
        ::GetClientRect(m_hWnd, client);
    return client;
}

// The fitting resizes a tab per shortened character: one invalidation until
// the next paint is enough (each costs a trip to the window server).
void Vu_CTabBeam::InvalidateTabs() {
    if (m_hWnd != nullptr && !m_bWholeInvalid)
        m_bWholeInvalid = ::InvalidateRect(m_hWnd, nullptr, FALSE) != FALSE;
}

void Vu_CTabBeam::ScrollTabArea(int dx) {
    if (m_hWnd == nullptr)
        return;
    CRect area = GetTabClientRect();
    area.left = GetScrollArea() + 1;
    ::ScrollWindowEx(m_hWnd, dx, 0, area, area, nullptr, nullptr, SW_INVALIDATE);
}

void Vu_CTabBeam::InvalidateTabStrip(int left, int right) {
    if (m_hWnd == nullptr)
        return;
    CRect strip = GetTabClientRect();
    strip.left = left;
    strip.right = right;
    ::InvalidateRect(m_hWnd, strip, FALSE);
}

void Vu_CTabBeam::TabCountChanged(int count) {
    if (m_scrollBar.m_hWnd == nullptr)
        return;
    m_scrollBar.SetScrollRange(0, count);
    m_scrollBar.EnableWindow(count != 0);
}

void Vu_CTabBeam::TabSelChanged(int index) {
    if (CWnd* pTarget = NotifyTarget())
        pTarget->SendMessage(WM_VU_TAB_SELCHANGED, static_cast<WPARAM>(index), 0);
}

void Vu_CTabBeam::TabMoved(int index) {
    if (m_pMoveNotifyWnd != nullptr)
        m_pMoveNotifyWnd->SendMessage(WM_VU_TAB_MOVED, static_cast<WPARAM>(index), 0);
}

bool Vu_CTabBeam::IsMoveNotifyParent() const {
    return m_pMoveNotifyWnd != nullptr && m_hWnd != nullptr &&
           m_pMoveNotifyWnd->m_hWnd == ::GetParent(m_hWnd);
}

CWnd* Vu_CTabBeam::NotifyTarget() const {
    if (m_pNotifyWnd != nullptr)
        return m_pNotifyWnd;
    return m_hWnd != nullptr ? CWnd::FromHandle(::GetParent(m_hWnd)) : nullptr;
}

// ---- messages ------------------------------------------------------------------------

LRESULT Vu_CTabBeam::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST && m_toolTip.m_hWnd != nullptr) {
        MSG msg{m_hWnd, message, wParam, lParam, static_cast<DWORD>(::GetMessageTime()), {}};
        ::GetCursorPos(&msg.pt);
        m_toolTip.RelayEvent(&msg);
    }
    CPoint point(static_cast<DWORD>(lParam));
    UINT flags = static_cast<UINT>(wParam);
    switch (message) {
    case WM_CREATE: {
        LRESULT result = CWnd::WindowProc(message, wParam, lParam);
        if (result != -1 && OnCreate() == -1)
            return -1;
        if (result != -1 && m_bCreatedByClassHook) {
            auto* cs = reinterpret_cast<CREATESTRUCTW*>(lParam);
            FinishCreate(CRect(cs->x, cs->y, cs->x + cs->cx, cs->y + cs->cy));
        }
        return result;
    }
    case WM_DESTROY:
        KillAutoScrollTimer();
        if (m_bToolHasTool)
            m_toolTip.DelTool(this, kToolId);
        m_bToolHasTool = false;
        ms_nLastToolTipTab = -1;
        m_toolTip.DestroyWindow();
        m_dropTarget.Revoke();
        break;
    case WM_PAINT:
        OnPaint();
        return 0;
    case WM_PRINTCLIENT:
        PaintInto(CDC::FromHandle(reinterpret_cast<HDC>(wParam)), GetTabClientRect());
        return 0;
    case WM_MOUSEMOVE:
        OnMouseMove(flags, point);
        return 0;
    case WM_MOUSELEAVE:
        OnMouseLeave();
        return 0;
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
        OnButtonDown(message == WM_RBUTTONDOWN, flags, point);
        return 0;
    case WM_LBUTTONDBLCLK:
        OnLButtonDblClk(point);
        return 0;
    case WM_HSCROLL:
        if (lParam == 0)
            break;
        OnHScroll(LOWORD(wParam), reinterpret_cast<HWND>(lParam));
        return 0;
    case WM_TIMER:
        OnTimer(static_cast<UINT_PTR>(wParam));
        return 0;
    case WM_CTLCOLORSCROLLBAR:
        if (reinterpret_cast<HWND>(lParam) == m_scrollBar.m_hWnd)
            return reinterpret_cast<LRESULT>(static_cast<HBRUSH>(m_brActiveFace));
        break;
    case WM_NOTIFY: {
        auto* header = reinterpret_cast<NMHDR*>(lParam);
        if (header != nullptr && header->hwndFrom == m_toolTip.m_hWnd && header->code == TTN_SHOW)
            return OnToolTipShow(header);
        break;
    }
    default:
        break;
    }
    return CWnd::WindowProc(message, wParam, lParam);
}

BOOL Vu_CTabBeam::PreTranslateMessage(MSG* pMsg) {
    // Mouse messages reach the tooltip from WindowProc already.
    return CWnd::PreTranslateMessage(pMsg);
}

void Vu_CTabBeam::PostNcDestroy() {
    if (m_bCreatedByClassHook)
        delete this;
}

int Vu_CTabBeam::OnCreate() {
    if (m_toolTip.m_hWnd == nullptr && !m_toolTip.Create(this, TTS_ALWAYSTIP | TTS_NOPREFIX))
        return -1;
    m_toolTip.SetMaxTipWidth(32767);
    m_toolTip.SetDelayTime(TTDT_AUTOPOP, 32767);
    m_toolTip.SetDelayTime(TTDT_INITIAL, 200);
    m_toolTip.SetDelayTime(TTDT_RESHOW, 200);
    RegisterAsDropTarget();
    return 0;
}

void Vu_CTabBeam::OnMouseMove(UINT nFlags, CPoint point) {
    if (!m_bTrackingLeave) {
        TRACKMOUSEEVENT track{sizeof(track), TME_LEAVE, m_hWnd, 0};
        m_bTrackingLeave = ::TrackMouseEvent(&track) != FALSE;
    }
    int tab = point.x > GetScrollArea() ? CalcTabFromOffset(point.x) : -1;
    if (tab < 0)
        HideToolTip();
    else if (tab != ms_nLastToolTipTab)
        ShowToolTipFor(tab);
    if (tab >= 0 && (nFlags & MK_LBUTTON) != 0 && !IsDragging() && IsMoveNotifyParent())
        DragAndDrop(tab);
}

void Vu_CTabBeam::OnMouseLeave() {
    m_bTrackingLeave = false;
    HideToolTip();
}

void Vu_CTabBeam::ShowToolTipFor(int tab) {
    if (m_toolTip.m_hWnd == nullptr)
        return;
    m_toolTip.Activate(FALSE);
    if (m_bToolHasTool)
        m_toolTip.DelTool(this, kToolId);
    NMTTDISPINFOW info{};
    info.hdr.hwndFrom = ::GetParent(m_hWnd);
    info.hdr.idFrom = static_cast<UINT_PTR>(tab);
    info.hdr.code = TTN_GETDISPINFOW;
    ::SendMessageW(::GetAncestor(m_hWnd, GA_ROOT), WM_NOTIFY, static_cast<WPARAM>(tab),
                   reinterpret_cast<LPARAM>(&info));
    bool given = info.lpszText != nullptr && !IS_INTRESOURCE(info.lpszText) && *info.lpszText;
    TOOLINFOW tool{};
    tool.uFlags = TTF_TRANSPARENT;
    tool.hwnd = m_hWnd;
    tool.uId = kToolId;
    ::GetClientRect(m_hWnd, &tool.rect);
    tool.lpszText = given ? info.lpszText : info.szText;
    m_bToolHasTool = m_toolTip.AddTool(&tool) != FALSE;
    m_toolTip.Activate(TRUE);
    ms_nLastToolTipTab = tab;
}

void Vu_CTabBeam::HideToolTip() {
    if (!m_bToolHasTool)
        return;
    m_toolTip.Activate(FALSE);
    m_toolTip.DelTool(this, kToolId);
    m_bToolHasTool = false;
    ms_nLastToolTipTab = -1;
    if (HWND hMain = AfxGetAppServices()->GetMainWindow())
        ::PostMessageW(hMain, kSetMessageString, kIdleMessageId, 0);
}

LRESULT Vu_CTabBeam::OnToolTipShow(NMHDR* pHeader) {
    CRect tip;
    ::GetWindowRect(pHeader->hwndFrom, tip);
    ::SendMessageW(pHeader->hwndFrom, TTM_ADJUSTRECT, TRUE, reinterpret_cast<LPARAM>(&tip));
    ::SetWindowPos(pHeader->hwndFrom, nullptr, tip.left, tip.top - 1, 0, 0,
                   SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    return TRUE;
}

void Vu_CTabBeam::OnButtonDown(bool bRight, UINT nFlags, CPoint point) {
    Click(point, bRight, (nFlags & MK_SHIFT) != 0, (nFlags & MK_CONTROL) != 0);
}

void Vu_CTabBeam::OnLButtonDblClk(CPoint point) {
    int active = DoubleClickTarget(point);
    CWnd* pTarget = NotifyTarget();
    if (active >= 0 && pTarget != nullptr)
        pTarget->SendMessage(WM_VU_TAB_DBLCLK, static_cast<WPARAM>(active), 0);
}

void Vu_CTabBeam::OnHScroll(UINT nSBCode, HWND) {
    if (nSBCode == SB_LINELEFT || nSBCode == SB_LEFT)
        Scroll(ScrollLeft);
    else if (nSBCode == SB_LINERIGHT || nSBCode == SB_RIGHT)
        Scroll(ScrollRight);
}

void Vu_CTabBeam::OnTimer(UINT_PTR nIDEvent) {
    if (nIDEvent == kAutoScrollTimer && m_nAutoScrollTimer != 0)
        Scroll(m_nAutoScrollDirection);
}

void Vu_CTabBeam::KillAutoScrollTimer() {
    if (m_nAutoScrollTimer != 0 && m_hWnd != nullptr)
        KillTimer(kAutoScrollTimer);
    m_nAutoScrollTimer = 0;
}

// ---- drag and drop -------------------------------------------------------------------

CLIPFORMAT Vu_CTabBeam::GetTabIdFormat() {
    static const CLIPFORMAT format =
        static_cast<CLIPFORMAT>(::RegisterClipboardFormatW(kTabIdFormatName));
    return format;
}

void Vu_CTabBeam::DragAndDrop(int index) {
    SetDragging(true);
    auto* pSource = new COleDataSource;
    HGLOBAL payload = ::GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, sizeof(DWORD));
    if (payload != nullptr) {
        *static_cast<DWORD*>(::GlobalLock(payload)) = static_cast<DWORD>(index);
        ::GlobalUnlock(payload);
        pSource->CacheGlobalData(GetTabIdFormat(), payload);
    }
    pSource->DoDragDrop(DROPEFFECT_MOVE);
    pSource->InternalRelease();
    SetDragging(false);
}

int Vu_CTabBeam::GetTabIndexFromDataSource(COleDataObject* pDataObject) {
    HGLOBAL block = pDataObject != nullptr ? pDataObject->GetGlobalData(GetTabIdFormat()) : nullptr;
    if (block == nullptr)
        return 0;
    DWORD index = 0;
    if (::GlobalSize(block) >= sizeof(DWORD)) {
        if (auto* p = static_cast<const DWORD*>(::GlobalLock(block))) {
            index = *p;
            ::GlobalUnlock(block);
        }
    }
    ::GlobalFree(block);
    return static_cast<int>(index);
}

DROPEFFECT Vu_CTabBeam::OnDragEnter(COleDataObject* pDataObject, DWORD, CPoint point) {
    KillAutoScrollTimer();
    if (pDataObject == nullptr || !pDataObject->IsDataAvailable(GetTabIdFormat())) {
        if (IsTabSwitchingOnDragAllowed())
            SwitchToTab(point);
        return DROPEFFECT_NONE;
    }
    return CanDropOnEnter(point, IsMoveNotifyParent()) ? DROPEFFECT_MOVE : DROPEFFECT_NONE;
}

DROPEFFECT Vu_CTabBeam::OnDragOver(COleDataObject* pDataObject, DWORD, CPoint point) {
    KillAutoScrollTimer();
    if (pDataObject == nullptr || !pDataObject->IsDataAvailable(GetTabIdFormat())) {
        if (IsTabSwitchingOnDragAllowed())
            SwitchToTab(point);
        return DROPEFFECT_NONE;
    }
    int dragged = GetTabIndexFromDataSource(pDataObject);
    return CanDropOnOver(dragged, point, IsMoveNotifyParent()) ? DROPEFFECT_MOVE : DROPEFFECT_NONE;
}

BOOL Vu_CTabBeam::OnDrop(COleDataObject* pDataObject, DROPEFFECT, CPoint point) {
    KillAutoScrollTimer();
    if (pDataObject == nullptr || !pDataObject->IsDataAvailable(GetTabIdFormat()))
        return FALSE;
    DropTab(GetTabIndexFromDataSource(pDataObject), point);
    return FALSE;
}

DROPEFFECT Vu_CTabBeam::OnDropEx(COleDataObject*, DROPEFFECT, DROPEFFECT, CPoint) {
    KillAutoScrollTimer();
    return static_cast<DROPEFFECT>(-1);
}

void Vu_CTabBeam::OnDragLeave() {
    KillAutoScrollTimer();
}

DROPEFFECT Vu_CTabBeam::OnDragScroll(DWORD, CPoint point) {
    HWND bar = m_scrollBar.m_hWnd;
    if (bar != nullptr && ::IsWindowVisible(bar) && ::IsWindowEnabled(bar)) {
        CRect area;
        ::GetWindowRect(bar, area);
        ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<POINT*>(&area), 2);
        if (area.PtInRect(point)) {
            m_nAutoScrollDirection = point.x > area.CenterPoint().x ? ScrollRight : ScrollLeft;
            if (m_nAutoScrollTimer == 0)
                m_nAutoScrollTimer = SetTimer(kAutoScrollTimer, kAutoScrollMs);
            return DROPEFFECT_SCROLL;
        }
    }
    if (m_nAutoScrollTimer != 0) {
        KillAutoScrollTimer();
        SwitchToTab(point);
    }
    return DROPEFFECT_NONE;
}

// ---- the drop target ------------------------------------------------------------------

DROPEFFECT Vu_CTabBreamDropTarget::OnDragEnter(CWnd* pWnd, COleDataObject* pDataObject,
                                               DWORD dwKeyState, CPoint point) {
    auto* pBeam = dynamic_cast<Vu_CTabBeam*>(pWnd);
    return pBeam != nullptr ? pBeam->OnDragEnter(pDataObject, dwKeyState, point) : 0;
}

DROPEFFECT Vu_CTabBreamDropTarget::OnDragOver(CWnd* pWnd, COleDataObject* pDataObject,
                                              DWORD dwKeyState, CPoint point) {
    auto* pBeam = dynamic_cast<Vu_CTabBeam*>(pWnd);
    return pBeam != nullptr ? pBeam->OnDragOver(pDataObject, dwKeyState, point) : 0;
}

BOOL Vu_CTabBreamDropTarget::OnDrop(CWnd* pWnd, COleDataObject* pDataObject, DROPEFFECT dropEffect,
                                    CPoint point) {
    auto* pBeam = dynamic_cast<Vu_CTabBeam*>(pWnd);
    return pBeam != nullptr ? pBeam->OnDrop(pDataObject, dropEffect, point) : 0;
}

DROPEFFECT Vu_CTabBreamDropTarget::OnDropEx(CWnd* pWnd, COleDataObject* pDataObject,
                                            DROPEFFECT dropDefault, DROPEFFECT dropList,
                                            CPoint point) {
    auto* pBeam = dynamic_cast<Vu_CTabBeam*>(pWnd);
    return pBeam != nullptr ? pBeam->OnDropEx(pDataObject, dropDefault, dropList, point)
                            : static_cast<DROPEFFECT>(-1);
}

void Vu_CTabBreamDropTarget::OnDragLeave(CWnd* pWnd) {
    if (auto* pBeam = dynamic_cast<Vu_CTabBeam*>(pWnd))
        pBeam->OnDragLeave();
}

DROPEFFECT Vu_CTabBreamDropTarget::OnDragScroll(CWnd* pWnd, DWORD dwKeyState, CPoint point) {
    auto* pBeam = dynamic_cast<Vu_CTabBeam*>(pWnd);
    return pBeam != nullptr ? pBeam->OnDragScroll(dwKeyState, point) : DROPEFFECT_SCROLL;
}

// ---- painting --------------------------------------------------------------------------

void Vu_CTabBeam::OnPaint() {
    m_bWholeInvalid = false;
    CPaintDC paintDC(this);
    CRect clip;
    paintDC.GetClipBox(&clip);
    PaintInto(&paintDC, clip);
}

// Paints the beam's clip rectangle into pTarget.
void Vu_CTabBeam::PaintInto(CDC* pTarget, CRect clip) {
    int areaStart = GetScrollArea() + 1;
    if (clip.left <= areaStart)
        clip.left = areaStart;
    if (clip.IsRectEmpty())
        return;
    // Drawn into a bitmap of the clip box, then copied in one go.
    CDC dc;
    dc.CreateCompatibleDC(pTarget);
    HBITMAP buffer = ::CreateCompatibleBitmap(*pTarget, clip.Width(), clip.Height());
    HGDIOBJ oldBitmap = ::SelectObject(dc, buffer);
    dc.SetViewportOrg(-clip.left, -clip.top);
    dc.FillSolidRect(clip.left, clip.top, clip.Width(), 1, RGB(0, 0, 0));
    dc.FillSolidRect(clip.left, 1, clip.Width(), clip.bottom - 1, m_crBackground);
    int count = GetCount();
    if (count > 0) {
        int last = CalcTabFromOffset(GetOverlap() + clip.right);
        if (last < 0)
            last = count - 1;
        int first = CalcTabFromOffset(clip.left) - 1;
        if (first < 1)
            first = 0;
        // One pass for the offsets, then the tabs from the right, the
        // active one last so that it lies on top.
        std::vector<int> offsets;
        int x = CalcTabOffset(first);
        for (int i = first; i <= last && i < count; ++i) {
            offsets.push_back(x);
            x += GetTabRecord(i)->m_nWidth + GetOverlap();
        }
        int current = GetCurSel();
        for (int i = static_cast<int>(offsets.size()) - 1; i >= 0; --i)
            if (first + i != current && offsets[i] < clip.right)
                DrawTabAt(&dc, first + i, offsets[i]);
        if (current >= first && current < first + static_cast<int>(offsets.size()))
            DrawTabAt(&dc, current, offsets[current - first]);
    }
    dc.SetViewportOrg(0, 0);
    pTarget->BitBlt(clip.left, clip.top, clip.Width(), clip.Height(), &dc, 0, 0, SRCCOPY);
    ::SelectObject(dc, oldBitmap);
    ::DeleteObject(buffer);
    UpdateScrollBarEnabling(count);
}

// Enabled while tabs are scrolled out to the left, or lie (partly) beyond
// the right edge.
void Vu_CTabBeam::UpdateScrollBarEnabling(int count) {
    if (m_scrollBar.m_hWnd == nullptr)
        return;
    bool enable = false;
    if (count > 0 && IsWindowEnabled()) {
        CRect client = GetTabClientRect();
        int last = CalcTabFromOffset(GetOverlap() + client.right);
        enable = GetFirstVisible() > 0 || (last >= 0 && last != count - 1) ||
                 RightEnd(count - 1) > client.right;
    }
    if ((::IsWindowEnabled(m_scrollBar.m_hWnd) != FALSE) != enable)
        m_scrollBar.EnableWindow(enable);
}

void Vu_CTabBeam::DrawTab(CDC* pDC, int i) {
    DrawTabAt(pDC, i, CalcTabOffset(i));
}

void Vu_CTabBeam::DrawAngleTab(CDC* pDC, int i) {
    DrawAngleTabAt(pDC, i, CalcTabOffset(i));
}

void Vu_CTabBeam::DrawRoundedTab(CDC* pDC, int i) {
    DrawRoundedTabAt(pDC, i, CalcTabOffset(i));
}

void Vu_CTabBeam::DrawTabAt(CDC* pDC, int i, int x0) {
    if (pDC == nullptr || i < 0 || i >= GetCount())
        return;
    if (GetDisplayStyle() == RoundedTabs)
        DrawRoundedTabAt(pDC, i, x0);
    else
        DrawAngleTabAt(pDC, i, x0);
}

void Vu_CTabBeam::DrawTabBitmap(CDC* pDC, Vu_CTabInfo* pTab, CRect& textRect) {
    CSize size = pTab->m_bitmap.GetSize();
    if (size.cx <= 0)
        return;
    int y = (m_nHeight - size.cy) / 2;
    pTab->m_bitmap.DrawTransparent(pDC, CPoint(textRect.left, y), kBitmapKey);
    textRect.left += size.cx;
}

void Vu_CTabBeam::DrawAngleTabAt(CDC* pDC, int i, int x0) {
    Vu_CTabInfo* pTab = GetTab(i);
    int w = pTab->m_nWidth, ov = GetOverlap(), h = m_nHeight;
    bool active = i == GetCurSel();
    bool lit = active || pTab->m_bMarked;
    int top = active ? -2 : 1;
    POINT outline[4] = {{x0, top}, {x0 + w + 2 * ov, top}, {x0 + ov + w, h - 1}, {x0 + ov, h - 1}};
    HRGN region = ::CreatePolygonRgn(outline, 4, ALTERNATE);
    ::FillRgn(*pDC, region, lit ? m_brActiveFace : m_brInactiveFace);
    ::FrameRgn(*pDC, region, m_brBlack, 1, 1);
    ::DeleteObject(region);
    if (active) {
        // Open at the top: the active tab merges with the document above.
        pDC->FillSolidRect(x0, 0, w + 2 * ov, 1, m_crActiveFace);
        HGDIOBJ oldBrush = ::SelectObject(*pDC, m_brActiveFace);
        pDC->PatBlt(x0, 0, w + 2 * ov, 2, PATCOPY);
        ::SelectObject(*pDC, oldBrush);
    }
    HGDIOBJ oldPen = ::SelectObject(*pDC, m_penShadow);
    pDC->MoveTo(x0 + ov + 1, h - 2);
    pDC->LineTo(x0 + ov + w - 1, h - 2);
    pDC->LineTo(x0 + w + 2 * ov - 2, 0);
    ::SelectObject(*pDC, oldPen);

    pDC->SetTextColor(IsWindowEnabled() ? m_crActiveText : ::GetSysColor(COLOR_GRAYTEXT));
    pDC->SetBkColor(pTab->m_bMarked ? m_crActiveFace : m_crInactiveFace);
    pDC->SetBkMode(TRANSPARENT);
    CRect text(x0 + ov, 0, x0 + ov + w, h - 1);
    DrawTabBitmap(pDC, pTab, text);
    CFont* pFont = active ? m_pBoldFont : m_pNormalFont;
    HGDIOBJ oldFont = pFont != nullptr ? ::SelectObject(*pDC, *pFont) : nullptr;
    int free = h - m_nTextHeight - 1;
    text.top += (free > 0 ? free : 0) / 2;
    pDC->DrawText(pTab->m_strLine1, &text, DT_CENTER | DT_SINGLELINE);
    if (oldFont != nullptr)
        ::SelectObject(*pDC, oldFont);
}

void Vu_CTabBeam::DrawRoundedTabAt(CDC* pDC, int i, int x0) {
    Vu_CTabInfo* pTab = GetTab(i);
    int w = pTab->m_nWidth, h = m_nHeight;
    bool active = i == GetCurSel();
    bool lit = active || pTab->m_bMarked;
    // A rounded box 2 pixels in from its neighbours; the active one reaches
    // above the top edge so that only its lower corners show.
    CRect box(x0 + 2, active ? -6 : 2, x0 + w - 1, h - 1);
    HGDIOBJ oldBrush = ::SelectObject(*pDC, lit ? m_brActiveFace : m_brInactiveFace);
    HGDIOBJ oldPen = ::SelectObject(*pDC, ::GetStockObject(BLACK_PEN));
    ::RoundRect(*pDC, box.left, box.top, box.right, box.bottom, 9, 9);
    ::SelectObject(*pDC, oldPen);
    ::SelectObject(*pDC, oldBrush);

    pDC->SetTextColor(IsWindowEnabled() ? m_crActiveText : ::GetSysColor(COLOR_GRAYTEXT));
    pDC->SetBkMode(TRANSPARENT);
    CRect text(x0 + 2, 0, x0 + w - 1, h - 1);
    DrawTabBitmap(pDC, pTab, text);
    int lineHeight = m_nTextHeight;
    int top = (h - 2 * lineHeight) / 2;
    CRect first(text.left, top, text.right, top + lineHeight);
    CRect second(text.left, top + lineHeight, text.right, top + 2 * lineHeight);
    CFont* pFont = active ? m_pBoldFont : m_pNormalFont;
    HGDIOBJ oldFont = pFont != nullptr ? ::SelectObject(*pDC, *pFont) : nullptr;
    pDC->DrawText(pTab->m_strLine1, &first, DT_CENTER | DT_SINGLELINE | DT_NOPREFIX);
    if (m_pNormalFont != nullptr)
        ::SelectObject(*pDC, *m_pNormalFont);
    pDC->DrawText(pTab->m_strLine2, &second, DT_CENTER | DT_SINGLELINE | DT_NOPREFIX);
    if (oldFont != nullptr)
        ::SelectObject(*pDC, oldFont);
}

#include "tabs/TabBeamModel.h"

#include <set>
#include <utility>

VU_CTabBeamModel::VU_CTabBeamModel(VU_ATabBeamView* pView) : m_pView(pView) {}

VU_CTabBeamModel::~VU_CTabBeamModel() {
    for (INT_PTR i = 0; i < m_tabs.GetSize(); ++i)
        delete m_tabs[i];
}

// ---- attributes and settings ---------------------------------------------

VU_CTabRecord* VU_CTabBeamModel::GetTabRecord(int i) const {
    return static_cast<VU_CTabRecord*>(m_tabs.GetAt(i));
}

int VU_CTabBeamModel::FindTab(const CObject* pData) const {
    for (int i = 0; i < m_tabs.GetSize(); ++i)
        if (GetTabRecord(i)->m_pData == pData)
            return i;
    return -1;
}

CString VU_CTabBeamModel::GetTabText(int i) const {
    return GetTabRecord(i)->m_strFullText;
}

CString VU_CTabBeamModel::GetTabText(const CObject* pData) const {
    int i = FindTab(pData);
    return i >= 0 ? GetTabText(i) : CString();
}

void VU_CTabBeamModel::SetDisplayStyle(TabDisplayStyles style) {
    m_nDisplayStyle = style;
    m_nOverlap = style == RoundedTabs ? 0 : 7;
}

void VU_CTabBeamModel::SetScrollArea(int width, bool bShown) {
    m_nScrollArea = width;
    m_bScrollBarShown = bShown;
}

int VU_CTabBeamModel::Width(int i) const {
    return i >= 0 && i < m_nCount && i < m_tabs.GetSize() ? GetTabRecord(i)->m_nWidth : 0;
}

CRect VU_CTabBeamModel::ClientRect() const {
    return m_pView != nullptr ? m_pView->GetTabClientRect() : CRect();
}

void VU_CTabBeamModel::Invalidate() {
    if (m_pView != nullptr)
        m_pView->InvalidateTabs();
}

// ---- tabs ------------------------------------------------------------------

void VU_CTabBeamModel::InsertTabRecord(int bAtCurrent, VU_CTabRecord* pTab, int width) {
    if (pTab == nullptr)
        return;
    pTab->m_nWidth = width;
    bool hadActive = m_nCurrent >= 0;
    if (hadActive && bAtCurrent) {
        m_tabs.InsertAt(m_nCurrent, pTab);
        if (width < 0)
            AdjustTabSize(m_nCurrent);
        if (m_bDragging)
            ++m_nCount;
    } else {
        m_tabs.InsertAt(m_nCount, pTab);
        if (width < 0)
            AdjustTabSize(m_nCount);
        ++m_nCount;
    }
    if (!hadActive)
        m_nCurrent = m_nPrevious = m_nCount - 1;
    if (m_bResizeTabs) {
        RestoreTabsToOriginal();
        DetermineTextForTabs();
    }
    Invalidate();
    if (m_pView != nullptr)
        m_pView->TabCountChanged(m_nCount);
}

void VU_CTabBeamModel::InsertTab(int bAtCurrent, const WCHAR* text, CObject* data, int ownsData,
                                 int width) {
    auto* pTab = new VU_CTabRecord;
    pTab->SetText(CString(text));
    pTab->m_pData = data;
    pTab->m_bOwnsData = ownsData;
    InsertTabRecord(bAtCurrent, pTab, width);
}

VU_CTabRecord* VU_CTabBeamModel::RemoveTab(int i) {
    VU_CTabRecord* pTab = GetTabRecord(i); // throws outside the array
    int oldCount = m_nCount;
    if (i == m_nCurrent) {
        if (++m_nCurrent >= oldCount)
            m_nCurrent = 0;
        m_nFirstVisible = m_nCurrent;
    } else if (i < m_nCurrent) {
        --m_nCurrent;
    }
    if (m_nCurrent < m_nFirstVisible)
        --m_nFirstVisible;
    m_tabs.RemoveAt(i);
    if (m_nCount > 0)
        --m_nCount;
    if (m_bResizeTabs && m_nCount > 0) {
        RestoreTabsToOriginal();
        DetermineTextForTabs();
    }
    Invalidate();
    if (m_pView != nullptr)
        m_pView->TabCountChanged(m_nCount);
    if (m_nPrevious == i)
        m_nPrevious = m_nCurrent;
    else if (i < m_nPrevious)
        --m_nPrevious;
    if (m_nPrevious >= m_nCount)
        m_nPrevious = 0;
    if (m_nCount == 0) {
        m_nCurrent = m_nPrevious = -1;
        m_nFirstVisible = 0;
    }
    return pTab;
}

void VU_CTabBeamModel::DeleteTab(int i) {
    delete RemoveTab(i);
}

void VU_CTabBeamModel::MoveTab(int from, int to) {
    // The tab itself travels (with its data, menu and image); it comes back
    // with its full text, as a fresh insertion would.
    VU_CTabRecord* pTab = RemoveTab(from);
    m_nCurrent = to;
    pTab->SetText(pTab->m_strFullText);
    InsertTabRecord(to < m_nCount, pTab, pTab->m_nWidth);
    SwitchToTab(CPoint(CalcTabOffset(m_nCurrent), 0));
}

void VU_CTabBeamModel::SetTabText(int i, const CString& text) {
    DetermineTextForTabs(text, i);
    Invalidate();
}

void VU_CTabBeamModel::SetTabText(const CObject* pData, const CString& text) {
    int i = FindTab(pData);
    if (i >= 0)
        SetTabText(i, text);
}

// ---- selection and marks -----------------------------------------------------

void VU_CTabBeamModel::ClearMarks() {
    for (int i = 0; i < m_tabs.GetSize(); ++i)
        GetTabRecord(i)->m_bMarked = 0;
}

void VU_CTabBeamModel::AdjustFirstVisibleFor(int i) {
    if (i < m_nFirstVisible)
        m_nFirstVisible = i;
    else if (i >= CalcLastVisibleTab())
        m_nFirstVisible = CalcFirstVisibleTab(i);
}

void VU_CTabBeamModel::RefitAndInvalidate() {
    RestoreTabsToOriginal();
    DetermineTextForTabs();
    Invalidate();
}

void VU_CTabBeamModel::SwitchToTab(CPoint point) {
    if (m_bDragging || point.x < m_nScrollArea)
        return;
    int target;
    if (point.x - m_nScrollArea < m_nOverlap) {
        // The slant left of the first visible tab reveals its neighbour.
        target = m_nFirstVisible - 1 < 0 ? 0 : m_nFirstVisible - 1;
        if (target >= m_nCount)
            return;
    } else {
        target = CalcTabFromOffset(point.x);
        if (target < 0)
            return;
    }
    int oldCurrent = m_nCurrent, oldFirst = m_nFirstVisible;
    m_nPrevious = m_nCurrent;
    m_nCurrent = target;
    if (!GetTabRecord(target)->m_bMarked)
        ClearMarks();
    AdjustFirstVisibleFor(m_nCurrent);
    if (m_nCurrent != oldCurrent) {
        int clientRight = ClientRect().right;
        bool fitsClient = Width(m_nCurrent) + m_nScrollArea <= ClientRect().Width();
        while (fitsClient && RightEnd(m_nCurrent) > clientRight)
            if (Scroll(ScrollRight) == 0)
                break; // clamped: the tab stays cut off
    }
    if (m_nFirstVisible != oldFirst || m_nCurrent != oldCurrent) {
        RefitAndInvalidate();
        if (m_nCurrent != oldCurrent && m_pView != nullptr)
            m_pView->TabSelChanged(m_nCurrent);
    }
}

void VU_CTabBeamModel::SetCurSel(int i) {
    if (i >= m_nCount)
        return;
    VU_CTabRecord* pTab = GetTabRecord(i); // throws for a negative index
    int oldCurrent = m_nCurrent, oldFirst = m_nFirstVisible;
    m_nPrevious = m_nCurrent;
    m_nCurrent = i;
    if (!pTab->m_bMarked)
        ClearMarks();
    pTab->m_bMarked = 1;
    AdjustFirstVisibleFor(i);
    if (m_nFirstVisible != oldFirst || m_nCurrent != oldCurrent)
        RefitAndInvalidate();
}

void VU_CTabBeamModel::MarkRange(int clicked) {
    if (clicked < 0 || m_nCurrent < 0)
        return;
    int from = clicked < m_nCurrent ? clicked : m_nCurrent + 1;
    int to = clicked < m_nCurrent ? m_nCurrent - 1 : clicked;
    for (int i = from; i <= to && i < m_tabs.GetSize(); ++i)
        GetTabRecord(i)->m_bMarked = 1;
    Invalidate();
}

void VU_CTabBeamModel::Click(CPoint point, bool bRight, bool bShift, bool bCtrl) {
    if (!bShift && !bCtrl) {
        SwitchToTab(point);
        return;
    }
    int clicked = CalcTabFromOffset(point.x);
    if (bRight && bCtrl) {
        if (clicked >= 0) {
            VU_CTabRecord* pTab = GetTabRecord(clicked);
            pTab->m_bMarked = !pTab->m_bMarked;
            Invalidate();
        }
        return;
    }
    MarkRange(clicked);
}

int VU_CTabBeamModel::DoubleClickTarget(CPoint point) const {
    if (point.x <= m_nScrollArea || m_nCurrent < 0 || m_nCurrent < m_nFirstVisible)
        return -1;
    return m_nCurrent;
}

// ---- geometry -------------------------------------------------------------------

int VU_CTabBeamModel::CalcTabOffset(int i) const {
    int x = GetTabStart();
    for (int j = m_nFirstVisible; j < i; ++j)
        x += Width(j) + m_nOverlap;
    for (int j = i; j < m_nFirstVisible; ++j)
        x -= Width(j) + m_nOverlap;
    return x;
}

int VU_CTabBeamModel::CalcTabMidpoint(int i) const {
    return CalcTabOffset(i) + Width(i) / 2;
}

int VU_CTabBeamModel::CalcTotalTabWidth() const {
    int total = 0;
    for (int i = 0; i < m_nCount; ++i)
        total += Width(i) + m_nOverlap;
    return total;
}

int VU_CTabBeamModel::CalcLastVisibleTab() const {
    if (m_nCount == 0)
        return -1;
    int right = ClientRect().right;
    int x = GetTabStart() + Width(m_nFirstVisible) + 2 * m_nOverlap;
    int j = m_nFirstVisible + 1;
    while (j < m_nCount && x + 7 < right) {
        x += Width(j) + m_nOverlap;
        ++j;
    }
    if (x <= right)
        return j < m_nCount - 1 ? j : m_nCount - 1;
    return j - 1 > m_nFirstVisible ? j - 1 : m_nFirstVisible;
}

int VU_CTabBeamModel::CalcFirstVisibleTab(int i) const {
    if (i < 0 || i >= m_nCount)
        return 0;
    int right = ClientRect().right;
    int x = GetTabStart() + Width(i) + 2 * m_nOverlap;
    int j = i - 1;
    while (j >= 0) {
        if (x + 7 >= right)
            break;
        x += Width(j) + m_nOverlap;
        if (j > 0 && right - x < Width(j - 1) + m_nOverlap)
            break;
        --j;
    }
    return j > 0 ? j : 0;
}

int VU_CTabBeamModel::CalcTabFromOffset(int x) const {
    int pos = GetTabStart() + m_nOverlap;
    int last = CalcLastVisibleTab();
    for (int j = m_nFirstVisible; j <= last; ++j) {
        int next = pos + Width(j) + m_nOverlap;
        if (pos < x && x < next)
            return j;
        if (x < pos)
            return j - 1 > 0 ? j - 1 : 0;
        pos = next;
    }
    return -1;
}

int VU_CTabBeamModel::CalcDestTab(int from, int& dest, CPoint point) const {
    if (dest < 0)
        return dest;
    if (from < dest && point.x < CalcTabMidpoint(dest))
        --dest;
    else if (from > dest && point.x > CalcTabMidpoint(dest))
        ++dest;
    return dest;
}

void VU_CTabBeamModel::AdjustTabSize(int i) {
    VU_CTabRecord* pTab = GetTabRecord(i);
    int text = 0;
    if (m_pView != nullptr) {
        text = m_pView->MeasureTabText(pTab->m_strLine1.View(), i == m_nCurrent);
        if (m_nDisplayStyle == RoundedTabs) {
            int second = m_pView->MeasureTabText(pTab->m_strLine2.View(), false);
            text = second > text ? second : text;
        }
    }
    pTab->m_nWidth = m_nOverlap + pTab->GetImageWidth() + text + 10;
    Invalidate();
}

int VU_CTabBeamModel::Scroll(int code) {
    if (code < ScrollFirst || code > ScrollLast || m_nCount == 0)
        return 0;
    // The largest first index that still fills the area to the right.
    int limit = ClientRect().right - (m_nScrollArea + 1);
    int m = m_nCount - 1;
    int w = Width(m) + 2 * m_nOverlap;
    while (m > m_nFirstVisible && Width(m - 1) + m_nOverlap + w < limit) {
        --m;
        w += Width(m) + m_nOverlap;
    }
    int target = code == ScrollFirst   ? 0
                 : code == ScrollLeft  ? m_nFirstVisible - 1
                 : code == ScrollRight ? m_nFirstVisible + 1
                                       : m_nCount - 1;
    target = target < 0 ? 0 : (target > m ? m : target);
    if (target == m_nFirstVisible)
        return 0;
    int distance = 0;
    for (int j = target < m_nFirstVisible ? target : m_nFirstVisible;
         j < (target < m_nFirstVisible ? m_nFirstVisible : target); ++j)
        distance += Width(j) + m_nOverlap;
    int dx = target > m_nFirstVisible ? -distance : distance;
    if (m_pView != nullptr) {
        m_pView->ScrollTabArea(dx);
        if (dx > 0) {
            int left = m_nScrollArea + 1;
            m_pView->InvalidateTabStrip(left, left + distance + m_nOverlap);
        }
    }
    m_nFirstVisible = target;
    return dx;
}

void VU_CTabBeamModel::ScrollActiveTabIntoView() {
    if (m_nCurrent < 0 || m_nCurrent >= m_nCount)
        return;
    CRect client = ClientRect();
    bool steppedLeft = false, steppedRight = false;
    for (;;) {
        int before = RightEnd(m_nCurrent);
        bool fitsClient = Width(m_nCurrent) + m_nScrollArea <= client.Width();
        bool leftEndPast = CalcTabOffset(m_nCurrent) > client.right;
        if (before > client.right && !steppedLeft && (fitsClient || leftEndPast)) {
            Scroll(ScrollRight);
            steppedRight = true;
        } else if (m_nCurrent < m_nFirstVisible && !steppedRight) {
            Scroll(ScrollLeft);
            steppedLeft = true;
        } else {
            if (m_bTruncated)
                Scroll(ScrollFirst);
            return;
        }
        if (RightEnd(m_nCurrent) == before)
            return;
    }
}

int VU_CTabBeamModel::CalcAvailableWidth() const {
    CRect client = ClientRect();
    return client.right - (m_bScrollBarShown ? m_nScrollArea + 1 : 0) - client.left;
}

// ---- text fitting -----------------------------------------------------------------

bool VU_CTabBeamModel::CheckTabsForExcess() const {
    for (int i = 0; i < m_nCount; ++i)
        if (GetTabRecord(i)->GetNumChars() > 3)
            return true;
    return false;
}

void VU_CTabBeamModel::RestoreTabsToOriginal() {
    for (int i = 0; i < m_nCount; ++i) {
        VU_CTabRecord* pTab = GetTabRecord(i);
        pTab->SetText(pTab->m_strFullText);
        AdjustTabSize(i);
    }
}

int VU_CTabBeamModel::FindLongestTab() const {
    if (m_nCount < 2)
        return 0;
    int longest = 0, most = -1;
    for (int i = 0; i < m_nCount; ++i) {
        int chars = GetTabRecord(i)->GetNumChars();
        if (chars >= most) {
            most = chars;
            longest = i;
        }
    }
    return longest;
}

bool VU_CTabBeamModel::ShortenTab(int i) {
    VU_CTabRecord* pTab = GetTabRecord(i);
    bool secondFirst = pTab->m_strLine1.GetLength() <= pTab->m_strLine2.GetLength();
    CString& first = secondFirst ? pTab->m_strLine2 : pTab->m_strLine1;
    CString& other = secondFirst ? pTab->m_strLine1 : pTab->m_strLine2;
    if (!VU_CTabRecord::ShrinkText(first) && !VU_CTabRecord::ShrinkText(other))
        return false;
    AdjustTabSize(i);
    return true;
}

void VU_CTabBeamModel::ShortenLongestTab() {
    if (m_nCount > 0)
        ShortenTab(FindLongestTab());
}

void VU_CTabBeamModel::DetermineTextForTabs() {
    int available = CalcAvailableWidth();
    int total = CalcTotalTabWidth();
    if (total <= available)
        return;
    // Tabs ordered by (countable characters, index): the last one is the
    // longest, ties going to the later tab.
    std::set<std::pair<int, int>> longest;
    for (int i = 0; i < m_nCount; ++i)
        longest.emplace(GetTabRecord(i)->GetNumChars(), i);
    while (total > available) {
        if (longest.empty() || longest.rbegin()->first <= 3) {
            RestoreTabsToOriginal();
            m_bTruncated = false;
            return;
        }
        auto top = std::prev(longest.end());
        int i = top->second;
        longest.erase(top);
        total -= Width(i);
        ShortenTab(i);
        total += Width(i);
        longest.emplace(GetTabRecord(i)->GetNumChars(), i);
        m_bTruncated = true;
    }
}

CString VU_CTabBeamModel::DetermineTextForTabs(const CString& text, int index) {
    VU_CTabRecord* pTab = GetTabRecord(index);
    if (text != pTab->m_strFullText) {
        pTab->m_strFullText = text;
        AdjustTabSize(index);
        RestoreTabsToOriginal();
        DetermineTextForTabs();
    }
    return pTab->m_strLine1;
}

void VU_CTabBeamModel::DetermineTextForResizeRoutine() {
    if (CalcAvailableWidth() - CalcTotalTabWidth() >= kRestoreSlack)
        RestoreTabsToOriginal();
    DetermineTextForTabs();
}

// ---- drag and drop ----------------------------------------------------------------

bool VU_CTabBeamModel::CanDropOnEnter(CPoint point, bool bMoveNotifyIsParent) const {
    return bMoveNotifyIsParent && CalcTabFromOffset(point.x) != 0;
}

bool VU_CTabBeamModel::CanDropOnOver(int dragged, CPoint point, bool bMoveNotifyIsParent) const {
    return bMoveNotifyIsParent && dragged != 0 && CalcTabFromOffset(point.x) > 0;
}

bool VU_CTabBeamModel::DropTab(int from, CPoint point) {
    int dest = CalcTabFromOffset(point.x);
    if (dest < 0 || from < 0 || from >= m_nCount)
        return false;
    CalcDestTab(from, dest, point);
    if (dest == from)
        return false;
    MoveTab(from, dest);
    m_nPrevious = from;
    m_nFirstVisible = 0;
    if (m_pView != nullptr)
        m_pView->TabMoved(m_nCurrent);
    return true;
}

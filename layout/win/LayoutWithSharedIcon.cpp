#include "layout/win/LayoutWithSharedIcon.h"

#include "layout/win/LayoutIcon.h"

int VU_CLayoutWithSharedIcon::c_nInstance = 0;
CMap<UINT, UINT, HICON, HICON> VU_CLayoutWithSharedIcon::c_IconMap;

VU_CLayoutWithSharedIcon::VU_CLayoutWithSharedIcon(UINT nResourceID, CSize size)
    : m_size(size), m_nResourceID(nResourceID) {
    ++c_nInstance;
    HICON hIcon = nullptr;
    if (!c_IconMap.Lookup(nResourceID, hIcon))
        c_IconMap.SetAt(nResourceID, VU_CLayoutIcon::LoadLayoutIcon(nResourceID, size));
}

VU_CLayoutWithSharedIcon::VU_CLayoutWithSharedIcon(const VU_CLayoutWithSharedIcon& other)
    : VU_CConcreteElement(other), m_size(other.m_size), m_nResourceID(other.m_nResourceID),
      m_x(other.m_x), m_y(other.m_y) {
    ++c_nInstance;
}

VU_CLayoutWithSharedIcon::~VU_CLayoutWithSharedIcon() {
    if (--c_nInstance >= 1)
        return;
    POSITION pos = c_IconMap.GetStartPosition();
    while (pos != nullptr) {
        UINT id = 0;
        HICON hIcon = nullptr;
        c_IconMap.GetNextAssoc(pos, id, hIcon);
        if (hIcon != nullptr)
            ::DestroyIcon(hIcon);
    }
    c_IconMap.RemoveAll();
}

CSize VU_CLayoutWithSharedIcon::RecalcSize() {
    return m_size;
}

void VU_CLayoutWithSharedIcon::OnDraw(CDC* pDC) {
    if (GetVisibility() != VU_LayoutDefs::HIDDEN)
        VU_CLayoutIcon::DrawLayoutIcon(pDC, GetSharedIcon(m_nResourceID), CPoint(m_x, m_y), m_size);
}

CRect VU_CLayoutWithSharedIcon::GetObjectRect() const {
    return CRect(m_x, m_y, m_x + m_size.cx, m_y + m_size.cy);
}

void VU_CLayoutWithSharedIcon::SetObjectRect(CRect rect) {
    m_x = rect.left;
    m_y = rect.top;
}

HICON VU_CLayoutWithSharedIcon::GetSharedIcon(UINT nResourceID) {
    HICON hIcon = nullptr;
    return c_IconMap.Lookup(nResourceID, hIcon) ? hIcon : nullptr;
}

int VU_CLayoutWithSharedIcon::GetInstanceCount() {
    return c_nInstance;
}
INT_PTR VU_CLayoutWithSharedIcon::GetSharedIconCount() {
    return c_IconMap.GetCount();
}

#include "layout/win/LayoutIcon.h"

#include "framework/win/DC.h"
#include "framework/win/DynLinkLibrary.h"

VU_CLayoutIcon::VU_CLayoutIcon(UINT nResourceID, CSize size)
    : m_size(size), m_hIcon(LoadLayoutIcon(nResourceID, size)) {}

VU_CLayoutIcon::~VU_CLayoutIcon() {
    if (m_hIcon != nullptr)
        ::DestroyIcon(m_hIcon);
}

CSize VU_CLayoutIcon::RecalcSize() {
    return m_size;
}

void VU_CLayoutIcon::OnDraw(CDC* pDC) {
    if (GetVisibility() != VU_LayoutDefs::HIDDEN)
        DrawLayoutIcon(pDC, m_hIcon, CPoint(m_x, m_y), m_size);
}

CRect VU_CLayoutIcon::GetObjectRect() const {
    return CRect(m_x, m_y, m_x + m_size.cx, m_y + m_size.cy);
}

void VU_CLayoutIcon::SetObjectRect(CRect rect) {
    m_x = rect.left;
    m_y = rect.top;
}

HICON VU_CLayoutIcon::LoadLayoutIcon(UINT nResourceID, CSize size) {
    LPCWSTR name = MAKEINTRESOURCEW(nResourceID);
    HINSTANCE module = AfxFindResourceHandle(name, RT_GROUP_ICON);
    // A null module would make LoadImageW load the system's own images.
    if (module == nullptr)
        return nullptr;
    return static_cast<HICON>(::LoadImageW(module, name, IMAGE_ICON, size.cx, size.cy, 0));
}

void VU_CLayoutIcon::DrawLayoutIcon(CDC* pDC, HICON hIcon, CPoint point, CSize size) {
    if (hIcon != nullptr && pDC != nullptr)
        ::DrawIconEx(pDC->GetSafeHdc(), point.x, point.y, hIcon, size.cx, size.cy, 0, nullptr,
                     DI_NORMAL);
}

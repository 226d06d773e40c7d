#include "layout/win/LayoutBitmap.h"

#include "framework/win/DC.h"
#include "layout/Visitor.h"

VU_CLayoutBitmap::VU_CLayoutBitmap(UINT nResourceID) : m_nBitmapID(nResourceID) {
    SetFlexible(0, 0);
    m_bitmap.LoadBitmap(nResourceID);
    m_rectObject = CRect(CPoint(0, 0), BitmapSize(m_bitmap));
}

VU_CLayoutBitmap::VU_CLayoutBitmap(const VU_CLayoutBitmap& other)
    : VU_CConcreteElement(other), m_rectObject(other.m_rectObject), m_nBitmapID(other.m_nBitmapID),
      m_bTransparent(other.m_bTransparent), m_crTransparency(other.m_crTransparency) {
    CopyImage(other.m_bitmap);
}

VU_CLayoutBitmap& VU_CLayoutBitmap::operator=(const VU_CLayoutBitmap& other) {
    if (this != &other) {
        VU_CConcreteElement::operator=(other);
        m_rectObject = other.m_rectObject;
        m_nBitmapID = other.m_nBitmapID;
        m_bTransparent = other.m_bTransparent;
        m_crTransparency = other.m_crTransparency;
        CopyImage(other.m_bitmap);
    }
    return *this;
}

void VU_CLayoutBitmap::Accept(DwIVisitor* visitor) {
    if (auto* handler = dynamic_cast<DwIVisit<VU_CLayoutBitmap>*>(visitor))
        handler->Visit(this);
    else
        VU_CConcreteElement::Accept(visitor);
}

CSize VU_CLayoutBitmap::RecalcSize() {
    if (GetVisibility() == VU_LayoutDefs::HIDDEN)
        return CSize();
    return m_rectObject.Size();
}

void VU_CLayoutBitmap::OnDraw(CDC* pDC) {
    if (GetVisibility() != VU_LayoutDefs::HIDDEN)
        DrawInto(pDC, m_bitmap, m_rectObject, m_bTransparent, m_crTransparency);
}

CRect VU_CLayoutBitmap::GetObjectRect() const {
    return m_rectObject;
}
void VU_CLayoutBitmap::SetObjectRect(CRect rect) {
    m_rectObject = rect;
}

UINT VU_CLayoutBitmap::GetBitmapID() const {
    return m_nBitmapID;
}

void VU_CLayoutBitmap::SetBitmap(UINT nResourceID) {
    m_bitmap.Detach();
    m_bitmap.LoadBitmap(nResourceID);
    m_nBitmapID = nResourceID;
}

void VU_CLayoutBitmap::SetTransparencyColor(COLORREF crColor) {
    m_bTransparent = TRUE;
    m_crTransparency = crColor;
}

CSize VU_CLayoutBitmap::BitmapSize(const VU_CBitmap& bitmap) {
    BITMAP info = {};
    if (bitmap.GetHandle() == nullptr ||
        ::GetObjectW(bitmap.GetHandle(), sizeof(info), &info) != sizeof(info))
        return CSize();
    return CSize(info.bmWidth, info.bmHeight);
}

void VU_CLayoutBitmap::DrawInto(CDC* pDC, const VU_CBitmap& bitmap, CRect rect, BOOL bTransparent,
                                COLORREF crColor) {
    if (pDC == nullptr || bitmap.GetHandle() == nullptr)
        return;
    rect.NormalizeRect();
    if (bTransparent)
        bitmap.DrawTransparent(pDC, rect.TopLeft(), crColor);
    else
        bitmap.Draw(pDC, rect, SRCCOPY);
}

void VU_CLayoutBitmap::CopyImage(const VU_CBitmap& from) {
    HBITMAP copy = nullptr;
    if (from.GetHandle() != nullptr)
        copy = static_cast<HBITMAP>(::CopyImage(from.GetHandle(), IMAGE_BITMAP, 0, 0, 0));
    m_bitmap.SetHandle(copy);
}

#include "layout/win/LayoutWithSharedBitmap.h"

#include "layout/Visitor.h"
#include "layout/win/LayoutBitmap.h"

int VU_CLayoutWithSharedBitmap::c_nInstance = 0;
CMap<UINT, UINT, VU_CBitmap*, VU_CBitmap*> VU_CLayoutWithSharedBitmap::c_BitmapMap;

VU_CLayoutWithSharedBitmap::VU_CLayoutWithSharedBitmap(UINT nResourceID)
    : m_nBitmapID(nResourceID) {
    SetFlexible(0, 0);
    ++c_nInstance;
    m_rectObject = CRect(CPoint(0, 0), VU_CLayoutBitmap::BitmapSize(*Register(nResourceID)));
}

VU_CLayoutWithSharedBitmap::VU_CLayoutWithSharedBitmap(const VU_CLayoutWithSharedBitmap& other)
    : VU_CConcreteElement(other), m_rectObject(other.m_rectObject), m_nBitmapID(other.m_nBitmapID),
      m_bTransparent(other.m_bTransparent), m_crTransparency(other.m_crTransparency) {
    ++c_nInstance;
}

VU_CLayoutWithSharedBitmap::~VU_CLayoutWithSharedBitmap() {
    if (--c_nInstance > 0)
        return;
    POSITION pos = c_BitmapMap.GetStartPosition();
    while (pos != nullptr) {
        UINT id = 0;
        VU_CBitmap* bitmap = nullptr;
        c_BitmapMap.GetNextAssoc(pos, id, bitmap);
        bitmap->DeleteObject();
        delete bitmap;
    }
    c_BitmapMap.RemoveAll();
}

void VU_CLayoutWithSharedBitmap::Accept(DwIVisitor* visitor) {
    if (auto* handler = dynamic_cast<DwIVisit<VU_CLayoutWithSharedBitmap>*>(visitor))
        handler->Visit(this);
    else
        VU_CConcreteElement::Accept(visitor);
}

CSize VU_CLayoutWithSharedBitmap::RecalcSize() {
    if (GetVisibility() == VU_LayoutDefs::HIDDEN)
        return CSize();
    return m_rectObject.Size();
}

void VU_CLayoutWithSharedBitmap::OnDraw(CDC* pDC) {
    if (GetVisibility() == VU_LayoutDefs::HIDDEN)
        return;
    if (VU_CBitmap* bitmap = GetSharedBitmap(m_nBitmapID))
        VU_CLayoutBitmap::DrawInto(pDC, *bitmap, m_rectObject, m_bTransparent, m_crTransparency);
}

CRect VU_CLayoutWithSharedBitmap::GetObjectRect() const {
    return m_rectObject;
}
void VU_CLayoutWithSharedBitmap::SetObjectRect(CRect rect) {
    m_rectObject = rect;
}

UINT VU_CLayoutWithSharedBitmap::GetBitmapID() const {
    return m_nBitmapID;
}

void VU_CLayoutWithSharedBitmap::SetBitmap(UINT nResourceID) {
    m_nBitmapID = nResourceID;
    Register(nResourceID);
}

void VU_CLayoutWithSharedBitmap::SetTransparencyColor(COLORREF crColor) {
    m_bTransparent = TRUE;
    m_crTransparency = crColor;
}

VU_CBitmap* VU_CLayoutWithSharedBitmap::GetSharedBitmap(UINT nResourceID) {
    VU_CBitmap* bitmap = nullptr;
    return c_BitmapMap.Lookup(nResourceID, bitmap) ? bitmap : nullptr;
}

VU_CBitmap* VU_CLayoutWithSharedBitmap::Register(UINT nResourceID) {
    VU_CBitmap* bitmap = GetSharedBitmap(nResourceID);
    if (bitmap == nullptr) {
        bitmap = new VU_CBitmap;
        bitmap->LoadBitmap(nResourceID);
        c_BitmapMap.SetAt(nResourceID, bitmap);
    }
    return bitmap;
}

int VU_CLayoutWithSharedBitmap::GetInstanceCount() {
    return c_nInstance;
}
INT_PTR VU_CLayoutWithSharedBitmap::GetSharedBitmapCount() {
    return c_BitmapMap.GetCount();
}

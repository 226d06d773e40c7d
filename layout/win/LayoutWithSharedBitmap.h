#pragma once
// VU_CLayoutWithSharedBitmap: a bitmap like VU_CLayoutBitmap whose image is
// loaded once per process and resource id, and shared by every instance.
//
// The shared images live while any instance does: the last one destroyed
// deletes them all and the next one created loads afresh. SetBitmap loads
// (once) the new id; ids stay loaded while any instance exists, even if
// none uses them any more. An id whose resource cannot be found is kept
// with an empty image, which draws nothing. A copy counts as one more
// instance.
#include <windows.h>

#include "foundation/win/Bitmap.h"
#include "framework/Map.h"
#include "layout/ConcreteElement.h"

class VU_CLayoutWithSharedBitmap : public VU_CConcreteElement {
public:
    explicit VU_CLayoutWithSharedBitmap(UINT nResourceID);
    VU_CLayoutWithSharedBitmap(const VU_CLayoutWithSharedBitmap& other);
    VU_CLayoutWithSharedBitmap& operator=(const VU_CLayoutWithSharedBitmap& other) = default;
    ~VU_CLayoutWithSharedBitmap() override;

    // Operations of every element
    // Visits through DwIVisit<VU_CLayoutWithSharedBitmap> when the visitor
    // has it, otherwise as any leaf.
    void Accept(DwIVisitor* visitor) override;
    CSize RecalcSize() override;
    void OnDraw(CDC* pDC) override;

    // Operations of leaves
    CRect GetObjectRect() const override;
    void SetObjectRect(CRect rect) override;

    // Operations of bitmaps
    virtual UINT GetBitmapID() const;
    // Shows another image in the same rectangle.
    virtual void SetBitmap(UINT nResourceID);
    // Draws with crColor transparent from now on.
    void SetTransparencyColor(COLORREF crColor);

    // The class-wide state: live instances, loaded images, the image of an id.
    static int GetInstanceCount();
    static INT_PTR GetSharedBitmapCount();
    static VU_CBitmap* GetSharedBitmap(UINT nResourceID);

private:
    // The image of the id, loaded and registered if it is not yet.
    static VU_CBitmap* Register(UINT nResourceID);

    CRect m_rectObject;
    UINT m_nBitmapID;
    BOOL m_bTransparent = FALSE;
    COLORREF m_crTransparency = 0;

    static int c_nInstance;
    static CMap<UINT, UINT, VU_CBitmap*, VU_CBitmap*> c_BitmapMap;
};

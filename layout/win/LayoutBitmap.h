#pragma once
// VU_CLayoutBitmap: a bitmap resource drawn into its object rectangle.
//
// A bitmap is never flexible: its rectangle starts as (0, 0, width, height)
// of the image and its container moves it (SetObjectRect takes position and
// size). Hidden, it reports (0, 0) and takes no room. It draws into the
// normalised rectangle (a flipped one is drawn where it covers), stretched
// when the rectangle's size differs from the image's, or, once a
// transparency colour is set, at the image's own size with that colour
// left out. A resource that cannot be found leaves the bitmap empty: it
// draws nothing and its rectangle is empty.
//
// A copy holds its own copy of the image.
#include <windows.h>

#include "foundation/win/Bitmap.h"
#include "layout/ConcreteElement.h"

class VU_CLayoutBitmap : public VU_CConcreteElement {
public:
    explicit VU_CLayoutBitmap(UINT nResourceID);
    VU_CLayoutBitmap(const VU_CLayoutBitmap& other);
    VU_CLayoutBitmap& operator=(const VU_CLayoutBitmap& other);
    ~VU_CLayoutBitmap() override = default;

    // Operations of every element
    // Visits through DwIVisit<VU_CLayoutBitmap> when the visitor has it,
    // otherwise as any leaf.
    void Accept(DwIVisitor* visitor) override;
    CSize RecalcSize() override;
    void OnDraw(CDC* pDC) override;

    // Operations of leaves
    CRect GetObjectRect() const override;
    void SetObjectRect(CRect rect) override;

    // Operations of bitmaps
    virtual UINT GetBitmapID() const;
    // Shows another image in the same rectangle. The previous GDI bitmap is
    // detached, not deleted: drawing code elsewhere may still hold it.
    virtual void SetBitmap(UINT nResourceID);
    // Draws with crColor transparent from now on.
    void SetTransparencyColor(COLORREF crColor);

    // Attributes
    const VU_CBitmap& GetBitmap() const { return m_bitmap; }
    BOOL IsTransparent() const { return m_bTransparent; }

    // The image's (width, height), (0, 0) for an empty bitmap.
    static CSize BitmapSize(const VU_CBitmap& bitmap);
    // Draws bitmap into the normalised rect, or at its corner with crColor
    // transparent.
    static void DrawInto(CDC* pDC, const VU_CBitmap& bitmap, CRect rect, BOOL bTransparent,
                         COLORREF crColor);

private:
    void CopyImage(const VU_CBitmap& from);

    CRect m_rectObject;
    VU_CBitmap m_bitmap;
    UINT m_nBitmapID;
    BOOL m_bTransparent = FALSE;
    COLORREF m_crTransparency = 0;
};

#pragma once
// VU_CLayoutIcon: an icon resource drawn at a fixed size. The icon is
// loaded once, at construction, at that size; it keeps the size whatever
// rectangle a container gives it and takes only the rectangle's top-left
// corner. A hidden icon still reports its size, so it keeps its place.
//
// A copy holds the same icon handle as the original (the handle is copied
// as it stands); whichever is destroyed first destroys the icon, so keep
// the original alive as long as its copies draw.
#include <windows.h>

#include "layout/ConcreteElement.h"

class VU_CLayoutIcon : public VU_CConcreteElement {
public:
    VU_CLayoutIcon(UINT nResourceID, CSize size);
    VU_CLayoutIcon(const VU_CLayoutIcon& other) = default;
    VU_CLayoutIcon& operator=(const VU_CLayoutIcon& other) = default;
    ~VU_CLayoutIcon() override;

    // Operations of every element
    CSize RecalcSize() override;
    void OnDraw(CDC* pDC) override;

    // Operations of leaves
    // (x, y, x + cx, y + cy).
    CRect GetObjectRect() const override;
    // Takes the rectangle's top-left corner only.
    void SetObjectRect(CRect rect) override;

    // Attributes
    HICON GetIcon() const { return m_hIcon; }

    // Loads icon nResourceID at size from the first module of the resource
    // chain that holds its icon group; null when none does.
    static HICON LoadLayoutIcon(UINT nResourceID, CSize size);
    // Draws hIcon (if any) stretched to size at point.
    static void DrawLayoutIcon(CDC* pDC, HICON hIcon, CPoint point, CSize size);

private:
    CSize m_size;
    HICON m_hIcon;
    int m_x = 0;
    int m_y = 0;
};

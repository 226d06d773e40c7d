#pragma once
// VU_CLayoutWithSharedIcon: an icon like VU_CLayoutIcon whose image is
// loaded once per process and resource id, and shared by every instance.
//
// The first instance created for an id loads the image at its own size;
// later instances of other sizes draw that image stretched to their size.
// The shared icons live while any instance does: the last one destroyed
// destroys them all and the next one created loads afresh. An id stays
// loaded while any instance exists, even if none uses it any more. A copy
// counts as one more instance.
#include <windows.h>

#include "framework/Map.h"
#include "layout/ConcreteElement.h"

class VU_CLayoutWithSharedIcon : public VU_CConcreteElement {
public:
    VU_CLayoutWithSharedIcon(UINT nResourceID, CSize size);
    VU_CLayoutWithSharedIcon(const VU_CLayoutWithSharedIcon& other);
    VU_CLayoutWithSharedIcon& operator=(const VU_CLayoutWithSharedIcon& other) = default;
    ~VU_CLayoutWithSharedIcon() override;

    // Operations of every element
    CSize RecalcSize() override;
    void OnDraw(CDC* pDC) override;

    // Operations of leaves
    CRect GetObjectRect() const override;
    // Takes the rectangle's top-left corner only.
    void SetObjectRect(CRect rect) override;

    // Attributes
    UINT GetIconID() const { return m_nResourceID; }
    // The class-wide state: live instances, loaded icons, the icon of an id.
    static int GetInstanceCount();
    static INT_PTR GetSharedIconCount();
    static HICON GetSharedIcon(UINT nResourceID);

private:
    CSize m_size;
    UINT m_nResourceID;
    int m_x = 0;
    int m_y = 0;

    static int c_nInstance;
    static CMap<UINT, UINT, HICON, HICON> c_IconMap;
};

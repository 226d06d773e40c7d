#pragma once
// Vu_CTabInfo: one tab of a Vu_CTabBeam: the portable record (texts, width,
// mark, data) with the menu handle and the bitmap that the tab owns.
#include <windows.h>

#include "foundation/win/Bitmap.h"
#include "tabs/TabRecord.h"

class Vu_CTabInfo : public VU_CTabRecord {
public:
    Vu_CTabInfo() = default;
    // Releases the menu handle with DeleteObject (as hosts have always
    // relied on; a menu is not a GDI object, so this leaves it to the
    // host) and deletes the bitmap.
    ~Vu_CTabInfo() override;

    int GetImageWidth() const override { return m_bitmap.GetSize().cx; }

    // Attributes
    HMENU m_hMenu = nullptr; // handed in at insertion
    VU_CBitmap m_bitmap;     // shown left of the text; owned
};

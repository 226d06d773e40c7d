#pragma once
// CImageList: an owned common-controls image list.
#include <windows.h>

#include <commctrl.h>

#include "framework/Object.h"
#include "framework/Point.h"

class CDC;

class CImageList : public CObject {
public:
    CImageList() = default;
    ~CImageList() override { DeleteImageList(); }
    CImageList(const CImageList&) = delete;
    CImageList& operator=(const CImageList&) = delete;

    // Attributes
    HIMAGELIST m_hImageList = nullptr;
    operator HIMAGELIST() const { return m_hImageList; }
    HIMAGELIST GetSafeHandle() const { return m_hImageList; }
    int GetImageCount() const;
    BOOL GetImageInfo(int nImage, IMAGEINFO* pImageInfo) const;
    BOOL GetIconSize(int* cx, int* cy) const;
    COLORREF SetBkColor(COLORREF cr);

    // Operations
    BOOL Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow);
    // From a bitmap resource found through the resource chain; images cx
    // wide, crMask transparent.
    BOOL Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask);
    BOOL Create(HINSTANCE hInstance, UINT nBitmapID, int cx, int nGrow, COLORREF crMask);
    BOOL Attach(HIMAGELIST hImageList);
    HIMAGELIST Detach();
    BOOL DeleteImageList();
    int Add(HBITMAP hbmImage, HBITMAP hbmMask);
    int Add(HBITMAP hbmImage, COLORREF crMask);
    int Add(HICON hIcon);
    BOOL Remove(int nImage);
    BOOL Replace(int nImage, HBITMAP hbmImage, HBITMAP hbmMask);
    BOOL Draw(CDC* pDC, int nImage, CPoint pt, UINT nStyle);
    HICON ExtractIcon(int nImage);
};

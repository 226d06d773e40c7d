#include "framework/win/ImageList.h"

#include "framework/win/DC.h"
#include "framework/win/DynLinkLibrary.h"

int CImageList::GetImageCount() const {
    return m_hImageList != nullptr ? ImageList_GetImageCount(m_hImageList) : 0;
}

BOOL CImageList::GetImageInfo(int nImage, IMAGEINFO* pImageInfo) const {
    return m_hImageList != nullptr && ImageList_GetImageInfo(m_hImageList, nImage, pImageInfo);
}

BOOL CImageList::GetIconSize(int* cx, int* cy) const {
    return m_hImageList != nullptr && ImageList_GetIconSize(m_hImageList, cx, cy);
}

COLORREF CImageList::SetBkColor(COLORREF cr) {
    return m_hImageList != nullptr ? ImageList_SetBkColor(m_hImageList, cr) : CLR_NONE;
}

BOOL CImageList::Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow) {
    return Attach(ImageList_Create(cx, cy, nFlags, nInitial, nGrow));
}

BOOL CImageList::Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask) {
    HINSTANCE hModule = AfxFindResourceHandle(MAKEINTRESOURCEW(nBitmapID), RT_BITMAP);
    return hModule != nullptr && Create(hModule, nBitmapID, cx, nGrow, crMask);
}

BOOL CImageList::Create(HINSTANCE hInstance, UINT nBitmapID, int cx, int nGrow, COLORREF crMask) {
    if (m_hImageList != nullptr)
        return FALSE;
    return Attach(ImageList_LoadImageW(hInstance, MAKEINTRESOURCEW(nBitmapID), cx, nGrow, crMask,
                                       IMAGE_BITMAP, LR_CREATEDIBSECTION));
}

BOOL CImageList::Attach(HIMAGELIST hImageList) {
    if (hImageList == nullptr || m_hImageList != nullptr)
        return FALSE;
    m_hImageList = hImageList;
    return TRUE;
}

HIMAGELIST CImageList::Detach() {
    HIMAGELIST hImageList = m_hImageList;
    m_hImageList = nullptr;
    return hImageList;
}

BOOL CImageList::DeleteImageList() {
    if (m_hImageList == nullptr)
        return FALSE;
    return ImageList_Destroy(Detach());
}

int CImageList::Add(HBITMAP hbmImage, HBITMAP hbmMask) {
    return m_hImageList != nullptr ? ImageList_Add(m_hImageList, hbmImage, hbmMask) : -1;
}

int CImageList::Add(HBITMAP hbmImage, COLORREF crMask) {
    return m_hImageList != nullptr ? ImageList_AddMasked(m_hImageList, hbmImage, crMask) : -1;
}

int CImageList::Add(HICON hIcon) {
    return m_hImageList != nullptr ? ImageList_AddIcon(m_hImageList, hIcon) : -1;
}

BOOL CImageList::Remove(int nImage) {
    return m_hImageList != nullptr && ImageList_Remove(m_hImageList, nImage);
}

BOOL CImageList::Replace(int nImage, HBITMAP hbmImage, HBITMAP hbmMask) {
    return m_hImageList != nullptr && ImageList_Replace(m_hImageList, nImage, hbmImage, hbmMask);
}

BOOL CImageList::Draw(CDC* pDC, int nImage, CPoint pt, UINT nStyle) {
    if (m_hImageList == nullptr || pDC == nullptr)
        return FALSE;
    return ImageList_Draw(m_hImageList, nImage, pDC->m_hDC, pt.x, pt.y, nStyle);
}

HICON CImageList::ExtractIcon(int nImage) {
    return m_hImageList != nullptr ? ImageList_GetIcon(m_hImageList, nImage, ILD_NORMAL) : nullptr;
}

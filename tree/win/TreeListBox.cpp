#include "tree/win/TreeListBox.h"

#include "foundation/win/Library.h"
#include "framework/win/Bitmap.h"
#include "text/XmlWriter.h"
#include "tree/TreeImages.h"
#include "tree/TreeListGeometry.h"
#include "tree/TreeNodeVisitor.h"

#include <windowsx.h>

#include <algorithm>
#include <cstring>

using namespace vu::treelist;

namespace {

const COLORREF kTreeLineColour = RGB(128, 128, 128);
const int kColumnGap = 4; // pixels kept free before the next column

// Finds the first node in pre-order whose display text equals a text.
class TextFinder : public VU_ATreeNodeVisitor {
public:
    explicit TextFinder(const CString& text) : m_text(text) {}
    void Visit(CTreeNodeArray* array) override {
        auto* node = dynamic_cast<CTreeNode*>(array);
        if (node != nullptr && node->GetDisplayText() == m_text) {
            m_found = node;
            SetVisitComplete(true);
        }
    }
    CTreeNode* Found() const { return m_found; }

private:
    const CString& m_text;
    CTreeNode* m_found = nullptr;
};

int TextWidth(HDC dc, std::wstring_view text) {
    SIZE size{};
    GetTextExtentPoint32W(dc, text.data(), static_cast<int>(text.size()), &size);
    return size.cx;
}

CString ToCString(std::wstring_view text) {
    return CString(text.data(), static_cast<int>(text.size()));
}

} // namespace

// ---- Construction ---------------------------------------------------------------

VU_CTreeListBox::VU_CTreeListBox() {
    m_ownImageList.Create(VuGetInstanceHandle(), VU_IDB_TREE_IMAGES, VU_TREE_IMAGE_WIDTH, 1,
                          RGB(0, 0, 255));
    m_tabStops.Add(11);
    m_tabStops.Add(33);
}

VU_CTreeListBox::~VU_CTreeListBox() {
    // The rows point at the nodes: empty the list before the nodes go.
    if (m_hWnd != nullptr && ::IsWindow(m_hWnd))
        DefWindowProc(LB_RESETCONTENT, 0, 0);
    for (CTreeNode* root : m_roots)
        delete root;
    m_roots.RemoveAll();
    if (m_tooltip != nullptr) {
        m_tooltip->DestroyWindow();
        delete m_tooltip;
    }
    if (m_boldFont != nullptr)
        DeleteObject(m_boldFont);
}

CTreeNode* VU_CTreeListBox::CreateTreeNode(const CString& text, const VU_CImageIndexArray& images,
                                           unsigned long itemData, int handle, CTreeNode* parent) {
    return new CTreeNode(text, images, itemData, handle, parent);
}

// ---- Rows -------------------------------------------------------------------------

int VU_CTreeListBox::GetRowCount() const {
    if (m_hWnd == nullptr)
        return 0;
    const LRESULT count = ::SendMessageW(m_hWnd, LB_GETCOUNT, 0, 0);
    return count < 0 ? 0 : static_cast<int>(count);
}

int VU_CTreeListBox::GetSelectedRow() const {
    if (m_hWnd == nullptr)
        return -1;
    return static_cast<int>(::SendMessageW(m_hWnd, LB_GETCURSEL, 0, 0));
}

void VU_CTreeListBox::SetSelectedRow(int row) {
    ::SendMessageW(m_hWnd, LB_SETCURSEL, row, 0);
}

int VU_CTreeListBox::InsertRow(int row, CTreeNode* node) {
    const LRESULT result =
        DefWindowProc(LB_INSERTSTRING, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(node));
    return result < 0 ? -1 : static_cast<int>(result);
}

int VU_CTreeListBox::AppendRow(CTreeNode* node) {
    const LRESULT result = DefWindowProc(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(node));
    return result < 0 ? -1 : static_cast<int>(result);
}

void VU_CTreeListBox::DeleteRow(int row) {
    DefWindowProc(LB_DELETESTRING, static_cast<WPARAM>(row), 0);
}

CTreeNode* VU_CTreeListBox::GetNode(int row) const {
    // One query per row: LB_GETITEMDATA answers LB_ERR past the last row.
    if (m_hWnd == nullptr || row < 0)
        return nullptr;
    const LRESULT data = ::SendMessageW(m_hWnd, LB_GETITEMDATA, static_cast<WPARAM>(row), 0);
    if (data == LB_ERR)
        return nullptr;
    return reinterpret_cast<CTreeNode*>(data);
}

int VU_CTreeListBox::GetNodeHandle(int row) const {
    const CTreeNode* node = GetNode(row);
    return node != nullptr ? node->GetTreeNodeItemHandle() : -1;
}

int VU_CTreeListBox::GetListboxIndex(const CTreeNode* node) const {
    if (node == nullptr)
        return -1;
    const int count = GetRowCount();
    for (int row = 0; row < count; ++row)
        if (::SendMessageW(m_hWnd, LB_GETITEMDATA, static_cast<WPARAM>(row), 0) ==
            reinterpret_cast<LRESULT>(node))
            return row;
    return -1;
}

int VU_CTreeListBox::GetListboxIndex(int handle) const {
    const int count = GetRowCount();
    for (int row = 0; row < count; ++row) {
        const CTreeNode* node = GetNode(row);
        if (node != nullptr && node->GetTreeNodeItemHandle() == handle)
            return row;
    }
    return -1;
}

void VU_CTreeListBox::BeginUpdate() {
    if (m_updateDepth++ == 0 && m_hWnd != nullptr)
        ::SendMessageW(m_hWnd, WM_SETREDRAW, FALSE, 0);
}

void VU_CTreeListBox::EndUpdate() {
    if (m_updateDepth > 0 && --m_updateDepth == 0 && m_hWnd != nullptr) {
        ::SendMessageW(m_hWnd, WM_SETREDRAW, TRUE, 0);
        RedrawAll();
    }
}

void VU_CTreeListBox::RedrawAll() {
    if (m_hWnd == nullptr || m_updateDepth > 0)
        return;
    ::InvalidateRect(m_hWnd, nullptr, TRUE);
    ::UpdateWindow(m_hWnd);
}

void VU_CTreeListBox::NotifySelChange() {
    HWND parent = ::GetParent(m_hWnd);
    if (parent == nullptr)
        return;
    const int id = ::GetDlgCtrlID(m_hWnd);
    ::SendMessageW(parent, WM_COMMAND, MAKEWPARAM(id, LBN_SELCHANGE),
                   reinterpret_cast<LPARAM>(m_hWnd));
}

bool VU_CTreeListBox::IsRowSelectable(int row) const {
    const CTreeNode* node = GetNode(row);
    return node == nullptr || !(node->IsHeader() || node->IsSeparator());
}

// ---- Building the tree -------------------------------------------------------------

int VU_CTreeListBox::AddItem(const CString& text, const VU_CImageIndexArray& images,
                             unsigned long itemData, int parentHandle, int* outHandle,
                             bool expandParent) {
    if (parentHandle == -1) {
        CTreeNode* node = CreateTreeNode(text, images, itemData, m_nextHandle, nullptr);
        if (node == nullptr)
            return -1;
        node->SetHandle(m_nextHandle++);
        node->SetParent(nullptr);
        node->SetLevel(0);
        m_roots.Add(node);
        if (outHandle != nullptr)
            *outHandle = node->GetTreeNodeItemHandle();
        return AppendRow(node);
    }

    CTreeNode* parent = FindNode(parentHandle);
    if (parent == nullptr)
        return -1;
    const int shown = parent->ComputeNumberOfExpandedNodesShowing();
    const int prior = parent->GetNumberOfChildren();
    CTreeNode* node = CreateTreeNode(text, images, itemData, m_nextHandle, parent);
    if (node == nullptr)
        return -1;
    node->SetHandle(m_nextHandle++);
    node->SetParent(parent);
    node->SetLevel(parent->GetLevel() + 1);
    parent->Add(node);
    parent->SetExpandFlag(expandParent ? 1 : 0);
    if (outHandle != nullptr)
        *outHandle = node->GetTreeNodeItemHandle();
    if (!expandParent)
        return AppendedChildOffset(shown, prior);
    const int parentRow = GetListboxIndex(parent);
    if (parentRow < 0)
        return -1;
    return InsertRow(AppendedChildRow(parentRow, shown, prior), node);
}

int VU_CTreeListBox::AddItem(const CString& text, int image, int selectedImage,
                             unsigned long itemData, int parentHandle, int* outHandle,
                             bool expandParent) {
    return AddItem(text, VU_CImageIndexArray::Pair(image, selectedImage), itemData, parentHandle,
                   outHandle, expandParent);
}

int VU_CTreeListBox::AddBitmap(CBitmap* bitmap) {
    HIMAGELIST list = GetImageListHandle();
    if (bitmap == nullptr || bitmap->GetSafeHandle() == nullptr || list == nullptr)
        return -1;
    return ImageList_AddMasked(list, static_cast<HBITMAP>(bitmap->GetSafeHandle()), RGB(0, 0, 255));
}

int VU_CTreeListBox::AddItem(const CString& text, CBitmap* bitmap, CBitmap* selectedBitmap,
                             unsigned long itemData, int parentHandle, int* outHandle,
                             bool expandParent) {
    const int image = AddBitmap(bitmap);
    const int selectedImage = selectedBitmap == bitmap ? image : AddBitmap(selectedBitmap);
    return AddItem(text, image, selectedImage, itemData, parentHandle, outHandle, expandParent);
}

int VU_CTreeListBox::AddItemByIndex(const CString& text, const VU_CImageIndexArray& images,
                                    unsigned long itemData, int parentRow, int* outHandle,
                                    bool expandParent) {
    int parentHandle = -1;
    if (parentRow != -1) {
        parentHandle = GetNodeHandle(parentRow);
        if (parentHandle == -1)
            return -1;
    }
    return AddItem(text, images, itemData, parentHandle, outHandle, expandParent);
}

int VU_CTreeListBox::AddItemByIndex(const CString& text, int image, int selectedImage,
                                    unsigned long itemData, int parentRow, int* outHandle,
                                    bool expandParent) {
    return AddItemByIndex(text, VU_CImageIndexArray::Pair(image, selectedImage), itemData,
                          parentRow, outHandle, expandParent);
}

int VU_CTreeListBox::InsertItem(CTreeNode* node, int parentHandle, int index, int* outHandle,
                                bool expandParent) {
    if (node == nullptr)
        return -1;
    if (parentHandle == -1) {
        if (index < 0 || index > m_roots.GetSize()) {
            delete node;
            return -1;
        }
        node->SetHandle(m_nextHandle++);
        node->SetParent(nullptr);
        node->SetLevel(0);
        m_roots.InsertAt(index, node);
        if (outHandle != nullptr)
            *outHandle = node->GetTreeNodeItemHandle();
        const int preceding =
            index == 0 ? 0 : m_roots.GetAt(index - 1)->ComputeNumberOfExpandedNodesShowing();
        return InsertRow(InsertedRootRow(index, preceding), node);
    }

    CTreeNode* parent = FindNode(parentHandle);
    if (parent == nullptr || index < 0 || index > parent->GetNumberOfChildren()) {
        delete node;
        return -1;
    }
    bool showing = parent->IsExpanded() != 0;
    if (expandParent) {
        if (!parent->IsExpanded()) {
            ExpandThisAndParent(parent);
            Expand(GetListboxIndex(parent));
        }
        showing = true;
    }
    node->SetHandle(m_nextHandle++);
    node->SetParent(parent);
    node->SetLevel(parent->GetLevel() + 1);
    parent->InsertAt(index, node);
    parent->SetExpandFlag(showing ? 1 : 0);
    if (outHandle != nullptr)
        *outHandle = node->GetTreeNodeItemHandle();
    if (!showing)
        return -1;
    const int parentRow = GetListboxIndex(parent);
    if (parentRow < 0)
        return -1;
    return InsertRow(parentRow + index, node);
}

int VU_CTreeListBox::InsertItem(const CString& text, const VU_CImageIndexArray& images,
                                unsigned long itemData, int parentHandle, int index, int* outHandle,
                                bool expandParent) {
    CTreeNode* parent = parentHandle == -1 ? nullptr : FindNode(parentHandle);
    if (parentHandle != -1 && parent == nullptr)
        return -1;
    CTreeNode* node = CreateTreeNode(text, images, itemData, m_nextHandle, parent);
    return InsertItem(node, parentHandle, index, outHandle, expandParent);
}

int VU_CTreeListBox::InsertItem(const CString& text, int image, int selectedImage,
                                unsigned long itemData, int parentHandle, int index, int* outHandle,
                                bool expandParent) {
    return InsertItem(text, VU_CImageIndexArray::Pair(image, selectedImage), itemData, parentHandle,
                      index, outHandle, expandParent);
}

int VU_CTreeListBox::InsertItemByIndex(const CString& text, const VU_CImageIndexArray& images,
                                       unsigned long itemData, int parentRow, int index,
                                       int* outHandle, bool expandParent) {
    int parentHandle = -1;
    if (parentRow != -1) {
        parentHandle = GetNodeHandle(parentRow);
        if (parentHandle == -1)
            return -1;
    }
    return InsertItem(text, images, itemData, parentHandle, index, outHandle, expandParent);
}

int VU_CTreeListBox::InsertItemByIndex(const CString& text, int image, int selectedImage,
                                       unsigned long itemData, int parentRow, int index,
                                       int* outHandle, bool expandParent) {
    return InsertItemByIndex(text, VU_CImageIndexArray::Pair(image, selectedImage), itemData,
                             parentRow, index, outHandle, expandParent);
}

int VU_CTreeListBox::AddHeader(const CString& text) {
    const int row = AddItem(text, -1, -1, 0, -1, nullptr, false);
    if (CTreeNode* node = FindNode(row + 1)) {
        node->SetDrawLines(false);
        node->SetHeader(true);
    }
    return row;
}

int VU_CTreeListBox::AddSeparator() {
    return AddItem(CString(), -1, -1, 0, -1, nullptr, false);
}

void VU_CTreeListBox::RemoveNodeFromTree(CTreeNode* node) {
    CTreeNode* parent = node->GetParent();
    CTreeNodeArray& siblings = parent != nullptr ? *parent : m_roots;
    const int index = siblings.GetNodeIndex(node);
    if (index >= 0)
        siblings.RemoveAt(index);
    // A node left without children must not stay flagged expanded.
    if (parent != nullptr)
        parent->SetExpandFlag(parent->IsExpanded());
}

bool VU_CTreeListBox::DeleteItemByIndex(int row) {
    CTreeNode* node = GetNode(row);
    if (node == nullptr)
        return false;
    Collapse(row);
    RemoveNodeFromTree(node);
    DeleteRow(row);
    delete node;
    return true;
}

bool VU_CTreeListBox::DeleteItem(int) {
    return false;
}

bool VU_CTreeListBox::ResetTreeContents() {
    if (m_hWnd != nullptr)
        DefWindowProc(LB_RESETCONTENT, 0, 0);
    for (CTreeNode* root : m_roots)
        delete root;
    m_roots.RemoveAll();
    m_nextHandle = 1;
    return true;
}

// ---- Queries -------------------------------------------------------------------------

int VU_CTreeListBox::GetNodeCount() const {
    int count = 0;
    for (const CTreeNode* root : m_roots)
        count += root->GetNumberOfNodes();
    return count;
}

CTreeNode* VU_CTreeListBox::FindNode(int handle) const {
    if (handle == -1)
        return nullptr;
    for (CTreeNode* root : m_roots)
        if (CTreeNode* node = root->FindNode(handle))
            return node;
    return nullptr;
}

CTreeNode* VU_CTreeListBox::FindNodeFromItemData(unsigned long data) const {
    for (CTreeNode* root : m_roots)
        if (CTreeNode* node = root->FindNodeFromItemData(data))
            return node;
    return nullptr;
}

unsigned long VU_CTreeListBox::GetItemData(int row) const {
    const CTreeNode* node = GetNode(row);
    return node != nullptr ? node->GetItemData() : 0;
}

unsigned long VU_CTreeListBox::GetCurSelItemData() const {
    return GetItemData(GetSelectedRow());
}

int VU_CTreeListBox::GetItemLevel(int row) const {
    const CTreeNode* node = GetNode(row);
    return node != nullptr ? node->GetLevel() : -1;
}

CString VU_CTreeListBox::GetDisplayText(int row) const {
    const CTreeNode* node = GetNode(row);
    return node != nullptr ? node->GetDisplayText() : CString();
}

void VU_CTreeListBox::SetDisplayText(int row, const CString& text) {
    CTreeNode* node = GetNode(row);
    if (node == nullptr)
        return;
    node->SetDisplayText(text);
    RECT rc{};
    if (::SendMessageW(m_hWnd, LB_GETITEMRECT, static_cast<WPARAM>(row),
                       reinterpret_cast<LPARAM>(&rc)) != LB_ERR)
        ::InvalidateRect(m_hWnd, &rc, TRUE);
}

CString VU_CTreeListBox::GetCurSelDisplayText() const {
    return GetDisplayText(GetSelectedRow());
}

bool VU_CTreeListBox::IsChildNode(int row) const {
    const CTreeNode* node = GetNode(row);
    return node != nullptr && node->GetNumberOfChildren() == 0;
}

bool VU_CTreeListBox::IsChildNodeSelected() const {
    return IsChildNode(GetSelectedRow());
}

BOOL VU_CTreeListBox::IsVerticalScrollbarVisible() const {
    const int count = GetRowCount();
    if (count == 0)
        return FALSE;
    RECT item{};
    RECT client{};
    ::SendMessageW(m_hWnd, LB_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&item));
    ::GetClientRect(m_hWnd, &client);
    return RowsOverflow(count, item.bottom - item.top, client.bottom - client.top) ? TRUE : FALSE;
}

// ---- Selection --------------------------------------------------------------------------

int VU_CTreeListBox::SelectItemFromItemData(unsigned long data, bool notify) {
    return SelectNode(FindNodeFromItemData(data), notify);
}

int VU_CTreeListBox::SelectItemFromString(const CString& text, bool notify) {
    TextFinder finder(text);
    m_roots.Accept(&finder);
    return SelectNode(finder.Found(), notify);
}

int VU_CTreeListBox::SelectNode(CTreeNode* node, bool notify) {
    if (node == nullptr)
        return -1;
    int row = GetListboxIndex(node);
    if (row < 0) {
        ExpandThisAndParent(node);
        row = GetListboxIndex(node);
    }
    if (row < 0)
        return -1;
    SetSelectedRow(row);
    if (notify)
        NotifySelChange();
    return row;
}

int VU_CTreeListBox::FindNoCaseChildString(const CString& text, int length, int matchParents, int,
                                           int exactBeforeTab) {
    CString found;
    return FindNoCaseChildStringItem(text, found, length, matchParents, exactBeforeTab);
}

int VU_CTreeListBox::FindNoCaseChildStringItem(const CString& text, CString& foundText, int length,
                                               int matchParents, int exactBeforeTab) {
    const int count = GetRowCount();
    if (text.IsEmpty() || length <= 0 || count == 0)
        return -1;
    for (int row = 0; row < count; ++row) {
        CTreeNode* node = GetNode(row);
        if (node == nullptr)
            continue;
        const int handle =
            node->FindNoCaseChildString(text, matchParents != 0, length, exactBeforeTab);
        if (handle == -1)
            continue;
        // The hit may lie in a collapsed part of the row's subtree.
        const int hitRow = node->GetTreeNodeItemHandle() == handle ? row : GetListboxIndex(handle);
        if (hitRow >= 0) {
            foundText = GetDisplayText(hitRow);
            return hitRow;
        }
    }
    return -1;
}

// ---- Expansion and scrolling ---------------------------------------------------------

void VU_CTreeListBox::Expand(int row) {
    CTreeNode* node = GetNode(row);
    if (node == nullptr || node->IsExpanded() || node->GetNumberOfChildren() == 0)
        return;
    BeginUpdate();
    int next = row + 1;
    for (int i = 0; i < node->GetNumberOfChildren(); ++i)
        if (CTreeNode* child = node->GetChild(i)) // null entries get no row
            InsertRow(next++, child);
    node->Expand(1);
    ScrollItemIntoView(row + 1);
    EndUpdate();
}

void VU_CTreeListBox::ExpandThisAndParent(CTreeNode* node) {
    if (node == nullptr)
        return;
    // The ancestors only: the node itself keeps its state.
    std::vector<CTreeNode*> chain;
    for (CTreeNode* n = node->GetParent(); n != nullptr; n = n->GetParent())
        chain.push_back(n);
    BeginUpdate();
    for (auto it = chain.rbegin(); it != chain.rend(); ++it) {
        CTreeNode* n = *it;
        if (n->IsExpanded() || n->GetNumberOfChildren() == 0)
            continue;
        const int row = GetListboxIndex(n);
        if (row >= 0)
            Expand(row);
    }
    EndUpdate();
}

void VU_CTreeListBox::Collapse(int row) {
    CTreeNode* node = GetNode(row);
    if (node == nullptr || !node->IsExpanded() || node->GetNumberOfChildren() == 0)
        return;
    const int selection = GetSelectedRow();
    BeginUpdate();
    const int shown = node->ComputeNumberOfExpandedNodesShowing();
    for (int r = row + shown; r > row; --r) {
        if (CTreeNode* gone = GetNode(r))
            gone->SetExpandFlag(0);
        DeleteRow(r);
    }
    node->SetExpandFlag(0);
    // A selection strictly inside the removed rows moves to the collapsed
    // node; one on the last removed row goes with that row, as it always has.
    if (selection > row && selection < row + shown)
        SetSelectedRow(row);
    EndUpdate();
}

void VU_CTreeListBox::CollapseAllBranches() {
    BeginUpdate();
    for (int i = 0; i < static_cast<int>(m_roots.GetSize()); ++i)
        Collapse(i);
    EndUpdate();
}

void VU_CTreeListBox::ScrollItemIntoView(int row) {
    const int count = GetRowCount();
    if (row < 0 || row > count || m_hWnd == nullptr)
        return;
    const int top = static_cast<int>(::SendMessageW(m_hWnd, LB_GETTOPINDEX, 0, 0));
    RECT item{};
    if (::SendMessageW(m_hWnd, LB_GETITEMRECT, static_cast<WPARAM>(top),
                       reinterpret_cast<LPARAM>(&item)) == LB_ERR)
        return;
    RECT client{};
    ::GetClientRect(m_hWnd, &client);
    const int newTop =
        ScrollTopForRow(top, row, item.bottom - item.top, client.bottom - client.top);
    if (newTop != top)
        ::SendMessageW(m_hWnd, LB_SETTOPINDEX, static_cast<WPARAM>(newTop), 0);
}

// ---- XML ------------------------------------------------------------------------------------

AF_GString VU_CTreeListBox::XmlGetString() {
    CTreeNode::ResetXmlRowCounter(GetSelectedRow());
    VU_CXmlWriter writer;
    writer.WriteStartElement(AF_GString(L"HbxTreeList"));
    writer.CloseOpenedElement();
    writer.WriteRaw(m_roots.XmlGetString());
    writer.WriteEndElement();
    return writer.ToString();
}

// ---- Appearance ---------------------------------------------------------------------------

void VU_CTreeListBox::SetImageList(CImageList* imageList) {
    m_externalImageList = imageList;
    RedrawAll();
}

HIMAGELIST VU_CTreeListBox::GetImageListHandle() const {
    if (m_externalImageList != nullptr && m_externalImageList->GetSafeHandle() != nullptr)
        return m_externalImageList->GetSafeHandle();
    return m_ownImageList.GetSafeHandle();
}

void VU_CTreeListBox::DrawTreeLines(bool draw) {
    m_drawTreeLines = draw;
    RedrawAll();
}

void VU_CTreeListBox::DisplayInColumns(bool columns) {
    m_displayInColumns = columns;
    RedrawAll();
}

void VU_CTreeListBox::SetLeftGutterSize(int pixels) {
    m_leftGutter = pixels < 0 ? 0 : pixels;
    RedrawAll();
}

void VU_CTreeListBox::SetTabStops(const CWordArray& stops) {
    m_tabStops.RemoveAll();
    for (INT_PTR i = 0; i < stops.GetSize(); ++i)
        m_tabStops.Add(stops.GetAt(i));
    RedrawAll();
}

void VU_CTreeListBox::UseTooltipParent() {
    m_useTooltipParent = 1;
    // A tool tip made already (on subclassing) is made again for its new owner.
    if (m_tooltip != nullptr) {
        m_tooltip->DestroyWindow();
        delete m_tooltip;
        m_tooltip = nullptr;
        CreateToolTip();
    }
}

// ---- Overridables ----------------------------------------------------------------------------

BOOL VU_CTreeListBox::HasFocus() {
    return m_hWnd != nullptr && ::GetFocus() == m_hWnd;
}

BOOL VU_CTreeListBox::IsItemEnabled(int, long) {
    return TRUE;
}

CString VU_CTreeListBox::GetTooltipDisplayText(CTreeNode* node) {
    return node != nullptr ? node->GetDisplayText() : CString();
}

void VU_CTreeListBox::MeasureItem(LPMEASUREITEMSTRUCT) {}

BOOL VU_CTreeListBox::PreTranslateMessage(MSG* msg) {
    // Mouse messages reach the tool tip from the window procedure, so that a
    // host without a framework message loop gets tool tips too.
    return CListBox::PreTranslateMessage(msg);
}

// ---- Geometry of a row ---------------------------------------------------------------------

int VU_CTreeListBox::GetTextLeft(int row) const {
    const CTreeNode* node = GetNode(row);
    if (node == nullptr)
        return m_leftGutter;
    int left = ImageLeft(node->GetLevel(), m_leftGutter);
    const int image = node->GetImageIndex(0);
    HIMAGELIST list = GetImageListHandle();
    IMAGEINFO info{};
    if (image >= 0 && list != nullptr && ImageList_GetImageInfo(list, image, &info))
        left += (info.rcImage.right - info.rcImage.left) + 2;
    return left;
}

bool VU_CTreeListBox::IsHorizontalChildrenLineToBeDrawn(int row, int level) const {
    const CTreeNode* node = GetNode(row);
    // Roots are not joined by lines, so they get no stub either.
    return node != nullptr && node->GetParent() != nullptr && node->GetLevel() == level &&
           node->DrawLines() && !node->IsSeparator();
}

int VU_CTreeListBox::RowFromPoint(const CPoint& point) const {
    const LRESULT hit = ::SendMessageW(m_hWnd, LB_ITEMFROMPOINT, 0, MAKELPARAM(point.x, point.y));
    if (HIWORD(hit) != 0)
        return -1;
    const int row = LOWORD(hit);
    return row < GetRowCount() ? row : -1;
}

bool VU_CTreeListBox::IsOnScrollBar(const CPoint& point) const {
    RECT client{};
    ::GetClientRect(m_hWnd, &client);
    return IsVerticalScrollbarVisible() && point.x >= client.right;
}

BOOL VU_CTreeListBox::GetTextUnderPoint(const CPoint& point, int row, int& textLeft) {
    if (GetNode(row) == nullptr)
        return FALSE;
    textLeft = GetTextLeft(row);
    RECT rc{};
    ::SendMessageW(m_hWnd, LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&rc));
    return point.x >= textLeft && point.x < rc.right && point.y >= rc.top && point.y < rc.bottom;
}

HFONT VU_CTreeListBox::GetControlFont() const {
    HFONT font = reinterpret_cast<HFONT>(::SendMessageW(m_hWnd, WM_GETFONT, 0, 0));
    return font != nullptr ? font : static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
}

HFONT VU_CTreeListBox::GetBoldFont() {
    HFONT base = GetControlFont();
    if (m_boldFont != nullptr && m_boldFontFor == base)
        return m_boldFont;
    if (m_boldFont != nullptr)
        DeleteObject(m_boldFont);
    LOGFONTW lf{};
    GetObjectW(base, sizeof(lf), &lf);
    lf.lfWeight = FW_BOLD;
    m_boldFont = CreateFontIndirectW(&lf);
    m_boldFontFor = base;
    return m_boldFont;
}

int VU_CTreeListBox::GetAverageCharWidth() {
    HFONT font = GetControlFont();
    if (m_avgCharWidth > 0 && m_avgCharWidthFor == font)
        return m_avgCharWidth;
    HDC dc = ::GetDC(m_hWnd);
    HGDIOBJ old = SelectObject(dc, font);
    TEXTMETRICW tm{};
    GetTextMetricsW(dc, &tm);
    SelectObject(dc, old);
    ::ReleaseDC(m_hWnd, dc);
    m_avgCharWidth = tm.tmAveCharWidth > 0 ? tm.tmAveCharWidth : 6;
    m_avgCharWidthFor = font;
    return m_avgCharWidth;
}

std::vector<int> VU_CTreeListBox::ColumnStartsFor(int columns) {
    std::vector<int> stops;
    for (INT_PTR i = 0; i < m_tabStops.GetSize(); ++i)
        stops.push_back(m_tabStops.GetAt(i));
    return ColumnStarts(columns, stops, GetAverageCharWidth());
}

CString VU_CTreeListBox::GetTabbedTextUnderPoint(const CPoint& point, const CString& text,
                                                 int* column) {
    const int textLeft = column != nullptr ? *column : 0;
    const std::wstring_view view(text.GetString(), static_cast<size_t>(text.GetLength()));
    const auto parts = SplitColumns(view);
    const int index = ColumnAt(point.x - textLeft, ColumnStartsFor(static_cast<int>(parts.size())));
    if (column != nullptr)
        *column = index;
    if (index < 0)
        return CString();
    return ToCString(parts[static_cast<size_t>(index)]);
}

BOOL VU_CTreeListBox::DoesTextFitWithinRect(int row) {
    return DoesColumnFit(row, -1);
}

BOOL VU_CTreeListBox::DoesColumnFit(int row, int column) {
    CTreeNode* node = GetNode(row);
    if (node == nullptr || node->IsSeparator())
        return TRUE;
    RECT rc{};
    if (::SendMessageW(m_hWnd, LB_GETITEMRECT, static_cast<WPARAM>(row),
                       reinterpret_cast<LPARAM>(&rc)) == LB_ERR)
        return TRUE;
    const CString text = node->GetDisplayText();
    const int left = GetTextLeft(row);
    HDC dc = ::GetDC(m_hWnd);
    HGDIOBJ old = SelectObject(dc, node->IsHeader() ? GetBoldFont() : GetControlFont());
    BOOL fits = TRUE;
    const std::wstring_view view(text.GetString(), static_cast<size_t>(text.GetLength()));
    if (m_displayInColumns) {
        const auto parts = SplitColumns(view);
        const auto starts = ColumnStartsFor(static_cast<int>(parts.size()));
        for (size_t k = 0; k < parts.size() && fits; ++k) {
            if (column >= 0 && static_cast<size_t>(column) != k)
                continue;
            const int colLeft = left + starts[k];
            const int colRight =
                k + 1 < parts.size() ? left + starts[k + 1] - kColumnGap : rc.right;
            if (TextWidth(dc, parts[k]) > colRight - colLeft)
                fits = FALSE;
        }
    } else {
        RECT calc{0, 0, 0, 0};
        DrawTextW(dc, text.GetString(), text.GetLength(), &calc,
                  DT_SINGLELINE | DT_EXPANDTABS | DT_NOPREFIX | DT_CALCRECT);
        fits = calc.right <= rc.right - left;
    }
    SelectObject(dc, old);
    ::ReleaseDC(m_hWnd, dc);
    return fits;
}

// ---- Drawing ------------------------------------------------------------------------------------

void VU_CTreeListBox::DrawItem(LPDRAWITEMSTRUCT dis) {
    if (dis == nullptr || dis->itemID == static_cast<UINT>(-1))
        return;
    HDC dc = dis->hDC;
    const RECT rc = dis->rcItem;
    const int row = static_cast<int>(dis->itemID);
    auto* node = reinterpret_cast<CTreeNode*>(dis->itemData);
    if (node == nullptr)
        return;
    const bool selected = (dis->itemState & ODS_SELECTED) != 0;

    COLORREF background = GetSysColor(COLOR_WINDOW);
    COLORREF foreground = GetSysColor(COLOR_WINDOWTEXT);
    if (selected && HasFocus()) {
        background = GetSysColor(COLOR_HIGHLIGHT);
        foreground = GetSysColor(COLOR_HIGHLIGHTTEXT);
    } else if (selected) {
        // Without the focus the selection stays visible but quiet, as in the
        // system's list controls.
        background = GetSysColor(COLOR_BTNFACE);
    } else if (node->IsHeader()) {
        background = GetSysColor(COLOR_BTNFACE);
    }
    if (!IsItemEnabled(row, static_cast<long>(node->GetItemData())))
        foreground = GetSysColor(COLOR_GRAYTEXT);

    HBRUSH brush = CreateSolidBrush(background);
    FillRect(dc, &rc, brush);
    DeleteObject(brush);

    if (node->IsSeparator()) {
        DrawSeparator(dc, rc);
    } else {
        if (m_drawTreeLines && node->DrawLines())
            DrawTreeLinesOfRow(dc, rc, node, row);
        if (node->GetNumberOfChildren() > 0)
            DrawExpandButton(dc, rc, node);

        int textLeft = ImageLeft(node->GetLevel(), m_leftGutter);
        const int image = selected ? node->GetSelectedImageIndex(0) : node->GetImageIndex(0);
        HIMAGELIST list = GetImageListHandle();
        IMAGEINFO info{};
        if (image >= 0 && list != nullptr && ImageList_GetImageInfo(list, image, &info)) {
            const int width = info.rcImage.right - info.rcImage.left;
            const int height = info.rcImage.bottom - info.rcImage.top;
            ImageList_Draw(list, image, dc, textLeft, rc.top + (rc.bottom - rc.top - height) / 2,
                           ILD_TRANSPARENT);
            textLeft += width + 2;
        }

        SetTextColor(dc, foreground);
        SetBkMode(dc, TRANSPARENT);
        RECT textRect = rc;
        textRect.left = textLeft;
        DrawRowText(dc, textRect, node->GetDisplayText(), node->IsHeader());
    }

    if (dis->itemState & ODS_FOCUS)
        DrawFocusRect(dc, &rc);
}

void VU_CTreeListBox::DrawSeparator(HDC dc, const RECT& rc) {
    RECT line = rc;
    line.left += m_leftGutter + 2;
    line.right -= 2;
    line.top = rc.top + (rc.bottom - rc.top) / 2 - 1;
    line.bottom = line.top + 2;
    DrawEdge(dc, &line, EDGE_ETCHED, BF_TOP);
}

void VU_CTreeListBox::DrawTreeLinesOfRow(HDC dc, const RECT& rc, CTreeNode* node, int row) {
    HPEN pen = CreatePen(PS_SOLID, 0, kTreeLineColour);
    HGDIOBJ oldPen = SelectObject(dc, pen);
    const int level = node->GetLevel();
    const int middle = rc.top + (rc.bottom - rc.top) / 2;

    // Lines of the ancestors' levels that continue past this row.
    const CTreeNode* ancestor = node->GetParent();
    while (ancestor != nullptr) {
        if (!ancestor->IsLastNodeOfParent()) {
            const int x = TreeLineX(ancestor->GetLevel(), m_leftGutter);
            MoveToEx(dc, x, rc.top, nullptr);
            LineTo(dc, x, rc.bottom);
        }
        ancestor = ancestor->GetParent();
    }

    // The row's own line: from the row above (its parent or previous sibling)
    // to the middle, on through the row when a sibling follows.
    const int x = TreeLineX(level, m_leftGutter);
    if (node->GetParent() != nullptr) {
        MoveToEx(dc, x, rc.top, nullptr);
        LineTo(dc, x, node->IsLastNodeOfParent() ? middle + 1 : rc.bottom);
    }
    if (IsHorizontalChildrenLineToBeDrawn(row, level)) {
        MoveToEx(dc, x, middle, nullptr);
        LineTo(dc, ButtonLeft(level, m_leftGutter) + kButtonWidth, middle);
    }
    // The children's line starts under an expanded node's image.
    if (node->IsExpanded() && node->GetNumberOfChildren() > 0) {
        const int childX = TreeLineX(level + 1, m_leftGutter);
        MoveToEx(dc, childX, std::min<int>(middle + 8, rc.bottom), nullptr);
        LineTo(dc, childX, rc.bottom);
    }
    SelectObject(dc, oldPen);
    DeleteObject(pen);
}

void VU_CTreeListBox::DrawExpandButton(HDC dc, const RECT& rc, CTreeNode* node) {
    const int cx = TreeLineX(node->GetLevel(), m_leftGutter);
    const int cy = rc.top + (rc.bottom - rc.top) / 2;
    RECT box{cx - 4, cy - 4, cx + 5, cy + 5};
    HBRUSH fill = CreateSolidBrush(GetSysColor(COLOR_WINDOW));
    FillRect(dc, &box, fill);
    DeleteObject(fill);
    HBRUSH frame = CreateSolidBrush(kTreeLineColour);
    FrameRect(dc, &box, frame);
    DeleteObject(frame);

    HPEN pen = CreatePen(PS_SOLID, 0, GetSysColor(COLOR_WINDOWTEXT));
    HGDIOBJ oldPen = SelectObject(dc, pen);
    MoveToEx(dc, cx - 2, cy, nullptr);
    LineTo(dc, cx + 3, cy);
    if (!node->IsExpanded()) {
        MoveToEx(dc, cx, cy - 2, nullptr);
        LineTo(dc, cx, cy + 3);
    }
    SelectObject(dc, oldPen);
    DeleteObject(pen);
}

void VU_CTreeListBox::DrawRowText(HDC dc, RECT rc, const CString& text, bool header) {
    HGDIOBJ oldFont = SelectObject(dc, header ? GetBoldFont() : GetControlFont());
    const UINT flags = DT_SINGLELINE | DT_VCENTER | DT_EXPANDTABS | DT_NOPREFIX;
    const std::wstring_view view(text.GetString(), static_cast<size_t>(text.GetLength()));
    if (!m_displayInColumns) {
        DrawTextW(dc, text.GetString(), text.GetLength(), &rc, flags);
    } else {
        // Each tab-separated part starts at the next tab stop and keeps to
        // its column; what does not fit ends in " ... ".
        const auto parts = SplitColumns(view);
        const auto starts = ColumnStartsFor(static_cast<int>(parts.size()));
        const MeasureText measure = [dc](std::wstring_view s) { return TextWidth(dc, s); };
        for (size_t k = 0; k < parts.size(); ++k) {
            RECT column = rc;
            column.left = rc.left + starts[k];
            if (k + 1 < parts.size())
                column.right = std::min<LONG>(rc.right, rc.left + starts[k + 1] - kColumnGap);
            if (column.right <= column.left)
                continue;
            const std::wstring shown = FitText(parts[k], column.right - column.left, measure);
            DrawTextW(dc, shown.c_str(), static_cast<int>(shown.size()), &column, flags);
        }
    }
    SelectObject(dc, oldFont);
}

// ---- Window procedure ----------------------------------------------------------------------

void VU_CTreeListBox::PreSubclassWindow() {
    CListBox::PreSubclassWindow();
    CreateToolTip();
}

void VU_CTreeListBox::CreateToolTip() {
    if (m_tooltip != nullptr || m_hWnd == nullptr)
        return;
    auto* tip = new CToolTipCtrl;
    HWND ownerHandle = m_hWnd;
    if (m_useTooltipParent && ::GetParent(m_hWnd) != nullptr)
        ownerHandle = ::GetParent(m_hWnd);
    CWnd* owner = CWnd::FromHandle(ownerHandle);
    if (!tip->Create(owner, TTS_NOPREFIX)) {
        delete tip;
        return;
    }
    m_tooltip = tip;
    tip->SetMaxTipWidth(32767);
    tip->SetDelayTime(TTDT_AUTOPOP, 32767);
    tip->SetDelayTime(TTDT_INITIAL, 200);
    tip->SetDelayTime(TTDT_RESHOW, 200);
    TOOLINFOW info{};
    info.cbSize = sizeof(info);
    info.uFlags = TTF_IDISHWND;
    info.hwnd = m_hWnd;
    info.uId = reinterpret_cast<UINT_PTR>(m_hWnd);
    info.lpszText = LPSTR_TEXTCALLBACKW;
    tip->AddTool(&info);
    info.uFlags |= TTF_TRANSPARENT;
    tip->SetToolInfo(&info);
    tip->SetWindowPos(HWND_TOPMOST, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE);
}

LRESULT VU_CTreeListBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (m_tooltip != nullptr && message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) {
        MSG msg{m_hWnd, message, wParam, lParam, 0, {}};
        m_tooltip->RelayEvent(&msg);
    }
    switch (message) {
    case WM_CREATE:
        return OnCreate(wParam, lParam);
    case WM_LBUTTONDOWN:
        return OnLButtonDown(wParam, lParam);
    case WM_LBUTTONDBLCLK:
        return OnLButtonDblClk(wParam, lParam);
    case WM_MOUSEMOVE:
        return OnMouseMove(wParam, lParam);
    case WM_KEYDOWN:
        return OnKeyDown(wParam, lParam);
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
        return OnFocusChange(message, wParam, lParam);
    case LB_GETTEXT:
        return OnGetText(wParam, lParam);
    case LB_GETTEXTLEN:
        return OnGetTextLen(wParam, lParam);
    case LB_FINDSTRING:
    case LB_FINDSTRINGEXACT:
    case LB_SELECTSTRING:
        return OnFindString(message, wParam, lParam);
    case WM_NOTIFY: {
        LRESULT result = 0;
        if (OnToolTipNotify(reinterpret_cast<NMHDR*>(lParam), &result))
            return result;
        break;
    }
    default:
        break;
    }
    return CListBox::WindowProc(message, wParam, lParam);
}

LRESULT VU_CTreeListBox::OnCreate(WPARAM wParam, LPARAM lParam) {
    const LRESULT result = CListBox::WindowProc(WM_CREATE, wParam, lParam);
    if (result != -1)
        CreateToolTip();
    return result;
}

LRESULT VU_CTreeListBox::OnLButtonDown(WPARAM wParam, LPARAM lParam) {
    const CPoint point(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
    if (IsOnScrollBar(point))
        return CListBox::WindowProc(WM_LBUTTONDOWN, wParam, lParam);
    const int row = RowFromPoint(point);
    // Select first: a toggle that scrolls must not move the click to another
    // row. The parent may delete or rebuild the tree when told of the new
    // selection, so the row's node is read only afterwards.
    const LRESULT result = CListBox::WindowProc(WM_LBUTTONDOWN, wParam, lParam);
    CTreeNode* node = GetNode(row);
    if (node != nullptr && IsOnExpandButton(point.x, node->GetLevel(), m_leftGutter)) {
        if (node->IsExpanded())
            Collapse(row);
        else
            Expand(row);
    }
    return result;
}

LRESULT VU_CTreeListBox::OnLButtonDblClk(WPARAM wParam, LPARAM lParam) {
    const CPoint point(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
    if (!IsOnScrollBar(point)) {
        const int row = RowFromPoint(point);
        CTreeNode* node = GetNode(row);
        if (node != nullptr && node->GetNumberOfChildren() > 0 &&
            IsOnButtonOrText(point.x, node->GetLevel(), m_leftGutter)) {
            if (node->IsExpanded())
                Collapse(row);
            else
                Expand(row);
            return 0;
        }
    }
    return CListBox::WindowProc(WM_LBUTTONDBLCLK, wParam, lParam);
}

LRESULT VU_CTreeListBox::OnMouseMove(WPARAM wParam, LPARAM lParam) {
    const CPoint point(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
    const int row = RowFromPoint(point);
    if (row != m_tooltipRow) {
        // A new row asks for its own text: hide the tip of the old one.
        m_tooltipRow = row;
        if (m_tooltip != nullptr)
            m_tooltip->Pop();
    }
    return CListBox::WindowProc(WM_MOUSEMOVE, wParam, lParam);
}

LRESULT VU_CTreeListBox::OnKeyDown(WPARAM wParam, LPARAM lParam) {
    const UINT key = static_cast<UINT>(wParam);
    if (key == VK_SPACE)
        return 0;
    const int selection = GetSelectedRow();
    const int count = GetRowCount();
    if (selection < 0 || count == 0)
        return CListBox::WindowProc(WM_KEYDOWN, wParam, lParam);

    LRESULT result = 0;
    switch (key) {
    case VK_ADD:
        Expand(selection);
        result = CListBox::WindowProc(WM_KEYDOWN, wParam, lParam);
        break;
    case VK_RIGHT:
        Expand(selection);
        return 0;
    case VK_SUBTRACT:
        Collapse(selection);
        result = CListBox::WindowProc(WM_KEYDOWN, wParam, lParam);
        break;
    case VK_LEFT: {
        CTreeNode* node = GetNode(selection);
        if (node == nullptr)
            return 0;
        if (node->GetNumberOfChildren() > 0 &&
            (node->GetParent() == nullptr || node->IsExpanded())) {
            Collapse(selection);
        } else if (node->GetParent() != nullptr) {
            const int parentRow = GetListboxIndex(node->GetParent());
            if (parentRow >= 0) {
                SetSelectedRow(parentRow);
                NotifySelChange();
            }
        }
        return 0;
    }
    case VK_DOWN:
    case VK_UP: {
        const KeyStep step =
            StepOverUnselectable(selection, count, key == VK_DOWN ? 1 : -1,
                                 [this](int row) { return !IsRowSelectable(row); });
        if (step.swallow)
            return 0;
        if (step.preselect >= 0)
            SetSelectedRow(step.preselect);
        result = CListBox::WindowProc(WM_KEYDOWN, wParam, lParam);
        break;
    }
    default:
        result = CListBox::WindowProc(WM_KEYDOWN, wParam, lParam);
        break;
    }

    // Paging never rests on a header or separator.
    if (!IsRowSelectable(GetSelectedRow())) {
        if (key == VK_PRIOR)
            PostMessage(WM_KEYDOWN, VK_DOWN, 0);
        else if (key == VK_NEXT)
            PostMessage(WM_KEYDOWN, VK_UP, 0);
    }
    return result;
}

LRESULT VU_CTreeListBox::OnFocusChange(UINT message, WPARAM wParam, LPARAM lParam) {
    ::InvalidateRect(m_hWnd, nullptr, TRUE);
    return CListBox::WindowProc(message, wParam, lParam);
}

LRESULT VU_CTreeListBox::OnGetText(WPARAM wParam, LPARAM lParam) {
    const CTreeNode* node = GetNode(static_cast<int>(wParam));
    auto* buffer = reinterpret_cast<wchar_t*>(lParam);
    if (node == nullptr || buffer == nullptr)
        return LB_ERR;
    const CString text = node->GetDisplayText();
    std::memcpy(buffer, text.GetString(), sizeof(wchar_t) * static_cast<size_t>(text.GetLength()));
    buffer[text.GetLength()] = 0;
    return text.GetLength();
}

LRESULT VU_CTreeListBox::OnGetTextLen(WPARAM wParam, LPARAM) {
    const CTreeNode* node = GetNode(static_cast<int>(wParam));
    if (node == nullptr)
        return LB_ERR;
    return node->GetDisplayText().GetLength();
}

LRESULT VU_CTreeListBox::OnFindString(UINT message, WPARAM wParam, LPARAM lParam) {
    const auto* text = reinterpret_cast<const wchar_t*>(lParam);
    if (text == nullptr)
        return CListBox::WindowProc(message, wParam, lParam);
    const CString key(text);
    const int exact = message == LB_FINDSTRING ? 0 : 1;
    // LB_SELECTSTRING answers the row and leaves the selection as it is.
    const int row = FindNoCaseChildString(key, key.GetLength(), 1, 0, exact);
    return row < 0 ? LB_ERR : row;
}

// ---- Tool tips --------------------------------------------------------------------------------

BOOL VU_CTreeListBox::OnToolTipNotify(NMHDR* header, LRESULT* result) {
    if (header == nullptr || m_tooltip == nullptr || header->hwndFrom != m_tooltip->m_hWnd)
        return FALSE;
    if (header->code == TTN_NEEDTEXTW)
        return GetToolTipText(reinterpret_cast<NMTTDISPINFOW*>(header), result);
    if (header->code == TTN_SHOW) {
        // Lay the tip over the row's text, so that it reads as the row itself.
        RECT rc{};
        if (m_tooltipRow < 0 ||
            ::SendMessageW(m_hWnd, LB_GETITEMRECT, static_cast<WPARAM>(m_tooltipRow),
                           reinterpret_cast<LPARAM>(&rc)) == LB_ERR)
            return FALSE;
        rc.left = GetTextLeft(m_tooltipRow);
        ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<POINT*>(&rc), 2);
        CRect tipRect(rc);
        m_tooltip->AdjustRect(&tipRect, TRUE);
        m_tooltip->SetWindowPos(static_cast<HWND>(nullptr), tipRect.left, tipRect.top, 0, 0,
                                SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        *result = TRUE;
        return TRUE;
    }
    return FALSE;
}

BOOL VU_CTreeListBox::GetToolTipText(NMTTDISPINFOW* info, LRESULT* result) {
    if (info == nullptr)
        return FALSE;
    m_tooltipBuffer[0] = 0;
    info->lpszText = m_tooltipBuffer;
    info->szText[0] = 0;
    info->hinst = nullptr;
    if (result != nullptr)
        *result = 0;

    POINT cursor{};
    GetCursorPos(&cursor);
    ::ScreenToClient(m_hWnd, &cursor);
    const CPoint point(cursor.x, cursor.y);
    const int row = RowFromPoint(point);
    m_tooltipRow = row;
    CTreeNode* node = GetNode(row);
    if (node == nullptr || node->IsSeparator() || DoesTextFitWithinRect(row))
        return TRUE; // an empty text shows no tip; nothing is cut

    // The tip belongs to the text under the mouse: with columns, the column
    // under it (the first one over the button and the image), shown only
    // when that column is cut.
    CString text = GetTooltipDisplayText(node);
    if (m_displayInColumns) {
        int column = 0;
        GetTextUnderPoint(point, row, column);
        const CPoint onText(std::max<LONG>(point.x, column), point.y);
        text = GetTabbedTextUnderPoint(onText, text, &column);
        if (column < 0 || DoesColumnFit(row, column))
            text.Empty();
    }
    m_tooltipText = text;
    const int length = std::min(text.GetLength(), static_cast<int>(std::size(m_tooltipBuffer)) - 1);
    std::memcpy(m_tooltipBuffer, text.GetString(), sizeof(wchar_t) * static_cast<size_t>(length));
    m_tooltipBuffer[length] = 0;
    return TRUE;
}

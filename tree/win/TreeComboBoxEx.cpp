#include "tree/win/TreeComboBoxEx.h"

#include "tree/TreeComboRules.h"
#include "tree/TreeNode.h"

#include <algorithm>

namespace {

constexpr int kRowHeight = 16;

std::wstring_view View(const CString& text) {
    return {text.GetString(), static_cast<size_t>(text.GetLength())};
}

} // namespace

// ---- Construction ---------------------------------------------------------------

AF_CTreeComboBoxEx::AF_CTreeComboBoxEx() {
    m_listBox.SetParentCombo(this);
    m_editControl.SetParentCombo(this);
}

AF_CTreeComboBoxEx::~AF_CTreeComboBoxEx() {
    if (IsWindow())
        OnDestroy();
    for (CTreeNode* node : m_flatNodes)
        delete node;
    m_flatNodes.RemoveAll();
}

BOOL AF_CTreeComboBoxEx::Create(DWORD style, const CRect& rect, CWnd* parent, UINT id) {
    return Create(style, rect, parent != nullptr ? parent->m_hWnd : nullptr, id);
}

BOOL AF_CTreeComboBoxEx::Create(DWORD style, const CRect& rect, HWND parent, UINT id) {
    style = (style & ~(CBS_HASSTRINGS | CBS_SORT | CBS_OWNERDRAWVARIABLE)) | CBS_OWNERDRAWFIXED;
    if (!CWnd::CreateEx(0, L"COMBOBOX", nullptr, style | WS_CHILD | WS_VSCROLL, rect.left, rect.top,
                        rect.Width(), rect.Height(), parent,
                        reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id))))
        return FALSE;
    AttachParts();
    return TRUE;
}

void AF_CTreeComboBoxEx::PreSubclassWindow() {
    CComboBox::PreSubclassWindow();
    // A dialog's combo already has its parts; one being created gets them
    // when Create returns.
    COMBOBOXINFO info{};
    info.cbSize = sizeof(info);
    if (::GetComboBoxInfo(m_hWnd, &info) && info.hwndList != nullptr)
        AttachParts();
}

void AF_CTreeComboBoxEx::AttachParts() {
    SendMessage(CB_SETITEMHEIGHT, 0, kRowHeight);
    COMBOBOXINFO info{};
    info.cbSize = sizeof(info);
    if (!::GetComboBoxInfo(m_hWnd, &info))
        return;
    if (HasEditField() && info.hwndItem != nullptr && m_editControl.m_hWnd == nullptr)
        m_editControl.SubclassWindow(info.hwndItem);
    if (m_useTree)
        UseTree(1);
}

bool AF_CTreeComboBoxEx::HasEditField() const {
    return (GetStyle() & 0x3) != CBS_DROPDOWNLIST;
}

VU_CTreeComboBoxEditControl* AF_CTreeComboBoxEx::GetEditControl() {
    return m_editControl.m_hWnd != nullptr ? &m_editControl : nullptr;
}

// ---- The tree on and off --------------------------------------------------------

void AF_CTreeComboBoxEx::UseTree(int on) {
    m_useTree = on;
    if (!IsWindow())
        return;
    if (!on) {
        UnsubclassList();
        return;
    }
    if (m_listSubclassed)
        return;
    OSVERSIONINFOW version{};
    version.dwOSVersionInfoSize = sizeof(version);
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
    ::GetVersionExW(&version);
#pragma GCC diagnostic pop
    const auto place =
        vu::treecombo::HidingPlaceFor(version.dwMajorVersion, version.dwMinorVersion);
    // The list window is taken over when it first asks for its colours; the
    // combo opens it once out of sight so that this happens now.
    CRect home;
    GetWindowRect(&home);
    HWND parent = ::GetParent(m_hWnd);
    if (parent != nullptr)
        ::MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&home), 2);
    const UINT flags = SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE;
    if (place.move)
        SetWindowPos(HWND(nullptr), place.x, place.y, 0, 0, flags);
    m_openingUnseen = true; // this close-up is no choice of the user's
    SendMessage(CB_SHOWDROPDOWN, TRUE);
    SendMessage(CB_SHOWDROPDOWN, FALSE);
    m_openingUnseen = false;
    if (place.move)
        SetWindowPos(HWND(nullptr), home.left, home.top, 0, 0, flags);
    if (!m_listSubclassed) {
        // A list that did not ask the combo for its colours is taken over directly.
        COMBOBOXINFO info{};
        info.cbSize = sizeof(info);
        if (::GetComboBoxInfo(m_hWnd, &info))
            SubclassList(info.hwndList);
    }
}

bool AF_CTreeComboBoxEx::SubclassList(HWND list) {
    if (m_listSubclassed || list == nullptr || !m_listBox.SubclassWindow(list))
        return false;
    m_listSubclassed = true;
    SetupHorzScrollExtent(list);
    return true;
}

void AF_CTreeComboBoxEx::UnsubclassList() {
    if (!m_listSubclassed)
        return;
    m_listBox.ModifyStyle(LBS_OWNERDRAWFIXED, 0);
    m_listBox.UnsubclassWindow();
    m_listSubclassed = false;
}

void AF_CTreeComboBoxEx::SetupHorzScrollExtent(HWND list) {
    ::SendMessageW(list, LB_SETHORIZONTALEXTENT, 0, 0);
}

void AF_CTreeComboBoxEx::SetImageList(CImageList* imageList) {
    m_listBox.SetImageList(imageList);
}
void AF_CTreeComboBoxEx::DrawTreeLines(bool draw) {
    m_listBox.DrawTreeLines(draw);
}
void AF_CTreeComboBoxEx::DisplayInColumns(bool columns) {
    m_listBox.DisplayInColumns(columns);
}

// ---- Items ---------------------------------------------------------------------

int AF_CTreeComboBoxEx::AddItem(CString& text, VU_CImageIndexArray& images, unsigned long itemData,
                                int parentHandle) {
    if (!m_listSubclassed)
        return AddFlatItem(text, images, itemData);
    int handle = -1;
    if (m_listBox.AddItem(text, images, itemData, parentHandle, &handle) < 0 && handle < 0)
        return -1;
    return handle;
}

int AF_CTreeComboBoxEx::AddItem(CString& text, int image, int selectedImage, unsigned long itemData,
                                int parentHandle) {
    VU_CImageIndexArray images = VU_CImageIndexArray::Pair(image, selectedImage);
    return AddItem(text, images, itemData, parentHandle);
}

int AF_CTreeComboBoxEx::InsertItem(CString& text, int image, int selectedImage,
                                   unsigned long itemData, int parentHandle, int index) {
    if (!m_listSubclassed) {
        VU_CImageIndexArray images = VU_CImageIndexArray::Pair(image, selectedImage);
        return AddFlatItem(text, images, itemData);
    }
    int handle = -1;
    m_listBox.InsertItem(text, image, selectedImage, itemData, parentHandle, index, &handle);
    return handle;
}

int AF_CTreeComboBoxEx::AddFlatItem(CString& text, const VU_CImageIndexArray& images,
                                    unsigned long itemData) {
    if (!IsWindow())
        return -1;
    const int handle = m_nextFlatHandle++;
    auto* node = new CTreeNode(text, images, itemData, handle, nullptr);
    if (SendMessage(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(node)) < 0) {
        delete node;
        return -1;
    }
    m_flatNodes.Add(node);
    return handle;
}

CTreeNode* AF_CTreeComboBoxEx::FindNode(int handle) {
    if (CTreeNode* node = m_listBox.FindNode(handle))
        return node;
    for (CTreeNode* node : m_flatNodes)
        if (node->GetTreeNodeItemHandle() == handle)
            return node;
    return nullptr;
}

void AF_CTreeComboBoxEx::Expand(int row) {
    if (m_listSubclassed)
        m_listBox.Expand(row);
}

void AF_CTreeComboBoxEx::Collapse(int row) {
    if (m_listSubclassed)
        m_listBox.Collapse(row);
}

void AF_CTreeComboBoxEx::ResetComboBoxContents() {
    // Rows first (they point at the nodes), then the nodes: a tree that was
    // switched off still owns the nodes of the rows it left behind.
    if (!m_listSubclassed && IsWindow())
        SendMessage(CB_RESETCONTENT);
    m_listBox.ResetTreeContents();
    for (CTreeNode* node : m_flatNodes)
        delete node;
    m_flatNodes.RemoveAll();
    m_lastAccepted = -1;
    m_initialText.Empty();
    SetEditText(CString());
}

CTreeNode* AF_CTreeComboBoxEx::NodeOfRow(int row) const {
    if (!IsWindow() || row < 0 || row >= GetCount())
        return nullptr;
    const LRESULT data = SendMessage(CB_GETITEMDATA, row);
    return data == CB_ERR ? nullptr : reinterpret_cast<CTreeNode*>(data);
}

// ---- Selection -------------------------------------------------------------------

int AF_CTreeComboBoxEx::SelectRow(int row, bool notify) {
    if (row < 0 || NodeOfRow(row) == nullptr)
        return -1;
    SetCurSel(row);
    SetEditText(GetCurSelDisplayText());
    if (notify)
        PostToParent(CBN_SELCHANGE);
    return row;
}

int AF_CTreeComboBoxEx::SelectItemFromItemData(unsigned long itemData, bool notify) {
    if (m_listSubclassed)
        return SelectRow(m_listBox.SelectItemFromItemData(itemData, false), notify);
    for (int row = 0; row < GetCount(); ++row)
        if (NodeOfRow(row)->GetItemData() == itemData)
            return SelectRow(row, notify);
    return -1;
}

int AF_CTreeComboBoxEx::SelectItemFromString(const CString& text, bool notify) {
    if (m_listSubclassed)
        return SelectRow(m_listBox.SelectItemFromString(text, false), notify);
    for (int row = 0; row < GetCount(); ++row)
        if (NodeOfRow(row)->GetDisplayText() == text)
            return SelectRow(row, notify);
    return -1;
}

int AF_CTreeComboBoxEx::SelectItemFromIndex(int row, bool notify) {
    return SelectRow(row, notify);
}

void AF_CTreeComboBoxEx::PostToParent(int code) {
    HWND parent = ::GetParent(m_hWnd);
    if (parent != nullptr)
        ::PostMessageW(parent, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), code),
                       reinterpret_cast<LPARAM>(m_hWnd));
}

bool AF_CTreeComboBoxEx::IsItemAllowedToBeSelected(int row) {
    const CTreeNode* node = NodeOfRow(row);
    return node != nullptr && node->GetNumberOfChildren() == 0 && !node->IsHeader() &&
           !node->IsSeparator();
}

// ---- Searching ---------------------------------------------------------------------

int AF_CTreeComboBoxEx::FindNoCaseChildString(CString& text, int length, int matchParents, int) {
    CString found;
    return FindNoCaseChildStringItem(text, found, length, matchParents);
}

int AF_CTreeComboBoxEx::FindNoCaseChildStringItem(const CString& text, CString& foundText,
                                                  int length, int matchParents) {
    if (text.IsEmpty() || length <= 0)
        return -1;
    if (m_listSubclassed)
        return m_listBox.FindNoCaseChildStringItem(text, foundText, length, matchParents, 0);
    const std::wstring_view key = View(text).substr(0, static_cast<size_t>(length));
    for (int row = 0; row < GetCount(); ++row) {
        const CString shown = NodeOfRow(row)->GetDisplayText();
        if (vu::treecombo::MatchesKey(View(shown), key, false)) {
            foundText = shown;
            return row;
        }
    }
    return -1;
}

int AF_CTreeComboBoxEx::FindRow(int start, const wchar_t* key, bool exact, bool leavesOnly) {
    if (key == nullptr)
        return -1;
    const std::wstring_view wanted(key);
    return vu::treecombo::FindRowAfter(GetCount(), start, [&](int row) {
        const CTreeNode* node = NodeOfRow(row);
        return node != nullptr && !(leavesOnly && node->GetNumberOfChildren() > 0) &&
               vu::treecombo::MatchesKey(View(node->GetDisplayText()), wanted, exact);
    });
}

int AF_CTreeComboBoxEx::FindStringEx(int start, const wchar_t* text) {
    const int row = FindRow(start, text, false, true);
    if (row >= 0 && m_listSubclassed)
        SetCurSel(row);
    return row;
}

LRESULT AF_CTreeComboBoxEx::OnFindString(UINT message, WPARAM wParam, LPARAM lParam) {
    const int start = static_cast<int>(static_cast<LONG>(wParam));
    const int row = FindRow(start, reinterpret_cast<const wchar_t*>(lParam),
                            message == CB_FINDSTRINGEXACT, false);
    if (row < 0)
        return CB_ERR;
    if (message == CB_SELECTSTRING)
        SelectRow(row, false);
    return row;
}

// ---- Texts ---------------------------------------------------------------------------

int AF_CTreeComboBoxEx::GetLBItemText(int row, CString& text) {
    const CTreeNode* node = NodeOfRow(row);
    if (node == nullptr) {
        text.Empty();
        return CB_ERR;
    }
    text = node->GetDisplayText();
    return text.GetLength();
}

CString AF_CTreeComboBoxEx::GetCurSelDisplayText() {
    const CTreeNode* node = NodeOfRow(GetCurSel());
    return node == nullptr ? CString() : node->GetDisplayText();
}

unsigned long AF_CTreeComboBoxEx::GetCurSelItemData() {
    return GetIndexItemData(GetCurSel());
}

unsigned long AF_CTreeComboBoxEx::GetIndexItemData(int row) {
    const CTreeNode* node = NodeOfRow(row);
    return node == nullptr ? 0 : node->GetItemData();
}

int AF_CTreeComboBoxEx::GetItemCount() {
    return m_listBox.GetNodeCount() + static_cast<int>(m_flatNodes.GetSize());
}

void AF_CTreeComboBoxEx::SetEditText(const CString& text) {
    if (m_editControl.m_hWnd != nullptr)
        m_editControl.SetWindowText(text.GetString());
}

LRESULT AF_CTreeComboBoxEx::OnGetLBText(WPARAM wParam, LPARAM lParam) {
    auto* buffer = reinterpret_cast<wchar_t*>(lParam);
    CString text;
    if (buffer == nullptr || GetLBItemText(static_cast<int>(wParam), text) == CB_ERR)
        return CB_ERR;
    for (int i = 0; i < text.GetLength(); ++i)
        buffer[i] = text[i];
    buffer[text.GetLength()] = 0;
    return text.GetLength();
}

LRESULT AF_CTreeComboBoxEx::OnGetLBTextLen(WPARAM wParam) {
    CString text;
    return GetLBItemText(static_cast<int>(wParam), text);
}

LRESULT AF_CTreeComboBoxEx::OnGetText(WPARAM wParam, LPARAM lParam) {
    if (HasEditField())
        return Default();
    auto* buffer = reinterpret_cast<wchar_t*>(lParam);
    if (buffer == nullptr || wParam == 0)
        return 0;
    const CString text = GetCurSelDisplayText();
    const int length = std::min(text.GetLength(), static_cast<int>(wParam) - 1);
    for (int i = 0; i < length; ++i)
        buffer[i] = text[i];
    buffer[length] = 0;
    return length;
}

LRESULT AF_CTreeComboBoxEx::OnGetTextLength() {
    if (HasEditField())
        return Default();
    return GetCurSelDisplayText().GetLength();
}

AF_GString AF_CTreeComboBoxEx::XmlGetString() {
    AF_GString editXml;
    const bool hasEdit = m_editControl.m_hWnd != nullptr;
    if (hasEdit)
        editXml = m_editControl.XmlGetString();
    const CString current = GetCurSelDisplayText();
    const AF_GString list = m_listSubclassed ? m_listBox.XmlGetString() : AF_GString(L"");
    return vu::treecombo::ComboXml(hasEdit ? &editXml : nullptr, View(current), list);
}

// ---- Drawing --------------------------------------------------------------------------

void AF_CTreeComboBoxEx::DrawItem(LPDRAWITEMSTRUCT dis) {
    if (dis == nullptr)
        return;
    const bool editPart = (dis->itemState & ODS_COMBOBOXEDIT) != 0;
    if (m_listSubclassed && !editPart) {
        m_listBox.DrawItem(dis);
        return;
    }
    // The selection field of a list-only combo, or a flat row.
    const bool selected = (dis->itemState & ODS_SELECTED) != 0;
    HBRUSH brush = ::GetSysColorBrush(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW);
    ::FillRect(dis->hDC, &dis->rcItem, brush);
    const CTreeNode* node = dis->itemID == static_cast<UINT>(-1)
                                ? nullptr
                                : reinterpret_cast<const CTreeNode*>(dis->itemData);
    if (node != nullptr) {
        const CString text = node->GetDisplayText();
        RECT rc = dis->rcItem;
        rc.left += 2;
        ::SetBkMode(dis->hDC, TRANSPARENT);
        ::SetTextColor(dis->hDC, ::GetSysColor(selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
        ::DrawTextW(dis->hDC, text.GetString(), text.GetLength(), &rc,
                    DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS | DT_EXPANDTABS);
    }
    if (dis->itemState & ODS_FOCUS)
        ::DrawFocusRect(dis->hDC, &dis->rcItem);
}

void AF_CTreeComboBoxEx::MeasureItem(LPMEASUREITEMSTRUCT measureItem) {
    if (measureItem != nullptr)
        measureItem->itemHeight = kRowHeight;
}

int AF_CTreeComboBoxEx::CompareItem(LPCOMPAREITEMSTRUCT) {
    return 0; // never sorted: rows stay in tree order
}

// ---- Messages --------------------------------------------------------------------------

LRESULT AF_CTreeComboBoxEx::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_COMMAND:
        if (m_listSubclassed && reinterpret_cast<HWND>(lParam) == m_listBox.m_hWnd &&
            HIWORD(wParam) == LBN_SELCHANGE) {
            const LRESULT result = Default();
            m_listBox.OnReflectedSelChange();
            return result;
        }
        break;
    case WM_CTLCOLORLISTBOX:
        return OnCtlColorListBox(wParam, lParam);
    case WM_DESTROY:
        OnDestroy();
        break;
    case CB_FINDSTRING:
    case CB_FINDSTRINGEXACT:
    case CB_SELECTSTRING:
        return OnFindString(message, wParam, lParam);
    case CB_GETLBTEXT:
        return OnGetLBText(wParam, lParam);
    case CB_GETLBTEXTLEN:
        return OnGetLBTextLen(wParam);
    case WM_GETTEXT:
        return OnGetText(wParam, lParam);
    case WM_GETTEXTLENGTH:
        return OnGetTextLength();
    default:
        break;
    }
    return CComboBox::WindowProc(message, wParam, lParam);
}

BOOL AF_CTreeComboBoxEx::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam,
                                       LRESULT* result) {
    if (message == WM_COMMAND) {
        if (HIWORD(wParam) == CBN_DROPDOWN)
            OnDropDown();
        else if (HIWORD(wParam) == CBN_CLOSEUP)
            OnCloseUp();
        return FALSE; // the parent hears of it as well
    }
    return CComboBox::OnChildNotify(message, wParam, lParam, result);
}

void AF_CTreeComboBoxEx::OnDropDown() {
    m_initialText = GetCurSelDisplayText();
}

void AF_CTreeComboBoxEx::OnCloseUp() {
    if (m_openingUnseen)
        return;
    HandleOnCloseUp();
    PostToParent(CBN_SELENDOK);
}

void AF_CTreeComboBoxEx::HandleOnCloseUp() {
    const int selection = GetCurSel();
    const auto decision = vu::treecombo::DecideCloseUp(
        selection, IsItemAllowedToBeSelected(selection), m_lastAccepted);
    m_lastAccepted = decision.lastAccepted;
    if (decision.restore != -1)
        SetCurSel(decision.restore);
    const int shown = GetCurSel();
    if (m_useTree && shown != -1)
        SetEditText(GetCurSelDisplayText());
}

LRESULT AF_CTreeComboBoxEx::OnCtlColorListBox(WPARAM wParam, LPARAM lParam) {
    if (m_useTree && !m_listSubclassed)
        SubclassList(reinterpret_cast<HWND>(lParam));
    return CComboBox::WindowProc(WM_CTLCOLORLISTBOX, wParam, lParam);
}

LRESULT AF_CTreeComboBoxEx::OnDestroy() {
    // The rows point at nodes the list owns: the list lets go of its window
    // (and empties it) while both still exist.
    if (m_listSubclassed) {
        m_listBox.SendMessage(LB_RESETCONTENT);
        m_listBox.UnsubclassWindow();
        m_listSubclassed = false;
    }
    if (m_editControl.m_hWnd != nullptr)
        m_editControl.UnsubclassWindow();
    return 0;
}

#include "tree/win/SummaryListBox.h"

#include "tree/TreeListGeometry.h"

VU_CSummaryListBox::~VU_CSummaryListBox() {
    // The rows point at the nodes: empty the list before the nodes go.
    if (m_hWnd != nullptr && ::IsWindow(m_hWnd))
        ::SendMessageW(m_hWnd, LB_RESETCONTENT, 0, 0);
    for (CSummaryNode* node : m_nodes)
        delete node;
    m_nodes.RemoveAll();
    if (m_headerFont != nullptr)
        DeleteObject(m_headerFont);
}

CSummaryNode* VU_CSummaryListBox::CreateSummaryNode(const CString& text, bool header) {
    return new CSummaryNode(text, header);
}

int VU_CSummaryListBox::AddItem(const CString& text, bool header) {
    CSummaryNode* node = CreateSummaryNode(text, header);
    if (node == nullptr)
        return LB_ERR;
    m_nodes.Add(node);
    if (m_hWnd == nullptr)
        return LB_ERR;
    return static_cast<int>(
        ::SendMessageW(m_hWnd, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(node)));
}

CSummaryNode* VU_CSummaryListBox::GetNode(int row) const {
    if (m_hWnd == nullptr || row < 0 || row >= GetCount())
        return nullptr;
    const LRESULT data = ::SendMessageW(m_hWnd, LB_GETITEMDATA, static_cast<WPARAM>(row), 0);
    if (data == LB_ERR)
        return nullptr;
    return reinterpret_cast<CSummaryNode*>(data);
}

CString VU_CSummaryListBox::GetDisplayText(int row) const {
    const CSummaryNode* node = GetNode(row);
    return node != nullptr ? node->GetDisplayText() : CString();
}

void VU_CSummaryListBox::SetDisplayText(int row, const CString& text) {
    if (CSummaryNode* node = GetNode(row))
        node->SetDisplayText(text);
}

CString VU_CSummaryListBox::GetCurSelDisplayText() const {
    if (m_hWnd == nullptr)
        return CString();
    return GetDisplayText(GetCurSel());
}

BOOL VU_CSummaryListBox::IsVerticalScrollbarVisible() const {
    const int count = m_hWnd != nullptr ? GetCount() : 0;
    if (count <= 0)
        return FALSE;
    RECT item{};
    RECT client{};
    ::SendMessageW(m_hWnd, LB_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&item));
    ::GetClientRect(m_hWnd, &client);
    return vu::treelist::RowsOverflow(count, item.bottom - item.top, client.bottom - client.top)
               ? TRUE
               : FALSE;
}

HFONT VU_CSummaryListBox::GetHeaderFont(HFONT base) {
    if (m_headerFont != nullptr && m_headerFontFor == base)
        return m_headerFont;
    if (m_headerFont != nullptr)
        DeleteObject(m_headerFont);
    LOGFONTW lf{};
    GetObjectW(base, sizeof(lf), &lf);
    lf.lfWeight = FW_BOLD;
    m_headerFont = CreateFontIndirectW(&lf);
    m_headerFontFor = base;
    return m_headerFont;
}

void VU_CSummaryListBox::DrawItem(LPDRAWITEMSTRUCT dis) {
    if (dis == nullptr || dis->itemID == static_cast<UINT>(-1))
        return;
    const auto* node = reinterpret_cast<const CSummaryNode*>(dis->itemData);
    if (node == nullptr)
        return;
    RECT rc = dis->rcItem;
    const CString text = node->GetDisplayText();
    rc.left += node->GetTextIndent();
    HGDIOBJ oldFont = nullptr;
    if (node->IsHeader()) {
        // Without a control font the header keeps the device context's font.
        HFONT base = reinterpret_cast<HFONT>(::SendMessageW(m_hWnd, WM_GETFONT, 0, 0));
        if (base != nullptr)
            oldFont = SelectObject(dis->hDC, GetHeaderFont(base));
    }
    DrawTextW(dis->hDC, text.GetString(), text.GetLength(), &rc,
              DT_SINGLELINE | DT_VCENTER | DT_EXPANDTABS);
    if (oldFont != nullptr)
        SelectObject(dis->hDC, oldFont);
}

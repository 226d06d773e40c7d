#include "tree/TreeNode.h"

#include "framework/CaseMap.h"
#include "text/XmlWriter.h"

#include <algorithm>
#include <utility>
#include <vector>

// The walks below keep their own stack instead of recursing, so that a
// degenerate tree (a long chain of single children) cannot exhaust the
// thread's stack.

namespace {

long g_xmlRowCounter = 0;   // row of the next node written
long g_xmlSelectedRow = -1; // the control's selection when the dump began

AF_GString ToGString(const CString& text) {
    return AF_GString(vu::String(text.GetString(), text.GetLength()));
}

// Pushes the children of node on a pre-order work stack, first child on
// top. The array interface allows null entries; every walk skips them.
template <typename Stack> void PushChildren(Stack& stack, const CTreeNode* node) {
    for (int i = node->GetNumberOfChildren() - 1; i >= 0; --i)
        if (CTreeNode* child = node->GetChild(i))
            stack.push_back(child);
}

// Whether the first `length` units of a and b (each cut at its end) are equal
// without regard to case.
bool EqualPrefixNoCase(const CString& a, const CString& b, int length) {
    const int la = std::min(a.GetLength(), length);
    const int lb = std::min(b.GetLength(), length);
    if (la != lb)
        return false;
    const WCHAR* pa = a.GetString();
    const WCHAR* pb = b.GetString();
    for (int i = 0; i < la; ++i)
        if (pa[i] != pb[i] && vu::ToLower(pa[i]) != vu::ToLower(pb[i]))
            return false;
    return true;
}

} // namespace

// ---- Construction ----------------------------------------------------------

CTreeNode::CTreeNode() = default;

CTreeNode::CTreeNode(const CString& text, const VU_CImageIndexArray& images, unsigned long itemData,
                     int handle, CTreeNode* parent)
    : m_parent(parent), m_handle(handle), m_images(images), m_itemData(itemData),
      m_displayText(text), m_separator(text.IsEmpty()) {}

CTreeNode::CTreeNode(const CString& text, int image, int selectedImage, unsigned long itemData,
                     int handle, CTreeNode* parent)
    : CTreeNode(text, VU_CImageIndexArray::Pair(image, selectedImage), itemData, handle, parent) {}

CTreeNode::~CTreeNode() {
    // Deletes the subtree without recursion: each node's children are taken
    // out of it before it is deleted, so its own destructor finds none.
    std::vector<CTreeNode*> pending;
    PushChildren(pending, this);
    RemoveAll();
    while (!pending.empty()) {
        CTreeNode* node = pending.back();
        pending.pop_back();
        PushChildren(pending, node);
        node->RemoveAll();
        delete node;
    }
}

// ---- Attributes ------------------------------------------------------------

void CTreeNode::Expand(int flag) {
    m_expanded = GetNumberOfChildren() > 0 ? flag : 0;
}

void CTreeNode::SetExpandFlag(int flag) {
    Expand(flag);
}

int CTreeNode::ComputeImageArrayIndex(int state, bool normal) const {
    if (state < 0)
        return -1;
    const long long position = 2LL * state + (normal ? 0 : 1);
    if (position >= m_images.GetSize())
        return -1;
    return m_images.GetAt(static_cast<INT_PTR>(position));
}

int CTreeNode::GetImageIndex(int state) const {
    return ComputeImageArrayIndex(state, true);
}

int CTreeNode::GetSelectedImageIndex(int state) const {
    return ComputeImageArrayIndex(state, false);
}

// ---- Tree queries ----------------------------------------------------------

int CTreeNode::GetNumberOfNodes() const {
    int count = 0;
    std::vector<const CTreeNode*> pending{this};
    while (!pending.empty()) {
        const CTreeNode* node = pending.back();
        pending.pop_back();
        ++count;
        PushChildren(pending, node);
    }
    return count;
}

int CTreeNode::ComputeNumberOfExpandedNodesShowing() const {
    int count = 0;
    std::vector<const CTreeNode*> pending{this};
    while (!pending.empty()) {
        const CTreeNode* node = pending.back();
        pending.pop_back();
        if (!node->IsExpanded())
            continue;
        const std::size_t before = pending.size();
        PushChildren(pending, node);
        count += static_cast<int>(pending.size() - before);
    }
    return count;
}

CTreeNode* CTreeNode::FindNode(int handle) {
    std::vector<CTreeNode*> pending{this};
    while (!pending.empty()) {
        CTreeNode* node = pending.back();
        pending.pop_back();
        if (node->m_handle == handle)
            return node;
        PushChildren(pending, node);
    }
    return nullptr;
}

CTreeNode* CTreeNode::FindNodeFromItemData(unsigned long data) {
    std::vector<CTreeNode*> pending{this};
    while (!pending.empty()) {
        CTreeNode* node = pending.back();
        pending.pop_back();
        if (node->m_itemData == data)
            return node;
        PushChildren(pending, node);
    }
    return nullptr;
}

bool CTreeNode::IsLastNodeOfParent() const {
    if (m_parent == nullptr)
        return true;
    const int count = m_parent->GetNumberOfChildren();
    return count > 0 && m_parent->GetChild(count - 1) == this;
}

bool CTreeNode::IsParentLastNodeOfParent() const {
    return m_parent == nullptr || m_parent->IsLastNodeOfParent();
}

int CTreeNode::FindNoCaseChildString(const CString& text, bool matchParents, int length,
                                     int exactBeforeTab) {
    const int keyLength = length < 0 ? 0 : length;
    std::vector<CTreeNode*> pending{this};
    while (!pending.empty()) {
        CTreeNode* node = pending.back();
        pending.pop_back();
        const bool candidate = matchParents || node->GetNumberOfChildren() == 0;
        if (candidate) {
            const CString shown = node->GetDisplayText();
            if (EqualPrefixNoCase(text, shown, keyLength)) {
                if (exactBeforeTab == 0)
                    return node->m_handle;
                // The name is the text before the first tab; it must equal all of text.
                const int tab = shown.Find(VU_T('\t'));
                const int nameLength = tab < 0 ? shown.GetLength() : tab;
                if (nameLength == text.GetLength() && EqualPrefixNoCase(text, shown, nameLength))
                    return node->m_handle;
                continue; // a prefix match with another name ends this subtree
            }
        }
        PushChildren(pending, node);
    }
    return -1;
}

// ---- XML of the visible rows ----------------------------------------------

void CTreeNode::ResetXmlRowCounter(long selectedRow) {
    g_xmlRowCounter = 0;
    g_xmlSelectedRow = selectedRow;
}

long CTreeNode::GetXmlRowCounter() {
    return g_xmlRowCounter;
}

void CTreeNode::AppendOwnXml(AF_GString& out, long row, bool selected) const {
    // Element names made once: building them per row costs more than writing them.
    static const AF_GString kNode(VU_T("HbxListNode"));
    static const AF_GString kId(VU_T("id"));
    static const AF_GString kExpanded(VU_T("expanded"));
    static const AF_GString kSelected(VU_T("selected"));
    static const AF_GString kText(VU_T("text"));
    static const AF_GString kParent(VU_T("parent"));

    VU_CXmlWriter writer;
    writer.WriteStartElement(kNode);
    writer.WriteStartElement(kId);
    writer.WriteElementValue(row);
    writer.WriteEndElement();
    writer.WriteStartElement(kExpanded);
    writer.WriteElementValue(m_expanded != 0);
    writer.WriteEndElement();
    writer.WriteStartElement(kSelected);
    writer.WriteElementValue(selected);
    writer.WriteEndElement();
    writer.WriteStartElement(kText);
    writer.WriteElementString(ToGString(GetDisplayText()));
    writer.WriteEndElement();
    writer.WriteStartElement(kParent);
    writer.WriteElementString(m_parent ? ToGString(m_parent->GetDisplayText()) : AF_GString());
    writer.WriteEndElement();
    writer.WriteEndElement();
    out += writer.GetOutput();
}

void CTreeNode::AppendXml(AF_GString& out) {
    std::vector<CTreeNode*> pending{this};
    while (!pending.empty()) {
        CTreeNode* node = pending.back();
        pending.pop_back();
        const long row = g_xmlRowCounter++;
        node->AppendOwnXml(out, row, row == g_xmlSelectedRow);
        if (node->IsExpanded())
            PushChildren(pending, node);
    }
}

size_t CTreeNode::EstimateXmlSize() const {
    // Room for every row at a generous guess: reserving room that is never
    // written costs nothing, while growing a large string step by step copies
    // it each time (and, under some heaps, faults in fresh pages each time).
    constexpr size_t kCharsPerRow = 256;
    return (1 + static_cast<size_t>(ComputeNumberOfExpandedNodesShowing())) * kCharsPerRow;
}

AF_GString CTreeNode::XmlGetString() {
    AF_GString out;
    out.reserve(EstimateXmlSize());
    AppendXml(out);
    return out;
}

#include "tree/TreeNode.h"

#include "text/XmlWriter.h"

#include <utility>
#include <vector>

// The walks below keep their own stack instead of recursing, so that a
// degenerate tree (a long chain of single children) cannot exhaust the
// thread's stack.

namespace {

long g_xmlRowCounter = 0;   // row of the next node written
long g_xmlSelectedRow = -1; // the control's selection when the dump began

AF_GString ToGString(const CString& text) {
    return AF_GString(std::u16string(text.GetString(), text.GetLength()));
}

// Pushes the children of node on a pre-order work stack, first child on top.
template <typename Stack> void PushChildren(Stack& stack, CTreeNode* node) {
    for (int i = node->GetNumberOfChildren() - 1; i >= 0; --i)
        stack.push_back(node->GetChild(i));
}

bool EqualNoCase(const CString& a, const CString& b) {
    return a.CompareNoCase(b) == 0;
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
    int count = 1;
    std::vector<const CTreeNode*> pending{this};
    while (!pending.empty()) {
        const CTreeNode* node = pending.back();
        pending.pop_back();
        count += node->GetNumberOfChildren();
        for (int i = 0; i < node->GetNumberOfChildren(); ++i)
            if (node->GetChild(i)->GetNumberOfChildren() > 0)
                pending.push_back(node->GetChild(i));
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
        count += node->GetNumberOfChildren();
        for (int i = 0; i < node->GetNumberOfChildren(); ++i)
            pending.push_back(node->GetChild(i));
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
    const CString key = text.Left(keyLength);
    std::vector<CTreeNode*> pending{this};
    while (!pending.empty()) {
        CTreeNode* node = pending.back();
        pending.pop_back();
        const bool candidate = matchParents || node->GetNumberOfChildren() == 0;
        if (candidate) {
            const CString shown = node->GetDisplayText();
            if (EqualNoCase(key, shown.Left(keyLength))) {
                if (exactBeforeTab == 0)
                    return node->m_handle;
                const int tab = shown.Find(u'\t');
                const CString name = tab < 0 ? shown : shown.Left(tab);
                if (EqualNoCase(name, text))
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
    VU_CXmlWriter writer;
    writer.WriteStartElement(AF_GString(u"HbxListNode"));
    writer.WriteStartElement(AF_GString(u"id"));
    writer.WriteElementValue(row);
    writer.WriteEndElement();
    writer.WriteStartElement(AF_GString(u"expanded"));
    writer.WriteElementValue(m_expanded != 0);
    writer.WriteEndElement();
    writer.WriteStartElement(AF_GString(u"selected"));
    writer.WriteElementValue(selected);
    writer.WriteEndElement();
    writer.WriteStartElement(AF_GString(u"text"));
    writer.WriteElementString(ToGString(GetDisplayText()));
    writer.WriteEndElement();
    writer.WriteStartElement(AF_GString(u"parent"));
    writer.WriteElementString(m_parent ? ToGString(m_parent->GetDisplayText()) : AF_GString());
    writer.WriteEndElement();
    writer.WriteEndElement();
    out += writer.ToString();
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

AF_GString CTreeNode::XmlGetString() {
    AF_GString out;
    AppendXml(out);
    return out;
}

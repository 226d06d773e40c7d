#pragma once
// One item of a tree control. A node is also the array of its children, and
// owns them: destroying a node destroys its whole subtree. The model knows no
// windows; the controls give nodes their handle and level when they insert them.
//
// Invariant: a node without children is never expanded.
#include "framework/CString.h"
#include "tree/ImageIndexArray.h"
#include "tree/TreeNodeArray.h"

class CTreeNode : public CTreeNodeArray {
public:
    CTreeNode();
    // An empty text makes a separator node.
    CTreeNode(const CString& text, const VU_CImageIndexArray& images, unsigned long itemData,
              int handle, CTreeNode* parent);
    CTreeNode(const CString& text, int image, int selectedImage, unsigned long itemData, int handle,
              CTreeNode* parent);
    ~CTreeNode() override;

    CTreeNode(const CTreeNode&) = delete;
    CTreeNode& operator=(const CTreeNode&) = delete;

    // Attributes
    int GetNumberOfChildren() const { return static_cast<int>(GetSize()); }
    CTreeNode* GetChild(int index) const { return GetAt(index); }

    int IsExpanded() const { return m_expanded; }
    // Both store the flag only when the node has children, 0 otherwise.
    void Expand(int flag);
    void SetExpandFlag(int flag);

    CTreeNode* GetParent() const { return m_parent; }
    void SetParent(CTreeNode* parent) { m_parent = parent; }

    int GetTreeNodeItemHandle() const { return m_handle; }
    void SetHandle(int handle) { m_handle = handle; }

    const VU_CImageIndexArray& GetImages() const { return m_images; }
    void SetImages(const VU_CImageIndexArray& images) { m_images = images; }
    // -1 when the array holds no such entry.
    int GetImageIndex(int state) const;
    int GetSelectedImageIndex(int state) const;

    virtual int GetLevel() const { return m_level; }
    void SetLevel(int level) { m_level = level; }

    unsigned long GetItemData() const { return m_itemData; }
    virtual void SetItemData(unsigned long data) { m_itemData = data; }

    virtual CString GetDisplayText() const { return m_displayText; }
    void SetDisplayText(const CString& text) { m_displayText = text; }

    bool DrawLines() const { return m_drawLines; }
    void SetDrawLines(bool draw) { m_drawLines = draw; }
    bool IsSeparator() const { return m_separator; }
    void SetSeparator(bool separator) { m_separator = separator; }
    bool IsHeader() const { return m_header; }
    void SetHeader(bool header) { m_header = header; }

    // Tree queries, all depth-first in pre-order (the node, then each child's subtree)
    int GetNumberOfNodes() const; // counts the node itself
    // Rows that the node's descendants occupy when shown: 0 for a collapsed node.
    int ComputeNumberOfExpandedNodesShowing() const;
    CTreeNode* FindNode(int handle);
    CTreeNode* FindNodeFromItemData(unsigned long data);
    virtual bool IsLastNodeOfParent() const;
    bool IsParentLastNodeOfParent() const;
    // Handle of the first node whose text starts with the first `length` characters
    // of `text` (case-blind), or -1. Nodes with children are candidates only with
    // matchParents. With exactBeforeTab, a prefix match must also equal `text` up to
    // its first tab, and one that does not ends the search of its own subtree.
    int FindNoCaseChildString(const CString& text, bool matchParents, int length,
                              int exactBeforeTab);

    // One "HbxListNode" element per visible row of this subtree (the node, then
    // its children's rows when expanded), numbered by the shared row counter.
    AF_GString XmlGetString();

    // The row counter shared by a whole dump: a control resets it to 0 and records
    // its selected row before it asks its nodes for their XML. Not re-entrant.
    static void ResetXmlRowCounter(long selectedRow);
    static long GetXmlRowCounter();

    // Appends the subtree's XML to out (what XmlGetString returns).
    void AppendXml(AF_GString& out);
    // A generous guess of the length of the subtree's XML, in characters.
    size_t EstimateXmlSize() const;

protected:
    // Entry 2*state (normal) or 2*state+1; -1 past the end.
    int ComputeImageArrayIndex(int state, bool normal) const;

private:
    void AppendOwnXml(AF_GString& out, long row, bool selected) const;

    int m_expanded = 0;
    CTreeNode* m_parent = nullptr; // not owned; null for a top-level node
    int m_handle = -1;             // identity within the control
    VU_CImageIndexArray m_images;
    int m_level = 0;
    unsigned long m_itemData = 0;
    CString m_displayText;
    bool m_drawLines = true;
    bool m_separator = false;
    bool m_header = false;
};

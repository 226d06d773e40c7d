// The combo box's description read back with libxml2: the declaration, the
// edit field's element with awkward text, and the tree list's rows.
#include "foundation/Utf8.h"
#include "text/XmlWriter.h"
#include "tree/LookAheadCompletion.h"
#include "tree/TreeComboRules.h"
#include "tree/TreeNode.h"

#include <gtest/gtest.h>
#include <libxml/parser.h>
#include <libxml/tree.h>

#include <string>
#include <vector>

namespace {

std::string Name(xmlNode* e) {
    return reinterpret_cast<const char*>(e->name);
}

std::vector<xmlNode*> Elements(xmlNode* parent) {
    std::vector<xmlNode*> out;
    for (xmlNode* c = parent->children; c; c = c->next)
        if (c->type == XML_ELEMENT_NODE)
            out.push_back(c);
    return out;
}

std::string Content(xmlNode* e) {
    xmlChar* content = xmlNodeGetContent(e);
    std::string text(reinterpret_cast<const char*>(content));
    xmlFree(content);
    return text;
}

// Root row "Line <3>" (expanded, selected) with two leaves.
AF_GString TreeListXml(CTreeNodeArray& roots) {
    auto* root = new CTreeNode(CString(u"Line <3>"), 0, 0, 1, 1, nullptr);
    roots.Add(root);
    for (int i = 0; i < 2; ++i) {
        auto* leaf = new CTreeNode(CString(i == 0 ? u"Motor & Drive" : u"Valve \"A\""), 0, 0, 2,
                                   2 + i, root);
        leaf->SetLevel(1);
        root->Add(leaf);
    }
    root->Expand(1);
    CTreeNode::ResetXmlRowCounter(0);
    VU_CXmlWriter writer;
    writer.WriteStartElement(AF_GString(u"HbxTreeList"));
    writer.CloseOpenedElement();
    writer.WriteRaw(roots.XmlGetString());
    writer.WriteEndElement();
    return writer.ToString();
}

xmlDoc* Parse(const AF_GString& xml) {
    return xmlReadMemory(reinterpret_cast<const char*>(xml.data()),
                         static_cast<int>(xml.size() * 2), "combo.xml", "UTF-16LE",
                         XML_PARSE_NONET);
}

TEST(ComboXmlParse, EditPartAndTreeListParseWithTheirValues) {
    CTreeNodeArray roots;
    const AF_GString list = TreeListXml(roots);
    VU_CXmlWriter edit;
    const std::u16string text = u"Mot<or> & \u00e9";
    const int end = static_cast<int>(text.size());
    ASSERT_TRUE(VU_CLookAheadCompletion::WriteXml(edit, text, 3, end));
    const AF_GString editXml = edit.ToString();
    const AF_GString xml = vu::treecombo::ComboXml(&editXml, u"ignored", list);

    ASSERT_EQ(0u, xml.rfind(u"<?xml", 0)) << "the declaration comes first";
    xmlDoc* doc = Parse(xml);
    ASSERT_NE(nullptr, doc) << vu::Utf16ToUtf8(xml);
    xmlNode* top = xmlDocGetRootElement(doc);
    EXPECT_EQ("HbxComboBox", Name(top));
    const std::vector<xmlNode*> parts = Elements(top);
    ASSERT_EQ(2u, parts.size());
    EXPECT_EQ("HbxLookAheadEdit", Name(parts[0]));
    const std::vector<xmlNode*> fields = Elements(parts[0]);
    ASSERT_EQ(4u, fields.size());
    EXPECT_EQ(vu::Utf16ToUtf8(text), Content(fields[0]));
    EXPECT_EQ("3", Content(fields[1]));
    EXPECT_EQ(std::to_string(end), Content(fields[2]));
    EXPECT_EQ(vu::Utf16ToUtf8(text.substr(3)), Content(fields[3]));

    EXPECT_EQ("HbxTreeList", Name(parts[1]));
    const std::vector<xmlNode*> rows = Elements(parts[1]);
    ASSERT_EQ(3u, rows.size());
    const char* texts[] = {"Line <3>", "Motor & Drive", "Valve \"A\""};
    for (size_t i = 0; i < rows.size(); ++i) {
        SCOPED_TRACE(texts[i]);
        EXPECT_EQ("HbxListNode", Name(rows[i]));
        bool found = false;
        for (xmlNode* field : Elements(rows[i]))
            if (Name(field) == "text") {
                EXPECT_EQ(texts[i], Content(field));
                found = true;
            }
        EXPECT_TRUE(found);
    }
    xmlFreeDoc(doc);
    for (CTreeNode* r : roots)
        delete r;
}

TEST(ComboXmlParse, WithoutEditFieldTheCurrentTextIsEscaped) {
    CTreeNodeArray roots;
    const AF_GString xml = vu::treecombo::ComboXml(nullptr, u"a<b&c", TreeListXml(roots));
    xmlDoc* doc = Parse(xml);
    ASSERT_NE(nullptr, doc) << vu::Utf16ToUtf8(xml);
    const std::vector<xmlNode*> parts = Elements(xmlDocGetRootElement(doc));
    ASSERT_EQ(2u, parts.size());
    EXPECT_EQ("Text", Name(parts[0]));
    EXPECT_EQ("a<b&c", Content(parts[0]));
    EXPECT_EQ("HbxTreeList", Name(parts[1]));
    xmlFreeDoc(doc);
    for (CTreeNode* r : roots)
        delete r;
}

} // namespace

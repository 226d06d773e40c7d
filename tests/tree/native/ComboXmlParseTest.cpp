// The combo box's description read back with libxml2: the declaration, then
// the edit field's element (or the current text) before the tree list's.
#include "foundation/Utf8.h"
#include "text/XmlWriter.h"
#include "tree/LookAheadCompletion.h"
#include "tree/TreeComboRules.h"

#include <gtest/gtest.h>
#include <libxml/parser.h>
#include <libxml/tree.h>

#include <string>
#include <vector>

namespace {

// The names and texts of an element's child elements, "name=text" each.
std::vector<std::string> Children(xmlNode* parent) {
    std::vector<std::string> out;
    for (xmlNode* c = parent->children; c; c = c->next) {
        if (c->type != XML_ELEMENT_NODE)
            continue;
        xmlChar* content = xmlNodeGetContent(c);
        out.push_back(std::string(reinterpret_cast<const char*>(c->name)) + "=" +
                      reinterpret_cast<const char*>(content));
        xmlFree(content);
    }
    return out;
}

TEST(ComboXmlParse, EditPartOrCurrentTextThenTheTreeList) {
    const std::u16string text = u"Mot<or> & \u00e9";
    VU_CXmlWriter edit;
    ASSERT_TRUE(VU_CLookAheadCompletion::WriteXml(edit, text, 3, static_cast<int>(text.size())));
    const AF_GString editXml = edit.ToString();
    const AF_GString list = u"<HbxTreeList><HbxListNode><text>R&amp;D</text></HbxListNode>"
                            u"</HbxTreeList>";
    const std::string tail = vu::Utf16ToUtf8(text.substr(3));
    const struct {
        const AF_GString* edit;
        std::vector<std::string> parts, editFields;
    } cases[] = {
        {&editXml,
         {"HbxLookAheadEdit=" + vu::Utf16ToUtf8(text) + "3" + "11" + tail, "HbxTreeList=R&D"},
         {"Text=" + vu::Utf16ToUtf8(text), "SelStart=3", "SelEnd=11", "Completion=" + tail}},
        {nullptr, {"Text=a<b&c", "HbxTreeList=R&D"}, {}}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.edit ? "with an edit field" : "without");
        const AF_GString xml = vu::treecombo::ComboXml(c.edit, u"a<b&c", list);
        ASSERT_EQ(0u, xml.rfind(u"<?xml", 0)) << "the declaration comes first";
        xmlDoc* doc = xmlReadMemory(reinterpret_cast<const char*>(xml.data()),
                                    static_cast<int>(xml.size() * 2), "combo.xml", "UTF-16LE",
                                    XML_PARSE_NONET);
        ASSERT_NE(nullptr, doc) << vu::Utf16ToUtf8(xml);
        xmlNode* top = xmlDocGetRootElement(doc);
        EXPECT_STREQ("HbxComboBox", reinterpret_cast<const char*>(top->name));
        EXPECT_EQ(c.parts, Children(top));
        if (c.edit) {
            EXPECT_EQ(c.editFields, Children(top->children));
        }
        xmlFreeDoc(doc);
    }
}

} // namespace

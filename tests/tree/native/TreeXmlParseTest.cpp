// The XML of the visible tree, wrapped as the list box wraps it, read back
// with libxml2: well-formed, one element per row, values that round-trip.
#include "text/XmlWriter.h"
#include "tree/TreeNode.h"

#include <gtest/gtest.h>
#include <libxml/parser.h>
#include <libxml/tree.h>

#include <random>
#include <string>
#include <vector>

namespace {

std::string ToUtf8(const std::u16string& s) {
    std::string out;
    for (size_t i = 0; i < s.size(); ++i) {
        char32_t c = s[i];
        if (c >= 0xD800 && c < 0xDC00 && i + 1 < s.size()) {
            c = 0x10000 + ((c - 0xD800) << 10) + (s[i + 1] - 0xDC00);
            ++i;
        }
        if (c < 0x80) {
            out += static_cast<char>(c);
        } else if (c < 0x800) {
            out += static_cast<char>(0xC0 | (c >> 6));
            out += static_cast<char>(0x80 | (c & 0x3F));
        } else if (c < 0x10000) {
            out += static_cast<char>(0xE0 | (c >> 12));
            out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
            out += static_cast<char>(0x80 | (c & 0x3F));
        } else {
            out += static_cast<char>(0xF0 | (c >> 18));
            out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
            out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
            out += static_cast<char>(0x80 | (c & 0x3F));
        }
    }
    return out;
}

// What the list box returns: the roots' rows inside "HbxTreeList".
std::u16string Dump(CTreeNodeArray& roots, long selectedRow) {
    CTreeNode::ResetXmlRowCounter(selectedRow);
    VU_CXmlWriter writer;
    writer.WriteStartElement(AF_GString(u"HbxTreeList"));
    writer.CloseOpenedElement();
    writer.WriteRaw(roots.XmlGetString());
    writer.WriteEndElement();
    return writer.ToString();
}

std::string ChildText(xmlNode* element, const char* name) {
    for (xmlNode* c = element->children; c; c = c->next) {
        if (c->type == XML_ELEMENT_NODE &&
            std::string(reinterpret_cast<const char*>(c->name)) == name) {
            xmlChar* content = xmlNodeGetContent(c);
            std::string text(reinterpret_cast<const char*>(content));
            xmlFree(content);
            return text;
        }
    }
    return "<missing " + std::string(name) + ">";
}

struct Expected {
    std::u16string text, parent;
    bool expanded;
};

// Shown rows in pre-order, as the list box would show them.
void CollectShown(CTreeNode* node, std::vector<Expected>& rows) {
    rows.push_back({std::u16string(node->GetDisplayText().GetString()),
                    node->GetParent()
                        ? std::u16string(node->GetParent()->GetDisplayText().GetString())
                        : std::u16string(),
                    node->IsExpanded() != 0});
    if (node->IsExpanded())
        for (int i = 0; i < node->GetNumberOfChildren(); ++i)
            CollectShown(node->GetChild(i), rows);
}

TEST(TreeXmlParse, RandomTreesDumpWellFormedRowsInShownOrder) {
    const char16_t* words[] = {u"Motor",       u"a<b", u"R&D",         u"\"quoted\"",
                               u"it's",        u"x>y", u"Stra\u00dfe", u"\u65e5\u672c",
                               u"tab\tcolumn", u"",    u"\U0001F600"};
    std::mt19937 rng(1234);
    for (int round = 0; round < 20; ++round) {
        SCOPED_TRACE("round " + std::to_string(round));
        CTreeNodeArray roots;
        std::vector<CTreeNode*> all;
        int handle = 1;
        const int nodes = 1 + static_cast<int>(rng() % 60);
        for (int i = 0; i < nodes; ++i) {
            const char16_t* w = words[rng() % std::size(words)];
            CTreeNode* parent = all.empty() || rng() % 4 == 0 ? nullptr : all[rng() % all.size()];
            auto* node = new CTreeNode(CString(w), 0, 0, 0, handle++, parent);
            if (parent) {
                node->SetLevel(parent->GetLevel() + 1);
                parent->Add(node);
            } else {
                roots.Add(node);
            }
            all.push_back(node);
        }
        for (CTreeNode* n : all)
            n->Expand(rng() % 2);
        std::vector<Expected> shown;
        for (CTreeNode* r : roots)
            CollectShown(r, shown);
        const long selected = static_cast<long>(rng() % (shown.size() + 1)) - 1;

        const std::string utf8 = ToUtf8(Dump(roots, selected));
        xmlDoc* doc = xmlReadMemory(utf8.data(), static_cast<int>(utf8.size()), "dump.xml", "UTF-8",
                                    XML_PARSE_NONET);
        ASSERT_NE(nullptr, doc) << utf8;
        xmlNode* top = xmlDocGetRootElement(doc);
        EXPECT_STREQ("HbxTreeList", reinterpret_cast<const char*>(top->name));
        size_t row = 0;
        for (xmlNode* e = top->children; e; e = e->next) {
            if (e->type != XML_ELEMENT_NODE)
                continue;
            ASSERT_LT(row, shown.size());
            EXPECT_STREQ("HbxListNode", reinterpret_cast<const char*>(e->name));
            EXPECT_EQ(std::to_string(row), ChildText(e, "id"));
            EXPECT_EQ(shown[row].expanded ? "true" : "false", ChildText(e, "expanded"));
            EXPECT_EQ(static_cast<long>(row) == selected ? "true" : "false",
                      ChildText(e, "selected"));
            EXPECT_EQ(ToUtf8(shown[row].text), ChildText(e, "text"));
            EXPECT_EQ(ToUtf8(shown[row].parent), ChildText(e, "parent"));
            ++row;
        }
        EXPECT_EQ(shown.size(), row);
        xmlFreeDoc(doc);
        for (CTreeNode* r : roots)
            delete r;
    }
}

} // namespace

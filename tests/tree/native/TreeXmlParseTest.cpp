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

// Each word with its UTF-8 form, to compare with what libxml2 reads back.
struct Word {
    const WCHAR* utf16;
    const char8_t* utf8;
};
// clang-format off
const Word kWords[] = {{VU_T("Motor"), u8"Motor"}, {VU_T("a<b"), u8"a<b"}, {VU_T("R&D"), u8"R&D"},
    {VU_T("\"it's\""), u8"\"it's\""}, {VU_T("x>y"), u8"x>y"},
    {VU_T("Stra\u00dfe"), u8"Stra\u00dfe"}, {VU_T("tab\tcolumn"), u8"tab\tcolumn"},
    {VU_T(""), u8""}, {VU_T("\U0001F600"), u8"\U0001F600"}};
// clang-format on

std::string Utf8Of(const CTreeNode* node) {
    return node ? reinterpret_cast<const char*>(kWords[node->GetItemData()].utf8) : "";
}

// What the list box returns: the roots' rows inside "HbxTreeList".
vu::String Dump(CTreeNodeArray& roots, long selectedRow) {
    CTreeNode::ResetXmlRowCounter(selectedRow);
    VU_CXmlWriter writer;
    writer.WriteStartElement(AF_GString(VU_T("HbxTreeList")));
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

// Shown rows in pre-order, as the list box would show them.
void CollectShown(CTreeNode* node, std::vector<CTreeNode*>& rows) {
    rows.push_back(node);
    if (node->IsExpanded())
        for (int i = 0; i < node->GetNumberOfChildren(); ++i)
            CollectShown(node->GetChild(i), rows);
}

TEST(TreeXmlParse, RandomTreesDumpWellFormedRowsInShownOrder) {
    std::mt19937 rng(1234);
    for (int round = 0; round < 20; ++round) {
        SCOPED_TRACE("round " + std::to_string(round));
        CTreeNodeArray roots;
        std::vector<CTreeNode*> all;
        int handle = 1;
        const int nodes = 1 + static_cast<int>(rng() % 60);
        for (int i = 0; i < nodes; ++i) {
            const unsigned long w = rng() % std::size(kWords);
            CTreeNode* parent = all.empty() || rng() % 4 == 0 ? nullptr : all[rng() % all.size()];
            auto* node = new CTreeNode(CString(kWords[w].utf16), 0, 0, w, handle++, parent);
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
        std::vector<CTreeNode*> shown;
        for (CTreeNode* r : roots)
            CollectShown(r, shown);
        const long selected = static_cast<long>(rng() % (shown.size() + 1)) - 1;

        const vu::String dump = Dump(roots, selected);
        xmlDoc* doc = xmlReadMemory(reinterpret_cast<const char*>(dump.data()),
                                    static_cast<int>(dump.size() * 2), "dump.xml", "UTF-16LE",
                                    XML_PARSE_NONET);
        ASSERT_NE(nullptr, doc) << std::string(dump.begin(), dump.end());
        xmlNode* top = xmlDocGetRootElement(doc);
        size_t row = 0;
        for (xmlNode* e = top->children; e; e = e->next) {
            if (e->type != XML_ELEMENT_NODE)
                continue;
            ASSERT_LT(row, shown.size());
            EXPECT_STREQ("HbxListNode", reinterpret_cast<const char*>(e->name));
            EXPECT_EQ(std::to_string(row), ChildText(e, "id"));
            EXPECT_EQ(shown[row]->IsExpanded() ? "true" : "false", ChildText(e, "expanded"));
            EXPECT_EQ(static_cast<long>(row) == selected ? "true" : "false",
                      ChildText(e, "selected"));
            EXPECT_EQ(Utf8Of(shown[row]), ChildText(e, "text"));
            EXPECT_EQ(Utf8Of(shown[row]->GetParent()), ChildText(e, "parent"));
            ++row;
        }
        EXPECT_EQ(shown.size(), row);
        xmlFreeDoc(doc);
        for (CTreeNode* r : roots)
            delete r;
    }
}

} // namespace

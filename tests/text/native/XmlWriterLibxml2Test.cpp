// Documents shaped like the tree controls' dumps (elements and element
// strings only), checked by a real parser: libxml2 must find them well formed
// and give back every name and text as written.
#include "foundation/Utf8.h"
#include "text/XmlWriter.h"

#include <gtest/gtest.h>
#include <libxml/parser.h>
#include <libxml/tree.h>

#include <memory>
#include <random>
#include <string>
#include <vector>

namespace {

struct Element {
    vu::String name;
    vu::String text; // leaves only
    std::vector<Element> children;
};

// Every escapable character, tab and line feed, and text beyond ASCII
// (Latin, CJK, a surrogate pair). Carriage returns are left out: a parser
// normalises them to line feeds.
vu::String RandomText(std::mt19937& rng) {
    static const vu::String pieces[] = {
        VU_T("a"),      VU_T("Zz9"),    VU_T(" "),      VU_T("&"),
        VU_T("<"),      VU_T(">"),      VU_T("'"),      VU_T("\""),
        VU_T("\t"),     VU_T("\n"),     VU_T("]]>"),    VU_T("&amp;"),
        VU_T("\u00fc"), VU_T("\u20ac"), VU_T("\u4e2d"), VU_T("\U0001F600")};
    vu::String text;
    for (int n = std::uniform_int_distribution<int>(0, 12)(rng); n > 0; --n)
        text += pieces[std::uniform_int_distribution<size_t>(0, std::size(pieces) - 1)(rng)];
    return text;
}

vu::String RandomName(std::mt19937& rng) {
    static const WCHAR letters[] = VU_T("ABCXYZabcxyz_");
    vu::String name;
    const int length = rng() % 20 == 0 ? 300 : 1 + static_cast<int>(rng() % 12);
    for (int i = 0; i < length; ++i)
        name += letters[rng() % (std::size(letters) - 1)];
    return name;
}

Element RandomTree(std::mt19937& rng, int depth) {
    Element e{RandomName(rng), {}, {}};
    if (depth == 0 || rng() % 3 == 0) {
        e.text = RandomText(rng);
        return e;
    }
    for (int n = static_cast<int>(rng() % 5); n > 0; --n)
        e.children.push_back(RandomTree(rng, depth - 1));
    return e;
}

void Write(VU_CXmlWriter& w, const Element& e) {
    ASSERT_TRUE(w.WriteStartElement(e.name));
    if (e.children.empty())
        w.WriteElementString(e.text);
    for (const Element& child : e.children)
        Write(w, child);
    ASSERT_TRUE(w.WriteEndElement());
}

void ExpectSame(const Element& expected, xmlNode* node) {
    ASSERT_NE(node, nullptr);
    ASSERT_EQ(node->type, XML_ELEMENT_NODE);
    EXPECT_EQ(reinterpret_cast<const char*>(node->name), vu::Utf16ToUtf8(expected.name));
    if (expected.children.empty()) {
        std::unique_ptr<xmlChar, decltype(xmlFree)> text(xmlNodeGetContent(node), xmlFree);
        EXPECT_EQ(reinterpret_cast<const char*>(text.get()), vu::Utf16ToUtf8(expected.text));
        return;
    }
    xmlNode* child = node->children;
    for (const Element& e : expected.children) {
        ExpectSame(e, child);
        child = child ? child->next : nullptr;
    }
    EXPECT_EQ(child, nullptr) << "extra nodes";
}

void CollectError(void* errors, xmlErrorPtr error) {
    static_cast<std::vector<std::string>*>(errors)->push_back(error->message);
}

TEST(XmlWriterLibxml2, TreeDumpsParseAndGiveBackTheirTexts) {
    std::mt19937 rng(7);
    for (int round = 0; round < 300; ++round) {
        SCOPED_TRACE(testing::Message() << "round " << round);
        const Element root = RandomTree(rng, 4);
        VU_CXmlWriter w;
        if (round % 2)
            w.WriteXMLDeclaration();
        Write(w, root);
        const std::string utf8 = vu::Utf16ToUtf8(w.GetOutput());

        std::vector<std::string> errors;
        xmlSetStructuredErrorFunc(&errors, CollectError);
        xmlDoc* doc = xmlReadMemory(utf8.data(), static_cast<int>(utf8.size()), nullptr, "UTF-8",
                                    XML_PARSE_NONET);
        xmlSetStructuredErrorFunc(nullptr, nullptr);
        ASSERT_NE(doc, nullptr) << (errors.empty() ? "" : errors.front()) << "\n" << utf8;
        EXPECT_TRUE(errors.empty()) << errors.front();
        ExpectSame(root, xmlDocGetRootElement(doc));
        xmlFreeDoc(doc);
    }
}

} // namespace

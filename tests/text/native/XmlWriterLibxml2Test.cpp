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

namespace {

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
    for (int n = rng() % 13; n > 0; --n)
        text += pieces[rng() % std::size(pieces)];
    return text;
}

vu::String RandomName(std::mt19937& rng) {
    vu::String name(rng() % 20 == 0 ? 300 : 1 + rng() % 12, VU_T('a'));
    for (WCHAR& c : name)
        c = VU_T("ABCXYZabcxyz_")[rng() % 13];
    return name;
}

// Writes a random element of at most `depth` levels and appends the
// description Describe gives of the parsed element.
void WriteRandomTree(std::mt19937& rng, int depth, VU_CXmlWriter& w, std::string& expected) {
    const vu::String name = RandomName(rng);
    ASSERT_TRUE(w.WriteStartElement(name));
    (expected += '<') += vu::Utf16ToUtf8(name) + '>';
    const int children = depth == 0 || rng() % 3 == 0 ? 0 : static_cast<int>(rng() % 5);
    if (children == 0) { // a leaf; some with no string at all
        const vu::String text = depth == 0 || rng() % 2 ? RandomText(rng) : vu::String();
        w.WriteElementString(text);
        (expected += '[') += vu::Utf16ToUtf8(text) + ']';
    }
    for (int n = 0; n < children; ++n)
        WriteRandomTree(rng, depth - 1, w, expected);
    ASSERT_TRUE(w.WriteEndElement());
    expected += "</>";
}

// Elements with their names; leaves with their content.
std::string Describe(xmlNode* node) {
    if (node->type != XML_ELEMENT_NODE)
        return "?";
    std::string out = "<";
    (out += reinterpret_cast<const char*>(node->name)) += '>';
    if (!node->children || node->children->type != XML_ELEMENT_NODE) {
        std::unique_ptr<xmlChar, decltype(xmlFree)> text(xmlNodeGetContent(node), xmlFree);
        ((out += '[') += reinterpret_cast<const char*>(text.get())) += ']';
    }
    for (xmlNode* child = node->children; child && child->type == XML_ELEMENT_NODE;
         child = child->next)
        out += Describe(child);
    return out + "</>";
}

void CollectError(void* errors, xmlErrorPtr error) {
    *static_cast<std::string*>(errors) += error->message;
}

TEST(XmlWriterLibxml2, TreeDumpsParseAndGiveBackTheirTexts) {
    std::mt19937 rng(7);
    for (int round = 0; round < 300 && !HasFailure(); ++round) {
        VU_CXmlWriter w;
        if (round % 2)
            w.WriteXMLDeclaration();
        std::string expected;
        WriteRandomTree(rng, 4, w, expected);
        const std::string utf8 = vu::Utf16ToUtf8(w.GetOutput());
        std::string errors;
        xmlSetStructuredErrorFunc(&errors, CollectError);
        xmlDoc* doc = xmlReadMemory(utf8.data(), static_cast<int>(utf8.size()), nullptr, "UTF-8",
                                    XML_PARSE_NONET);
        xmlSetStructuredErrorFunc(nullptr, nullptr);
        ASSERT_NE(doc, nullptr) << errors << "\n" << utf8;
        EXPECT_EQ(errors, "");
        EXPECT_EQ(Describe(xmlDocGetRootElement(doc)), expected) << "round " << round;
        xmlFreeDoc(doc);
    }
}

} // namespace

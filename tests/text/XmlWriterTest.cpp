#include "text/XmlWriter.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <utility>

namespace {

struct Writer : VU_CXmlWriter {
    using VU_CXmlWriter::TranslateEntities;
    int endCalls = 0;
    bool WriteEndElement() override {
        ++endCalls;
        return VU_CXmlWriter::WriteEndElement();
    }
    bool Attr(const WCHAR* name, const WCHAR* value) {
        const AF_GString n(name), v(value);
        return WriteAttributeString(&n, &v);
    }
    vu::String Out() const { return ToString(); }
};

TEST(XmlWriter, ExactOutput) {
    Writer w;
    w.WriteXMLDeclaration();
    w.WriteStartElement(VU_T("Node"));
    // A line ends after the first four attributes of each element.
    for (const WCHAR* n : {VU_T("a"), VU_T("b"), VU_T("c"), VU_T("d"), VU_T("e")})
        w.Attr(n, VU_T("1"));
    w.WriteCData(VU_T("x]]>y")); // CDATA and raw text do not close the tag
    w.WriteRaw(VU_T("<r>"));
    w.WriteElementString(VU_T("x<y"));
    w.Attr(VU_T("n"), VU_T("a&b\"")); // after content: lands in it, unchanged
    w.WriteStartElement(VU_T("v"));
    w.WriteElementValue(true);
    w.WriteElementValue(false);
    w.WriteElementValue(LONG_MIN);
    w.WriteElementValue(ULONG_MAX);
    w.WriteElementValue(VU_T("<&>")); // values are unchanged
    w.WriteElementValue(static_cast<const WCHAR*>(nullptr));
    w.WriteStartElement(VU_T("c"));
    w.WriteComment(VU_T("a<b")); // a comment closes the tag
    w.Close();                   // innermost first, no empty-element syntax
    EXPECT_EQ(w.endCalls, 3) << "Close goes through the overridable";
    EXPECT_FALSE(w.WriteEndElement());
    const std::string numbers = std::to_string(LONG_MIN) + std::to_string(ULONG_MAX);
    EXPECT_EQ(w.Out(),
              VU_T("<?xml version=\"1.0\" encoding=\"utf-8\" standalone=\"yes\"?><Node")
                      VU_T(" a=\"1=\n b=\"1=\n c=\"1=\n d=\"1=\n e=\"1=<![CDATA[x]]>y]]><r>>")
                          VU_T("x&lt;y n=\"a&b\"=\n<v>truefalse") +
                  vu::String(numbers.begin(), numbers.end()) +
                  VU_T("<&><c><!-- a<b --></c></v></Node>"));
}

TEST(XmlWriter, EntitiesTranslatedInOneScan) {
    // Parsed back by libxml2 on generated texts in XmlWriterLibxml2Test; this
    // pins the spelling: no numeric references, controls unchanged.
    const vu::String in = VU_T("<&>\"'\u00e9\U0001F600\t\n\r");
    const vu::String out = VU_T("&lt;&amp;&gt;&quot;&apos;\u00e9\U0001F600\t\n\r");
    Writer w;
    w.WriteElementString(in);
    EXPECT_EQ(w.Out(), out);
    AF_GString inPlace(in);
    EXPECT_EQ(w.TranslateEntities(&inPlace), out);
    EXPECT_EQ(inPlace, out);
}

TEST(XmlWriter, NameRules) {
    // Any first unit, then only letters, '_' and ':'.
    const std::pair<vu::String, bool> rows[] = {{VU_T("ab:c"), true},     {VU_T("_x"), true},
                                                {VU_T("9"), true},        {VU_T("\u00e9"), true},
                                                {VU_T("ab-c"), false},    {VU_T("a1"), false},
                                                {VU_T("a\u00e9"), false}, {VU_T(""), false}};
    for (const auto& [name, ok] : rows) {
        SCOPED_TRACE(testing::PrintToString(name));
        Writer w;
        w.WriteStartElement(VU_T("p"));
        EXPECT_EQ(w.WriteStartElement(name), ok);
        EXPECT_EQ(w.Out(), ok ? VU_T("<p><") + name : VU_T("<p")); // a refusal leaves <p open
        EXPECT_EQ(w.Attr(name.c_str(), VU_T("v")), ok);
    }
}

TEST(XmlWriter, AttributeRefusalsWriteNothing) {
    Writer w;
    w.WriteStartElement(VU_T("e"));
    const AF_GString v(VU_T("v"));
    EXPECT_FALSE(w.WriteAttributeString(nullptr, &v));
    EXPECT_FALSE(w.WriteAttributeString(&v, nullptr));
    EXPECT_FALSE(w.Attr(VU_T("n"), VU_T("")));
    EXPECT_FALSE(w.Attr(VU_T("n"), VU_T("a<b")));
    // Repeated names are refused on one tag, also among many attributes.
    vu::String name;
    for (int i = 0; i < 40; ++i)
        ASSERT_TRUE(w.Attr((name += VU_T('n')).c_str(), VU_T("1")));
    EXPECT_FALSE(w.Attr(VU_T("n"), VU_T("2")));
    EXPECT_FALSE(w.Attr(name.c_str(), VU_T("2")));
    w.WriteStartElement(VU_T("f"));
    EXPECT_TRUE(w.Attr(VU_T("n"), VU_T("3"))) << "a new tag forgets the names";
    EXPECT_TRUE(w.Out().starts_with(VU_T("<e n=\"1=\n nn=\"1=\n")));
    EXPECT_TRUE(w.Out().ends_with(VU_T("n=\"1=><f n=\"3=\n")));
}

TEST(XmlWriter, CopiesCarryTheOpenElementsAndFormattingBreaksAfterEachTag) {
    Writer w;
    w.WriteStartElement(VU_T("a"));
    Writer copy(w);
    copy.WriteStartElement(VU_T("b"));
    Writer moved(std::move(copy));
    moved.Close();
    EXPECT_EQ(moved.Out(), VU_T("<a><b></b></a>"));
    w.WriteElementString(VU_T(">"));
    w.WriteRaw(VU_T("r>"));
    w.WriteEndElement();
    EXPECT_EQ(w.ToStringFormatted(), VU_T("<a>\n&gt;r>\n</a>\n"));
    EXPECT_EQ(w.Out(), VU_T("<a>&gt;r></a>"));
}

} // namespace

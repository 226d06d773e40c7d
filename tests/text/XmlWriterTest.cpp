#include "text/XmlWriter.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

namespace {

std::u16string Out(const VU_CXmlWriter& w) {
    return w.ToString();
}

std::u16string Widen(const std::string& s) {
    return std::u16string(s.begin(), s.end());
}

bool Attr(VU_CXmlWriter& w, const char16_t* name, const char16_t* value) {
    const AF_GString n(name), v(value);
    return w.WriteAttributeString(&n, &v);
}

// ---- Documents written end to end -------------------------------------------

TEST(XmlWriter, DocumentWithDeclarationAttributesAndEscapedText) {
    VU_CXmlWriter w;
    w.WriteXMLDeclaration();
    w.WriteStartElement(u"Node");
    Attr(w, u"Name", u"a");
    Attr(w, u"Id", u"7");
    w.WriteElementString(u"x<y");
    w.WriteEndElement();
    EXPECT_EQ(Out(w), u"<?xml version=\"1.0\" encoding=\"utf-8\" standalone=\"yes\"?>"
                      u"<Node Name=\"a=\n Id=\"7=\n>x&lt;y</Node>");
}

TEST(XmlWriter, EmptyElementGetsSeparateEndTag) {
    VU_CXmlWriter w;
    w.WriteStartElement(u"a");
    EXPECT_EQ(Out(w), u"<a"); // left open for attributes
    w.WriteEndElement();
    EXPECT_EQ(Out(w), u"<a></a>");
}

TEST(XmlWriter, EndElementAndCloseEndInnermostFirst) {
    VU_CXmlWriter w;
    EXPECT_FALSE(w.WriteEndElement());
    EXPECT_EQ(Out(w), u"");
    for (const char16_t* n : {u"a", u"b", u"c"})
        w.WriteStartElement(n);
    EXPECT_TRUE(w.Close());
    EXPECT_EQ(Out(w), u"<a><b><c></c></b></a>");
    EXPECT_FALSE(w.WriteEndElement());
}

TEST(XmlWriter, ValuesCommentsCDataAndRaw) {
    VU_CXmlWriter w;
    w.WriteStartElement(u"v");
    w.WriteElementValue(true);
    w.WriteElementValue(false);
    w.WriteElementValue(-42L);
    w.WriteElementValue(LONG_MIN);
    w.WriteElementValue(0UL);
    w.WriteElementValue(ULONG_MAX);
    w.WriteElementValue(u"<&>"); // unchanged
    w.WriteElementValue(static_cast<const char16_t*>(nullptr));
    w.WriteComment(u"a<b");
    w.WriteEndElement();
    EXPECT_EQ(Out(w), u"<v>truefalse-42" + Widen(std::to_string(LONG_MIN)) + u"0" +
                          Widen(std::to_string(ULONG_MAX)) + u"<&><!-- a<b --></v>");
}

TEST(XmlWriter, CDataAndRawDoNotCloseTheStartTag) {
    VU_CXmlWriter w;
    w.WriteStartElement(u"a");
    w.WriteCData(u"x]]>y");
    w.WriteRaw(u"<r>");
    EXPECT_TRUE(w.IsStartTagOpen());
    w.WriteEndElement();
    EXPECT_EQ(Out(w), u"<a<![CDATA[x]]>y]]><r>></a>");
}

// ---- Entity translation -------------------------------------------------------

TEST(XmlWriter, ElementStringTranslatesEntitiesInOneScan) {
    const struct {
        const char16_t* in;
        const char16_t* out;
    } rows[] = {
        {u"", u""},
        {u"plain text", u"plain text"},
        {u"<&>\"'", u"&lt;&amp;&gt;&quot;&apos;"},
        {u"&amp;", u"&amp;amp;"}, // not recognised as an entity
        {u"&", u"&amp;"},
        {u"a&&b", u"a&amp;&amp;b"},
        {u"]]>x", u"]]&gt;x"},
        {u"\u00e9\u4e2d\U0001F600<", u"\u00e9\u4e2d\U0001F600&lt;"}, // no numeric references
        {u"tab\tnl\ncr\r", u"tab\tnl\ncr\r"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.out, row.out + std::char_traits<char16_t>::length(row.out)));
        VU_CXmlWriter w;
        w.WriteElementString(row.in);
        EXPECT_EQ(Out(w), row.out);
    }
}

struct ExposedWriter : VU_CXmlWriter {
    using VU_CXmlWriter::TranslateEntities;
    int endCalls = 0;
    bool WriteEndElement() override {
        ++endCalls;
        return VU_CXmlWriter::WriteEndElement();
    }
};

TEST(XmlWriter, TranslateEntitiesChangesItsArgument) {
    ExposedWriter w;
    AF_GString text(u"a<b");
    EXPECT_EQ(w.TranslateEntities(&text), u"a&lt;b");
    EXPECT_EQ(text, u"a&lt;b");
    EXPECT_EQ(w.TranslateEntities(nullptr), u"");
}

TEST(XmlWriter, CloseGoesThroughTheOverridableEndElement) {
    ExposedWriter w;
    w.WriteStartElement(u"a");
    w.WriteStartElement(u"b");
    w.Close();
    EXPECT_EQ(w.endCalls, 2);
}

// ---- Names ------------------------------------------------------------------------

TEST(XmlWriter, ElementNameRules) {
    const struct {
        std::u16string name;
        bool ok;
    } rows[] = {
        {u"ab:c", true},   {u"_x", true},
        {u"x", true},      {u"9", true},
        {u"-x", true},     {u"1a", true},
        {u"\u00e9", true}, {u"ab-c", false},
        {u"a.b", false},   {u"a b", false},
        {u"a1", false},    {u"a\u00e9", false},
        {u"", false},      {std::u16string(5000, u'n'), true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.name.begin(),
                                 row.name.begin() + std::min<size_t>(20, row.name.size())));
        VU_CXmlWriter w;
        w.WriteStartElement(u"p");
        EXPECT_EQ(w.WriteStartElement(row.name), row.ok);
        EXPECT_EQ(Out(w), row.ok ? u"<p><" + row.name : u"<p"); // a refusal does not close <p
        EXPECT_EQ(Attr(w, row.name.c_str(), u"v"), row.ok && !row.name.empty());
    }
}

TEST(XmlWriter, LongNameEndsItsElementAcrossBufferGrowth) {
    const std::u16string longName(100000, u'q');
    VU_CXmlWriter w;
    w.WriteStartElement(longName);
    w.WriteEndElement();
    EXPECT_EQ(Out(w), u"<" + longName + u"></" + longName + u">");
}

// ---- Attributes -------------------------------------------------------------------

TEST(XmlWriter, AttributeRefusals) {
    VU_CXmlWriter w;
    w.WriteStartElement(u"e");
    const AF_GString ok(u"v");
    EXPECT_FALSE(w.WriteAttributeString(nullptr, &ok));
    EXPECT_FALSE(w.WriteAttributeString(&ok, nullptr));
    EXPECT_FALSE(Attr(w, u"", u"v"));
    EXPECT_FALSE(Attr(w, u"n", u""));
    EXPECT_FALSE(Attr(w, u"n", u"a<b"));
    EXPECT_FALSE(Attr(w, u"n1", u"v"));
    EXPECT_EQ(Out(w), u"<e");
    EXPECT_TRUE(Attr(w, u"n", u"a&b\"")); // written unchanged
    EXPECT_FALSE(Attr(w, u"n", u"other"));
    w.WriteStartElement(u"f");
    EXPECT_TRUE(Attr(w, u"n", u"w")); // a new tag forgets the names
    EXPECT_EQ(Out(w), u"<e n=\"a&b\"=\n><f n=\"w=\n");
}

TEST(XmlWriter, LineEndsFollowTheFirstFourAttributesOfEachElement) {
    VU_CXmlWriter w;
    for (const char16_t* element : {u"e", u"f"}) {
        w.WriteStartElement(element);
        for (const char16_t* n : {u"a", u"b", u"c", u"d", u"e", u"f"})
            Attr(w, n, u"1");
    }
    const std::u16string six = u" a=\"1=\n b=\"1=\n c=\"1=\n d=\"1=\n e=\"1= f=\"1=";
    EXPECT_EQ(Out(w), u"<e" + six + u"><f" + six);
}

TEST(XmlWriter, RepeatedNamesFoundAmongManyAttributes) {
    VU_CXmlWriter w;
    for (int element = 0; element < 2; ++element) {
        w.WriteStartElement(u"e");
        std::u16string name = u"a";
        for (int i = 0; i < 40; ++i, name.push_back(u'a'))
            ASSERT_TRUE(Attr(w, name.c_str(), u"v")) << i;
        name = u"a";
        for (int i = 0; i < 40; ++i, name.push_back(u'a'))
            ASSERT_FALSE(Attr(w, name.c_str(), u"v")) << i;
    }
}

TEST(XmlWriter, AttributeAfterContentLandsInContent) {
    VU_CXmlWriter w;
    w.WriteStartElement(u"a");
    w.WriteElementString(u"x");
    Attr(w, u"n", u"v");
    EXPECT_EQ(Out(w), u"<a>x n=\"v=\n");
}

// ---- Taking the text out --------------------------------------------------------

TEST(XmlWriter, FormattedBreaksAfterEveryGreaterThanAndLeavesWriterAlone) {
    VU_CXmlWriter w;
    w.WriteStartElement(u"a");
    w.WriteElementString(u">");
    w.WriteRaw(u"r>");
    EXPECT_EQ(w.ToStringFormatted(), u"<a>\n&gt;r>\n");
    w.WriteEndElement();
    EXPECT_EQ(w.ToStringFormatted(), u"<a>\n&gt;r>\n</a>\n");
    EXPECT_EQ(Out(w), u"<a>&gt;r></a>");
}

} // namespace

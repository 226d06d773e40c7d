#include "text/XmlWriter.h"

#include <gtest/gtest.h>

#include <climits>
#include <functional>
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
    bool Attr(const char16_t* name, const char16_t* value) {
        const AF_GString n(name), v(value);
        return WriteAttributeString(&n, &v);
    }
    std::u16string Out() const { return ToString(); }
};

std::u16string Widen(const std::string& s) {
    return std::u16string(s.begin(), s.end());
}

// ---- Exact output of operation sequences ---------------------------------------

struct Script {
    const char* name;
    std::function<void(Writer&)> write;
    std::u16string expected;
};

TEST(XmlWriter, ExactOutput) {
    const std::u16string six = u" a=\"1=\n b=\"1=\n c=\"1=\n d=\"1=\n e=\"1= f=\"1=";
    const std::u16string longName(100000, u'q'); // its end tag is copied across buffer growth
    const Script scripts[] = {
        {"declaration, attributes, escaped text",
         [](Writer& w) {
             w.WriteXMLDeclaration();
             w.WriteStartElement(u"Node");
             w.Attr(u"Name", u"a");
             w.Attr(u"Id", u"7");
             w.WriteElementString(u"x<y");
             w.WriteEndElement();
         },
         u"<?xml version=\"1.0\" encoding=\"utf-8\" standalone=\"yes\"?>"
         u"<Node Name=\"a=\n Id=\"7=\n>x&lt;y</Node>"},
        {"close ends innermost first, no empty-element syntax",
         [](Writer& w) {
             for (const char16_t* n : {u"a", u"b", u"c"})
                 w.WriteStartElement(n);
             w.Close();
         },
         u"<a><b><c></c></b></a>"},
        {"line ends after the first four attributes of each element",
         [](Writer& w) {
             for (const char16_t* element : {u"e", u"f"}) {
                 w.WriteStartElement(element);
                 for (const char16_t* n : {u"a", u"b", u"c", u"d", u"e", u"f"})
                     w.Attr(n, u"1");
             }
         },
         u"<e" + six + u"><f" + six},
        {"attribute value unchanged, attribute after content lands in content",
         [](Writer& w) {
             w.WriteStartElement(u"a");
             w.WriteElementString(u"x");
             w.Attr(u"n", u"a&b\"");
         },
         u"<a>x n=\"a&b\"=\n"},
        {"values unchanged, comment closes the tag",
         [](Writer& w) {
             w.WriteStartElement(u"v");
             w.WriteElementValue(true);
             w.WriteElementValue(false);
             w.WriteElementValue(-42L);
             w.WriteElementValue(LONG_MIN);
             w.WriteElementValue(ULONG_MAX);
             w.WriteElementValue(u"<&>");
             w.WriteElementValue(static_cast<const char16_t*>(nullptr));
             w.WriteComment(u"a<b");
         },
         u"<v>truefalse-42" + Widen(std::to_string(LONG_MIN)) + Widen(std::to_string(ULONG_MAX)) +
             u"<&><!-- a<b -->"},
        {"CDATA and raw text do not close the tag",
         [](Writer& w) {
             w.WriteStartElement(u"a");
             w.WriteCData(u"x]]>y");
             w.WriteRaw(u"<r>");
             w.WriteEndElement();
         },
         u"<a<![CDATA[x]]>y]]><r>></a>"},
        {"long name",
         [&](Writer& w) {
             w.WriteStartElement(longName);
             w.WriteEndElement();
         },
         u"<" + longName + u"></" + longName + u">"},
    };
    for (const Script& s : scripts) {
        SCOPED_TRACE(s.name);
        Writer w;
        s.write(w);
        EXPECT_EQ(w.Out(), s.expected);
    }
}

TEST(XmlWriter, EntitiesTranslatedInOneScan) {
    const struct {
        const char* name;
        std::u16string in, out;
    } rows[] = {
        // Parsed back by libxml2 on generated texts in XmlWriterLibxml2Test;
        // these rows pin the exact spelling.
        {"empty", u"", u""},
        {"each in input order", u"<&>\"'", u"&lt;&amp;&gt;&quot;&apos;"},
        {"no numeric references, controls unchanged", u"\u00e9\U0001F600\t\n\r<",
         u"\u00e9\U0001F600\t\n\r&lt;"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        Writer w;
        w.WriteElementString(row.in);
        EXPECT_EQ(w.Out(), row.out);
        AF_GString inPlace(row.in);
        EXPECT_EQ(w.TranslateEntities(&inPlace), row.out);
        EXPECT_EQ(inPlace, row.out);
    }
}

// ---- Refusals ------------------------------------------------------------------------

TEST(XmlWriter, NameRules) {
    const struct {
        std::u16string name;
        bool ok;
    } rows[] = {{u"ab:c", true}, {u"_x", true},       {u"9", true},     {u"-x", true},
                {u"1a", true},   {u"\u00e9", true},   {u"ab-c", false}, {u"a.b", false},
                {u"a1", false},  {u"a\u00e9", false}, {u"", false}};
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << "name of " << row.name.size() << " units starting "
                                        << static_cast<int>(row.name.empty() ? 0 : row.name[0]));
        Writer w;
        w.WriteStartElement(u"p");
        EXPECT_EQ(w.WriteStartElement(row.name), row.ok);
        EXPECT_EQ(w.Out(), row.ok ? u"<p><" + row.name : u"<p"); // a refusal leaves <p open
        EXPECT_EQ(w.Attr(row.name.c_str(), u"v"), row.ok);
    }
}

TEST(XmlWriter, AttributeRefusalsWriteNothing) {
    Writer w;
    w.WriteStartElement(u"e");
    const AF_GString v(u"v");
    EXPECT_FALSE(w.WriteAttributeString(nullptr, &v));
    EXPECT_FALSE(w.WriteAttributeString(&v, nullptr));
    EXPECT_FALSE(w.Attr(u"n", u""));
    EXPECT_FALSE(w.Attr(u"n", u"a<b"));
    EXPECT_TRUE(w.Attr(u"n", u"1"));
    EXPECT_FALSE(w.Attr(u"n", u"2")); // repeated on one tag
    w.WriteStartElement(u"f");
    EXPECT_TRUE(w.Attr(u"n", u"3")); // a new tag forgets the names
    EXPECT_EQ(w.Out(), u"<e n=\"1=\n><f n=\"3=\n");
}

TEST(XmlWriter, RepeatedNamesFoundAmongManyAttributes) {
    Writer w;
    for (int element = 0; element < 2; ++element) {
        w.WriteStartElement(u"e");
        for (int pass = 0; pass < 2; ++pass) {
            std::u16string name = u"a";
            for (int i = 0; i < 40; ++i, name.push_back(u'a'))
                ASSERT_EQ(w.Attr(name.c_str(), u"v"), pass == 0) << "attribute " << i;
        }
    }
}

TEST(XmlWriter, EndElementWithNothingOpen) {
    Writer w;
    EXPECT_FALSE(w.WriteEndElement());
    w.WriteStartElement(u"a");
    w.WriteStartElement(u"b");
    w.Close();
    EXPECT_EQ(w.endCalls, 3); // Close goes through the overridable
    EXPECT_FALSE(w.WriteEndElement());
    EXPECT_EQ(w.Out(), u"<a><b></b></a>");
}

// ---- Taking the text out --------------------------------------------------------------

TEST(XmlWriter, CopiesAndMovesCarryTheOpenElements) {
    Writer w;
    w.WriteStartElement(u"a");
    Writer copy(w);
    copy.WriteStartElement(u"b");
    Writer moved(std::move(copy));
    moved.Close();
    w.Close();
    EXPECT_EQ(moved.Out(), u"<a><b></b></a>");
    EXPECT_EQ(w.Out(), u"<a></a>");
}

TEST(XmlWriter, FormattedBreaksAfterEveryGreaterThanAndChangesNothing) {
    Writer w;
    w.WriteStartElement(u"a");
    w.WriteElementString(u">");
    w.WriteRaw(u"r>");
    EXPECT_EQ(w.ToStringFormatted(), u"<a>\n&gt;r>\n");
    w.WriteEndElement();
    EXPECT_EQ(w.ToStringFormatted(), u"<a>\n&gt;r>\n</a>\n");
    EXPECT_EQ(w.Out(), u"<a>&gt;r></a>");
}

} // namespace

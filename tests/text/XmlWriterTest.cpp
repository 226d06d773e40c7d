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
    bool Attr(const WCHAR* name, const WCHAR* value) {
        const AF_GString n(name), v(value);
        return WriteAttributeString(&n, &v);
    }
    vu::String Out() const { return ToString(); }
};

vu::String Widen(const std::string& s) {
    return vu::String(s.begin(), s.end());
}

// ---- Exact output of operation sequences ---------------------------------------

struct Script {
    const char* name;
    std::function<void(Writer&)> write;
    vu::String expected;
};

TEST(XmlWriter, ExactOutput) {
    const vu::String six = VU_T(" a=\"1=\n b=\"1=\n c=\"1=\n d=\"1=\n e=\"1= f=\"1=");
    const vu::String longName(100000, VU_T('q')); // its end tag is copied across buffer growth
    const Script scripts[] = {
        {"declaration, attributes, escaped text",
         [](Writer& w) {
             w.WriteXMLDeclaration();
             w.WriteStartElement(VU_T("Node"));
             w.Attr(VU_T("Name"), VU_T("a"));
             w.Attr(VU_T("Id"), VU_T("7"));
             w.WriteElementString(VU_T("x<y"));
             w.WriteEndElement();
         },
         VU_T("<?xml version=\"1.0\" encoding=\"utf-8\" standalone=\"yes\"?>")
             VU_T("<Node Name=\"a=\n Id=\"7=\n>x&lt;y</Node>")},
        {"close ends innermost first, no empty-element syntax",
         [](Writer& w) {
             for (const WCHAR* n : {VU_T("a"), VU_T("b"), VU_T("c")})
                 w.WriteStartElement(n);
             w.Close();
         },
         VU_T("<a><b><c></c></b></a>")},
        {"line ends after the first four attributes of each element",
         [](Writer& w) {
             for (const WCHAR* element : {VU_T("e"), VU_T("f")}) {
                 w.WriteStartElement(element);
                 for (const WCHAR* n :
                      {VU_T("a"), VU_T("b"), VU_T("c"), VU_T("d"), VU_T("e"), VU_T("f")})
                     w.Attr(n, VU_T("1"));
             }
         },
         VU_T("<e") + six + VU_T("><f") + six},
        {"attribute value unchanged, attribute after content lands in content",
         [](Writer& w) {
             w.WriteStartElement(VU_T("a"));
             w.WriteElementString(VU_T("x"));
             w.Attr(VU_T("n"), VU_T("a&b\""));
         },
         VU_T("<a>x n=\"a&b\"=\n")},
        {"values unchanged, comment closes the tag",
         [](Writer& w) {
             w.WriteStartElement(VU_T("v"));
             w.WriteElementValue(true);
             w.WriteElementValue(false);
             w.WriteElementValue(-42L);
             w.WriteElementValue(LONG_MIN);
             w.WriteElementValue(ULONG_MAX);
             w.WriteElementValue(VU_T("<&>"));
             w.WriteElementValue(static_cast<const WCHAR*>(nullptr));
             w.WriteComment(VU_T("a<b"));
         },
         VU_T("<v>truefalse-42") + Widen(std::to_string(LONG_MIN)) +
             Widen(std::to_string(ULONG_MAX)) + VU_T("<&><!-- a<b -->")},
        {"CDATA and raw text do not close the tag",
         [](Writer& w) {
             w.WriteStartElement(VU_T("a"));
             w.WriteCData(VU_T("x]]>y"));
             w.WriteRaw(VU_T("<r>"));
             w.WriteEndElement();
         },
         VU_T("<a<![CDATA[x]]>y]]><r>></a>")},
        {"long name",
         [&](Writer& w) {
             w.WriteStartElement(longName);
             w.WriteEndElement();
         },
         VU_T("<") + longName + VU_T("></") + longName + VU_T(">")},
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
        vu::String in, out;
    } rows[] = {
        // Parsed back by libxml2 on generated texts in XmlWriterLibxml2Test;
        // these rows pin the exact spelling.
        {"each in input order", VU_T("<&>\"'"), VU_T("&lt;&amp;&gt;&quot;&apos;")},
        {"no numeric references, controls unchanged", VU_T("\u00e9\U0001F600\t\n\r<"),
         VU_T("\u00e9\U0001F600\t\n\r&lt;")},
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
        vu::String name;
        bool ok;
    } rows[] = {{VU_T("ab:c"), true},     {VU_T("_x"), true},   {VU_T("9"), true},
                {VU_T("-x"), true},       {VU_T("1a"), true},   {VU_T("\u00e9"), true},
                {VU_T("ab-c"), false},    {VU_T("a.b"), false}, {VU_T("a1"), false},
                {VU_T("a\u00e9"), false}, {VU_T(""), false}};
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << "name of " << row.name.size() << " units starting "
                                        << static_cast<int>(row.name.empty() ? 0 : row.name[0]));
        Writer w;
        w.WriteStartElement(VU_T("p"));
        EXPECT_EQ(w.WriteStartElement(row.name), row.ok);
        EXPECT_EQ(w.Out(),
                  row.ok ? VU_T("<p><") + row.name : VU_T("<p")); // a refusal leaves <p open
        EXPECT_EQ(w.Attr(row.name.c_str(), VU_T("v")), row.ok);
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
    EXPECT_TRUE(w.Attr(VU_T("n"), VU_T("1")));
    EXPECT_FALSE(w.Attr(VU_T("n"), VU_T("2"))); // repeated on one tag
    w.WriteStartElement(VU_T("f"));
    EXPECT_TRUE(w.Attr(VU_T("n"), VU_T("3"))); // a new tag forgets the names
    EXPECT_EQ(w.Out(), VU_T("<e n=\"1=\n><f n=\"3=\n"));
}

TEST(XmlWriter, RepeatedNamesFoundAmongManyAttributes) {
    Writer w;
    for (int element = 0; element < 2; ++element) {
        w.WriteStartElement(VU_T("e"));
        for (int pass = 0; pass < 2; ++pass) {
            vu::String name = VU_T("a");
            for (int i = 0; i < 40; ++i, name.push_back(VU_T('a')))
                ASSERT_EQ(w.Attr(name.c_str(), VU_T("v")), pass == 0) << "attribute " << i;
        }
    }
}

TEST(XmlWriter, EndElementWithNothingOpen) {
    Writer w;
    EXPECT_FALSE(w.WriteEndElement());
    w.WriteStartElement(VU_T("a"));
    w.WriteStartElement(VU_T("b"));
    w.Close();
    EXPECT_EQ(w.endCalls, 3); // Close goes through the overridable
    EXPECT_FALSE(w.WriteEndElement());
    EXPECT_EQ(w.Out(), VU_T("<a><b></b></a>"));
}

// ---- Taking the text out --------------------------------------------------------------

TEST(XmlWriter, CopiesAndMovesCarryTheOpenElements) {
    Writer w;
    w.WriteStartElement(VU_T("a"));
    Writer copy(w);
    copy.WriteStartElement(VU_T("b"));
    Writer moved(std::move(copy));
    moved.Close();
    w.Close();
    EXPECT_EQ(moved.Out(), VU_T("<a><b></b></a>"));
    EXPECT_EQ(w.Out(), VU_T("<a></a>"));
}

TEST(XmlWriter, FormattedBreaksAfterEveryGreaterThanAndChangesNothing) {
    Writer w;
    w.WriteStartElement(VU_T("a"));
    w.WriteElementString(VU_T(">"));
    w.WriteRaw(VU_T("r>"));
    EXPECT_EQ(w.ToStringFormatted(), VU_T("<a>\n&gt;r>\n"));
    w.WriteEndElement();
    EXPECT_EQ(w.ToStringFormatted(), VU_T("<a>\n&gt;r>\n</a>\n"));
    EXPECT_EQ(w.Out(), VU_T("<a>&gt;r></a>"));
}

} // namespace

#include "text/XmlWriter.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace {

const std::u16string_view kDeclaration =
    u"<?xml version=\"1.0\" encoding=\"utf-8\" standalone=\"yes\"?>";

// Characters that need an entity all lie below 64: one bit each.
constexpr unsigned long long kEscapeMask =
    (1ULL << u'&') | (1ULL << u'<') | (1ULL << u'>') | (1ULL << u'\'') | (1ULL << u'"');

bool NeedsEscape(char16_t c) {
    return c < 64 && ((kEscapeMask >> c) & 1);
}

std::u16string_view EntityFor(char16_t c) {
    switch (c) {
    case u'&':
        return u"&amp;";
    case u'<':
        return u"&lt;";
    case u'>':
        return u"&gt;";
    case u'\'':
        return u"&apos;";
    default:
        return u"&quot;";
    }
}

bool IsNameTailChar(char16_t c) {
    return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z') || c == u'_' || c == u':';
}

template <typename Number> void AppendNumber(std::u16string& out, Number value) {
    char digits[24];
    const auto result = std::to_chars(digits, digits + sizeof digits, value);
    for (const char* p = digits; p != result.ptr; ++p)
        out.push_back(static_cast<char16_t>(*p));
}

// Above this many attributes on one tag, repeated names are found through an
// index instead of a scan.
constexpr size_t kScannedAttributes = 16;

} // namespace

VU_CXmlWriter::VU_CXmlWriter() = default;

VU_CXmlWriter::~VU_CXmlWriter() = default;

// ---- Overridables -------------------------------------------------------

bool VU_CXmlWriter::Close() {
    CloseOpenedElement();
    m_attributeCount = 0;
    // Stop if an override refuses, rather than loop for ever.
    while (!m_elements.empty() && WriteEndElement()) {
    }
    return true;
}

AF_GString VU_CXmlWriter::ToString() const {
    return AF_GString(m_output);
}

bool VU_CXmlWriter::WriteStartElement(const AF_GString& name) {
    if (name.empty() || !ValidateName(name))
        return false;
    CloseOpenedElement();
    m_output.push_back(u'<');
    m_elements.push_back({m_output.size(), name.size()});
    m_output.append(name);
    m_startTagOpen = true;
    return true;
}

bool VU_CXmlWriter::WriteElementValue(bool value) {
    CloseOpenedElement();
    m_output.append(value ? u"true" : u"false");
    return true;
}

bool VU_CXmlWriter::WriteElementValue(unsigned long value) {
    CloseOpenedElement();
    AppendNumber(m_output, value);
    return true;
}

bool VU_CXmlWriter::WriteElementValue(long value) {
    CloseOpenedElement();
    AppendNumber(m_output, value);
    return true;
}

bool VU_CXmlWriter::WriteElementValue(const char16_t* text) {
    CloseOpenedElement();
    if (text)
        m_output.append(text);
    return true;
}

bool VU_CXmlWriter::WriteElementString(const AF_GString& text) {
    CloseOpenedElement();
    AppendEscaped(m_output, text);
    return true;
}

bool VU_CXmlWriter::WriteEndElement() {
    CloseOpenedElement();
    if (m_elements.empty())
        return false;
    const Span name = m_elements.back();
    m_elements.pop_back();
    m_output.append(u"</");
    AppendOwnText(name);
    m_output.push_back(u'>');
    return true;
}

bool VU_CXmlWriter::WriteAttributeString(const AF_GString* name, const AF_GString* value) {
    if (!name || !value || name->empty() || value->empty())
        return false;
    if (!ValidateName(*name) || !ValidateAttributeString(*value) || HasAttribute(*name))
        return false;
    m_output.push_back(u' ');
    const Span nameSpan{m_output.size(), name->size()};
    m_output.append(*name);
    RememberAttribute(nameSpan);
    m_output.append(u"=\"");
    m_output.append(*value);
    m_output.push_back(u'=');
    if (++m_attributeCount <= cMAX_ATTRIBUTES_PER_LINE)
        m_output.push_back(u'\n');
    return true;
}

bool VU_CXmlWriter::WriteCData(const AF_GString& text) {
    m_output.append(u"<![CDATA[");
    m_output.append(text);
    m_output.append(u"]]>");
    return true;
}

bool VU_CXmlWriter::WriteRaw(const AF_GString& text) {
    m_output.append(text);
    return true;
}

bool VU_CXmlWriter::WriteComment(const AF_GString& text) {
    CloseOpenedElement();
    m_output.append(u"<!-- ");
    m_output.append(text);
    m_output.append(u" -->");
    return true;
}

// ---- Operations ---------------------------------------------------------

bool VU_CXmlWriter::WriteXMLDeclaration() {
    m_output.append(kDeclaration);
    return true;
}

AF_GString VU_CXmlWriter::ToStringFormatted() const {
    const size_t tagEnds = static_cast<size_t>(std::count(m_output.begin(), m_output.end(), u'>'));
    AF_GString out;
    out.reserve(m_output.size() + tagEnds);
    size_t runStart = 0;
    for (size_t i = m_output.find(u'>'); i != std::u16string::npos;
         i = m_output.find(u'>', i + 1)) {
        out.append(m_output, runStart, i + 1 - runStart);
        out.push_back(u'\n');
        runStart = i + 1;
    }
    out.append(m_output, runStart, std::u16string::npos);
    return out;
}

bool VU_CXmlWriter::CloseOpenedElement() {
    if (m_startTagOpen)
        m_output.push_back(u'>');
    m_attributeCount = 0;
    m_startTagOpen = false;
    ForgetAttributes();
    return true;
}

// ---- Implementation -----------------------------------------------------

AF_GString VU_CXmlWriter::TranslateEntities(AF_GString* text) const {
    if (!text)
        return AF_GString();
    std::u16string translated;
    translated.reserve(text->size());
    AppendEscaped(translated, *text);
    static_cast<std::u16string&>(*text) = std::move(translated);
    return *text;
}

bool VU_CXmlWriter::ValidateName(const AF_GString& name) const {
    return IsValidName(name);
}

bool VU_CXmlWriter::ValidateAttributeString(const AF_GString& value) const {
    return value.find(u'<') == std::u16string::npos;
}

// Two character classes apply: from the second character on, letters, '_'
// and ':'; from the third on, also digits, '.' and '-'. The first class is
// the narrower and covers every position the second does, so digits, '.' and
// '-' are accepted only as the first character, which is not checked.
bool VU_CXmlWriter::IsValidName(std::u16string_view name) {
    return name.size() < 2 || std::all_of(name.begin() + 1, name.end(), IsNameTailChar);
}

// One scan; the runs between escaped characters are copied whole.
void VU_CXmlWriter::AppendEscaped(std::u16string& out, std::u16string_view text) {
    const char16_t* run = text.data();
    const char16_t* const end = run + text.size();
    for (const char16_t* p = run; p != end; ++p) {
        if (!NeedsEscape(*p))
            continue;
        out.append(run, static_cast<size_t>(p - run));
        out.append(EntityFor(*p));
        run = p + 1;
    }
    out.append(run, static_cast<size_t>(end - run));
}

// Appends a piece of the output to itself. Capacity is made first, growing
// geometrically, so that the source stays where it is while it is copied.
void VU_CXmlWriter::AppendOwnText(Span span) {
    const size_t needed = m_output.size() + span.length;
    if (needed > m_output.capacity())
        m_output.reserve(std::max(needed, 2 * m_output.capacity()));
    m_output.append(m_output.data() + span.offset, span.length);
}

bool VU_CXmlWriter::HasAttribute(std::u16string_view name) const {
    if (!m_attributeIndex.empty())
        return m_attributeIndex.find(name) != m_attributeIndex.end();
    return std::any_of(m_attributes.begin(), m_attributes.end(),
                       [&](Span span) { return Text(span) == name; });
}

void VU_CXmlWriter::RememberAttribute(Span span) {
    m_attributes.push_back(span);
    if (m_attributes.size() < kScannedAttributes)
        return;
    if (m_attributeIndex.empty()) {
        for (Span known : m_attributes)
            m_attributeIndex.emplace(Text(known));
    } else {
        m_attributeIndex.emplace(Text(span));
    }
}

void VU_CXmlWriter::ForgetAttributes() {
    m_attributes.clear();
    if (!m_attributeIndex.empty())
        m_attributeIndex.clear();
}

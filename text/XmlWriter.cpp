#include "text/XmlWriter.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <new>
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

// ASCII letters, '_' and ':'.
struct NameTailTable {
    bool allowed[128] = {};
    constexpr NameTailTable() {
        for (int c = 'A'; c <= 'Z'; ++c)
            allowed[c] = allowed[c + ('a' - 'A')] = true;
        allowed[int{'_'}] = allowed[int{':'}] = true;
    }
};
constexpr NameTailTable kNameTail;

void Copy(char16_t* to, std::u16string_view text) {
    if (!text.empty())
        std::memcpy(to, text.data(), text.size() * sizeof(char16_t));
}

// Appends to a standard string the way the output buffer is appended to.
struct StringSink {
    std::u16string& text;
    void Append(std::u16string_view more) { text.append(more); }
};

template <typename Number> std::u16string_view FormatNumber(char16_t (&out)[24], Number value) {
    char digits[24];
    const char* end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    std::copy(static_cast<const char*>(digits), end, out);
    return {out, static_cast<size_t>(end - digits)};
}

// Above this many attributes on one tag, repeated names are found through an
// index instead of a scan.
constexpr size_t kScannedAttributes = 16;

} // namespace

// ---- Output buffer ------------------------------------------------------

VU_CXmlWriter::Buffer::Buffer(const Buffer& other) {
    Append(other.View());
}

VU_CXmlWriter::Buffer& VU_CXmlWriter::Buffer::operator=(const Buffer& other) {
    if (this != &other) {
        m_size = 0;
        Append(other.View());
    }
    return *this;
}

VU_CXmlWriter::Buffer::~Buffer() {
    std::free(m_data);
}

void VU_CXmlWriter::Buffer::Append(std::u16string_view text) {
    Copy(Extend(text.size()), text);
}

void VU_CXmlWriter::Buffer::Grow(size_t n) {
    const size_t capacity = std::max({m_size + n, 2 * m_capacity, size_t{256}});
    void* grown = std::realloc(m_data, capacity * sizeof(char16_t));
    if (!grown)
        throw std::bad_alloc();
    m_data = static_cast<char16_t*>(grown);
    m_capacity = capacity;
}

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
    return AF_GString(std::u16string(m_output.View()));
}

bool VU_CXmlWriter::WriteStartElement(const AF_GString& name) {
    if (name.empty() || !ValidateName(name))
        return false;
    CloseOpenedElement();
    char16_t* out = m_output.Extend(1 + name.size());
    out[0] = u'<';
    Copy(out + 1, name);
    m_elements.push_back({m_output.View().size() - name.size(), name.size()});
    m_startTagOpen = true;
    return true;
}

bool VU_CXmlWriter::WriteElementValue(bool value) {
    CloseOpenedElement();
    m_output.Append(value ? u"true" : u"false");
    return true;
}

bool VU_CXmlWriter::WriteElementValue(unsigned long value) {
    CloseOpenedElement();
    char16_t text[24];
    m_output.Append(FormatNumber(text, value));
    return true;
}

bool VU_CXmlWriter::WriteElementValue(long value) {
    CloseOpenedElement();
    char16_t text[24];
    m_output.Append(FormatNumber(text, value));
    return true;
}

bool VU_CXmlWriter::WriteElementValue(const char16_t* text) {
    CloseOpenedElement();
    if (text)
        m_output.Append(text);
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
    WriteEndTag(name);
    return true;
}

bool VU_CXmlWriter::WriteAttributeString(const AF_GString* name, const AF_GString* value) {
    if (!name || !value || name->empty() || value->empty())
        return false;
    if (!ValidateName(*name) || !ValidateAttributeString(*value) || HasAttribute(*name))
        return false;
    const bool lineEnd = m_attributeCount < cMAX_ATTRIBUTES_PER_LINE;
    const size_t nameOffset = m_output.View().size() + 1;
    // ' ' name '="' value '=' and perhaps a line feed
    char16_t* out = m_output.Extend(name->size() + value->size() + 4 + (lineEnd ? 1 : 0));
    *out++ = u' ';
    Copy(out, *name);
    out += name->size();
    *out++ = u'=';
    *out++ = u'"';
    Copy(out, *value);
    out += value->size();
    *out++ = u'=';
    if (lineEnd)
        *out = u'\n';
    RememberAttribute({nameOffset, name->size()});
    ++m_attributeCount;
    return true;
}

bool VU_CXmlWriter::WriteCData(const AF_GString& text) {
    m_output.Append(u"<![CDATA[");
    m_output.Append(text);
    m_output.Append(u"]]>");
    return true;
}

bool VU_CXmlWriter::WriteRaw(const AF_GString& text) {
    m_output.Append(text);
    return true;
}

bool VU_CXmlWriter::WriteComment(const AF_GString& text) {
    CloseOpenedElement();
    m_output.Append(u"<!-- ");
    m_output.Append(text);
    m_output.Append(u" -->");
    return true;
}

// ---- Operations ---------------------------------------------------------

bool VU_CXmlWriter::WriteXMLDeclaration() {
    m_output.Append(kDeclaration);
    return true;
}

AF_GString VU_CXmlWriter::ToStringFormatted() const {
    const std::u16string_view text = m_output.View();
    AF_GString out;
    out.reserve(text.size() + static_cast<size_t>(std::count(text.begin(), text.end(), u'>')));
    size_t runStart = 0;
    for (size_t i = text.find(u'>'); i != std::u16string_view::npos; i = text.find(u'>', i + 1)) {
        out.append(text.substr(runStart, i + 1 - runStart));
        out.push_back(u'\n');
        runStart = i + 1;
    }
    out.append(text.substr(runStart));
    return out;
}

bool VU_CXmlWriter::CloseOpenedElement() {
    if (m_startTagOpen)
        *m_output.Extend(1) = u'>';
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
    StringSink sink{translated};
    AppendEscaped(sink, *text);
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
    for (size_t i = 1; i < name.size(); ++i) {
        if (name[i] >= 128 || !kNameTail.allowed[name[i]])
            return false;
    }
    return true;
}

// One scan; the runs between escaped characters are copied whole.
template <typename Sink> void VU_CXmlWriter::AppendEscaped(Sink& out, std::u16string_view text) {
    const char16_t* run = text.data();
    const char16_t* const end = run + text.size();
    for (const char16_t* p = run; p != end; ++p) {
        if (!NeedsEscape(*p))
            continue;
        out.Append({run, static_cast<size_t>(p - run)});
        out.Append(EntityFor(*p));
        run = p + 1;
    }
    out.Append({run, static_cast<size_t>(end - run)});
}

// "</" name ">", the name copied from where its start tag wrote it. The room
// is made first, so the source does not move while it is copied.
void VU_CXmlWriter::WriteEndTag(Span name) {
    char16_t* out = m_output.Extend(name.length + 3);
    out[0] = u'<';
    out[1] = u'/';
    Copy(out + 2, Text(name));
    out[2 + name.length] = u'>';
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

#include "text/XmlWriter.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <new>
#include <utility>

namespace {

const vu::StringView kDeclaration =
    VU_T("<?xml version=\"1.0\" encoding=\"utf-8\" standalone=\"yes\"?>");

// Characters that need an entity all lie below 64: one bit each.
constexpr unsigned long long kEscapeMask = (1ULL << VU_T('&')) | (1ULL << VU_T('<')) |
                                           (1ULL << VU_T('>')) | (1ULL << VU_T('\'')) |
                                           (1ULL << VU_T('"'));

bool NeedsEscape(WCHAR c) {
    return c < 64 && ((kEscapeMask >> c) & 1);
}

vu::StringView EntityFor(WCHAR c) {
    switch (c) {
    case VU_T('&'):
        return VU_T("&amp;");
    case VU_T('<'):
        return VU_T("&lt;");
    case VU_T('>'):
        return VU_T("&gt;");
    case VU_T('\''):
        return VU_T("&apos;");
    default:
        return VU_T("&quot;");
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

void Copy(WCHAR* to, vu::StringView text) {
    if (!text.empty())
        std::memcpy(to, text.data(), text.size() * sizeof(WCHAR));
}

// Appends to a standard string the way the output buffer is appended to.
struct StringSink {
    vu::String& text;
    void Append(vu::StringView more) { text.append(more); }
};

template <typename Number> vu::StringView FormatNumber(WCHAR (&out)[24], Number value) {
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

void VU_CXmlWriter::Buffer::Append(vu::StringView text) {
    Copy(Extend(text.size()), text);
}

void VU_CXmlWriter::Buffer::Grow(size_t n) {
    const size_t capacity = std::max({m_size + n, 2 * m_capacity, size_t{256}});
    void* grown = std::realloc(m_data, capacity * sizeof(WCHAR));
    if (!grown)
        throw std::bad_alloc();
    m_data = static_cast<WCHAR*>(grown);
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
    return AF_GString(vu::String(m_output.View()));
}

bool VU_CXmlWriter::WriteStartElement(const AF_GString& name) {
    if (name.empty() || !ValidateName(name))
        return false;
    CloseOpenedElement();
    WCHAR* out = m_output.Extend(1 + name.size());
    out[0] = VU_T('<');
    Copy(out + 1, name);
    m_elements.push_back({m_output.View().size() - name.size(), name.size()});
    m_startTagOpen = true;
    return true;
}

bool VU_CXmlWriter::WriteElementValue(bool value) {
    CloseOpenedElement();
    m_output.Append(value ? VU_T("true") : VU_T("false"));
    return true;
}

bool VU_CXmlWriter::WriteElementValue(unsigned long value) {
    CloseOpenedElement();
    WCHAR text[24];
    m_output.Append(FormatNumber(text, value));
    return true;
}

bool VU_CXmlWriter::WriteElementValue(long value) {
    CloseOpenedElement();
    WCHAR text[24];
    m_output.Append(FormatNumber(text, value));
    return true;
}

bool VU_CXmlWriter::WriteElementValue(const WCHAR* text) {
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
    WCHAR* out = m_output.Extend(name->size() + value->size() + 4 + (lineEnd ? 1 : 0));
    *out++ = VU_T(' ');
    Copy(out, *name);
    out += name->size();
    *out++ = VU_T('=');
    *out++ = VU_T('"');
    Copy(out, *value);
    out += value->size();
    *out++ = VU_T('=');
    if (lineEnd)
        *out = VU_T('\n');
    RememberAttribute({nameOffset, name->size()});
    ++m_attributeCount;
    return true;
}

bool VU_CXmlWriter::WriteCData(const AF_GString& text) {
    m_output.Append(VU_T("<![CDATA["));
    m_output.Append(text);
    m_output.Append(VU_T("]]>"));
    return true;
}

bool VU_CXmlWriter::WriteRaw(const AF_GString& text) {
    m_output.Append(text);
    return true;
}

bool VU_CXmlWriter::WriteComment(const AF_GString& text) {
    CloseOpenedElement();
    m_output.Append(VU_T("<!-- "));
    m_output.Append(text);
    m_output.Append(VU_T(" -->"));
    return true;
}

// ---- Operations ---------------------------------------------------------

bool VU_CXmlWriter::WriteXMLDeclaration() {
    m_output.Append(kDeclaration);
    return true;
}

AF_GString VU_CXmlWriter::ToStringFormatted() const {
    const vu::StringView text = m_output.View();
    AF_GString out;
    out.reserve(text.size() + static_cast<size_t>(std::count(text.begin(), text.end(), VU_T('>'))));
    size_t runStart = 0;
    for (size_t i = text.find(VU_T('>')); i != vu::StringView::npos;
         i = text.find(VU_T('>'), i + 1)) {
        out.append(text.substr(runStart, i + 1 - runStart));
        out.push_back(VU_T('\n'));
        runStart = i + 1;
    }
    out.append(text.substr(runStart));
    return out;
}

bool VU_CXmlWriter::CloseOpenedElement() {
    if (m_startTagOpen)
        *m_output.Extend(1) = VU_T('>');
    m_attributeCount = 0;
    m_startTagOpen = false;
    ForgetAttributes();
    return true;
}

// ---- Implementation -----------------------------------------------------

AF_GString VU_CXmlWriter::TranslateEntities(AF_GString* text) const {
    if (!text)
        return AF_GString();
    vu::String translated;
    translated.reserve(text->size());
    StringSink sink{translated};
    AppendEscaped(sink, *text);
    static_cast<vu::String&>(*text) = std::move(translated);
    return *text;
}

bool VU_CXmlWriter::ValidateName(const AF_GString& name) const {
    return IsValidName(name);
}

bool VU_CXmlWriter::ValidateAttributeString(const AF_GString& value) const {
    return value.find(VU_T('<')) == vu::String::npos;
}

// Two character classes apply: from the second character on, letters, '_'
// and ':'; from the third on, also digits, '.' and '-'. The first class is
// the narrower and covers every position the second does, so digits, '.' and
// '-' are accepted only as the first character, which is not checked.
bool VU_CXmlWriter::IsValidName(vu::StringView name) {
    for (size_t i = 1; i < name.size(); ++i) {
        if (name[i] >= 128 || !kNameTail.allowed[name[i]])
            return false;
    }
    return true;
}

// One scan; the runs between escaped characters are copied whole.
template <typename Sink> void VU_CXmlWriter::AppendEscaped(Sink& out, vu::StringView text) {
    const WCHAR* run = text.data();
    const WCHAR* const end = run + text.size();
    for (const WCHAR* p = run; p != end; ++p) {
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
    WCHAR* out = m_output.Extend(name.length + 3);
    out[0] = VU_T('<');
    out[1] = VU_T('/');
    Copy(out + 2, Text(name));
    out[2 + name.length] = VU_T('>');
}

bool VU_CXmlWriter::HasAttribute(vu::StringView name) const {
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

#pragma once

#include "foundation/GString.h"
#include "framework/Char.h"

#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Builds an XML document as UTF-16 text in memory, forward only: open an
// element, add attributes to it, write content, close it. A start tag stays
// open (without its '>') until the next content or tag is written, so that
// attributes can still be added. Empty-element syntax is never produced.
//
// The output is exactly what the library's tree controls have always dumped,
// including two quirks they depend on: an attribute is written as
//   name="value=
// (an equals sign where the closing quotation mark would be), and a line
// feed follows each of the first four attributes of an element only.
//
// Mutators return false and write nothing when they refuse.
class VU_CXmlWriter {
public:
    static constexpr unsigned int cMAX_ATTRIBUTES_PER_LINE = 4;

    VU_CXmlWriter();
    virtual ~VU_CXmlWriter();

    // Overridables
    // Closes the open start tag and then every open element, innermost first.
    virtual bool Close();
    virtual AF_GString ToString() const;
    // Refused when the name is empty or invalid (see ValidateName).
    virtual bool WriteStartElement(const AF_GString& name);
    virtual bool WriteElementValue(bool value);
    virtual bool WriteElementValue(unsigned long value);
    virtual bool WriteElementValue(long value);
    // Written unchanged, without entity translation; null writes nothing.
    virtual bool WriteElementValue(const WCHAR* text);
    // Written with & < > ' " translated to entities.
    virtual bool WriteElementString(const AF_GString& text);
    // Refused when no element is open.
    virtual bool WriteEndElement();
    // Refused for a null, empty or invalid name, a null or empty value, a
    // value containing '<', or a name already written on this start tag. The
    // value is written unchanged. Not checked against an open start tag:
    // after content it lands in the content.
    virtual bool WriteAttributeString(const AF_GString* name, const AF_GString* value);
    // Written unchanged and without closing an open start tag.
    virtual bool WriteCData(const AF_GString& text);
    virtual bool WriteRaw(const AF_GString& text);
    virtual bool WriteComment(const AF_GString& text);

    // Operations
    // Appends <?xml ...?> at the current end, with no line break: call first.
    bool WriteXMLDeclaration();
    // The output with a line feed after every '>'.
    AF_GString ToStringFormatted() const;
    // Ends an open start tag with '>' and forgets its attributes.
    bool CloseOpenedElement();

    // Attributes
    // The output so far, without a copy; valid until the next write.
    vu::StringView GetOutput() const { return m_output.View(); }
    int GetOpenElementCount() const { return static_cast<int>(m_elements.size()); }
    bool IsStartTagOpen() const { return m_startTagOpen; }

protected:
    // Translates the entities of *text in place and returns the result.
    AF_GString TranslateEntities(AF_GString* text) const;
    // From the second character on, only ASCII letters, '_' and ':' are
    // accepted; the first character is not checked.
    bool ValidateName(const AF_GString& name) const;
    // A value passes when it holds no '<'.
    bool ValidateAttributeString(const AF_GString& value) const;

private:
    // The output text. It only ever grows at its end, and realloc lets a
    // large buffer grow in place.
    class Buffer {
    public:
        Buffer() = default;
        Buffer(const Buffer& other);
        Buffer& operator=(const Buffer& other);
        Buffer(Buffer&& other) noexcept { Swap(other); }
        Buffer& operator=(Buffer&& other) noexcept {
            Swap(other);
            return *this;
        }
        ~Buffer();
        // Room for n more characters at the end, counted as written.
        WCHAR* Extend(size_t n) {
            if (n > m_capacity - m_size)
                Grow(n);
            WCHAR* end = m_data + m_size;
            m_size += n;
            return end;
        }
        void Append(vu::StringView text);
        vu::StringView View() const { return {m_data, m_size}; }

    private:
        void Grow(size_t n);
        void Swap(Buffer& other) noexcept {
            std::swap(m_data, other.m_data);
            std::swap(m_size, other.m_size);
            std::swap(m_capacity, other.m_capacity);
        }
        WCHAR* m_data = nullptr;
        size_t m_size = 0;
        size_t m_capacity = 0;
    };

    // A name already written to the output, kept as its place there: the
    // output is only ever appended to, so the place stays valid.
    struct Span {
        size_t offset;
        size_t length;
    };

    static bool IsValidName(vu::StringView name);
    template <typename Sink> static void AppendEscaped(Sink& out, vu::StringView text);
    vu::StringView Text(Span span) const {
        return m_output.View().substr(span.offset, span.length);
    }
    void WriteEndTag(Span name);
    bool HasAttribute(vu::StringView name) const;
    void RememberAttribute(Span span);
    void ForgetAttributes();

    unsigned int m_attributeCount = 0;
    bool m_startTagOpen = false;
    Buffer m_output;
    std::vector<Span> m_elements;   // open elements, innermost last
    std::vector<Span> m_attributes; // names on the open start tag
    // Index of the same names, built only when a tag has many attributes.
    std::set<vu::String, std::less<>> m_attributeIndex;
};

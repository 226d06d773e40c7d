// Drives the XML writer with random operation sequences and holds it to a
// model: the output is only ever appended to, refusals write nothing, names
// and attributes are accepted exactly when the rules say, element strings
// come back when their entities are read, and every open element is closed.
#include "text/XmlWriter.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <set>
#include <string>
#include <vector>

namespace {

class Input {
public:
    Input(const uint8_t* data, size_t size) : m_data(data), m_size(size) {}
    bool Empty() const { return m_pos >= m_size; }
    uint8_t Byte() { return m_pos < m_size ? m_data[m_pos++] : 0; }
    // Mostly characters that matter to names and escaping.
    AF_GString Text() {
        static const char16_t alphabet[] = u"abZ_:1.- <>&'\"\n\u00e9\u4e2d";
        AF_GString s;
        for (int n = Byte() % 12; n > 0; --n) {
            const uint8_t b = Byte();
            s += b < 200 ? alphabet[b % (std::size(alphabet) - 1)]
                         : static_cast<char16_t>(b << 8 | Byte());
        }
        return s;
    }

private:
    const uint8_t* m_data;
    size_t m_size;
    size_t m_pos = 0;
};

void Check(bool ok) {
    if (!ok)
        abort();
}

bool ModelValidName(const std::u16string& name) {
    if (name.empty())
        return false;
    for (size_t i = 1; i < name.size(); ++i) {
        const char16_t c = name[i];
        if (!((c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || c == u'_' || c == u':'))
            return false;
    }
    return true;
}

std::u16string Unescape(std::u16string s) {
    static const std::pair<std::u16string, char16_t> entities[] = {
        {u"&lt;", u'<'}, {u"&gt;", u'>'}, {u"&apos;", u'\''}, {u"&quot;", u'"'}, {u"&amp;", u'&'}};
    std::u16string out;
    for (size_t i = 0; i < s.size();) {
        bool matched = false;
        for (const auto& [entity, c] : entities) {
            if (s.compare(i, entity.size(), entity) == 0) {
                out += c;
                i += entity.size();
                matched = true;
                break;
            }
        }
        if (!matched)
            out += s[i++];
    }
    return out;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    Input in(data, size);
    VU_CXmlWriter w;
    bool tagOpen = false;
    std::set<std::u16string> attributes;
    std::vector<std::u16string> open;
    const auto closesTag = [&] {
        tagOpen = false;
        attributes.clear();
    };
    for (int steps = 0; steps < 200 && !in.Empty(); ++steps) {
        const std::u16string before(w.GetOutput());
        const size_t closer = tagOpen ? 1 : 0; // the '>' that content adds first
        bool ok = true;
        switch (in.Byte() % 10) {
        case 0: {
            const AF_GString name = in.Text();
            ok = w.WriteStartElement(name);
            Check(ok == ModelValidName(name));
            if (ok) {
                closesTag();
                tagOpen = true;
                open.push_back(name);
            }
            break;
        }
        case 1: {
            const AF_GString name = in.Text(), value = in.Text();
            ok = w.WriteAttributeString(&name, &value);
            Check(ok == (ModelValidName(name) && !value.empty() &&
                         value.find(u'<') == std::u16string::npos && !attributes.count(name)));
            if (ok)
                attributes.insert(name);
            break;
        }
        case 2: {
            const AF_GString text = in.Text();
            w.WriteElementString(text);
            Check(Unescape(std::u16string(w.GetOutput().substr(before.size() + closer))) == text);
            closesTag();
            break;
        }
        case 3:
            ok = w.WriteEndElement();
            Check(ok == !open.empty());
            if (ok) {
                Check(w.GetOutput().ends_with(u"</" + open.back() + u">"));
                open.pop_back();
            }
            closesTag();
            break;
        case 4:
            w.WriteElementValue(static_cast<long>(static_cast<int8_t>(in.Byte())));
            closesTag();
            break;
        case 5:
            w.WriteElementValue(in.Byte() % 2 == 0);
            closesTag();
            break;
        case 6:
            w.WriteComment(in.Text());
            closesTag();
            break;
        case 7:
            w.WriteCData(in.Text());
            break;
        case 8:
            w.WriteRaw(in.Text());
            break;
        default: {
            const AF_GString formatted = w.ToStringFormatted();
            size_t tagEnds = 0;
            for (char16_t c : before)
                tagEnds += c == u'>';
            Check(formatted.size() == before.size() + tagEnds);
            break;
        }
        }
        Check(w.GetOutput().starts_with(before));
        Check(ok || w.GetOutput() == before);
        Check(w.IsStartTagOpen() == tagOpen);
        Check(w.GetOpenElementCount() == static_cast<int>(open.size()));
    }
    w.Close();
    Check(w.GetOpenElementCount() == 0 && !w.IsStartTagOpen());
    Check(w.ToString() == w.GetOutput());
    return 0;
}

// Drives the XML writer with random operation sequences and holds it to a
// model: the output is only ever appended to, refusals write nothing, names
// and attributes are accepted exactly when the rules say, element strings
// come back when their entities are read, and every open element is closed.
#include "text/XmlWriter.h"

#include "FuzzSupport.h"

#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace {

// Mostly characters that matter to names and escaping, some arbitrary units.
AF_GString Text(FuzzedDataProvider& in) {
    static const WCHAR alphabet[] = VU_T("abZ_:1.- <>&'\"\n\u00e9\u4e2d");
    AF_GString s;
    for (int n = in.ConsumeIntegralInRange(0, 11); n > 0; --n) {
        const uint8_t b = in.ConsumeIntegral<uint8_t>();
        s += b < 200 ? alphabet[b % (std::size(alphabet) - 1)]
                     : static_cast<WCHAR>(b << 8 | in.ConsumeIntegral<uint8_t>());
    }
    return s;
}

using fuzz::Check;

bool ModelValidName(const vu::String& name) {
    if (name.empty())
        return false;
    for (size_t i = 1; i < name.size(); ++i) {
        const WCHAR c = name[i];
        if (!((c >= VU_T('a') && c <= VU_T('z')) || (c >= VU_T('A') && c <= VU_T('Z')) ||
              c == VU_T('_') || c == VU_T(':')))
            return false;
    }
    return true;
}

vu::String Unescape(vu::String s) {
    // clang-format off
    static const std::pair<vu::String, WCHAR> entities[] = {
        {VU_T("&lt;"), VU_T('<')}, {VU_T("&gt;"), VU_T('>')}, {VU_T("&apos;"), VU_T('\'')},
        {VU_T("&quot;"), VU_T('"')}, {VU_T("&amp;"), VU_T('&')}};
    // clang-format on
    vu::String out;
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
    FuzzedDataProvider in(data, size);
    VU_CXmlWriter w;
    bool tagOpen = false;
    std::set<vu::String> attributes;
    std::vector<vu::String> open;
    const auto closesTag = [&] {
        tagOpen = false;
        attributes.clear();
    };
    for (int steps = 0; steps < 200 && in.remaining_bytes() > 0; ++steps) {
        const vu::String before(w.GetOutput());
        const size_t closer = tagOpen ? 1 : 0; // the '>' that content adds first
        bool ok = true;
        switch (in.ConsumeIntegralInRange(0, 6)) {
        case 0: {
            const AF_GString name = Text(in);
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
            const AF_GString name = Text(in), value = Text(in);
            ok = w.WriteAttributeString(&name, &value);
            Check(ok == (ModelValidName(name) && !value.empty() &&
                         value.find(VU_T('<')) == vu::String::npos && !attributes.count(name)));
            if (ok)
                attributes.insert(name);
            break;
        }
        case 2: {
            const AF_GString text = Text(in);
            w.WriteElementString(text);
            Check(Unescape(vu::String(w.GetOutput().substr(before.size() + closer))) == text);
            closesTag();
            break;
        }
        case 3:
            ok = w.WriteEndElement();
            Check(ok == !open.empty());
            if (ok) {
                Check(w.GetOutput().ends_with(VU_T("</") + open.back() + VU_T(">")));
                open.pop_back();
            }
            closesTag();
            break;
        case 4: // content that closes the start tag
            w.WriteElementValue(in.ConsumeIntegral<long>());
            w.WriteElementValue(in.ConsumeBool());
            w.WriteComment(Text(in));
            closesTag();
            break;
        case 5: // and content that leaves it open
            w.WriteCData(Text(in));
            w.WriteRaw(Text(in));
            break;
        default: {
            const AF_GString formatted = w.ToStringFormatted();
            size_t tagEnds = 0;
            for (WCHAR c : before)
                tagEnds += c == VU_T('>');
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

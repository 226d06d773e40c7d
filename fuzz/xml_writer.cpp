// Drives the XML writer with random operation sequences and holds it to a
// model: the output is only ever appended to, refusals write nothing, names
// and attributes are accepted exactly when the rules say, element strings
// come back when their entities are read, and every open element is closed.
#include "text/XmlWriter.h"

#include "FuzzSupport.h"

#include <algorithm>
#include <cstdint>
#include <set>
#include <vector>

namespace {

using fuzz::Check;

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

// Any first unit, then only ASCII letters, '_' and ':'.
bool ModelValidName(const vu::String& name) {
    const auto bad = [](WCHAR c) {
        return !((c >= VU_T('a') && c <= VU_T('z')) || (c >= VU_T('A') && c <= VU_T('Z')) ||
                 c == VU_T('_') || c == VU_T(':'));
    };
    return !name.empty() && std::none_of(name.begin() + 1, name.end(), bad);
}

// Element strings spell these five characters as entities.
vu::String Escape(const AF_GString& s) {
    vu::String out;
    for (WCHAR c : s)
        out += c == VU_T('<')    ? VU_T("&lt;")
               : c == VU_T('>')  ? VU_T("&gt;")
               : c == VU_T('&')  ? VU_T("&amp;")
               : c == VU_T('\'') ? VU_T("&apos;")
               : c == VU_T('"')  ? VU_T("&quot;")
                                 : vu::String(1, c);
    return out;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzedDataProvider in(data, size);
    VU_CXmlWriter w;
    bool tagOpen = false;
    std::set<vu::String> attributes;
    std::vector<vu::String> open;
    for (int steps = 0; steps < 200 && in.remaining_bytes() > 0; ++steps) {
        const vu::String before(w.GetOutput());
        bool ok = true, closesTag = false;
        switch (in.ConsumeIntegralInRange(0, 6)) {
        case 0: {
            const AF_GString name = Text(in);
            Check((ok = w.WriteStartElement(name)) == ModelValidName(name));
            if (ok) {
                open.push_back(name);
                attributes.clear();
            }
            tagOpen = tagOpen || ok;
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
        case 2: { // the '>' that content adds first, then the escaped text
            const AF_GString text = Text(in);
            w.WriteElementString(text);
            Check(w.GetOutput().substr(before.size() + tagOpen) == Escape(text));
            closesTag = true;
            break;
        }
        case 3:
            Check((ok = w.WriteEndElement()) == !open.empty());
            if (ok) {
                Check(w.GetOutput().ends_with(VU_T("</") + open.back() + VU_T(">")));
                open.pop_back();
            }
            closesTag = true;
            break;
        case 4: // content that closes the start tag
            w.WriteElementValue(in.ConsumeIntegral<long>());
            w.WriteElementValue(in.ConsumeBool());
            w.WriteComment(Text(in));
            closesTag = true;
            break;
        case 5: // and content that leaves it open
            w.WriteCData(Text(in));
            w.WriteRaw(Text(in));
            break;
        default: // formatting breaks after every '>' and changes nothing else
            Check(w.ToStringFormatted().size() ==
                  before.size() + size_t(std::count(before.begin(), before.end(), VU_T('>'))));
            break;
        }
        if (closesTag) {
            tagOpen = false;
            attributes.clear();
        }
        Check(w.GetOutput().starts_with(before) && (ok || w.GetOutput() == before));
        Check(w.IsStartTagOpen() == tagOpen);
        Check(w.GetOpenElementCount() == static_cast<int>(open.size()));
    }
    w.Close();
    Check(w.GetOpenElementCount() == 0 && !w.IsStartTagOpen());
    Check(w.ToString() == w.GetOutput());
    return 0;
}

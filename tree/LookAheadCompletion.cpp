#include "tree/LookAheadCompletion.h"

#include "framework/CaseMap.h"
#include "text/XmlWriter.h"

#include <algorithm>

namespace {

// Control characters (Backspace is 8, Ctrl+letters below 32) and DEL never
// extend the text.
bool IsPrintable(WCHAR c) {
    return c >= 0x20 && c != 0x7F;
}

bool WriteChild(VU_CXmlWriter& writer, const WCHAR* name, const AF_GString& value) {
    return writer.WriteStartElement(AF_GString(name)) && writer.WriteElementString(value) &&
           writer.WriteEndElement();
}

AF_GString Number(int value) {
    const std::string digits = std::to_string(value);
    return AF_GString(vu::String(digits.begin(), digits.end()));
}

} // namespace

bool VU_CLookAheadCompletion::ShouldLookUp(WCHAR typed, int selStart, int selEnd, int length) {
    return IsPrintable(typed) && length > 0 && selStart == selEnd && selEnd == length;
}

std::optional<VU_CLookAheadCompletion::Result>
VU_CLookAheadCompletion::Complete(vu::StringView typed, vu::StringView item) {
    if (typed.empty() || item.size() <= typed.size() ||
        !vu::EqualNoCase(typed, item.substr(0, typed.size())))
        return std::nullopt;
    Result result;
    result.text = vu::String(item);
    result.selStart = static_cast<int>(typed.size());
    result.selEnd = static_cast<int>(item.size());
    return result;
}

vu::StringView VU_CLookAheadCompletion::ProposedTail(vu::StringView text, int selStart,
                                                     int selEnd) {
    const int length = static_cast<int>(text.size());
    const int from = std::min(selStart, selEnd);
    const int to = std::max(selStart, selEnd);
    if (from < 0 || from == to || to != length)
        return {};
    return text.substr(static_cast<size_t>(from));
}

bool VU_CLookAheadCompletion::WriteXml(VU_CXmlWriter& writer, vu::StringView text, int selStart,
                                       int selEnd) {
    const AF_GString whole{vu::String(text)};
    return writer.WriteStartElement(AF_GString(VU_T("HbxLookAheadEdit"))) &&
           WriteChild(writer, VU_T("Text"), whole) &&
           WriteChild(writer, VU_T("SelStart"), Number(selStart)) &&
           WriteChild(writer, VU_T("SelEnd"), Number(selEnd)) &&
           WriteChild(writer, VU_T("Completion"),
                      AF_GString(vu::String(ProposedTail(text, selStart, selEnd)))) &&
           writer.WriteEndElement();
}

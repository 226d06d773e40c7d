#include "tree/TreeComboRules.h"

#include "framework/CaseMap.h"
#include "text/XmlWriter.h"
#include "tree/TreeListGeometry.h"

#include <algorithm>

namespace vu::treecombo {

DropClick ClassifyDropClick(bool onScrollBar, bool onRow, int x, int level, bool hasChildren,
                            bool selectable) {
    if (onScrollBar || !onRow)
        return DropClick::Default;
    if (hasChildren && treelist::IsOnExpandButton(x, level, 0))
        return DropClick::Toggle;
    return selectable ? DropClick::Default : DropClick::Ignore;
}

int DropDownHeight(int rows, int itemHeight, int frame, int maxHeight, int current) {
    const int wanted = std::max(1, rows) * itemHeight + frame;
    const int height = std::min(wanted, std::max(maxHeight, itemHeight + frame));
    return std::max(height, current);
}

CloseUp DecideCloseUp(int selection, bool allowed, int lastAccepted) {
    if (!allowed && lastAccepted != -1)
        return {lastAccepted, lastAccepted};
    return {-1, selection};
}

HidingPlace HidingPlaceFor(unsigned major, unsigned minor) {
    if (major < 5 || (major == 5 && minor < 1))
        return {false, 0, 0};
    if (minor == 2)
        return {true, 0, 0};
    return {true, -1000, -1000};
}

bool MustShowSelection(bool useTree, bool dropped, vu::StringView text,
                       vu::StringView selectionText) {
    return useTree && dropped && text != selectionText;
}

bool MatchesKey(vu::StringView shown, vu::StringView key, bool exact) {
    if (key.empty() || shown.size() < key.size())
        return false;
    if (exact) {
        const size_t tab = shown.find(VU_T('\t'));
        const vu::StringView name = tab == vu::StringView::npos ? shown : shown.substr(0, tab);
        return vu::EqualNoCase(name, key);
    }
    return vu::EqualNoCase(shown.substr(0, key.size()), key);
}

AF_GString ComboXml(const AF_GString* editXml, vu::StringView currentText,
                    const AF_GString& treeListXml) {
    VU_CXmlWriter writer;
    writer.WriteXMLDeclaration();
    writer.WriteStartElement(AF_GString(VU_T("HbxComboBox")));
    writer.CloseOpenedElement();
    if (editXml != nullptr) {
        writer.WriteRaw(*editXml);
    } else {
        writer.WriteStartElement(AF_GString(VU_T("Text")));
        writer.WriteElementString(AF_GString(vu::String(currentText)));
        writer.WriteEndElement();
    }
    writer.WriteRaw(treeListXml);
    writer.WriteEndElement();
    return writer.ToString();
}

} // namespace vu::treecombo

#pragma once
// A tab beam view for native tests: every character is 6 pixels wide (7 in
// bold), the client rectangle is settable, and effects are recorded.
#include "tabs/TabBeamModel.h"

#include <map>
#include <ostream>
#include <string>
#include <vector>

// Failures print tab texts as ASCII.
inline void PrintTo(const CString& s, std::ostream* os) {
    *os << '"';
    for (int i = 0; i < s.GetLength(); ++i)
        *os << static_cast<char>(s[i] < 128 ? s[i] : '?');
    *os << '"';
}

namespace vutest {

struct FakeTabView : VU_ATabBeamView {
    int MeasureTabText(vu::StringView text, bool bBold) override {
        auto known = fixed.find(vu::String(text));
        if (known != fixed.end())
            return known->second;
        return static_cast<int>(text.size()) * (bBold ? 7 : 6);
    }
    CRect GetTabClientRect() const override { return client; }
    void ScrollTabArea(int dx) override { scrolls.push_back(dx); }
    void TabSelChanged(int index) override { selChanged.push_back(index); }

    CRect client{0, 0, 400, 20};
    std::map<vu::String, int> fixed; // texts of a given width
    std::vector<int> scrolls, selChanged;
};

// A model with a 20-pixel scroll area (tabs start at 21) over a fake view.
struct FakeBeam : VU_CTabBeamModel {
    FakeBeam() : VU_CTabBeamModel(&view) { SetScrollArea(20, true); }
    using VU_CTabBeamModel::m_nFirstVisible;
    void SetTruncatedForTest(bool bTruncated) { m_bTruncated = bTruncated; }
    // Appends tabs of the given widths that keep them when re-measured
    // (text "t<i>", i < 10).
    void AddWidths(std::initializer_list<int> widths) {
        for (int w : widths) {
            vu::String text(VU_T("t"));
            text.push_back(WCHAR(VU_T('0') + GetCount() % 10));
            view.fixed[text] = w - 17;
            InsertTab(FALSE, text.c_str(), nullptr, 0, w);
        }
    }
    CString Line1(int i) const { return GetTabRecord(i)->m_strLine1; }
    FakeTabView view;
};

} // namespace vutest

#pragma once
// VU_CTabTextWidthCache: remembers text widths per font (normal, bold) so
// that fitting tab texts again after a resize measures nothing new: the
// shortened forms of a text are the same every time. The owner clears it
// when its fonts change. It forgets everything once it holds kMaxEntries
// texts, so renaming tabs for a long session does not grow it without end.
#include "framework/Char.h"

#include <cstddef>
#include <functional>
#include <string_view>
#include <unordered_map>

class VU_CTabTextWidthCache {
public:
    static constexpr std::size_t kMaxEntries = 1 << 16;

    // The width of text in the bold or normal font: remembered, or found by
    // measure(text) and remembered.
    template <class Measure> int Get(vu::StringView text, bool bBold, Measure&& measure) {
        auto& widths = m_widths[bBold ? 1 : 0];
        auto found = widths.find(text);
        if (found != widths.end())
            return found->second;
        if (widths.size() >= kMaxEntries)
            widths.clear();
        int width = measure(text);
        widths.emplace(vu::String(text), width);
        return width;
    }
    void Clear() {
        m_widths[0].clear();
        m_widths[1].clear();
    }

private:
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(vu::StringView text) const {
            return std::hash<vu::StringView>()(text);
        }
    };
    std::unordered_map<vu::String, int, Hash, std::equal_to<>> m_widths[2];
};

#include "layout/LayoutTracks.h"

#include <cmath>
#include <numeric>

namespace vu::layout {

float EffectiveWeight(float weight) {
    return weight > 0.0f && std::isfinite(weight) ? weight : 1.0f;
}

void ShareSpare(std::vector<int>& extents, const std::vector<float>& weights, int spare) {
    if (spare <= 0)
        return;
    double total = 0;
    for (size_t i = 0; i < extents.size() && i < weights.size(); ++i)
        total += weights[i] > 0 ? weights[i] : 0;
    if (total <= 0)
        return;
    // Each share is the difference of two rounded running totals, so the
    // shares add up to exactly `spare` whatever the weights.
    double running = 0;
    int given = 0;
    for (size_t i = 0; i < extents.size() && i < weights.size(); ++i) {
        if (weights[i] <= 0)
            continue;
        running += weights[i];
        const int upTo = static_cast<int>(std::floor(spare * (running / total) + 0.5));
        extents[i] += upTo - given;
        given = upTo;
    }
}

int TrackStarts(const std::vector<int>& extents, int spacing, std::vector<int>& starts) {
    starts.resize(extents.size());
    int offset = 0;
    for (size_t i = 0; i < extents.size(); ++i) {
        if (i > 0)
            offset += spacing;
        starts[i] = offset;
        offset += extents[i];
    }
    return offset;
}

CSize Tracks::Required() const {
    const auto sum = [](const std::vector<int>& v, int spacing) {
        const int gaps = v.empty() ? 0 : spacing * static_cast<int>(v.size() - 1);
        return std::accumulate(v.begin(), v.end(), 0) + gaps;
    };
    return CSize(sum(widths, spacingX), sum(heights, spacingY));
}

void Tracks::Arrange(CSize room) {
    const CSize need = Required();
    ShareSpare(widths, columnFlex, room.cx - need.cx);
    ShareSpare(heights, rowFlex, room.cy - need.cy);
    TrackStarts(widths, spacingX, lefts);
    TrackStarts(heights, spacingY, tops);
}

} // namespace vu::layout

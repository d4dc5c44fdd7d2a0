#pragma once

// Dashes as runs of steps. A line or an arc counts its pixels from 0 at its start, and asks here which of a
// range are to be drawn, so that a part clipped away still counts.

#include "render/raster.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace mirtane {

// Lengths on, off, on, off, in pixels.
struct DashPattern {
    std::array<int, 6> runs;
    std::size_t count;
    int period;
};

inline constexpr std::array<DashPattern, 4> dashPatterns{{
    {{18, 6}, 2, 24},
    {{3, 3}, 2, 6},
    {{9, 6, 3, 6}, 4, 24},
    {{9, 3, 3, 3, 3, 3}, 6, 24},
}};

// Calls draw(first, count) for each run of pixels that is on among the steps first to last, first not
// negative.
template <class Draw> void forDashes(const Stroke& stroke, std::int64_t first, std::int64_t last, Draw draw)
{
    if (first > last) return;
    if (stroke.style < 1 || stroke.style > 4) {
        draw(first, last - first + 1);
        return;
    }
    const DashPattern& pattern =
        dashPatterns[static_cast<std::size_t>(stroke.style) - 1]; // 1 to 4, tested above
    std::int64_t start = first - first % (std::int64_t{pattern.period} * stroke.dashScale);
    for (std::size_t i = 0; start <= last; i = i + 1 == pattern.count ? 0 : i + 1) {
        const std::int64_t next = start + std::int64_t{pattern.runs[i]} * stroke.dashScale;
        const std::int64_t from = std::max(start, first);
        const std::int64_t to = std::min(next, last + 1);
        if (i % 2 == 0 && from < to) draw(from, to - from);
        start = next;
    }
}

} // namespace mirtane

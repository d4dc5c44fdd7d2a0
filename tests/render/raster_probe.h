#pragma once

#include "render/raster.h"

#include <set>
#include <utility>

namespace mirtane::probe {

inline constexpr std::uint32_t ink = 0xFF123456;
inline constexpr std::uint32_t paper = 0xFF000000;

using Pixels = std::set<std::pair<int, int>>;

// The pixels that are not background. Thousands of images are looked through, so this has no calls within.
inline Pixels inked(const Raster& image)
{
    Pixels found;
    const std::uint32_t* pixel = image.pixels().data();
    for (int y = 0, height = image.height(); y < height; ++y) {
        for (int x = 0, width = image.width(); x < width; ++x, ++pixel) {
            if (*pixel != paper) found.emplace(x, y);
        }
    }
    return found;
}

// Those of pixels that lie in a window of an image, counted from the window's corner.
inline Pixels through(const Pixels& pixels, const PixelRect& window)
{
    Pixels seen;
    for (const auto& [x, y] : pixels) {
        if (x < window.left || x >= window.right || y < window.top || y >= window.bottom) continue;
        seen.emplace(x - window.left, y - window.top);
    }
    return seen;
}

} // namespace mirtane::probe

// Ellipses that are small on the screen. So many chords are drawn as keep their corners and their middles
// within a third of a pixel of the curve: the corners stand as far outside as the middles lie inside.

#include "render/raster.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace mirtane {

namespace {

constexpr double mostAside = 1.0 / 3; // pixels
constexpr std::size_t leastHalfChords = 2;
constexpr std::size_t mostHalfChords = 16;

// The corners of half the unit circle, and the greatest half axis that they will do for.
struct Half {
    std::size_t chords = 0;
    double reach = 0;
    std::array<double, mostHalfChords + 1> cos{}, sin{};
};

Half halfOf(std::size_t chords)
{
    const double step = std::numbers::pi / static_cast<double>(chords); // a small number
    const double outside = 2 / (1 + std::cos(step / 2));
    Half half{chords, mostAside / (outside - 1)};
    for (std::size_t k = 0; k <= chords; ++k) {
        half.cos[k] = outside * std::cos(static_cast<double>(k) * step); // likewise
        half.sin[k] = outside * std::sin(static_cast<double>(k) * step);
    }
    return half;
}

using Halves = std::array<Half, mostHalfChords - leastHalfChords + 1>;

const Halves& halves()
{
    static const Halves all = [] {
        Halves made;
        for (std::size_t i = 0; i < made.size(); ++i) made[i] = halfOf(leastHalfChords + i);
        return made;
    }();
    return all;
}

PixelPoint cornerAt(PixelPoint centre, PixelPoint u, PixelPoint v, double cos, double sin)
{
    return {centre.x + cos * u.x + sin * v.x, centre.y + cos * u.y + sin * v.y};
}

} // namespace

bool Raster::smallEllipse(PixelPoint centre, PixelPoint u, PixelPoint v, const Stroke& stroke)
{
    const double square = std::max(u.x * u.x + u.y * u.y, v.x * v.x + v.y * v.y);
    const Halves& all = halves();
    const auto half =
        std::find_if(all.begin(), all.end(), [square](const Half& h) { return square <= h.reach * h.reach; });
    if (half == all.end()) return false;
    for (const double way : {1.0, -1.0}) {
        PixelPoint from = cornerAt(centre, u, v, way * half->cos[0], 0);
        for (std::size_t k = 1; k <= half->chords; ++k) {
            const PixelPoint to = cornerAt(centre, u, v, way * half->cos[k], way * half->sin[k]);
            line(from.x, from.y, to.x, to.y, stroke);
            from = to;
        }
    }
    return true;
}

} // namespace mirtane

#include "library/scan_lines.h"

#include <algorithm>
#include <cmath>

namespace mirtane {

Polygon polygonOf(std::span<const BoundaryLeg> legs)
{
    Polygon polygon;
    for (const auto& [from, to] : legs) {
        const double all = static_cast<double>(from.x) + from.y + to.x + to.y; // widened: no overflow
        if (std::isfinite(all)) polygon.push_back({{from.x, from.y}, {to.x, to.y}});
    }
    return polygon;
}

Polygon overDiagonal(const Polygon& polygon)
{
    Polygon turned;
    for (const Side& side : polygon) turned.push_back({{side.a.y, side.a.x}, {side.b.y, side.b.x}});
    return turned;
}

Extent extentInX(const Polygon& polygon)
{
    if (polygon.empty()) return {};
    Extent extent{polygon.front().a.x, polygon.front().a.x};
    for (const Side& side : polygon) {
        extent.low = std::min({extent.low, side.a.x, side.b.x});
        extent.high = std::max({extent.high, side.a.x, side.b.x});
    }
    return extent;
}

bool isInside(const Polygon& polygon, Place p)
{
    bool odd = false;
    for (const Side& side : polygon) {
        if (crosses(side, p.x) && crossingAt(side, p.x) > p.y) odd = !odd;
    }
    return odd;
}

void addSpans(const Polygon& polygon, double x, std::vector<Extent>& spans)
{
    std::vector<double> crossings;
    for (const Side& side : polygon) {
        if (crosses(side, x)) crossings.push_back(crossingAt(side, x));
        if (side.a.x == x && side.b.x == x)
            spans.push_back(Extent{std::min(side.a.y, side.b.y), std::max(side.a.y, side.b.y)});
    }
    std::ranges::sort(crossings);
    for (std::size_t i = 1; i < crossings.size(); i += 2) spans.push_back({crossings[i - 1], crossings[i]});
}

} // namespace mirtane

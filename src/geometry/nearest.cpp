#include "geometry/nearest.h"

#include "geometry/angle.h"
#include "geometry/fault.h"
#include "geometry/foot.h"

#include <array>
#include <cmath>
#include <limits>

namespace mirtane {
namespace {

constexpr int ellipseSamples = 180;

} // namespace

float reach(Point a, Point b)
{
    return static_cast<float>(distance(a, b)); // the narrowing is what this is for
}

bool isNearer(Point p, Point a, Point b)
{
    return reach(p, a) < reach(p, b);
}

std::optional<Point> nearestOnSegment(Point p, Point a, Point b)
{
    const Point foot = footOfPerpendicular(p, a, b, a);
    const float length = reach(a, b);
    if (!(reach(a, foot) <= length && reach(b, foot) <= length)) return std::nullopt;
    return foot;
}

Point nearestOnCircle(Point p, Point centre, float radius)
{
    const double dx = static_cast<double>(p.x) - centre.x; // widened before the differences
    const double dy = static_cast<double>(p.y) - centre.y;
    const double scale = quotient(radius, std::sqrt(dx * dx + dy * dy));
    Point nearest = centre;
    keep(nearest.x, centre.x + dx * scale);
    keep(nearest.y, centre.y + dy * scale);
    return nearest;
}

Point nearestOnEllipse(Point p, const Ellipse& e)
{
    static constexpr double step = fullTurn / ellipseSamples;
    Point nearest = e.centre;
    float least = std::numeric_limits<float>::infinity();
    for (int k = 0; k < ellipseSamples; ++k) {
        const Point sample = ellipsePoint(e, k * step);
        const float d = reach(p, sample);
        if (!(d <= least)) continue;
        nearest = sample;
        least = d;
    }
    return nearest;
}

} // namespace mirtane

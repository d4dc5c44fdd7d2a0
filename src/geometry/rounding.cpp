#include "geometry/rounding.h"

#include <algorithm>
#include <cmath>

namespace mirtane {
double largestCoordinate(Point p)
{
    return std::max(std::abs(p.x), std::abs(p.y));
}

double halfStepOf(double size)
{
    return size * 0x1p-24;
}

double apartByRounding(double size)
{
    return halfStepsInDoubt * halfStepOf(size);
}

bool areOnePoint(Point a, Point b)
{
    const double dx = static_cast<double>(b.x) - a.x; // widened before the differences
    const double dy = static_cast<double>(b.y) - a.y;
    return std::hypot(dx, dy) <= apartByRounding(std::max(largestCoordinate(a), largestCoordinate(b)));
}

} // namespace mirtane

#include "geometry/ellipse.h"

#include "geometry/fault.h"

#include <algorithm>
#include <cmath>

namespace mirtane {
namespace {

// Half the first axis, y up; widened before the differences, so that none is rounded.
struct HalfAxis {
    double x, y;
};

HalfAxis firstAxis(const Ellipse& e)
{
    return {static_cast<double>(e.axisEnd.x) - e.centre.x, static_cast<double>(e.centre.y) - e.axisEnd.y};
}

// The point at so many half axes along the first and across it, counter-clockwise.
Point at(const Ellipse& e, double along, double across)
{
    const HalfAxis axis = firstAxis(e);
    const double s = across * e.ratio;
    Point p = e.centre;
    keep(p.x, e.centre.x + along * axis.x - s * axis.y);
    keep(p.y, e.centre.y - along * axis.y - s * axis.x);
    return p;
}

} // namespace

Point ellipsePoint(const Ellipse& e, double theta)
{
    return at(e, std::cos(theta), std::sin(theta));
}

std::array<Point, 4> axisEnds(const Ellipse& e)
{
    return {e.axisEnd, at(e, -1, 0), at(e, 0, 1), at(e, 0, -1)};
}

HalfAxes halfAxes(const Ellipse& e)
{
    const HalfAxis axis = firstAxis(e);
    const double first = std::sqrt(axis.x * axis.x + axis.y * axis.y);
    const double second = first * std::abs(static_cast<double>(e.ratio)); // widened: the product is in double
    return {std::max(first, second), std::min(first, second)};
}

} // namespace mirtane

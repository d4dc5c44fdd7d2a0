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
ExactPoint at(const Ellipse& e, double along, double across)
{
    const HalfAxis axis = firstAxis(e);
    const double s = across * e.ratio;
    return {e.centre.x + along * axis.x - s * axis.y, e.centre.y - along * axis.y - s * axis.x};
}

Point narrowed(ExactPoint exact, Point otherwise)
{
    Point p = otherwise;
    keep(p.x, exact.x);
    keep(p.y, exact.y);
    return p;
}

} // namespace

Point ellipsePoint(const Ellipse& e, double theta)
{
    return narrowed(at(e, std::cos(theta), std::sin(theta)), e.centre);
}

std::array<ExactPoint, 4> exactAxisEnds(const Ellipse& e)
{
    return {ExactPoint{e.axisEnd.x, e.axisEnd.y}, at(e, -1, 0), at(e, 0, 1), at(e, 0, -1)};
}

std::array<Point, 4> axisEnds(const Ellipse& e)
{
    const std::array<ExactPoint, 4> exact = exactAxisEnds(e);
    return {e.axisEnd, narrowed(exact[1], e.centre), narrowed(exact[2], e.centre),
            narrowed(exact[3], e.centre)};
}

HalfAxes halfAxes(const Ellipse& e)
{
    const HalfAxis axis = firstAxis(e);
    const double first = std::sqrt(axis.x * axis.x + axis.y * axis.y);
    const double second = first * std::abs(static_cast<double>(e.ratio)); // widened: the product is in double
    return {std::max(first, second), std::min(first, second)};
}

} // namespace mirtane

#include "commands/linear_dimension_text.h"

#include "geometry/angle.h"
#include "geometry/fault.h"
#include "text/measure.h"

#include <utility>

namespace mirtane {
namespace {

// Between these two directions of the line, a little past straight up and straight down, its text would stand
// on its head.
constexpr double lastUpright = 1.5882596;
constexpr double firstUpright = 4.7298523;

constexpr double offLine = 1.5;    // sizes
constexpr double textShare = 0.75; // of the width as measured, which is what the text takes up

} // namespace

std::string lengthText(const Attributes& s, float length)
{
    const NumberDisplay display{numStyleOf(s.numStyle), s.dimTol, s.numComma == 1};
    return formatMeasure({length, display});
}

DimensionLabel labelOfLine(Point p3, Point p4, float size, float width)
{
    double angle = directionAngle(p4, p3, 0);
    Point from = p4;
    Point to = p3;
    if (angle >= lastUpright && angle <= firstUpright) {
        std::swap(from, to);
        angle += halfTurn;
        if (angle > fullTurn) angle -= fullTurn;
    }
    const double length = distance(from, to);
    double ux = 1;
    double uy = 0;
    keep(ux, quotient(to.x - from.x, length));
    keep(uy, quotient(from.y - to.y, length));
    const double along = length / 2 - width * textShare / 2;
    const double off = offLine * size;
    DimensionLabel label{from, angle * degreesPerRadian};
    keep(label.at.x, from.x + along * ux - off * uy);
    keep(label.at.y, from.y - along * uy - off * ux);
    return label;
}

} // namespace mirtane

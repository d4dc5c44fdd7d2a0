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

constexpr Way level{1, 0};

constexpr double offLine = 1.5;    // sizes
constexpr double textShare = 0.75; // of the width as measured, which is what the text takes up

DimensionLabel labelAt(double angle, Way way, Leg line, float size, float width)
{
    if (!way.isAny()) way = level;
    if (angle >= lastUpright && angle <= firstUpright) {
        std::swap(line.from, line.to);
        way = -way;
        angle += halfTurn;
        if (angle > fullTurn) angle -= fullTurn;
    }
    const double along = distance(line.from, line.to) / 2 - width * textShare / 2;
    const double off = offLine * size;
    DimensionLabel label{line.from, angle * degreesPerRadian};
    keep(label.at.x, line.from.x + along * way.x + off * way.y);
    keep(label.at.y, line.from.y + along * way.y - off * way.x);
    return label;
}

} // namespace

std::string lengthText(const Attributes& s, float length)
{
    const NumberDisplay display{numStyleOf(s.numStyle), s.dimTol, s.numComma == 1};
    return formatMeasure({length, display});
}

DimensionLabel labelOfLine(Point p3, Point p4, float size, float width)
{
    return labelAt(directionAngle(p4, p3, 0), wayBetween(p4, p3), {p4, p3}, size, width);
}

DimensionLabel labelAlong(Way way, Point p3, Point p4, float size, float width)
{
    Point ahead; // of length 1
    keep(ahead.x, way.x);
    keep(ahead.y, way.y);
    return labelAt(directionAngle({}, ahead, 0), way, {p4, p3}, size, width);
}

} // namespace mirtane

#pragma once

// What a linear dimension says, and where: when it is made, and again when it is stretched.

#include "model/session.h"

namespace mirtane {

// A length (world units) in the figures that the drawing is set to. Of dimensions, only feet and inches have
// a text that says there is nothing to measure: zeroLength.
std::string lengthText(const Attributes& s, float length);
inline constexpr std::string_view zeroLength = "0";

struct DimensionLabel {
    Point at;           // upper left corner of the text
    double degrees = 0; // that the text is turned by, counter-clockwise
};

// The label of a dimension line with the ends p3 and p4: over its middle, by one and a half sizes, reading
// along the line and upright. width is that of the text; size and width in world units. A line of no length
// counts as level.
DimensionLabel labelOfLine(Point p3, Point p4, float size, float width);

// The same of a line of which it is known how it runs, from p4 to p3: it may be short, and its ends are
// rounded. With no direction it counts as level.
DimensionLabel labelAlong(Way way, Point p3, Point p4, float size, float width);

} // namespace mirtane

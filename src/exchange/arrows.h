#pragma once

#include "exchange/drawing_maker.h"

namespace mirtane {

struct Arrow {
    double size = 0;
    std::string_view block; // the handle of what is drawn in place of the common arrow; empty for that
};

// Draws the arrow at the start of a record's line, whose first leg then begins at the arrow's foot. A leg too
// short for it has none.
void drawArrow(std::vector<Vec3>& line, const Arrow& arrow, DrawingMaker& maker);

// The line as it is seen.
std::vector<Vec> flatPoints(std::span<const Vec3> points, const DrawingMaker& maker);

} // namespace mirtane

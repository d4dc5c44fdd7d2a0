#pragma once

#include "geometry/point.h"

namespace mirtane {

// The level run behind the elbow of a leader or a radial dimension, and the text behind it. It goes to the
// right whichever side the elbow lies on.
struct Shoulder {
    Point end;
    Point text; // its upper left corner
};

// size is that of the arrows, world units. A coordinate that overflows stays the elbow's.
Shoulder shoulderAt(Point elbow, float size);

} // namespace mirtane

#pragma once

#include "exchange/bounds.h"
#include "tables/entity_record.h"

namespace mirtane {

// From a file's coordinates to those of the drawing.
struct Placing {
    double worldPerFile = 12;
    Vec move; // before, in the file's units
};

// What has to be added to what lies within the bounds so that 32 bits hold a hundredth of a unit of the
// drawing: nothing where they do so as it is, or would not near the origin either.
Vec moveToOrigin(const Bounds& bounds, double worldPerFile);

// Whether 32 bits hold all its places as the file says them.
bool isHeldAsItStands(const Made& made, double worldPerFile);

// The one place where what a file gave is turned, scaled and narrowed. The width of a text is left to who can
// measure it.
EntityRecord recordOf(const Made& made, const Placing& placing);

} // namespace mirtane

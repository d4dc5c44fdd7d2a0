#pragma once

#include "exchange/made.h"
#include "tables/entity_record.h"

namespace mirtane {

// From a file's coordinates to those of the drawing.
struct Placing {
    double worldPerFile = 12;
    Vec move; // before, in the file's units
};

// Whether 32 bits hold all its places as the file says them.
bool isHeldAsItStands(const Made& made, double worldPerFile);

// The one place where what a file gave is turned, scaled and narrowed. The width of a text is left to who can
// measure it.
EntityRecord recordOf(const Made& made, const Placing& placing);

} // namespace mirtane

#pragma once

#include "model/session.h"
#include "render/entity_bounds.h"

namespace mirtane {

// Brings the slots of a drawing just read from file units into world units, y down, and polyline segments
// into lines and arcs. A coordinate that overflows stays as it was read.
void convertDxfSlots(Session& s, const TextWidthOf& widthOf);

} // namespace mirtane

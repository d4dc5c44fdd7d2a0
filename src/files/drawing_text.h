#pragma once

// A drawing as text that two drawings are compared by: a line for each object, the same for the same object
// wherever it stands in the drawing, and in an order that no edit turns round.

#include "model/session.h"

#include <optional>
#include <string>

namespace mirtane {

// An object of kinds 1 to 10 with all that shows of it, in world units, y down; "" for another kind. No line
// end.
std::string objectText(const EntityRecord& r);

// The attributes, the names of layers, and the objects that are not "out", by layer and kind; only those of
// the layer, if there is one. UTF-8, lines ended by LF.
std::string drawingText(const Session& s, std::optional<std::int16_t> layer = {});

} // namespace mirtane

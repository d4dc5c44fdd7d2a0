#pragma once

#include "model/entity_store.h"
#include "render/entity_bounds.h"

namespace mirtane {

// Brings a text from file units into world units and finds where it stands: the file has the left end of its
// base line, a drawing the upper end of its justification. A value that can't be had stays as it was read.
void convertText(EntityStore& store, std::int32_t slot, const TextWidthOf& widthOf);

} // namespace mirtane

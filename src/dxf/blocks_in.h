#pragma once

#include "model/entity_store.h"

namespace mirtane {

// Adds the lines of its block to the drawing for each insert, at the insert's place, scale and rotation. The
// lines are in world units, the inserts still in file units. Past the table's end lines are counted and lost.
void placeDxfBlocks(EntityStore& store);

} // namespace mirtane

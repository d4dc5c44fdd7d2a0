#pragma once

#include "model/session.h"

namespace mirtane {

// A chain goes on: the leg that ends at pickLast is taken, and the next one starts from there. A distance
// that is typed before the pointer moves runs on in the leg's direction.
void goOnFromEnd(ScratchPoints& points);

} // namespace mirtane

#pragma once

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// The step of "Scale". The first click is the base; the routine runs at step 3, with the typed X and Y scale
// in editDX and editDY.
void editScale(Session& s, Canvas& pic1);

} // namespace mirtane

#pragma once

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// "Ellipse": the two ends of its first axis, and the end of the second, which ortho holds at right angles to
// the first whatever the user's own ortho setting.
void ellipseStep(Session& s, Canvas& pic1);
void ellipseBand(Session& s, Canvas& pic1);

} // namespace mirtane

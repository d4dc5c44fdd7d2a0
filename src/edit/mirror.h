#pragma once

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// The step of "Mirror Copy": copies of the selection on the other side of the line from the first click to
// the second. Texts still read forwards, which turns a level one upside down at a level line. By a
// line of no length nothing is made, and the selection is dropped.
void editMirror(Session& s, Canvas& pic1);

// Its band: the mirror line alone.
void mirrorBand(Session& s, Canvas& pic1);

} // namespace mirtane

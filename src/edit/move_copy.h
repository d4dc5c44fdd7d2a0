#pragma once

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// The steps of "Move" and "Copy". The second click tells the offset; each further click of "Copy" makes
// another copy at the same spacing, wherever it lies.
void editMove(Session& s, Canvas& pic1);
void editCopy(Session& s, Canvas& pic1);

// The band of both, at any step above 0: the way from the reference point to the pointer, and the selection
// at its end in the pen of rubber bands.
void drawSelectionGhost(Session& s, Canvas& pic1);

} // namespace mirtane

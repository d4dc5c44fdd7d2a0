#pragma once

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// "Move Dimension Text": a click near the text of a linear dimension, then one that leaves the text where the
// ghost last showed it. It slides along the dimension line, past its ends too. With no such text near, the
// function waits for another click.
void editMoveDimText(Session& s, Canvas& pic1);

// The dimension with its text as far from the old place as the pointer is, on the pointer's side.
void drawDimTextGhost(Session& s, Canvas& pic1);

} // namespace mirtane

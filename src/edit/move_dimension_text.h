#pragma once

#include "model/session.h"
#include "render/canvas.h"

#include <optional>

namespace mirtane {

// "Move Dimension Text": a click near the text of a linear dimension, then one that leaves the text where the
// ghost last showed it. It slides along the dimension line, past its ends too. With no such text near, the
// function waits for another click.
void editMoveDimText(Session& s, Canvas& pic1);

// The dimension with its text as far from the old place as the pointer is, on the pointer's side.
void drawDimTextGhost(Session& s, Canvas& pic1);

// From the old place to where the ghost shows it; none while no text is picked.
std::optional<Leg> wayOfDimText(const Session& s);

} // namespace mirtane

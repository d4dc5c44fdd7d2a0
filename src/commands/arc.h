#pragma once

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// "2pt. Arc": centre, radius and start, end. It runs the way that the pointer went round.
void arcTwoStep(Session& s, Canvas& pic1);
void arcTwoBand(Session& s, Canvas& pic1);

// "3pt. Arc": from the first point to the last by way of the second, by the three-point construction.
void arcThreeStep(Session& s, Canvas& pic1);
void arcThreeBand(Session& s, Canvas& pic1);

} // namespace mirtane

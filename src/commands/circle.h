#pragma once

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// "2pt. Circle": centre and a point at the radius.
void circleTwoStep(Session& s, Canvas& pic1);
void circleTwoBand(Session& s, Canvas& pic1);

// "3pt. Circle": by the three-point construction.
void circleThreeStep(Session& s, Canvas& pic1);
void circleThreeBand(Session& s, Canvas& pic1);

} // namespace mirtane

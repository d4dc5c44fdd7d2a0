#pragma once

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// "Ortho Angle Match" and "Text Rotation Match": read an angle from two clicks and return to baseFunc.
void orthoAngleMatchStep(Session& s, Canvas& pic1);
void textRotationMatchStep(Session& s, Canvas& pic1);
void matchBand(Session& s, Canvas& pic1);

// Degrees of a direction folded towards the horizontal, so that ortho lies along a line drawn either way:
// 45 stays, 135, 225 and 315 give 45 too, 350 gives 80.
double foldedDegrees(double degrees);

} // namespace mirtane

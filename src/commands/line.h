#pragma once

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// "Line": each line starts where the one before it ended, until a cancel.
void lineStep(Session& s, Canvas& pic1);
void lineBand(Session& s, Canvas& pic1);

// "Point": one click, one point.
void pointStep(Session& s, Canvas& pic1);

} // namespace mirtane

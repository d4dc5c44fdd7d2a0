#pragma once

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// The steps of "Rotate" and "Radial Copy". The first click is the centre; the routines run at step 3, with
// the typed numbers in editDegrees and, for "Radial Copy", radialCount, which counts the source object.
// Positive degrees run counter-clockwise.
void editRotate(Session& s, Canvas& pic1);
void editRadialCopy(Session& s, Canvas& pic1);

} // namespace mirtane

#pragma once

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// "Concentric Copy", called when its distance has been typed into offsetDistance (world units, negative
// inwards), never by a click: circles and arcs about the centres of the selected ones, the radius larger by
// the distance. Nothing keeps it above 0. Other kinds only lose the selection.
void editConcentric(Session& s, Canvas& pic1);

} // namespace mirtane

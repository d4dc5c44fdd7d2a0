#pragma once

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// The step of "Stretch": two clicks for a window, then a reference point and where it goes. The points of the
// selected objects that lie in the window, edges included, move along; the others stay. Circles, texts and
// angular dimensions move whole, by their centre, their place and their vertex, and so do ellipses whose
// centre is in the window. An arc runs through its three points anew; where they come to lie on one line it
// stays as it was. A linear dimension says its new length.
void editStretch(Session& s, Canvas& pic1);

// Its band: the window at step 1, the selection at the pointer at step 3.
void stretchBand(Session& s, Canvas& pic1);

} // namespace mirtane

#pragma once

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// workAngle has this value while the selection follows the pointer, so that it isn't also drawn in its old
// place.
inline constexpr double selectionFollowsPointer = 25;

// Takes the pixel factors of the view from the surface's scale and size.
void computePixelMapping(View& view, const Canvas& pic1);

// Copies the surface's scale into the four limits of the view.
void readViewLimits(View& view, const Canvas& pic1);

// The pen of rubber bands: white, dotted.
void setRubberBandPen(Canvas& pic1);

// Shows the clean picture again, and with it no rubber band.
void restorePicture(Canvas& pic1);

// The same from an empty surface, where a function starts or ends.
void resetPicture(Canvas& pic1);

// Repaints everything from the table, in slot order, and keeps the clean picture. Leaves the rubber-band pen.
// Does not refresh: callers do, so that several repaints show once.
void redrawAll(Session& s, Canvas& pic1);

// Every selected object comes back to "on", and all is repainted.
void deselectAll(Session& s, Canvas& pic1);

} // namespace mirtane

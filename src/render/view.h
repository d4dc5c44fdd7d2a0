#pragma once

#include "model/session.h"
#include "model/zoom_window.h"
#include "render/canvas.h"
#include "render/entity_bounds.h"

namespace mirtane {

// Width of an object's text by the surface's own measure, world units. Leaves the surface on that font.
TextWidthOf textWidthOn(Canvas& pic1);

// Shows all that is "on" or "sel", anchored at the upper left with a fortieth to spare. In an empty drawing
// it only refreshes.
void zoomAll(Session& s, Canvas& pic1);

// A tenth larger window; it drifts to the upper left. In an empty drawing it only refreshes.
void zoomOut(Session& s, Canvas& pic1);

// Zooms by a factor (above 1 in) about a point that stays where it is on the screen. A window that a float
// can't hold, or that has shrunk to nothing, leaves the view as it was.
void zoomAbout(Session& s, Canvas& pic1, Point fixed, double factor);

// Moves the window by parts of its width and height.
void pan(Session& s, Canvas& pic1, double widths, double heights);
// The same by world units.
void panBy(Session& s, Canvas& pic1, double dx, double dy);

// Zoom Window: started by its button, finished by the second corner, cancelled by a right click. It changes
// neither the function nor its step.
void zoomWindowStart(Session& s, Canvas& pic1);
void zoomWindowFinish(Session& s, Canvas& pic1);
void zoomWindowCancel(Session& s, Canvas& pic1);

// The box from the first corner of a window to the pointer, over the clean picture.
void drawWindowBox(const CanvasInput& s, Canvas& pic1);

// Puts the two corners of a window in order: the first the upper left.
void sortWindowCorners(CanvasInput& s);

} // namespace mirtane

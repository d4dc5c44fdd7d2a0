#pragma once

#include "geometry/point.h"
#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// The painters turn one object into operations of the surface, in the pen as set. They keep coordinates
// bounded at any zoom: a long line or a large circle is cut into pieces, and only pieces in view are drawn.
// An end on the view's edge counts as inside. Radii and lengths of 0, and numbers that fault, draw nothing.

// Whether a circle's box is not wholly beyond one side of the view.
bool circleInView(const View& view, Point centre, float r);

// For redraws and dimensions.
void paintLine(Canvas& pic1, const View& view, Point a, Point b);
void paintCircle(Canvas& pic1, const View& view, Point centre, float r);
void paintArc(Canvas& pic1, const View& view, Point centre, Point start, float r, double a1, double a2);
void paintEllipse(Canvas& pic1, const View& view, Point axisEnd, Point centre, float ratio);

// For an object that was just made; they change over to pieces at other sizes than those above.
void paintLineSegment(Canvas& pic1, const View& view, Point a, Point b);
void paintCircleImmediate(Canvas& pic1, const View& view, Point centre, float r);
void paintArcImmediate(Canvas& pic1, const View& view, Point centre, Point start, float r, double a1,
                       double a2);

} // namespace mirtane

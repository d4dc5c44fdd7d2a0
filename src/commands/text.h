#pragma once

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// "Place Text": a click says where, and what is then typed is shown there until Enter places it; the next
// line follows below. The band carries the text along once the first line is placed.
void placeTextStep(Session& s, Canvas& pic1);
void placeTextBand(Session& s, Canvas& pic1);

// The line as typed so far, at pickFirst by the current justification, over the picture as it stands.
void placeTextPreview(Session& s, Canvas& pic1);

// Enter: places the line, if there is one, and goes on to the next.
void placeTextLine(Session& s, Canvas& pic1);

// Where a line of text starts that was entered at a point; width in world units, rotation in degrees.
// justification 1 right, 2 centre, others left.
Point justifiedStart(Point entered, float width, double rotation, std::int16_t justification);

// The point one line further on, across the baseline, for letters of a size in world units. A rotation, in
// degrees, below 0 or from 360 on has no next line: the point itself comes back.
Point nextLine(Point p, float size, double rotation);

} // namespace mirtane

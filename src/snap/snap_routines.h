#pragma once

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// Each looks near mousePos and writes the point of the click under way. All but the first and the last look
// no further than a quarter of an inch on the screen; those two look as far as the view is wide. The ones
// that look for an object leave its slot in snapBestIndex, or -1, and its distance in snapRadius. An object
// at the very limit is none.
void snapPoint(Session& s, const Canvas& pic1);
void snapObject(Session& s, const Canvas& pic1);
void snapIntersection(Session& s, const Canvas& pic1); // the second object's slot in snapSecondIndex
void snapPercentage(Session& s, const Canvas& pic1);
void snapMidpoint(Session& s, const Canvas& pic1);

// These two only draw a line to its second end, and their point does not count as snapped.
void snapPerpendicular(Session& s, const Canvas& pic1);
void snapTangent(Session& s, const Canvas& pic1);

} // namespace mirtane

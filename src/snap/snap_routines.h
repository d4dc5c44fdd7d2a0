#pragma once

#include "model/session.h"
#include "render/canvas.h"

#include <optional>

namespace mirtane {

// Each looks near mousePos and writes the point of the click under way. All but the first and the last look
// no further than a quarter of an inch on the screen; those two look as far as the view is wide. The ones
// that look for an object leave its slot in snapBestIndex, or -1, and its distance in snapRadius. An object
// at the very limit is none. Each gives the slot of the object that its point was taken from, -1 where that
// is a leg of the boundary under way, and nothing where the click stays as it was or has nothing near.
using FoundSlot = std::optional<std::int32_t>;

FoundSlot snapPoint(Session& s, const Canvas& pic1);
FoundSlot snapObject(Session& s, const Canvas& pic1);
FoundSlot snapIntersection(Session& s, const Canvas& pic1); // the second object's slot in snapSecondIndex
FoundSlot snapPercentage(Session& s, const Canvas& pic1);
FoundSlot snapMidpoint(Session& s, const Canvas& pic1);

// These two only draw a line to its second end, and their point does not count as snapped.
FoundSlot snapPerpendicular(Session& s, const Canvas& pic1);
FoundSlot snapTangent(Session& s, const Canvas& pic1);

} // namespace mirtane

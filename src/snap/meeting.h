#pragma once

#include "model/entity_store.h"
#include "snap/snapped_point.h"

#include <optional>

namespace mirtane {

// Where two objects of the kinds line, circle and arc meet, lines endless and arcs whole circles; of two
// points the one nearer to the pointer. None where they miss each other, and none where two circles' points
// are equally near or one. Two lines are crossed by the heights of the second one's ends over the first,
// taken without their signs: right while the ends lie on either side of it, a point in between while they lie
// on one side. A shared end goes before.
std::optional<Point> meetingOfObjects(const EntityStore& store, std::int32_t first, std::int32_t second,
                                      Point pointer);

// Where a leg, endless both ways, meets the object under a snapped point: of two points of a circle or arc
// the one nearer to the leg's end; from the very centre, the one in the leg's direction. The snapped point
// itself for kinds other than line, circle and arc. None where the leg misses the object or both points are
// equally near.
std::optional<Point> meetingWithLeg(const EntityStore& store, std::int32_t slot, Point snapped,
                                    const KeptLeg& leg);

// The point at radius from centre in a direction; the centre where there is none.
Point pointTowards(Point centre, double radius, const Direction& along);

} // namespace mirtane

#pragma once

// Which part of a line or an arc stays when it is cut, or made longer, to a point: the part that holds its
// pick, the click in p5 by which the object was selected. "Trim" and "Fillet" ask here, of lines in two ways.

#include "geometry/crossing.h"
#include "tables/entity_record.h"

namespace mirtane {

bool isLineOrArc(Kind kind);

// Of the points of found (one at least) the one nearer to the given point. With both equally near, held comes
// back.
Point nearerCrossing(const Crossings& found, Point to, Point held);

// A new object with the colour, layer and style of like, a line or an arc.
EntityRecord lineLike(const EntityRecord& like, Point from, Point to);
// About centre, from a1 to a2 (radians, counter-clockwise); its start, end and middle follow.
EntityRecord arcLike(const EntityRecord& like, Point centre, float radius, double a1, double a2);

// In all that follows at is a point of the endless line or the whole circle, and a pick beside the line
// stands for its foot there.

// The line up to at if the pick lies between its start and at, with this share of the way to spare;
// otherwise from at on to its end.
EntityRecord trimmedLine(const EntityRecord& line, Point at, double toSpare);

// The line from at on to its end if at is nearer to its start than the pick is; up to at if it is further.
// With both equally far the ends are those of held, which is what stands in the slot to be written.
EntityRecord filletedLine(const EntityRecord& line, Point at, const EntityRecord& held);

// Of an arc that at divides, the part with the pick. An arc that does not reach at, or only just does, grows
// at the end that the pick is nearer to, counted along the turn; with both equally near the ends are those of
// held. An arc that grows all the way round is a circle.
EntityRecord cutArc(const EntityRecord& arc, Point at, const EntityRecord& held);

} // namespace mirtane

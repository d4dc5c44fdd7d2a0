#include "model/three_point_scratch.h"

#include "geometry/angle.h"
#include "geometry/arc.h"
#include "geometry/three_point.h"

namespace mirtane {

void markBisector(ScratchPoints& s)
{
    const BisectorMarkers markers = bisectorMarkers(s.ptA, s.ptB, {s.bisectorA, s.bisectorB});
    s.bisectorA = markers.a;
    s.bisectorB = markers.b;
}

ThirdPointSide constructCircle(ScratchPoints& s)
{
    ThreePointCircle held;
    held.centre = s.ptF;
    held.radius = s.workRadius;
    const ThreePointCircle found = threePointCircle(s.ptA, s.ptB, s.ptC, {s.bisectorA, s.bisectorB}, held);
    s.ptF = found.centre;
    s.ptD = found.chordMiddle;
    s.workRadius = found.radius;
    if (found.toMarkerA < found.toMarkerB) return ThirdPointSide::towardsA;
    if (found.toMarkerA > found.toMarkerB) return ThirdPointSide::towardsB;
    return ThirdPointSide::neither;
}

void constructArc(ScratchPoints& s)
{
    const ThirdPointSide side = constructCircle(s);
    s.arcAngleTwo = directionAngle(s.ptF, s.ptC, s.arcAngleTwo);
    s.arcAngleOne = directionAngle(s.ptF, s.ptA, s.arcAngleOne);
    if (side == ThirdPointSide::towardsA) {
        s.arcStart = s.arcAngleTwo;
        s.arcEnd = s.arcAngleOne;
    } else if (side == ThirdPointSide::towardsB) {
        s.arcStart = s.arcAngleOne;
        s.arcEnd = s.arcAngleTwo;
    }
}

void placeArcPoints(ScratchPoints& s, Point centre)
{
    s.ptA = centre;
    const ArcPoints points = arcPoints(centre, s.workRadius, s.arcStart, s.arcEnd);
    s.ptB = points.start;
    s.ptC = points.end;
    s.ptD = points.middle;
}

} // namespace mirtane

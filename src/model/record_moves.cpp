#include "model/record_moves.h"

#include "geometry/angle.h"
#include "geometry/arc.h"
#include "geometry/fault.h"

#include <cmath>

namespace mirtane {

void shift(EntityRecord& r, float dx, float dy)
{
    const KindRow* row = kindRow(r.kind);
    if (row == nullptr) return;
    mapPairs(r, row->moved, [dx, dy](Point p) {
        keep(p.x, static_cast<double>(p.x) + dx); // widened before the sum
        keep(p.y, static_cast<double>(p.y) + dy); // widened before the sum
        return p;
    });
}

double withinTurn(double radians)
{
    if (radians >= fullTurn) return radians - fullTurn;
    return radians < 0 ? radians + fullTurn : radians;
}

// A right angle in degrees becomes one that is only nearly so in radians; what is turned by it still lies on
// the axes, however far out it is.
double onAxis(double cosineOrSine)
{
    constexpr double nearly = 1e-7; // about what a 32-bit number can't tell from 0 beside 1
    return std::abs(cosineOrSine) < nearly ? 0 : cosineOrSine;
}

Turn::Turn(Point centre, double radians)
    : centre_(centre), radians_(radians), cos_(onAxis(std::cos(radians))), sin_(onAxis(std::sin(radians)))
{
}

Point Turn::of(Point p) const
{
    const double right = static_cast<double>(p.x) - centre_.x; // widened before the difference
    const double up = static_cast<double>(centre_.y) - p.y;    // widened before the difference
    keep(p.x, centre_.x + right * cos_ - up * sin_);
    keep(p.y, centre_.y - right * sin_ - up * cos_);
    return p;
}

void Turn::apply(EntityRecord& r) const
{
    const KindRow* row = kindRow(r.kind);
    if (row == nullptr) return;
    mapPairs(r, row->mapped, [this](Point p) { return of(p); });
    if (row->sweeps) {
        keep(r.a1, withinTurn(r.a1 + radians_));
        keep(r.a2, withinTurn(r.a2 + radians_));
    }
    if (row->rotation == nullptr) return;
    double& degrees = r.*row->rotation;
    keep(degrees, withinTurn(degrees * radiansPerDegree + radians_) * degreesPerRadian);
}

void placeArcPoints(EntityRecord& arc)
{
    const ArcPoints points = arcPoints(arc.p1, arc.rad, arc.a1, arc.a2);
    arc.p2 = points.start;
    arc.p3 = points.end;
    arc.p4 = points.middle;
}

} // namespace mirtane

#include "dxf/scratch.h"

#include "geometry/angle.h"
#include "geometry/fault.h"

namespace mirtane {

float lengthBetween(Point a, Point b)
{
    float stored = 0;
    keep(stored, distance(a, b));
    return stored;
}

Point directionBetween(DxfScratch& scratch, Point from, Point to)
{
    const float length = lengthBetween(from, to);
    keep(scratch.unit.x, quotientSingle(to.x - from.x, length));
    keep(scratch.unit.y, quotientSingle(to.y - from.y, length));
    return scratch.unit;
}

} // namespace mirtane

#include "geometry/way.h"

#include "geometry/angle.h"
#include "geometry/fault.h"

namespace mirtane {

Way wayBetween(Point from, Point to)
{
    const double length = distance(from, to);
    Way way;
    keep(way.x, quotient(to.x - from.x, length));
    keep(way.y, quotient(to.y - from.y, length));
    return way;
}

} // namespace mirtane

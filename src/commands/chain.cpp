#include "commands/chain.h"

namespace mirtane {

void goOnFromEnd(ScratchPoints& points)
{
    const Way way = wayBetween(points.pickFirst, points.pickLast);
    if (way.isAny()) points.lastWay = way;
    points.pickFirst = points.pickLast;
}

} // namespace mirtane

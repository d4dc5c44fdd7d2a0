#include "geometry/arc.h"

#include "geometry/angle.h"

namespace mirtane {

double sweep(double a1, double a2)
{
    const double s = a2 - a1;
    return s < 0 ? s + fullTurn : s;
}

double middleAngle(double a1, double a2)
{
    const double middle = sweep(a1, a2) / 2 + a1;
    return middle > fullTurn ? middle - fullTurn : middle;
}

} // namespace mirtane

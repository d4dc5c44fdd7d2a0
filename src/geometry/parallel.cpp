#include "geometry/parallel.h"

#include "geometry/fault.h"

#include <cmath>

namespace mirtane {

ParallelLine parallelTowards(Point a, Point b, Point towards, double distance)
{
    const double dx = static_cast<double>(b.x) - a.x; // widened before the differences
    const double dy = static_cast<double>(b.y) - a.y;
    const double length = std::sqrt(dx * dx + dy * dy);
    ParallelLine line{quotient(-dy, length), quotient(dx, length), 0};
    const double side = line.acrossX * (static_cast<double>(towards.x) - a.x) +
                        line.acrossY * (static_cast<double>(towards.y) - a.y);
    line.off = line.acrossX * a.x + line.acrossY * a.y;
    if (side > 0) line.off += distance;
    if (side < 0) line.off -= distance;
    return line;
}

Crossings crossParallels(const ParallelLine& a, const ParallelLine& b)
{
    // Two normals of one direction differ in their last digits when their lines differ in length.
    constexpr double asGoodAsParallel = 1e-12;
    const double lean = a.acrossX * b.acrossY - a.acrossY * b.acrossX;
    Crossings found;
    if (std::abs(lean) < asGoodAsParallel) return found;
    found.add(quotient(a.off * b.acrossY - b.off * a.acrossY, lean),
              quotient(b.off * a.acrossX - a.off * b.acrossX, lean));
    return found;
}

Crossings crossParallelCircle(const ParallelLine& line, Point centre, double radius)
{
    const double height = line.off - line.acrossX * centre.x - line.acrossY * centre.y;
    const double squared = radius * radius - height * height;
    Crossings found;
    if (!(squared >= 0)) return found;
    const double half = std::sqrt(squared);
    const double footX = centre.x + height * line.acrossX;
    const double footY = centre.y + height * line.acrossY;
    found.add(footX + half * line.acrossY, footY - half * line.acrossX);
    if (half > 0) found.add(footX - half * line.acrossY, footY + half * line.acrossX);
    return found;
}

} // namespace mirtane

#include "exchange/transform.h"

namespace mirtane {

Transform3 turned(double angle)
{
    const Vec way = wayAt(angle);
    return {{way.x, way.y, 0}, {-way.y, way.x, 0}, {0, 0, 1}, {}};
}

// Close to the z axis the x axis lies across y, elsewhere across z: all programs agree on that limit.
Transform3 planeOfNormal(Vec3 normal)
{
    constexpr double nearZ = 1.0 / 64;
    const double size = length(normal);
    if (!(size > 0) || !std::isfinite(size)) return {};
    const Vec3 n = 1 / size * normal;
    const bool alongZ = std::abs(n.x) < nearZ && std::abs(n.y) < nearZ;
    const Vec3 across = cross(alongZ ? Vec3{0, 1, 0} : Vec3{0, 0, 1}, n);
    const Vec3 x = 1 / length(across) * across;
    return {x, cross(n, x), n, {}};
}

} // namespace mirtane

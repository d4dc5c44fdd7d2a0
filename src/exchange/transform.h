#pragma once

// Where things of a block, or of a plane in space, come to stand in the drawing, which is seen from above.

#include "exchange/vec.h"

namespace mirtane {

// Of a plane onto the drawing: a point p goes to p.x * x + p.y * y + origin.
struct Transform2 {
    Vec x{1, 0}, y{0, 1}, origin{};

    constexpr Vec way(Vec v) const { return v.x * x + v.y * y; }
    constexpr Vec operator()(Vec p) const { return way(p) + origin; }
    constexpr bool mirrors() const { return cross(x, y) < 0; }

    friend bool operator==(const Transform2&, const Transform2&) = default;
};

// first, and then second.
constexpr Transform2 then(const Transform2& first, const Transform2& second)
{
    return {second.way(first.x), second.way(first.y), second(first.origin)};
}

// The same of space.
struct Transform3 {
    Vec3 x{1, 0, 0}, y{0, 1, 0}, z{0, 0, 1}, origin{};

    constexpr Vec3 way(Vec3 v) const { return v.x * x + v.y * y + v.z * z; }
    constexpr Vec3 operator()(Vec3 p) const { return way(p) + origin; }
};

constexpr Transform3 then(const Transform3& first, const Transform3& second)
{
    return {second.way(first.x), second.way(first.y), second.way(first.z), second(first.origin)};
}

constexpr Transform3 moved(Vec3 by)
{
    return {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}, by};
}

// Counter-clockwise about z, radians.
Transform3 turned(double angle);

// The axes that the file format gives a plane by its normal alone. One that is no direction is as (0, 0, 1).
Transform3 planeOfNormal(Vec3 normal);

// The plane at height z, seen from above.
constexpr Transform2 seenFromAbove(const Transform3& t, double z)
{
    const Vec3 origin = t({0, 0, z});
    return {{t.x.x, t.x.y}, {t.y.x, t.y.y}, {origin.x, origin.y}};
}

} // namespace mirtane

#pragma once

// Points and ways of a DXF file: its own units, y up, as exact as the file gives them.

#include <cmath>
#include <numbers>

namespace mirtane {

// Not the short literals that angles of drawings are computed with: a file of others is as exact as it says.
inline constexpr double exactRadiansPerDegree = std::numbers::pi / 180;
inline constexpr double wholeTurn = 2 * std::numbers::pi; // radians
inline constexpr double worldPerInch = 12;

struct Vec {
    double x = 0, y = 0;

    friend bool operator==(const Vec&, const Vec&) = default;
};

constexpr Vec operator+(Vec a, Vec b)
{
    return {a.x + b.x, a.y + b.y};
}
constexpr Vec operator-(Vec a, Vec b)
{
    return {a.x - b.x, a.y - b.y};
}
constexpr Vec operator-(Vec a)
{
    return {-a.x, -a.y};
}
constexpr Vec operator*(double k, Vec a)
{
    return {k * a.x, k * a.y};
}
constexpr double dot(Vec a, Vec b)
{
    return a.x * b.x + a.y * b.y;
}
// Above 0 where b lies counter-clockwise of a.
constexpr double cross(Vec a, Vec b)
{
    return a.x * b.y - a.y * b.x;
}
// A quarter turn counter-clockwise.
constexpr Vec turnedLeft(Vec a)
{
    return {-a.y, a.x};
}
inline double length(Vec a)
{
    return std::hypot(a.x, a.y);
}
inline double directionOf(Vec a)
{
    return std::atan2(a.y, a.x);
}
inline Vec wayAt(double angle)
{
    return {std::cos(angle), std::sin(angle)};
}
inline bool isFinite(Vec a)
{
    return std::isfinite(a.x) && std::isfinite(a.y);
}

struct Vec3 {
    double x = 0, y = 0, z = 0;

    friend bool operator==(const Vec3&, const Vec3&) = default;
};

constexpr Vec3 operator+(Vec3 a, Vec3 b)
{
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
constexpr Vec3 operator-(Vec3 a, Vec3 b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
constexpr Vec3 operator*(double k, Vec3 a)
{
    return {k * a.x, k * a.y, k * a.z};
}
constexpr Vec3 cross(Vec3 a, Vec3 b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
inline double length(Vec3 a)
{
    return std::hypot(a.x, a.y, a.z);
}

} // namespace mirtane

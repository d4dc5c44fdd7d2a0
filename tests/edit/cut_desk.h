#pragma once

// Lines, circles and arcs as the edits that cut them meet them: each with the point that it was picked at.

#include "edit_desk.h"

#include "geometry/arc.h"

#include <random>

namespace mirtane::fake {

inline constexpr double degree = 3.14159265358979 / 180; // radians

inline EntityRecord lineFrom(Point from, Point to, Point pick = {})
{
    EntityRecord r = green(line(from, to));
    r.p5 = pick;
    return r;
}

inline EntityRecord circleAt(Point centre, float radius)
{
    return green(circle(centre, radius));
}

inline EntityRecord arcOf(Point centre, float radius, double a1, double a2) // radians
{
    return green(arc(centre, radius, a1, a2));
}

// Degrees; picked at the third of them.
inline EntityRecord arcAt(Point centre, float radius, double from, double to, double pick = 0)
{
    EntityRecord r = arcOf(centre, radius, from * degree, to * degree);
    r.p5 = polarPoint(centre, radius, pick * degree);
    return r;
}

// Back to an empty drawing whose slots hold nothing: cheaper than a new desk.
inline void emptyDrawing(EditDesk& desk)
{
    for (std::int32_t i = 1; i <= desk.s.store.entCount; ++i) desk.s.store.setRecord(i, {});
    desk.s.store.entCount = 1;
    clearRecords(desk.s.log);
}

inline void expectDegrees(double radians, double degrees, const std::string& what)
{
    EXPECT_NEAR(std::remainder(radians / degree - degrees, 360), 0, 0.01) << what;
}

// An arc by its degrees, with its points where they belong.
inline void expectArc(const EntityRecord& r, Point centre, double radius, double from, double to,
                      const std::string& what)
{
    EXPECT_EQ(r.kind, Kind::arc) << what;
    expectNear(r.p1, centre, 1e-3, what + " centre");
    EXPECT_NEAR(r.rad, radius, 1e-3) << what;
    expectDegrees(r.a1, from, what + " a1");
    expectDegrees(r.a2, to, what + " a2");
    expectNear(r.p2, polarPoint(r.p1, r.rad, r.a1), 0.01, what + " start");
    expectNear(r.p3, polarPoint(r.p1, r.rad, r.a2), 0.01, what + " end");
    expectNear(r.p4, polarPoint(r.p1, r.rad, middleAngle(r.a1, r.a2)), 0.01, what + " middle");
}

inline void expectLine(const EntityRecord& r, Point from, Point to, const std::string& what)
{
    EXPECT_EQ(r.kind, Kind::line) << what;
    expectNear(r.p1, from, 1e-3, what + " start");
    expectNear(r.p2, to, 1e-3, what + " end");
}

inline void expectLooks(const EntityRecord& r, const std::string& what)
{
    const EntityRecord like = green(line({}, {}));
    EXPECT_EQ(r.color, like.color) << what;
    EXPECT_EQ(r.layer, like.layer) << what;
    EXPECT_EQ(r.style, like.style) << what;
}

// Numbers thrown at random, the same at each run.
class Throws {
  public:
    explicit Throws(std::uint32_t seed) : engine_(seed) {}

    double between(double low, double high)
    {
        const auto thrown = static_cast<double>(engine_()); // of 32 bits: exact
        return low + (high - low) * thrown / 4294967296.0;
    }
    float length(double low, double high) { return static_cast<float>(between(low, high)); } // 32-bit, as all
    Point point()
    {
        const float x = length(-500, 500);
        return {x, length(-300, 300)};
    }
    EntityRecord line()
    {
        const Point from = point();
        return lineFrom(from, point());
    }
    EntityRecord arc(double least = 20)
    {
        const Point centre = point();
        const float radius = length(least, 250);
        const double a1 = between(0, 6.28);
        return arcOf(centre, radius, a1, between(0, 6.28));
    }
    EntityRecord circle()
    {
        const Point centre = point();
        return circleAt(centre, length(20, 250));
    }

  private:
    std::mt19937 engine_;
};

// The point at a share of the way from the object's start to its end.
inline Point pointOn(const EntityRecord& r, double share)
{
    if (r.kind == Kind::line) {
        return {static_cast<float>(r.p1.x + share * (r.p2.x - r.p1.x)), // coordinates are 32-bit
                static_cast<float>(r.p1.y + share * (r.p2.y - r.p1.y))};
    }
    const double whole = r.kind == Kind::circle ? fullTurn : sweep(r.a1, r.a2);
    const double from = r.kind == Kind::circle ? 0 : r.a1;
    return polarPoint(r.p1, r.rad, std::fmod(from + share * whole, fullTurn));
}

// How far p is from the endless line or the whole circle.
inline double offFigure(const EntityRecord& r, Point p)
{
    if (r.kind != Kind::line) return std::abs(std::hypot(p.x - r.p1.x, p.y - r.p1.y) - std::abs(r.rad));
    const double dx = r.p2.x - r.p1.x;
    const double dy = r.p2.y - r.p1.y;
    return std::abs(dx * (p.y - r.p1.y) - dy * (p.x - r.p1.x)) / std::hypot(dx, dy);
}

// How far p is from the object itself, which may end.
inline double offObject(const EntityRecord& r, Point p)
{
    const double toEnds = r.kind == Kind::line ? std::min(distance(p, r.p1), distance(p, r.p2))
                                               : std::min(distance(p, r.p2), distance(p, r.p3));
    bool between = true;
    if (r.kind == Kind::line) {
        const double along = (p.x - r.p1.x) * (r.p2.x - r.p1.x) + (p.y - r.p1.y) * (r.p2.y - r.p1.y);
        between = along >= 0 && along <= std::pow(distance(r.p1, r.p2), 2);
    } else if (r.kind == Kind::arc) {
        between = sweep(r.a1, directionAngle(r.p1, p, 0)) <= sweep(r.a1, r.a2);
    }
    return between ? offFigure(r, p) : toEnds;
}

} // namespace mirtane::fake

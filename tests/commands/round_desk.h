#pragma once

// For the tests of circles, arcs, ellipses and curves: a desk whose ortho is on or off, the shape that a band
// shows and the one that a click paints, and whether a stored arc is whole.

#include "desk.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace mirtane::fake {

// Turns, radians, as the ortho angle has them.
inline constexpr double quarter = 1.5707963;
inline constexpr double half = 3.1415927;
inline constexpr double threeQuarters = 4.712389;

inline constexpr double startDegrees[] = {0, 20, 45, 90, 110, 135, 180, 200, 225, 270, 290, 315, 340};

enum class OrthoToggle { on, off };

// Sets the toggle and starts the function over.
inline void start(Desk& desk, ControlId function, OrthoToggle ortho = OrthoToggle::off)
{
    const std::string_view wanted = ortho == OrthoToggle::on ? "Ortho/On" : "Ortho/Off";
    if (desk.caption("freecurs"_c) != wanted) desk.press("freecurs"_c);
    desk.press(function);
}

inline void clickAt(Desk& desk, Point p)
{
    desk.click(p.x, p.y);
}

inline void moveTo(Desk& desk, Point p)
{
    desk.move(p.x, p.y);
}

inline void downAt(Desk& desk, Point p)
{
    desk.down(1, p.x, p.y);
}

// What the last move or click drew behind the last clean picture, the operations of one kind alone.
inline Ops shown(Desk& desk, const std::string& name)
{
    return only(desk.ops(), name);
}

inline EntityRecord lastSlot(const Desk& desk)
{
    return desk.slot(desk.s.store.entCount - 1);
}

inline double away(Point a, Point b)
{
    return std::hypot(static_cast<double>(a.x) - b.x, static_cast<double>(a.y) - b.y); // rounds nothing
}

// As far as 32 bits hold a point at that place or at that radius.
inline double rounding(Point at, double r)
{
    return 2.5e-7 * (std::abs(at.x) + std::abs(at.y) + r) + 1e-6;
}

// The direction of b from a with full digits, 0 to a full turn, counter-clockwise on the screen.
inline double heading(Point a, Point b)
{
    const double angle =
        std::atan2(static_cast<double>(a.y) - b.y, static_cast<double>(b.x) - a.x); // as above
    return angle < 0 ? angle + 2 * std::numbers::pi : angle;
}

// How far b lies ahead of a, from 0 to a full turn.
inline double ahead(double a, double b)
{
    const double turn = 2 * std::numbers::pi;
    const double rest = std::fmod(b - a, turn);
    return rest < 0 ? rest + turn : rest;
}

inline double turnedBetween(double a, double b)
{
    return std::abs(std::remainder(b - a, 2 * std::numbers::pi));
}

// The point on a circle with full digits.
inline Point onCircle(Point centre, double r, double degrees)
{
    const double a = degrees / 180 * std::numbers::pi;
    return {static_cast<float>(centre.x + r * std::cos(a)), // to the precision of a click
            static_cast<float>(centre.y - r * std::sin(a))};
}

// An arc's slot: its ends and its middle lie on its circle at its angles, the middle half way from the start
// to the end counter-clockwise, all angles from 0 to a full turn.
inline void expectWholeArc(const EntityRecord& r, const std::string& what = "")
{
    ASSERT_EQ(r.kind, Kind::arc) << what;
    constexpr double turn = 6.2831853;
    for (const double a : {r.a1, r.a2}) {
        EXPECT_GE(a, 0) << what;
        EXPECT_LE(a, turn) << what;
    }
    const double slack = rounding(r.p1, r.rad);
    for (const Point p : {r.p2, r.p3, r.p4}) EXPECT_NEAR(away(r.p1, p), r.rad, slack) << what;
    if (r.rad < 100 * slack) return; // too small to have directions in 32 bits
    const double spread = slack / r.rad + 1e-6;
    EXPECT_LT(turnedBetween(r.a1, heading(r.p1, r.p2)), spread) << what;
    EXPECT_LT(turnedBetween(r.a2, heading(r.p1, r.p3)), spread) << what;
    const double sweep = r.a2 < r.a1 ? r.a2 - r.a1 + turn : r.a2 - r.a1;
    EXPECT_LT(turnedBetween(r.a1 + sweep / 2, heading(r.p1, r.p4)), spread) << what;
}

// An arc known beforehand, from one direction counter-clockwise to another.
inline void expectArc(const EntityRecord& r, Point centre, double rad, double fromDegrees, double toDegrees,
                      double slack, const std::string& what)
{
    expectWholeArc(r, what);
    EXPECT_LT(away(r.p1, centre), slack) << what;
    EXPECT_NEAR(r.rad, rad, slack) << what;
    const double degree = std::numbers::pi / 180;
    EXPECT_LT(turnedBetween(r.a1, fromDegrees * degree), 2 * slack / rad + 1e-6) << what;
    EXPECT_LT(turnedBetween(r.a2, toDegrees * degree), 2 * slack / rad + 1e-6) << what;
}

// Before its clean picture is kept, a finished object is painted over the one before in its own pen; the pen
// of bands comes back behind it.
inline void expectCommit(const Ops& ops, const Ops& ownPen, const std::string& first)
{
    Ops wanted = ownPen;
    wanted.insert(wanted.end(), {"restoreSnapshot", first, "snapshot", "setStyle 2"});
    auto at = ops.begin();
    for (const std::string& op : wanted) {
        at = std::find(at, ops.end(), op);
        EXPECT_NE(at, ops.end()) << op;
        if (at == ops.end()) return;
        ++at;
    }
    const Ops colors = only(ops, "setColor");
    ASSERT_FALSE(colors.empty());
    EXPECT_EQ(colors.back(), "setColor 16777215");
}

} // namespace mirtane::fake

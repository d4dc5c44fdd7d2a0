#include "geometry/arc.h"

#include "geometry/angle.h"

#include <cmath>
#include <numbers>

namespace mirtane {
namespace {

constexpr double hundredth = 0.01;

} // namespace

double sweep(double a1, double a2)
{
    const double s = a2 - a1;
    return s < 0 ? s + fullTurn : s;
}

double sweepSeen(double a1, double a2)
{
    constexpr double turn = 2 * std::numbers::pi;
    constexpr double rounding = 1e-5; // of a turn in degrees, and of what was turned since
    const double s = a2 - a1;
    if (s >= 0 && s < turn) return s; // nearly all are, and the remainder is slow
    if (s >= turn && s <= turn + rounding) return turn;
    const double rest = std::fmod(s, turn);
    return rest < 0 ? rest + turn : rest;
}

double middleAngle(double a1, double a2)
{
    const double middle = sweep(a1, a2) / 2 + a1;
    return middle > fullTurn ? middle - fullTurn : middle;
}

ArcPoints arcPoints(Point centre, float radius, double a1, double a2)
{
    const double middle = middleAngle(a1, a2);
    return {polarPoint(centre, radius, a1), polarPoint(centre, radius, a2),
            polarPoint(centre, radius, middle == fullTurn ? 0 : middle)};
}

bool onSweep(double angle, double a1, double a2)
{
    // Off the arc the two parts come to a full turn more than the whole. The hundredth takes up their
    // rounding.
    return sweep(a1, angle) + sweep(angle, a2) <= sweep(a1, a2) * (1 + hundredth);
}

bool onSweepOrJustBeyond(double angle, double a1, double a2)
{
    const double room = sweep(a1, a2) * hundredth;
    return onSweep(angle, a1, a2) || sweep(angle, a1) <= room || sweep(a2, angle) <= room;
}

} // namespace mirtane

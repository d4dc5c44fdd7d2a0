#include "commands/arc.h"

#include "commands/commit.h"
#include "commands/prompt.h"
#include "geometry/angle.h"
#include "geometry/direction.h"
#include "geometry/fault.h"
#include "model/three_point_scratch.h"
#include "render/redraw.h"

#include <algorithm>
#include <cmath>

namespace mirtane {
namespace {

void takeFirstPoint(Session& s, Canvas& pic1)
{
    setPrompt(s, pic1);
    s.ptA = s.pickFirst;
    s.ptB = s.pickFirst;
}

void takeRadiusPoint(Session& s, Canvas& pic1)
{
    setPrompt(s, pic1);
    s.arcWinding = 0;
    s.pickFirst = s.ptA; // the centre stays the origin of ortho
    s.ptB = s.pickLast;
    keep(s.workRadius, distance(s.ptA, s.ptB));
    s.ptC = s.ptB;
    s.arcAngleOne = directionAngle(s.ptA, s.ptB, s.arcAngleOne);
    s.arcStart = s.arcAngleOne;
    s.arcEnd = s.arcAngleOne;
}

// Where the pointer is about the centre, and what the rounding of its place makes of that. Radians.
struct Bearing {
    double angle, noise;
};

// Near the centre and far from the origin the noise is more than a little.
Bearing bearingOf(Point centre, Point pointer, double angle)
{
    constexpr double halfStepsOfAPlace = 1.5; // half a step level and half a step upright
    Bearing bearing{angle, 0};
    keep(bearing.noise, halfStepsOfAPlace * directionOf(centre, pointer).rounding);
    return bearing;
}

// Along one axis of ortho the directions differ by their rounding: they are one, also over angle 0.
bool areOne(Bearing a, Bearing b)
{
    constexpr double oneAngle = 1e-6;
    const double apart = std::abs(a.angle - b.angle);
    const double within = std::max(oneAngle, a.noise + b.noise);
    return apart <= within || apart >= fullTurn - within;
}

double fromZero(Bearing bearing)
{
    return areOne(bearing, {0, 0}) ? 0 : bearing.angle;
}

int turnBetween(Bearing last, Bearing now)
{
    if (areOne(last, now)) return 0;
    return fromZero(now) > fromZero(last) ? 1 : -1;
}

// From one axis of ortho to the next the shorter way counts, over angle 0 too: of so few turns the sum would
// not make good a wrong one. To the opposite axis no way is the shorter one.
int turnBetweenAxes(Bearing last, Bearing now)
{
    const double shorter = std::remainder(now.angle - last.angle, fullTurn);
    const bool isQuarter = std::abs(shorter) > eighthTurn && std::abs(shorter) < threeEighthsTurn;
    if (!isQuarter) return turnBetween(last, now);
    return shorter > 0 ? 1 : -1;
}

// Counts the way that the pointer goes round the centre, from the place in ptC, which it takes. arcLastAngle
// is what the last move left, also of an arc before this one; without ortho a crossing of angle 0 counts the
// wrong way, and the sum over the whole way decides.
void wind(Session& s)
{
    const Bearing last = bearingOf(s.ptA, s.ptC, s.arcLastAngle);
    s.ptC = s.pickLast;
    s.arcAngleTwo = directionAngle(s.ptA, s.ptC, s.arcAngleTwo);
    const Bearing now = bearingOf(s.ptA, s.ptC, s.arcAngleTwo);
    const int turn = orthoIsOn(s.controls) ? turnBetweenAxes(last, now) : turnBetween(last, now);
    keep(s.arcWinding, s.arcWinding + turn);
    s.arcLastAngle = s.arcAngleTwo;
    // Under ortho a turn is one count, and the first one, from what an earlier arc left, may cancel it: then
    // the last turn tells the way, as an arc without one would not be seen.
    const bool isSeen = !areOne({s.arcStart, now.noise}, {s.arcEnd, now.noise});
    const int way = s.arcWinding == 0 && !isSeen ? turn : s.arcWinding;
    // On the radius point's axis the rounding would make a whole circle of nothing.
    const Bearing one = bearingOf(s.ptA, s.ptB, s.arcAngleOne);
    const double two = areOne(one, now) ? s.arcAngleOne : s.arcAngleTwo;
    if (way > 0) {
        s.arcStart = s.arcAngleOne;
        s.arcEnd = two;
    } else if (way < 0) {
        s.arcStart = two;
        s.arcEnd = s.arcAngleOne;
    }
}

void commitArc(Session& s, Canvas& pic1, Point centre)
{
    placeArcPoints(s, centre);
    commitEntity(s, pic1, addArc, paintScratchArc);
    readyForNext(s, pic1);
}

} // namespace

void arcTwoStep(Session& s, Canvas& pic1)
{
    if (s.stepNo == 1) takeFirstPoint(s, pic1);
    if (s.stepNo == 2) takeRadiusPoint(s, pic1);
    if (s.stepNo != 3) return;
    wind(s);
    commitArc(s, pic1, s.ptA);
}

void arcTwoBand(Session& s, Canvas& pic1)
{
    if (s.stepNo == 1) {
        s.ptB = s.pickLast;
        restorePicture(pic1);
        pic1.line(s.pickFirst.x, s.pickFirst.y, s.ptB.x, s.ptB.y);
    } else if (s.stepNo == 2) {
        wind(s);
        restorePicture(pic1);
        pic1.line(s.ptA.x, s.ptA.y, s.ptC.x, s.ptC.y);
        pic1.arc(s.ptA.x, s.ptA.y, s.workRadius, s.arcStart, s.arcEnd);
    }
}

void arcThreeStep(Session& s, Canvas& pic1)
{
    if (s.stepNo == 1) takeFirstPoint(s, pic1);
    if (s.stepNo == 2) {
        setPrompt(s, pic1);
        s.workRadius = 0;
        s.arcWinding = 0;
        s.arcStart = s.arcEnd;
        s.ptB = s.pickLast;
        s.ptC = s.pickLast;
        s.ptD = s.pickLast;
        markBisector(s);
    }
    if (s.stepNo != 3) return;
    s.ptC = s.pickLast;
    constructArc(s);
    commitArc(s, pic1, s.ptF);
}

void arcThreeBand(Session& s, Canvas& pic1)
{
    if (s.stepNo == 1) {
        s.ptB = s.pickLast;
        restorePicture(pic1);
        pic1.line(s.ptA.x, s.ptA.y, s.ptB.x, s.ptB.y);
    } else if (s.stepNo == 2) {
        s.ptC = s.pickLast;
        constructArc(s);
        restorePicture(pic1);
        pic1.line(s.ptB.x, s.ptB.y, s.ptC.x, s.ptC.y);
        pic1.arc(s.ptF.x, s.ptF.y, s.workRadius, s.arcStart, s.arcEnd);
    }
}

} // namespace mirtane

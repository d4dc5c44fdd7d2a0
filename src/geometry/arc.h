#pragma once

#include "geometry/point.h"

// Arcs run counter-clockwise on the screen from a1 to a2 (radians, 0 to a full turn). a2 below a1 means that
// the arc passes through angle 0; there is no direction flag.

namespace mirtane {

// The angle that the arc covers, 0 to a full turn.
double sweep(double a1, double a2);

// What is seen of an arc, 0 to a whole turn. One that is more than a turn by no more than the rounding of
// angles that were sums of short literals is the whole turn, and not the little that is left of it.
double sweepSeen(double a1, double a2);

// The direction of the arc's middle, 0 to a full turn.
double middleAngle(double a1, double a2);

// The points of an arc that an object keeps beside its angles. A middle at a full turn lies exactly on the
// axis, as one at 0 does.
struct ArcPoints {
    Point start, end, middle;
};
ArcPoints arcPoints(Point centre, float radius, double a1, double a2);

// Whether angle (radians, 0 to a full turn) lies on the arc, its ends included.
bool onSweep(double angle, double a1, double a2);

// The same, and also a hundredth of the sweep before the start and behind the end, so that a click on the
// very end hits it.
bool onSweepOrJustBeyond(double angle, double a1, double a2);

} // namespace mirtane

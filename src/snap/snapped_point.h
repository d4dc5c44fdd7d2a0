#pragma once

// Where the point that a snap found goes: into the click under way, which is a point of the construction line
// while one is drawn, and otherwise pickFirst at step 1 and pickLast above it. Whatever is written sets
// pointWasSnapped.

#include "geometry/direction.h"
#include "model/session.h"

#include <optional>

namespace mirtane {

bool drawsConstructionLine(const FunctionState& s);

// A leg that ortho has turned, and where it runs: along the axis itself, however short it is.
struct KeptLeg {
    Point from, to;
    Direction along;
};

// The leg that Snap Point and Snap Midpoint keep to: they give the foot of their point on it. None while
// ortho is off, and for functions that take the point itself.
std::optional<KeptLeg> legKeptByPoint(const Session& s);

// The leg that Snap Object follows to the object. Other functions than above take the point itself.
std::optional<KeptLeg> legKeptByObject(const Session& s);

// The direction of the leg of the click under way, which ortho may have turned.
Direction directionOfLeg(const Session& s);

// Writes a point as it is. At step 0 there is no click to write to.
void writeSnapped(Session& s, Point p);

} // namespace mirtane

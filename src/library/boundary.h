#pragma once

// The polygon that "Place Hatch" and "Measure Area" take, corner by corner. A click on exactly the first
// point closes it, so that point must be snapped to; one on the point before is a cancel, which never comes
// here.

#include "model/session.h"
#include "render/canvas.h"

#include <span>

namespace mirtane {

enum class BoundaryClick {
    taken,   // the boundary goes on
    refused, // it has no room but for the leg that closes it; the click is no step
    closed,  // the last leg leads back to the first point
};

// Takes the click of a step: pickFirst at step 1, which begins a boundary, and pickLast above. pickFirst is
// then the point that the next leg starts from. The hundredth leg is the one that closes: any other is
// refused, and entry says so.
BoundaryClick takeBoundaryClick(Session& s);

// Whether the click of this step is on the first point, above step 1.
bool isOnFirstPoint(const Session& s);

// The legs of a closed boundary.
std::span<const BoundaryLeg> closedBoundary(const CanvasInput& input);

// No boundary is under way any more. A cancel and a new function do this too.
void dropBoundary(CanvasInput& input);

// The legs taken so far, and one from the last point to the pointer.
void boundaryBand(Session& s, Canvas& pic1);

} // namespace mirtane

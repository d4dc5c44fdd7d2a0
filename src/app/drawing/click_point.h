#pragma once

#include "model/session.h"
#include "render/canvas.h"
#include "tables/functions.h"

#include <optional>

namespace mirtane {

// The point of a click: where it falls, turned onto the ortho axes and snapped.

// Whether clicks are corners of a window.
bool takesWindow(const Session& s);

inline constexpr int leftButton = 1;

// A click of the function at a point: counts it if it is one of the left button, and stores the point.
void storeClick(Session& s, int button, Point at);

// The stored click asks for what hung on the pointer from the list on once more, and its place is not used: a
// snap is left for the click that places it.
bool bringsBackNextCopy(const Session& s, const FunctionRow& row);

// Brings the stored click to where it lands, and disarms the snap. Gives what a snap has found.
std::optional<SnapHit> landClick(Session& s, const Canvas& pic1, const FunctionRow& row);

// pickLast turned onto the axis of the last move's sector, at the distance d (world units) from pickFirst.
void confinePickLast(Session& s, double d);

// Where a left click at that point would land by the snap that is armed or held, and on what, found by the
// routines above. None while there is no snap, where it finds nothing, and where clicks are not snapped.
std::optional<SnapMark> aimOfClick(Session& s, const Canvas& pic1, Point at);

} // namespace mirtane

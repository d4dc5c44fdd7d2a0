#pragma once

#include "model/session.h"

namespace mirtane {

// The three-point construction on the scratch points, for "3pt. Circle", "3pt. Arc" and "Curve".

// The markers of the chord ptA ptB.
void markBisector(ScratchPoints& s);

enum class ThirdPointSide { towardsA, towardsB, neither };

// The circle through ptA, ptB and ptC: centre ptF, workRadius, and ptD the chord's middle. Gives the marker
// that ptC lies nearer to.
ThirdPointSide constructCircle(ScratchPoints& s);

// The arc from ptA to ptC by way of ptB: the circle, arcAngleOne and arcAngleTwo, and arcStart and arcEnd in
// the order that the side of ptC asks for. On neither side they keep what they held.
void constructArc(ScratchPoints& s);

// Brings an arc's scratch into the form of a slot: ptA the centre, ptB, ptC and ptD its start, end and
// middle.
void placeArcPoints(ScratchPoints& s, Point centre);

} // namespace mirtane

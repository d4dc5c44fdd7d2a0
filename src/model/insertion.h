#pragma once

#include "model/session.h"

namespace mirtane {

// Each addX fills slot entCount from the scratch points, with the current layer and colour, stat "on", and
// runs updateGauge. It does not advance entCount: the caller commits, and one that does not leaves the slot
// to be overwritten. Fields that the kind does not use keep what the slot last held. Past the table's end the
// fields are lost without a word.
void addLine(Session& s);    // ptA, ptB
void addCircle(Session& s);  // centre ptF, workRadius
void addArc(Session& s);     // centre ptA, points ptB, ptC, ptD, workRadius, arcStart, arcEnd
void addEllipse(Session& s); // axis end ptB, centre ptC, ratio ptF.x
void addPoint(Session& s);   // ptA

// The text is that of workText, the font textFont.
void addText(Session& s, float textWidth); // entered ptA, painted pickFirst; width in world units
void addLinearDim(Session& s);             // ptE, ptF, ptG, ptH, text ptA, rotation dimAngle (degrees)
void addRadialDim(Session& s);             // ptA, ptB, ptE, ptC, text ptD
void addLeader(Session& s);                // ptA, ptB, ptC, text ptD
void addAngularDim(Session& s); // ptA, ptG, ptH, ptC, text ptB, workRadius, arcStart, arcEnd, dimAngle

// Logs slot entCount as "on", marks its layer used and advances entCount.
void commitInGroup(Session& s); // the action goes on: the caller ends the group
void commitSlot(Session& s);    // the object is the whole action

// Shows in memoryGauge how much of the table is in use, and warns in entry when it is nearly full, unless
// entry tells of pieces that are missing or of an action that was refused for want of room. An insertion
// calls it before entCount is advanced, so it lags one object behind.
void updateGauge(Session& s);

} // namespace mirtane

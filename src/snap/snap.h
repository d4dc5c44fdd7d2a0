#pragma once

// Exact points. A snap replaces the point of the click under way by one taken from the drawing, found near
// mousePos. It runs after the click has been stored and confined. One that finds nothing leaves the click as
// it was, but for Snap Point, which then gives (0, 0).

#include "model/session.h"
#include "render/canvas.h"

#include <optional>

namespace mirtane {

// The snap of the key that is held: Snap Point for Ctrl, Snap Object for Shift. Gives what it found, if it
// did.
std::optional<SnapHit> holdSnap(Session& s, const Canvas& pic1);

// The snap that its button armed for this one click, by the code in armedSnap; it is disarmed. An unknown
// code stays, and so do those that a construction line does not take. Gives what it found, if it did.
std::optional<SnapHit> oneShotSnap(Session& s, const Canvas& pic1);

// Both, as a click has them, so that the button's wins.
std::optional<SnapHit> snapClick(Session& s, const Canvas& pic1);

// A press of one of the seven snap buttons: arms its snap, or does nothing where that snap has no use, and
// gives the drawing the focus.
void pressSnapButton(Session& s, Canvas& pic1, ControlId button);

// Whether the next click will snap, by a button or a key.
bool snapIsOn(const Session& s);

// What was found, as a word: "line", "text".
std::string_view nameOf(const EntityStore& store, const SnapHit& hit);

// Shows the button of the armed snap pressed and the others not, and on pic1 whether the next click will
// snap.
void showArmedSnap(Session& s);

} // namespace mirtane

#pragma once

#include "app/app.h"

#include <optional>

namespace mirtane {

// The construction line: an invisible chain of legs on the ortho axes that positions the next point of the
// function that it suspends. No object is stored for it.

// A click on blank: suspends the running function, or gives it the start of the leg as if clicked.
void toggleConstructionLine(App& app, ControlId blank);

// The point of a click on it, which is counted and stored; the leg does not go on from there yet. Gives what
// a snap has found.
std::optional<SnapHit> placeConstructionClick(Session& s, const Canvas& pic1, Point at);
void constructionClick(Session& s, Canvas& pic1, Point at);
void constructionMove(Session& s, Canvas& pic1, Point at);

// Lays the next leg's end at a typed distance, world units.
void constructionDistance(Session& s, Canvas& pic1, float d);

} // namespace mirtane

#pragma once

#include "app/app.h"

namespace mirtane {

// The construction line: an invisible chain of legs on the ortho axes that positions the next point of the
// function that it suspends. No object is stored for it.

// A click on blank: suspends the running function, or gives it the start of the leg as if clicked.
void toggleConstructionLine(App& app, ControlId blank);

void constructionClick(Session& s, Canvas& pic1, Point at);
void constructionMove(Session& s, Canvas& pic1, Point at);

// Lays the next leg's end at a typed distance, world units.
void constructionDistance(Session& s, Canvas& pic1, float d);

} // namespace mirtane

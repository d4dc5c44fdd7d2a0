#pragma once

#include "model/session.h"

namespace mirtane {

// What the controls show of what is on: the button of the running function, the toggles, the pen, the row of
// the list that stands for what runs, how many objects are selected. Of what has ended nothing stays marked.
void showMarks(Session& s);

// Where the pointer is, and the length and direction of the rubber band; how what is being typed will be
// taken.
void showPointer(Session& s);
void showReading(Session& s);

} // namespace mirtane

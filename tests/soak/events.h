#pragma once

#include "hand.h"
#include "health.h"
#include "random.h"

namespace mirtane::soak {

// One thing that a user might do next: a few events.
void doSomething(Stage& stage, Hand& hand, Random& random, Manner manner);

// Opens the drawing whose table is nearly full.
void openCrowded(Hand& hand);

} // namespace mirtane::soak

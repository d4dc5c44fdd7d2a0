#pragma once

// What is clicked and typed: mostly sensible, sometimes not.

#include "random.h"
#include "stage.h"

#include <string>

namespace mirtane::soak {

// On a grid, on or beside an object that is there, anywhere in the view, or far outside.
Point somePoint(const Stage& stage, Random& random);

// A length as a user types it, or what is none.
std::string someNumber(Random& random);

// A name or a text, or what is none.
std::string someText(Random& random);

} // namespace mirtane::soak

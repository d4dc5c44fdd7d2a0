#pragma once

#include "convert/arguments.h"
#include "convert/outcome.h"

namespace mirtane::convert {

// Draws two drawings over one another into the picture of the first job: what went in red, what came in
// green, the rest in grey. An object is the same if all that shows of it is, wherever it stands in its
// drawing. Says how many of each there are. Needs a QGuiApplication.
Outcome compare(const Job& oldOne, const Job& newOne, const Wishes& wishes);

} // namespace mirtane::convert

#pragma once

#include "exchange/file_plan.h"
#include "exchange/pairs_out.h"

namespace mirtane {

// The section of tables, and that of the objects that nobody sees: what the drawing names, and what every
// file must have.
void writeTables(PairsOut& out, FilePlan& plan, const DrawingOut& drawing);
void writeObjects(PairsOut& out, FilePlan& plan);

// Round all of the drawing, inches, y up; of no size where there is nothing.
struct Extents {
    Vec least, most;
};
Extents extentsOf(const FilePlan& plan);

} // namespace mirtane

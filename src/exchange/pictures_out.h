#pragma once

#include "exchange/file_plan.h"
#include "exchange/pairs_out.h"

namespace mirtane {

// The section of blocks: the drawing and the sheet, which are empty there, the arrows, and a picture of each
// dimension, in the pen of the object that shows it.
void writeBlocks(PairsOut& out, FilePlan& plan, const DrawingOut& drawing);

} // namespace mirtane

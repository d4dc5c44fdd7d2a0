#pragma once

// The files that a session finds on its disk.

#include "random.h"
#include "stage.h"

namespace mirtane::soak {

// Cut anywhere, bytes changed, pieces doubled or left out: what a failing disk or another program makes of
// it.
Bytes spoiled(Bytes file, Random& random);

// The libraries and the sheet of data/, small DXF files, and files that are cut off. With damage there are
// also spoiled copies, whose numbers may be anything, NaN among them.
void fillDisk(Stage& stage, Random& random, bool damage);

// A drawing of a few hundred lines whose table is nearly full of dead records, so that a session soon comes
// to the table's end, and to the end of the log.
inline constexpr const char* crowded = "crowded.mtd";
inline constexpr std::int32_t slotsLeftInCrowded = 9000;

} // namespace mirtane::soak

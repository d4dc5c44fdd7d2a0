#pragma once

// What a table had no room for, and how entry says so. What is too much for a library is dropped, and who
// draws is told of it; an action on the drawing is refused as a whole (model/room.h).

#include "model/controls.h"

#include <cstdint>
#include <string>

namespace mirtane {

struct Missing {
    std::int64_t pieces = 0;
    bool orMore = false; // not all of them could be counted
};

// "The table is full: 8,412 pieces are missing"
std::string missingText(const Missing& missing);

// Says it in entry, if there is anything to say.
void tellMissing(Controls& controls, const Missing& missing);

// Whether entry says it at the moment.
bool tellsMissing(const Controls& controls);

} // namespace mirtane

#pragma once

#include "tables/entity_record.h"

namespace mirtane {

// Two factors about a base, below 0 where they mirror.
struct Factors {
    Point base;
    double x = 1, y = 1;

    bool mirrors() const { return x * y < 0; }
    // A coordinate that overflows keeps its value.
    Point of(Point p) const;
};

// An arc scaled. With factors of one size it is the same part of a larger or smaller circle. With others it
// goes through the images of start, middle and end, by the rule for an arc through three points; where these
// lie on one line, as far as the rounding of so far a centre tells, it becomes that line. By a factor of 0,
// and where no coordinate can hold it, it stays as it is.
EntityRecord scaledArc(const EntityRecord& arc, const Factors& factors);

} // namespace mirtane

#pragma once

#include "exchange/made.h"

#include <span>

namespace mirtane {

struct Bounds {
    Vec low, high;
    bool fed = false;

    void feed(Vec p);
    double size() const { return length(high - low); }
    // The farthest that a coordinate lies from 0.
    double reach() const;
};

void feed(Bounds& bounds, const Made& made);
Bounds boundsOf(std::span<const Made> objects);

} // namespace mirtane

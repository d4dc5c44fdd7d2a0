#pragma once

#include "exchange/made.h"

#include <algorithm>
#include <span>

namespace mirtane {

struct Bounds {
    Vec low, high;
    bool fed = false;

    void feed(Vec p)
    {
        low = fed ? Vec{std::min(low.x, p.x), std::min(low.y, p.y)} : p;
        high = fed ? Vec{std::max(high.x, p.x), std::max(high.y, p.y)} : p;
        fed = true;
    }
    double size() const { return length(high - low); }
    // The farthest that a coordinate lies from 0.
    double reach() const;
};

void feed(Bounds& bounds, const Made& made);
Bounds boundsOf(std::span<const Made> objects);

} // namespace mirtane

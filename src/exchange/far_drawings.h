#pragma once

#include "exchange/made.h"
#include "exchange/placing.h"

#include <cstdint>
#include <span>

namespace mirtane {

// Whether some of them lie where numbers of 32 bits are more than a hundredth of a unit of the drawing apart.
bool isFar(std::span<const Made> objects, double worldPerFile);

// What has to be added to the objects so that 32 bits hold a hundredth of a unit: nothing where they do so as
// it is, or would not near the origin either. Where they can't for all, the place in which most lie together
// comes to the origin.
Vec moveToOrigin(std::span<const Made> objects, double worldPerFile);

// How many of them lie so far off, once placed, that 32 bits don't hold a hundredth of a unit.
std::int64_t countOfInexact(std::span<const Made> objects, const Placing& placing);

} // namespace mirtane

#pragma once

// What a reading in full gives beyond the drawing that stands open.

#include "exchange/full_reading.h"

#include <array>
#include <string>

namespace mirtane {

// How many objects of each sort that a user tells apart are not in the drawing, in the order in which they
// are named; and how many are in it that the reading does not have, or has in another place, size, pen or
// line style, or hidden.
struct NotRead {
    std::array<std::int64_t, 8> counts{};
    std::int64_t others = 0;

    bool isNothing() const;
};

// An object of the reading is in the drawing if one of its kind stands at the same place of the file; a text,
// if its words are there. Hidden objects of the reading count.
NotRead notRead(const FullReading& reading, const EntityStore& store);

// "This file holds 14 circles, 1 arc that were not read."; where none is missing, "3 objects that were read
// are not what this file shows."
std::string sentenceOf(const NotRead& missing);

} // namespace mirtane

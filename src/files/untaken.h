#pragma once

#include <cstdint>

namespace mirtane {

// What did not come of a file that holds record behind record to its end.
struct Untaken {
    std::int32_t withoutRoom = 0; // whole records
    bool isCut = false;           // the file ends in the midst of one
};

inline bool isWhole(const Untaken& untaken)
{
    return untaken.withoutRoom == 0 && !untaken.isCut;
}

} // namespace mirtane

#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace mirtane {

// One letter of a line that has been set: which of all letters it is, and where its origin stands from the
// line's beginning and its base line, in ems, x along the line and y down from it.
struct SetLetter {
    std::uint32_t letter;
    float x, y;
};

// A text as the toolkit sets it.
struct SetLine {
    std::vector<SetLetter> letters;
    double width = 0;     // ems
    bool outlined = true; // no letter is a picture of its font's own

    std::size_t bytes() const { return sizeof(SetLine) + letters.capacity() * sizeof(SetLetter); }
};

} // namespace mirtane

#pragma once

namespace mirtane {

// World coordinates, 32-bit, twelve units to the inch, x to the right and y down the screen.
struct Point {
    float x = 0;
    float y = 0;

    friend bool operator==(const Point&, const Point&) = default;
};

} // namespace mirtane

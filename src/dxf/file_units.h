#pragma once

#include "geometry/fault.h"
#include "geometry/point.h"

namespace mirtane {

// A file holds drawing units growing upward, twelve world units to one.
inline constexpr float worldPerFile = 12;

inline Point toFile(Point world)
{
    return {world.x / worldPerFile, world.y / -worldPerFile};
}

// Turns a point of a file into one of the world; a coordinate that overflows stays.
inline void toWorld(Point& p)
{
    keep(p.x, p.x * worldPerFile);
    keep(p.y, p.y * -worldPerFile);
}

} // namespace mirtane

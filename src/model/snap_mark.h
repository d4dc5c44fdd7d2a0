#pragma once

#include "geometry/point.h"

#include <cstdint>

namespace mirtane {

enum class SnapKind : std::uint8_t {
    point,
    object,
    intersection,
    percentage,
    perpendicular,
    tangent,
    midpoint
};

// What a snap has found.
struct SnapHit {
    SnapKind snap{};
    std::int32_t slot = -1; // of the object; -1 a leg of the boundary under way

    friend bool operator==(const SnapHit&, const SnapHit&) = default;
};

// Where the next click would land by a snap, world units.
struct SnapMark {
    SnapHit hit;
    Point at;

    friend bool operator==(const SnapMark&, const SnapMark&) = default;
};

} // namespace mirtane

#pragma once

#include "geometry/point.h"
#include "tables/kind.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace mirtane {

// The state of a slot. Only "on" and "sel" are painted and picked; "out" alone is not saved.
enum class Stat : std::uint8_t { none, on, sel, off, out };

constexpr std::string_view nameOf(Stat stat)
{
    constexpr std::string_view names[] = {"", "on", "sel", "off", "out"};
    return names[static_cast<int>(stat)]; // the enumerators count from 0
}

// Marks a name as none: no associate, hatch or multiple line chosen, a removed row.
inline constexpr std::string_view noName = "??????";

// One object, the fields of a slot that go into a drawing file. (p1 to p5 are x1, y1 to x5, y5.)
struct EntityRecord {
    Point p1, p2, p3, p4, p5;
    float s1 = 0, s2 = 0, rad = 0;
    double a1 = 0, a2 = 0, a3 = 0;
    std::int32_t color = 0; // 0xBBGGRR
    std::int16_t layer = 0;
    std::int16_t style = 0; // 0 solid to 4 dash-dot-dot; kind 10 keeps its arrow style here
    Kind kind{};
    std::string t1, t2;

    friend bool operator==(const EntityRecord&, const EntityRecord&) = default;
};

} // namespace mirtane

#pragma once

#include "geometry/point.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace mirtane {

// What the fields of an object mean depends on its kind; a field that a kind does not use keeps what it held.
namespace kind {
inline constexpr std::int16_t line = 1;    // p1 start, p2 end
inline constexpr std::int16_t circle = 2;  // p1 centre, rad
inline constexpr std::int16_t arc = 3;     // p1 centre; p2 start, p3 end, p4 middle; rad; a1 to a2
inline constexpr std::int16_t ellipse = 4; // p1 end of the first axis, p2 centre, p3.x ratio of the axes
inline constexpr std::int16_t point = 5;   // p1
inline constexpr std::int16_t text = 6;    // p1 as entered, p4 as painted; p2 size and justification
inline constexpr std::int16_t linearDimension = 7; // p1, p2 measured; p3, p4 dimension line; p5 text
inline constexpr std::int16_t radialDimension = 8;
inline constexpr std::int16_t leader = 9;
inline constexpr std::int16_t angularDimension = 10;
inline constexpr std::int16_t lastDrawn = 10;      // kinds above are never painted, picked or exported
inline constexpr std::int16_t associatePiece = 10; // added to the kind of a piece of an associate: 11 to 20
inline constexpr std::int16_t header = 24;         // slot 0: the drawing's attributes
inline constexpr std::int16_t layerName = 25;      // p1.x layer number plus 2, t1 the name
} // namespace kind

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
    std::int16_t kind = 0;
    std::string t1, t2;

    friend bool operator==(const EntityRecord&, const EntityRecord&) = default;
};

} // namespace mirtane

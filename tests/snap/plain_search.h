#pragma once

// The rules of the searches said again, as plainly as they can be: every object is worked out in full, in
// double, by the long way round.

#include "model/entity_store.h"

#include <algorithm>
#include <optional>
#include <span>
#include <vector>

namespace mirtane::plain {

enum class Arcs { whole, onSweep, onSweepAndABit };

struct Near {
    Point at;
    float distance;
};

// Where an object is nearest to p, if it is met at all.
std::optional<Near> nearestOf(const EntityStore& store, std::size_t i, Point p, Arcs arcs);

// Those with a place where the pointer may meet them, and those that are met at their words.
inline constexpr Kind shapes[] = {Kind::line, Kind::circle, Kind::arc, Kind::ellipse, Kind::point};
inline constexpr Kind worded[] = {Kind::text, Kind::linearDimension, Kind::radialDimension, Kind::leader,
                                  Kind::angularDimension};
static_assert(std::size(shapes) + std::size(worded) == drawnKinds, "a kind is in neither");
inline constexpr Kind crossing[] = {Kind::line, Kind::circle, Kind::arc}; // which Snap Intersection takes

struct Rule {
    Point from;
    float radius;
    std::span<const Kind> kinds;
    Arcs arcs;
    std::int32_t skipped = -1;
    // An object at the very radius is a hit, and from its own centre a circle is a radius away; a snap meets
    // no object there, and the circle in its centre.
    bool isPick = false;
};

// The slot of the nearest object, the last of equals, or -1.
std::int32_t search(const EntityStore& store, const Rule& rule);

// The points that an object offers, in their order.
std::vector<Point> offeredPoints(const EntityStore& store, std::size_t i);

// The points of an object that must lie in a window; none for kinds that no window selects.
std::vector<Point> windowPoints(const EntityStore& store, std::size_t i);

} // namespace mirtane::plain

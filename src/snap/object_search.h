#pragma once

// The object nearest to a point, by kind: the one search of the snaps, of picking and of the edits that are
// told an object by a click near it.

#include "model/entity_store.h"
#include "render/canvas.h"

namespace mirtane {

// The distance from a point within which an object counts as meant: a quarter of an inch on the screen, in
// world units. 0 on a surface without size.
float searchRadius(const Canvas& pic1);

// A set of kinds, of those that are drawn.
using KindSet = std::uint32_t;

constexpr KindSet inKind(Kind kind)
{
    return 1U << placeOf(kind);
}

// The drawn kinds that has() is true of.
KindSet kindsWith(bool (*has)(Kind));

inline constexpr KindSet circleOrArc = inKind(Kind::circle) | inKind(Kind::arc);
inline constexpr KindSet lineCircleArc = inKind(Kind::line) | circleOrArc;

using StatSet = std::uint32_t;

constexpr StatSet inStat(Stat stat)
{
    return 1U << static_cast<unsigned>(stat); // the enumerators count from 0
}

inline constexpr StatSet shownStats = inStat(Stat::on) | inStat(Stat::sel);

// How much of its circle an arc is hit on. A point is seen from the centre in a direction, 0 from the centre
// itself.
enum class ArcReach : std::uint8_t { wholeCircle, sweep, sweepAndJustBeyond };

// How far a circle is from its own centre: the snaps meet it there, in the centre itself.
enum class FromCentre : std::uint8_t { nothing, aRadius };

struct ObjectSearch {
    Point from;
    float radius = 0; // world units
    KindSet kinds = 0;
    ArcReach arcs = ArcReach::wholeCircle;
    std::int32_t passOver = -1; // a slot that is not looked at
    StatSet stats = shownStats;
    FromCentre fromCentre = FromCentre::nothing;
};

struct ObjectHit {
    std::int32_t slot = -1; // -1 none
    Point at;               // the point of the object that is nearest
    float distance = 0;     // the radius of the search if there is none

    bool found() const { return slot >= 0; }
};

// Lines are hit where the foot of the point lies between their ends, texts and dimensions at one point each:
// where they were placed, at their number, at their shoulder. Of objects equally near the last one is the
// hit. One at the very radius is one too.
ObjectHit nearestObject(const EntityStore& store, const ObjectSearch& search);

} // namespace mirtane

// commands/multiple_lines.cpp: offsets run along (uy, ux) for a line in the direction (ux, uy), y of
// directions upward. All is worked out in double and narrowed once, where a row or a slot takes it.

#include "commands/multiple_lines.h"

#include "commands/chain.h"
#include "commands/prompt.h"
#include "geometry/angle.h"
#include "geometry/fault.h"
#include "model/insertion.h"
#include "model/missing.h"
#include "model/room.h"
#include "render/painters.h"
#include "render/redraw.h"
#include "tables/list_modes.h"

#include <algorithm>
#include <cmath>

namespace mirtane {
namespace {

// A point within a calculation.
struct Place {
    double x, y;
};

struct UnitVector {
    double x = 0, y = 0; // of length 1, y upward; none for a line of no length
};

double between(Place a, Place b)
{
    return std::hypot(b.x - a.x, b.y - a.y);
}

Place placeOf(Point p)
{
    return {p.x, p.y};
}

UnitVector unitVectorOf(Point from, Point to)
{
    const Place a = placeOf(from);
    const Place b = placeOf(to);
    const double length = between(a, b);
    UnitVector u;
    keep(u.x, quotient(b.x - a.x, length));
    keep(u.y, quotient(a.y - b.y, length));
    return u;
}

Place along(Place from, UnitVector u, double d)
{
    return {from.x + d * u.x, from.y - d * u.y};
}

// The place at a line's offset from p on a leg in direction u.
Place beside(Place p, UnitVector u, double offset)
{
    return {p.x + offset * u.y, p.y + offset * u.x};
}

Point narrowed(Place p, Point held)
{
    keep(held.x, p.x);
    keep(held.y, p.y);
    return held;
}

// The foot of a place on the line from start in direction u, from the chord to the place at its own distance.
Place footFromChord(Place start, UnitVector u, Place of)
{
    const double d = between(start, of);
    const Place ahead = along(start, u, d);
    const double chord = between(of, ahead);
    double back = 0;
    keep(back, quotient(chord / 2, d) * chord);
    return along(ahead, u, -back);
}

// The corner at B of a leg from A, as seen from the next point C: how far beyond B a line at offset 1 ends.
struct Corner {
    Place b;
    UnitVector u;
    double reach = 0;

    Place mitre(double offset) const { return beside(along(b, u, -offset * reach), u, offset); }
};

// How far ahead of a place another lies, in direction u.
double ahead(Place from, UnitVector u, Place to)
{
    return (to.x - from.x) * u.x - (to.y - from.y) * u.y;
}

// The most by which rounding to 32 bits turns the way from a by b to c, as a sine. A coordinate is off by
// half a unit at the most, in both directions at once by less than a whole one, and a leg has two ends.
double turnOfRounding(Place a, Place b, Place c)
{
    constexpr double unit = 1.0 / (1 << 24); // of a coordinate
    double largest = 0;
    for (const Place p : {a, b, c}) largest = std::max({largest, std::abs(p.x), std::abs(p.y)});
    return 2 * unit * largest * (quotient(1, between(a, b)) + quotient(1, between(b, c)));
}

Corner cornerAt(Point a, Point b, Point c, bool orthoIsOn)
{
    Corner corner{placeOf(b), unitVectorOf(a, b), 0};
    const Place next = placeOf(c);
    const Place foot = footFromChord(corner.b, corner.u, next);
    const double height = between(foot, next);
    const double run = between(corner.b, foot);
    double half = eighthTurn; // half a right angle, which is what a foot on B itself means
    keep(half, std::atan(quotient(height, run)) / 2);
    const double sign = between(beside(foot, corner.u, -height), next) < height ? -1 : 1;
    double reach = std::tan(half);
    if (!orthoIsOn && ahead(corner.b, corner.u, foot) < 0) { // the turn is a sharp one
        // Lines beside a path that comes straight back never cross: they end squarely.
        if (height <= between(corner.b, next) * turnOfRounding(placeOf(a), corner.b, next)) return corner;
        reach = quotient(1, reach);
    }
    keep(corner.reach, reach * sign);
    return corner;
}

// With ortho on, every leg turns by a right angle.
Corner cornerUnderway(const Session& s)
{
    return cornerAt(s.ptA, s.ptB, s.pickLast, s.controls[ids::orthoToggle].caption == "Ortho/On");
}

template <class Use> void forEachLine(Session& s, Use use)
{
    for (MultipleLine& row : s.multipleLinesLibrary.used()) {
        if (bearsName(row.name, s.multipleLinesName)) use(row);
    }
}

void storeLine(Session& s, Canvas& pic1, const MultipleLine& row)
{
    EntityRecord r = s.store.record(s.store.entCount);
    r.p1 = row.legStart;
    r.p2 = row.legEnd;
    r.layer = s.workLayer;
    r.color = row.colour;
    r.style = row.style;
    r.kind = Kind::line;
    s.store.setRecord(s.store.entCount, r);
    s.store.setStat(s.store.entCount, Stat::on);
    commitInGroup(s);
    pic1.setColor(row.colour);
    pic1.setStyle(row.style);
    paintLineSegment(pic1, s, r.p1, r.p2);
}

// False if there is no room for the legs of all lines.
bool storeLegs(Session& s, Canvas& pic1)
{
    std::int64_t lines = 0;
    forEachLine(s, [&](const MultipleLine&) { ++lines; });
    if (!hasRoomFor(s, lines)) return false;
    const Corner corner = cornerUnderway(s);
    restorePicture(pic1);
    forEachLine(s, [&](MultipleLine& row) {
        row.legEnd = narrowed(corner.mitre(row.m1), row.legEnd);
        storeLine(s, pic1, row);
        row.legStart = row.legEnd;
    });
    pic1.snapshot();
    setRubberBandPen(pic1);
    endGroup(s.log);
    updateGauge(s);
    return true;
}

void drawLine(Canvas& pic1, Point from, Point to)
{
    pic1.line(from.x, from.y, to.x, to.y);
}

// -- creating a set --

// The reference line of a set that is made runs through ptA in this direction.
UnitVector referenceDirection(ScratchPoints& s, const EntityRecord& firstLine)
{
    constexpr double farAway = 10000; // world units
    const UnitVector u = unitVectorOf(firstLine.p1, firstLine.p2);
    s.ptA = s.pickLast;
    s.ptB = narrowed(along(placeOf(s.ptA), u, farAway), s.ptB);
    return u;
}

// The signed distance of a point from the line through p in direction u.
double offsetOf(Point of, Point p, UnitVector u)
{
    constexpr double tolerance = 1.0 / 9;
    const Place foot = footFromChord(placeOf(p), u, placeOf(of));
    const double d = between(foot, placeOf(of));
    return d * tolerance < between(beside(foot, u, d), placeOf(of)) ? -d : d;
}

bool isSelectedLine(const EntityStore& store, std::int32_t slot)
{
    const std::size_t at = EntityStore::at(slot);
    return store.kind[at] == Kind::line && store.stat[at] == Stat::sel;
}

// False when the table is full. missing counts the lines that it had no room for.
bool takeSelectedLines(Session& s, Missing& missing)
{
    UnitVector u;
    bool hasDirection = false;
    bool isFull = false;
    for (std::int32_t i = 1; i < s.store.end(); ++i) {
        if (!isSelectedLine(s.store, i)) continue;
        if (isFull) {
            ++missing.pieces;
            continue;
        }
        const EntityRecord line = s.store.record(i);
        if (!hasDirection) u = referenceDirection(s, line);
        hasDirection = true;
        MultipleLine row;
        keep(row.m1, offsetOf(line.p1, s.ptA, u));
        row.colour = line.color;
        row.style = line.style;
        row.name = s.multipleLinesName;
        if (!s.multipleLinesLibrary.add(std::move(row))) ++missing.pieces;
        isFull = s.multipleLinesLibrary.count >= MultipleLinesLibrary::rowLimit;
    }
    return !isFull;
}

} // namespace

void multipleLinesStep(Session& s, Canvas& pic1)
{
    if (s.stepNo == 1) {
        setPrompt(s, pic1);
        s.ptA = s.pickFirst;
    } else if (s.stepNo == 2) {
        setPrompt(s, pic1);
        s.ptB = s.pickLast;
        goOnFromEnd(s);
    } else if (s.stepNo > 2) {
        if (!storeLegs(s, pic1)) return;
        s.ptA = s.ptB;
        s.ptB = s.pickLast;
        goOnFromEnd(s);
    }
}

void multipleLinesBand(Session& s, Canvas& pic1)
{
    if (s.stepNo < 1) return;
    if (s.stepNo == 1) s.ptB = s.pickLast;
    const Corner corner = cornerUnderway(s);
    const UnitVector onward = unitVectorOf(s.ptB, s.pickLast);
    restorePicture(pic1);
    forEachLine(s, [&](MultipleLine& row) {
        Point start = narrowed(beside(placeOf(s.ptA), corner.u, row.m1), s.ptA);
        if (s.stepNo == 1) return drawLine(pic1, start, narrowed(beside(corner.b, corner.u, row.m1), s.ptB));
        const Point mitre = narrowed(corner.mitre(row.m1), s.ptB);
        if (s.stepNo == 2) {
            row.legStart = start;
            row.legEnd = mitre;
        } else {
            start = row.legStart; // where the corner before left it
        }
        drawLine(pic1, start, mitre);
        drawLine(pic1, mitre, narrowed(beside(placeOf(s.pickLast), onward, row.m1), s.pickLast));
    });
}

void createMultipleLinesStep(Session& s, Canvas& pic1)
{
    if (s.stepNo != 2 || s.multipleLinesName == noName) return;
    Missing missing;
    if (!takeSelectedLines(s, missing)) return tellMissing(s.controls, missing);
    changeStat(s.store, Stat::sel, Stat::on);
    returnToBase(s);
    setPrompt(s, pic1);
    redrawAll(s, pic1);
    std::vector<std::string> names = listedNames(s.multipleLinesLibrary);
    if (!names.empty()) s.multipleLinesName = names.back();
    showNames(s.controls, list_mode::selectMultipleLines, std::move(names));
}

} // namespace mirtane

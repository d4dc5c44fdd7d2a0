#include "library/hatch.h"

#include "commands/prompt.h"
#include "geometry/angle.h"
#include "geometry/fault.h"
#include "library/boundary.h"
#include "library/hatch_fill.h"
#include "library/libraries.h"
#include "model/insertion.h"
#include "model/kind_fields.h"
#include "model/room.h"
#include "render/redraw.h"
#include "tables/list_modes.h"

#include <optional>

namespace mirtane {
namespace {

// -- placing --

void addFilledPiece(Session& s, EntityRecord r)
{
    const std::int32_t slot = s.store.entCount;
    r.layer = s.workLayer;
    r.color = s.curColor;
    writeFieldsOfKind(s.store, slot, r);
    s.store.t1[EntityStore::at(slot)].clear();
    s.store.t2[EntityStore::at(slot)].clear();
    s.store.setStat(slot, Stat::on);
    commitInGroup(s);
}

// Gives what the tables of a fill had no room for; nothing if the drawing's has none for what they hold.
std::optional<Missing> fill(Session& s)
{
    Missing missing;
    const HatchFill wanted{closedBoundary(s), s.hatchLibrary.used(), s.hatchName, s.hatchScale,
                           s.hatchRotation};
    const std::vector<HatchPiece> pieces = fillHatch(wanted, missing);
    if (!hasRoomFor(s, std::ssize(pieces))) return std::nullopt;
    for (const HatchPiece& piece : pieces) addFilledPiece(s, hatchObject(piece, wanted));
    endGroup(s.log);
    return missing;
}

// -- creating --

Point relativeTo(Point corner, Point p)
{
    Point relative;
    keep(relative.x, static_cast<double>(p.x) - corner.x); // widened before the difference
    keep(relative.y, static_cast<double>(p.y) - corner.y); // widened before the difference
    return relative;
}

// False for a kind that a tile can't have.
bool takeGeometry(const EntityRecord& r, Point corner, HatchRow& row)
{
    row.h1 = relativeTo(corner, r.p1);
    row.hatchStyle = r.style;
    switch (r.kind) {
    case Kind::line:
        row.h2 = relativeTo(corner, r.p2);
        row.hatchA1 = directionAngle(r.p1, r.p2, 0);
        return true;
    case Kind::arc:
        row.h2 = relativeTo(corner, r.p2);
        row.h3 = relativeTo(corner, r.p3);
        row.h4 = relativeTo(corner, r.p4);
        row.hatchA1 = r.a1;
        row.hatchA2 = r.a2;
        row.hatchRad = r.rad;
        return true;
    case Kind::circle:
        row.hatchRad = r.rad;
        return true;
    case Kind::point:
        row.hatchStyle = 0;
        return true;
    case Kind::ellipse:
    case Kind::text:
    case Kind::linearDimension:
    case Kind::radialDimension:
    case Kind::leader:
    case Kind::angularDimension:
        return false;
    }
    return false;
}

// Gives what the table had no row for.
Missing takeSelection(Session& s, Point first, Point second)
{
    Missing missing;
    const Point size = relativeTo(first, second);
    for (std::int32_t i = 1; i < s.store.end(); ++i) {
        if (s.store.stat[EntityStore::at(i)] != Stat::sel) continue;
        const EntityRecord r = s.store.record(i);
        HatchRow row;
        if (!takeGeometry(r, first, row)) continue;
        row.hatchName = s.hatchName;
        row.hatchTileW = size.x;
        row.hatchTileH = size.y;
        row.hatchColor = r.color;
        row.hatchKind = r.kind;
        if (!s.hatchLibrary.add(std::move(row))) ++missing.pieces;
    }
    return missing;
}

} // namespace

void placeHatchStep(Session& s, Canvas& pic1)
{
    constexpr std::int32_t fewestLegs = 2; // before the one that closes
    if (isOnFirstPoint(s) && s.boundaryCount < fewestLegs) {
        --s.stepNo;
        return;
    }
    const bool closed = takeBoundaryClick(s) == BoundaryClick::closed;
    if (s.stepNo == 1) setPrompt(s, pic1);
    if (!closed) return;
    const std::optional<Missing> missing = fill(s);
    if (!missing) return;
    dropBoundary(s);
    s.stepNo = 0;
    redrawAll(s, pic1);
    setPrompt(s, pic1);
    tellMissing(s.controls, *missing);
}

void createHatchStep(Session& s, Canvas& pic1)
{
    if (s.stepNo == 2) {
        s.ptA = s.pickLast;
        setPrompt(s, pic1);
    }
    if (s.stepNo != 3) return;
    // Without a name the rows would be removed ones from the start.
    const Missing missing = s.hatchName == noName ? Missing{} : takeSelection(s, s.ptA, s.pickLast);
    changeStat(s.store, Stat::sel, Stat::on);
    returnToBase(s);
    redrawAll(s, pic1);
    setPrompt(s, pic1);
    s.hatchName = noName;
    refillNames(s, Library::hatches, list_mode::selectHatch);
    tellMissing(s.controls, missing);
}

} // namespace mirtane

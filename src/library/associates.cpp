#include "library/associates.h"

#include "commands/prompt.h"
#include "geometry/angle.h"
#include "geometry/fault.h"
#include "library/libraries.h"
#include "library/turned_angle.h"
#include "model/insertion.h"
#include "model/kind_fields.h"
#include "model/record_moves.h"
#include "model/room.h"
#include "render/entity_painter.h"
#include "render/redraw.h"
#include "tables/kinds.h"
#include "tables/list_modes.h"

namespace mirtane {
namespace {

// -- creating --

std::vector<EntityRecord> piecesOfSelection(const Session& s)
{
    std::vector<EntityRecord> pieces;
    for (std::int32_t i = 1; i < s.store.end(); ++i) {
        const std::size_t at = EntityStore::at(i);
        if (s.store.stat[at] == Stat::sel && isDrawnKind(s.store.kind[at]))
            pieces.push_back(s.store.record(i));
    }
    return pieces;
}

void addPiece(Session& s, EntityRecord piece)
{
    const std::int32_t slot = s.store.entCount;
    ++s.store.entCount;
    shift(piece, -s.pickLast.x, -s.pickLast.y);
    piece.layer = s.workLayer;
    writeFieldsOfKind(s.store, slot, piece);
    s.store.kind[EntityStore::at(slot)] = pieceOf(piece.kind);
    s.store.setStat(slot, Stat::out);
    s.store.ownerName[EntityStore::at(slot)] = s.associateName;
}

// -- placing --

// The angles of texts go on past a turn.
void turnAngles(EntityRecord& r, double rotation)
{
    const KindRow& row = *kindRow(r.kind); // a drawn kind: placePiece has looked
    if (row.sweeps) {
        keep(r.a1, turnedAngle(r.a1, rotation));
        keep(r.a2, turnedAngle(r.a2, rotation));
    }
    if (row.rotation != nullptr) keep(r.*row.rotation, r.*row.rotation + rotation * degreesPerRadian);
}

// A mirrored arc still runs counter-clockwise, so it starts where the piece ends.
void mirrorArc(EntityRecord& r)
{
    const Point start = r.p3;
    r.p3 = r.p2;
    r.p2 = start;
    r.a1 = directionAngle(r.p1, r.p2, 0);
    r.a2 = directionAngle(r.p1, r.p3, 0);
}

void mirrorPairs(EntityRecord& r)
{
    mapPairs(r, kindRow(r.kind)->moved, [](Point p) { return Point{-p.x, p.y}; });
    if (r.kind == Kind::arc) mirrorArc(r);
}

bool isMirrored(Kind kind)
{
    return kindRow(kind)->textStart == nullptr;
}

Placement placementAtPointer(const Session& s)
{
    return {s.pickLast, s.associateRotation, s.controls[ids::reverseAssociate].checked};
}

// Calls use(object) for each object that a placement of the current associate makes. The bound is taken
// first: a use may add objects.
template <class Use> void forEachPlaced(const Session& s, Use use)
{
    const Placement placement = placementAtPointer(s);
    const std::int32_t end = s.store.end();
    for (std::int32_t i = 1; i < end; ++i) {
        if (!bearsName(s.store.ownerName[EntityStore::at(i)], s.associateName)) continue;
        EntityRecord object;
        if (placePiece(s.store.record(i), placement, object)) use(object);
    }
}

void addPlaced(Session& s, EntityRecord object)
{
    const std::int32_t slot = s.store.entCount;
    object.layer = s.workLayer;
    writeFieldsOfKind(s.store, slot, object);
    s.store.setStat(slot, Stat::on);
    // The slot may have been a piece before the drawing was closed, and must not become one of this
    // associate.
    s.store.ownerName[EntityStore::at(slot)].clear();
    commitInGroup(s);
}

} // namespace

bool placePiece(const EntityRecord& piece, const Placement& placement, EntityRecord& object)
{
    EntityRecord placed = piece;
    placed.kind = objectOf(piece.kind);
    const KindRow* row = kindRow(placed.kind);
    if (row == nullptr || (placement.reversed && !isMirrored(placed.kind))) return false;
    if (placement.reversed) mirrorPairs(placed);
    shift(placed, placement.at.x, placement.at.y);
    const Turn turn(placement.at, placement.rotation);
    mapPairs(placed, row->moved, [&turn](Point p) { return turn.of(p); });
    turnAngles(placed, placement.rotation);
    if (placed.kind == Kind::arc && !placement.reversed) {
        placed.p2 = polarPoint(placed.p1, placed.rad, placed.a1);
        placed.p3 = polarPoint(placed.p1, placed.rad, placed.a2);
    }
    object = placed;
    return true;
}

void createAssociateStep(Session& s, Canvas& pic1)
{
    if (s.associateName == noName) {
        s.stepNo = 1;
        return;
    }
    if (s.stepNo != 2) return;
    const std::vector<EntityRecord> pieces = piecesOfSelection(s);
    if (!hasRoomFor(s, std::ssize(pieces))) return;
    for (const EntityRecord& piece : pieces) addPiece(s, piece);
    markUsed(s.layerTable, s.workLayer);
    changeStat(s.store, Stat::sel, Stat::on);
    returnToBase(s);
    redrawAll(s, pic1);
    setPrompt(s, pic1);
    refillNames(s, Library::associates, list_mode::selectAssociate);
}

void placeAssociateStep(Session& s, Canvas& pic1)
{
    if (s.associateName == noName) {
        s.stepNo = 0;
        return;
    }
    if (s.stepNo == 1) setPrompt(s, pic1);
    if (s.stepNo != 2) return;
    computePixelMapping(s, pic1);
    std::vector<EntityRecord> placed;
    forEachPlaced(s, [&](const EntityRecord& object) { placed.push_back(object); });
    if (!hasRoomFor(s, std::ssize(placed))) return;
    for (const EntityRecord& object : placed) addPlaced(s, object);
    updateGauge(s);
    endGroup(s.log);
    redrawAll(s, pic1);
    s.stepNo = 0;
    setPrompt(s, pic1);
}

void placeAssociateBand(Session& s, Canvas& pic1)
{
    if (s.stepNo != 1 || s.associateName == noName) return;
    computePixelMapping(s, pic1);
    restorePicture(pic1);
    forEachPlaced(s, [&](const EntityRecord& object) { paintEntity(pic1, s, object); });
    pic1.refresh();
}

} // namespace mirtane

#include "snap/pick.h"

#include "snap/object_search.h"
#include "tables/functions.h"
#include "tables/kinds.h"

#include <utility>

namespace mirtane {
namespace {

// Of all kinds, or of those that have words.
KindSet pickedKinds(const FunctionState& s)
{
    return functionRow(s.curFunc).editsText ? kindsWith(hasWords) : kindsWith(isDrawnKind);
}

} // namespace

std::int32_t pickObject(Session& s, const Canvas& pic1)
{
    const ObjectHit hit = nearestObject(s.store, {.from = s.mousePos,
                                                  .radius = searchRadius(pic1),
                                                  .kinds = pickedKinds(s),
                                                  .arcs = ArcReach::sweepAndJustBeyond,
                                                  .fromCentre = FromCentre::aRadius});
    s.snapBestIndex = hit.slot;
    s.snapRadius = hit.distance;
    s.pickedIndex = hit.found() ? hit.slot : PickResults::none;
    return hit.slot;
}

bool togglePick(Session& s, const Canvas& pic1)
{
    s.stepNo = 0;
    const std::int32_t slot = pickObject(s, pic1);
    if (slot < 0) return false;
    const std::size_t i = EntityStore::at(slot);
    if (s.store.stat[i] == Stat::sel) {
        s.store.stat[i] = Stat::on;
        return true;
    }
    s.store.stat[i] = Stat::sel;
    if (!isDimension(s.store.kind[i])) s.store.p5[i] = s.mousePos; // a dimension keeps its text there
    return true;
}

void selectLast(Session& s)
{
    const UndoLog& log = s.log;
    for (std::size_t i = 0; i < log.logSlot.size() && std::cmp_less(i, log.undoLogCount); ++i) {
        const std::int32_t slot = log.logSlot[i];
        if (log.logGroup[i] != log.undoGroupNext - 1 || log.logStat[i] != Stat::on) continue;
        if (EntityStore::holds(slot) && s.store.stat[EntityStore::at(slot)] == Stat::on)
            s.store.setStat(slot, Stat::sel);
    }
}

} // namespace mirtane

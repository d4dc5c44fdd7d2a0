#include "snap/pick.h"

#include "snap/object_search.h"

#include <utility>

namespace mirtane {
namespace {

constexpr KindSet anyKind = kindsBetween(kind::line, kind::lastDrawn);
constexpr KindSet textOrDimension = kindsBetween(kind::text, kind::lastDrawn);

} // namespace

std::int32_t pickObject(Session& s, const Canvas& pic1)
{
    const ObjectHit hit =
        nearestObject(s.store, {.from = s.mousePos,
                                .radius = searchRadius(pic1),
                                .kinds = s.curFunc == "Text Edit" ? textOrDimension : anyKind,
                                .arcs = ArcReach::sweepAndJustBeyond});
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
    if (s.store.kind[i] <= kind::text) s.store.p5[i] = s.mousePos; // a dimension keeps its text there
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
